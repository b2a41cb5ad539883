#pragma once

#include <QString>

// The floor of a backup with its check: the books copied and brought to the disk, and each page of the copy
// read and deciphered once. All paths are those of this machine; the books must be closed.
namespace FloorBackup {

void Copy(const QString& books, const QString& target);
void ReadPages(const QString& copy, const QString& password);

}
