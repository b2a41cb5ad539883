#pragma once

#include <QString>

// What the program holds is the society's alone. Where the system knows no such thing, nothing happens.
namespace Privacy {

// No core of this process is written, and none can be taken from it: it would hold the password of the
// books. For a program's own start only; a debugger can't follow such a process.
void ForbidCores();

// Takes from everybody but the owner what they may do with a file, or with a folder and all that is below
// it. What the owner may do stays; links are left alone, for they lead to devices. What belongs to somebody
// else, or isn't there, stays as it is.
void KeepToOwner(const QString& path);

}
