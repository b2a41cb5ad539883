#pragma once

#include <QString>

// The application folder. It is fixed: every run-time file is addressed by its full path under it.
inline constexpr QStringView AppFolder = u"C:\\Tarvel01\\Vetrolan\\";

// Where a path under a drive letter lies on this machine. On Windows it is that path itself; elsewhere
// drive X: is the folder drive_x below the drives' root, with '/' between the parts. A path without a drive
// letter comes back as it is.
QString LocalPath(QStringView path);

// Where a file of AppFolder lies on this machine, such as "PWD.TXT".
QString LocalAppFile(QStringView name);

// Where the drives lie: the user's shared data folder unless a test or the tour moved it. An empty
// text puts it back there.
void SetDrivesRoot(const QString& folder);
