#pragma once

#include <QString>
#include <QStringList>

// The items of a text file: separated by commas or line ends, with optional double quotes around each, in
// which commas and line ends stand for themselves.
QStringList ItemsOf(const QString& text);

// The password that the items disguise: the last one is a key character, every other one the password's
// character shifted up by it. Blanks at the ends of the password are dropped. Items that hide no character
// are a run-time error.
QString PasswordOfItems(const QStringList& items);
