#pragma once

#include <QString>

// Files on their way to the printer. They contain data from the books, so they are kept beside them and only
// the user can read them. If the program was killed while printing, the next start removes what it left
// behind.
namespace PrintFiles {

// Sets the folder for these files, and removes what was left behind there. No other process may be printing
// from that folder.
void KeepIn(const QString& folder);

// The name pattern of a new file for QTemporaryFile. Before KeepIn it is in the temporary folder of the
// system.
QString Pattern();

}
