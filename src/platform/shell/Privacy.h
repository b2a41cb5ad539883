#pragma once

#include <QString>

// Keeps other users of the machine from the society's data. On a system without such rights, these do
// nothing.
namespace Privacy {

// Forbids core dumps of this process, which would hold the password of the database. To be called at the
// start of a program; afterwards no debugger can attach to it.
void ForbidCores();

// Takes the rights to a file, or to a folder with all that is in it, from everybody but the owner. Links are
// left alone, since they lead to devices. Files that belong to somebody else or don't exist are passed over.
void KeepToOwner(const QString& path);

}
