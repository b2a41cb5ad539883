#pragma once

#include <QByteArray>
#include <QString>

// Writes PWD.TXT, from which PasswordItems reads the password: one character a line in double quotes, shifted
// up by the code of the key character, which is the last line. This only hides it from a passing glance.
namespace PasswordFile {

// The reason why a password can't be stored like this, in one sentence; empty if it can.
QString WhyRefused(const QString& password);

// The content of the file for an accepted password. It is plain ASCII, so that it reads the same in every
// code page.
QByteArray Written(const QString& password);

}
