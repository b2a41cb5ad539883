#pragma once

#include <QString>
#include <QStringList>

class QIODevice;

// The items of a text file: separated by commas or line ends, with optional double quotes around each, in
// which commas and line ends stand for themselves.
QStringList ItemsOf(const QString& text);

// The password that the items disguise: the last one is a key character, every other one the password's
// character shifted up by it. Blanks at the ends of the password are dropped. Items that hide no character
// are a run-time error.
QString PasswordOfItems(const QStringList& items);

// The password that a file open for reading hides. Its characters are Latin-1, unless a byte order mark says
// how they are written. A file of more than 4 KB is none, and a run-time error; no more of it is read.
QString PasswordOfFile(QIODevice& file);
