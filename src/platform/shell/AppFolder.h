#pragma once

#include <QString>

namespace Paths {

// The application folder. It is fixed: every file that the program reads or writes is named by its full path
// in it. See LocalPath for where that is on this machine.
inline constexpr QStringView AppFolder = u"C:\\Tarvel01\\Vetrolan\\";

}

// Where a path with a drive letter is on this machine. On Windows it is that path itself; elsewhere drive X:
// is the folder drive_x in the drives' root (see SetDrivesRoot), and '/' separates the parts. A path without
// a drive letter is returned unchanged.
QString LocalPath(QStringView path);

// Where a file of AppFolder, such as "PWD.TXT", is on this machine.
QString LocalAppFile(QStringView name);

// Sets the folder that holds the drives, for tests and the tour. An empty text restores the default: the
// folder vetrolan in the user's data folder.
void SetDrivesRoot(const QString& folder);
