#include "tools/setup/PasswordFile.h"

#include <algorithm>

namespace {

// No blanks, since they are trimmed when the password is read, and no quotes, commas, braces or semicolons,
// which have a meaning in the file or in a connection string.
constexpr QStringView AllowedMarks = u"!#$%&()*+-./:<=>?@[\\]^_|";
constexpr qsizetype LongestPassword = 64;

bool IsAllowed(QChar c)
{
    const bool ascii = c.unicode() < 0x80;
    return ascii && (c.isLetterOrNumber() || AllowedMarks.contains(c));
}

// Chooses a key that keeps all characters in ASCII and clear of quotes and commas.
char KeyFor(const QByteArray& password)
{
    const auto fits = [&](char key) {
        return std::none_of(password.begin(), password.end(), [&](char c) {
            const int shifted = c + key;
            return shifted > 0x7E || shifted == '"' || shifted == ',';
        });
    };
    for (char key = 5; key > 0; --key)
        if (fits(key))
            return key;
    return 0;
}

}

QString PasswordFile::WhyRefused(const QString& password)
{
    if (password.isEmpty())
        return QStringLiteral("The password is empty.");
    if (password.size() > LongestPassword)
        return QStringLiteral("The password is longer than 64 characters.");
    if (!std::all_of(password.begin(), password.end(), IsAllowed))
        return QStringLiteral("The password may hold English letters, digits and the marks ") % AllowedMarks
            % QStringLiteral(" and nothing else.");
    if (KeyFor(password.toLatin1()) == 0)
        return QStringLiteral("The password mixes marks that can't be kept together; use fewer marks.");
    return {};
}

QByteArray PasswordFile::Written(const QString& password)
{
    const QByteArray plain = password.toLatin1();
    const char key = KeyFor(plain);
    QByteArray file;
    const auto addItem = [&](char c) {
        file += '"';
        file += c;
        file += "\"\n";
    };
    for (const char c : plain)
        addItem(static_cast<char>(c + key));
    addItem(key);
    return file;
}
