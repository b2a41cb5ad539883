#pragma once

#include <QString>
#include <QStringList>

class QIODevice;

// Splits a text into its items, which are separated by commas or line ends. An item may stand in double
// quotes and then contain commas and line ends.
QStringList ItemsOf(const QString& text);

// Decodes the password: the last item is the key character, and each other item is a character of the
// password, shifted up by the key's code. Blanks at the ends of the password are dropped. Items without a
// password character are a RunTimeError.
QString PasswordOfItems(const QStringList& items);

// Reads the password from a file that is open for reading. It is Latin-1, unless it has a byte order mark. A
// file of more than 4 KB is a RunTimeError.
QString PasswordOfFile(QIODevice& file);
