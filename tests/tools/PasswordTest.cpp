#include "platform/text/PasswordItems.h"
#include "tests/tools/SetupSupport.h"
#include "tools/setup/PasswordFile.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

QString Read(const QByteArray& file)
{
    return PasswordOfItems(ItemsOf(QString::fromLatin1(file)));
}

TEST(PasswordFileTest, ReadsBackAsThePassword)
{
    for (const char* word :
        {"a", "Z", "0", "gokul", "Gokul#2026", "zZ9zZ9", "x!y", "(a+b)*c", "|pipe|", "a=b", "C:\\x_^"}) {
        const QString password = QString::fromLatin1(word);
        ASSERT_EQ(PasswordFile::WhyRefused(password), QString()) << word;
        const QByteArray file = PasswordFile::Written(password);
        EXPECT_EQ(Read(file), password);
    }
}

TEST(PasswordFileTest, EveryAllowedCharacterSurvives)
{
    int allowed = 0;
    for (char16_t code = 0; code < 0x180; ++code) {
        const QString password = QStringLiteral("a") % QChar(code) % QStringLiteral("1");
        if (!PasswordFile::WhyRefused(password).isEmpty())
            continue;
        ++allowed;
        EXPECT_EQ(Read(PasswordFile::Written(password)), password);
    }
    EXPECT_EQ(allowed, 26 + 26 + 10 + 24);
}

TEST(PasswordFileTest, IsPlainAsciiAndDoesNotShowThePassword)
{
    const QByteArray file = PasswordFile::Written("Gokul#2026");
    for (const char c : file)
        EXPECT_TRUE(static_cast<unsigned char>(c) < 0x7F);
    QByteArray shown = file;
    EXPECT_FALSE(shown.replace("\"\n\"", "").contains("Gokul"));
}

TEST(PasswordFileTest, RefusesWhatTheReadingWouldLose)
{
    const QStringList refused{QString(), " ", "two words", "a'b", "a\"b", "a,b", "a;b", "a{b", "गोकुळ",
        "caf\u00e9", "tab\t", QString(65, u'x')};
    for (const QString& password : refused)
        EXPECT_NE(PasswordFile::WhyRefused(password), QString()) << password.toStdString();
}

TEST(PasswordFileTest, HasOneCharacterToALineAndTheKeyLast)
{
    EXPECT_EQ(PasswordFile::Written("ab1"), QByteArray("\"f\"\n\"g\"\n\"6\"\n\"\x05\"\n"));
}

// Every character of a password behind the key '!'.
QStringList Disguised(const QString& password)
{
    QStringList items;
    for (const QChar c : password)
        items.append(QChar(static_cast<char16_t>(c.unicode() + u'!')));
    return items << QStringLiteral("!");
}

TEST(PasswordReadingTest, DropsBlanksAtTheEnds)
{
    EXPECT_EQ(PasswordOfItems(Disguised("  ab  ")), "ab");
    EXPECT_EQ(PasswordOfItems(Disguised("a b")), "ab")
        << "each character is put to the trimmed ones before it";
}

TEST(PasswordReadingTest, KeepsTabsAndHardBlanks)
{
    for (const QChar kept : {QChar(u'\t'), QChar(u'\u00a0'), QChar(u'\n')}) {
        const QString password = kept % QStringLiteral("a") % kept % QStringLiteral("b") % kept;
        EXPECT_EQ(PasswordOfItems(Disguised(password)), password) << int{kept.unicode()};
    }
}

}
