#pragma once

#include <QString>

// Files on their way to the printer. They hold what is in the books, so they lie with the books and are for
// their owner alone. One that a program left behind that was ended in the middle is removed at the next
// start.
namespace PrintFiles {

// Removes what was left behind in a folder, and has the files lie there from now on. Nobody else may be
// printing from that folder.
void KeepIn(const QString& folder);

// What the name of a new file is made from, as a temporary file takes it. Until a folder was given they lie
// among the machine's temporary files.
QString Pattern();

}
