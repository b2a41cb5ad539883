#pragma once

#include <QByteArray>
#include <QString>

// The database's password as it stands in PWD.TXT: one character to a line, in double quotes, shifted up by
// the code of the key character, which is the last line. PasswordItems reads it. It keeps the password from a
// passing eye only.
namespace PasswordFile {

// Why a password can't be kept so: one sentence, or an empty text if it can.
QString WhyRefused(const QString& password);

// The file of a password that isn't refused. It is plain ASCII, whatever the machine reads it as.
QByteArray Written(const QString& password);

}
