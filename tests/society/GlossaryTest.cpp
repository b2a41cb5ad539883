#include "platform/text/Shivaji01.h"
#include "society/Words.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QRegularExpression>

namespace {

// The rows of docs/glossary.md: what stands in the code, and what it reads.
QMap<QString, QString> Glossary()
{
    QFile file(QStringLiteral(GLOSSARY));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression row("^\\| `([^`]+)` \\| ([^|]+) \\| [^|]+ \\|$");
    QMap<QString, QString> words;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (const auto match = row.match(line); match.hasMatch())
            words.insert(match.captured(1), match.captured(2));
    return words;
}

}

TEST(GlossaryTest, EveryWordReadsAsTheGlossarySays)
{
    const QMap<QString, QString> words = Glossary();
    EXPECT_GE(words.size(), 40);
    for (auto word = words.begin(); word != words.end(); ++word)
        EXPECT_EQ(Shivaji01::ToUnicode(word.key()).toStdString(), word.value().toStdString());
}

TEST(GlossaryTest, TheNamedWordsAreInIt)
{
    const QMap<QString, QString> words = Glossary();
    for (const QStringView word : {Word::Morning, Word::Evening, Word::Cow, Word::Buffalo, Word::Both,
             Word::Cash, Word::Bank, Word::Yes, Word::No, Word::CowThev, Word::BuffThev, Word::Thev,
             Word::Uchal, Word::UchalJama, Word::Khadya})
        EXPECT_TRUE(words.contains(word.toString())) << word.toString().toStdString();
}
