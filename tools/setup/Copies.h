#pragma once

#include "backups/BooksCopies.h"

#include <QDateTime>
#include <QString>

// The password of the society in a folder, from its PWD.TXT. Without one it is a RunTimeError.
QString PasswordIn(const QString& folder);

// Whether a log lies beside a copy of the books: what stands in it is not in the copy.
bool HasOwnLog(const QString& copy);

// Brings a copy back over the books in a folder, with the password that lies there, and tells what lies in
// it. The books that are replaced are kept in the folder of the backups; those that can't be opened with
// their log. Books that another program reads, so that their log stays, are not replaced: a RunTimeError.
BooksContent RestoreBooks(const QString& folder, const QString& copy, const QDateTime& now);
