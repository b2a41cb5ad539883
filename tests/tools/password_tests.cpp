#include "PasswordFile.h"
#include "SetupSupport.h"

#include <gtest/gtest.h>

namespace {

// The reading as the system does it: the last item is the key, each item's first character less the key's is
// a character of the password; the key's own turn yields a zero, which is cut off.
QString ReadAsTheSystemDoes(const QByteArray& file)
{
    QStringList items;
    for (QString line : QString::fromLatin1(file).split(u'\n', Qt::SkipEmptyParts)) {
        EXPECT_TRUE(line.size() == 3 && line.startsWith(u'"') && line.endsWith(u'"')) << line.toStdString();
        items.append(line.mid(1, 1));
    }
    EXPECT_FALSE(items.isEmpty());
    const int key = items.isEmpty() ? 0 : items.last()[0].unicode();
    QString password;
    for (const QString& item : items)
        password = password.trimmed() + QChar(static_cast<char16_t>(item[0].unicode() - key));
    password.chop(1);
    return password;
}

TEST(PasswordFile, ReadsBackAsThePassword)
{
    for (const char* word :
        {"a", "Z", "0", "gokul", "Gokul#2026", "zZ9zZ9", "x!y", "(a+b)*c", "|pipe|", "a=b", "C:\\x_^"}) {
        const QString password = QString::fromLatin1(word);
        ASSERT_EQ(PasswordFile::WhyRefused(password), QString()) << word;
        const QByteArray file = PasswordFile::Written(password);
        EXPECT_EQ(ReadAsTheSystemDoes(file), password);
        EXPECT_EQ(PasswordFile::Read(file), password);
    }
}

TEST(PasswordFile, EveryAllowedCharacterSurvives)
{
    int allowed = 0;
    for (char16_t code = 0; code < 0x180; ++code) {
        const QString password = QStringLiteral("a") % QChar(code) % QStringLiteral("1");
        if (!PasswordFile::WhyRefused(password).isEmpty())
            continue;
        ++allowed;
        EXPECT_EQ(ReadAsTheSystemDoes(PasswordFile::Written(password)), password);
    }
    EXPECT_EQ(allowed, 26 + 26 + 10 + 24);
}

TEST(PasswordFile, IsPlainAsciiAndDoesNotShowThePassword)
{
    const QByteArray file = PasswordFile::Written(QStringLiteral("Gokul#2026"));
    for (const char c : file)
        EXPECT_TRUE(static_cast<unsigned char>(c) < 0x7F);
    QByteArray shown = file;
    EXPECT_FALSE(shown.replace("\"\n\"", "").contains("Gokul"));
}

TEST(PasswordFile, RefusesWhatTheReadingWouldLose)
{
    const QStringList refused{QString(), QStringLiteral(" "), QStringLiteral("two words"),
        QStringLiteral("a'b"), QStringLiteral("a\"b"), QStringLiteral("a,b"), QStringLiteral("a;b"),
        QStringLiteral("a{b"), QStringLiteral("गोकुळ"), QStringLiteral("caf\u00e9"), QStringLiteral("tab\t"),
        QString(65, u'x')};
    for (const QString& password : refused)
        EXPECT_NE(PasswordFile::WhyRefused(password), QString()) << password.toStdString();
}

TEST(PasswordFile, AnythingElseReadsAsNoPassword)
{
    EXPECT_EQ(PasswordFile::Read(QByteArray()), QString());
    EXPECT_EQ(PasswordFile::Read("\"x\"\n"), QString());
    EXPECT_EQ(PasswordFile::Read("no items here"), QString());
}

}
