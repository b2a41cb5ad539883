#include "TextData.h"
#include "platform/text/Shivaji01.h"

#include <QFile>

#include <gtest/gtest.h>

#include <random>

using Shivaji01::FromUnicode;
using Shivaji01::Glyphs;
using Shivaji01::Reading;
using Shivaji01::ToUnicode;

namespace {

std::string Utf8(QStringView text)
{
    return text.toUtf8().toStdString();
}

// Two spellings of one reading, which reads the same beside the others of the list.
struct TwoSpellings {
    QStringView one;
    QStringView other;
    QStringView seen;
};

constexpr TwoSpellings SpelledTwoWays[] = {
    {u"$", u"ru", u"रु"},
    {u"É", u"rU", u"रू"},
    {u")", u"hR", u"हृ"},
    {u"Ì", u"kR", u"कृ"},
    {u"Î", u"fR", u"फृ"},
    {u"Ëa", u"k`a", u"क्रा"},
    {u"Í", u"f`", u"फ्र"},
    {u"Sa", u"Xa", u"श"},
    {u"SaI", u"ÏaI", u"शी"},
    {u"Ea", u"S`a", u"श्र"},
    {u"kÜ", u"kao", u"को"},
    {u"maÝ", u"maaO", u"मौ"},
    {u"[-", u"š", u"ई"},
    {u"AÜ", u"Aao", u"ओ"},
    {u"A^", u"A\u0945", u"ॲ"},
    {u"Ù", u"nna", u"न्न"},
    {u"{", u"z\\z", u"ठ्ठ"},
    {u"+", u"T\\z", u"ट्ठ"},
    {u"_", u"d\\d", u"द्द"},
    {u"w", u"d\\Qa", u"द्ध"},
    {u"V", u"d\\ya", u"द्य"},
    {u"W", u"d\\va", u"द्व"},
    {u"~", u"%`a", u"त्र"},
    {u"<a", u"%%a", u"त्त"},
    {u">", u"@t", u"क्त"},
    {u"&", u"jHa", u"ज्ञ"},
    {u"xa", u"@Ya", u"क्ष"},
    {u"Ÿ", u"ija", u"जि"},
    {u"Ó", u"K,", u"ख\u093C"},
    {u"Ô", u"f,", u"फ\u093C"},
    {u"(a", u"*yaa", u"ह्या"},
    {u"Ê", u"¸", u","},
    {u"²", u"Ñ", u"!"},
    {u"r\\\u200Dya", u"áya", u"\u0931\u094Dय"},
    {u"ma", u"ma\u200C", u"म"},
};

// A name of some syllables, spelled in one way and in another.
struct Name {
    QString one;
    QString other;
    QString seen;
};

Name RandomName(std::mt19937& random)
{
    std::uniform_int_distribution<std::size_t> any(0, std::size(SpelledTwoWays) - 1);
    std::bernoulli_distribution turned(0.5);
    Name name;
    for (int length = std::uniform_int_distribution<int>(1, 8)(random); length > 0; --length) {
        const TwoSpellings& part = SpelledTwoWays[any(random)];
        const bool turn = turned(random);
        name.one += turn ? part.other : part.one;
        name.other += turn ? part.one : part.other;
        name.seen += part.seen;
    }
    return name;
}

}

TEST(Shivaji01ReadingTest, EveryPairOfSpellingsReadsTheSame)
{
    for (const TwoSpellings& pair : SpelledTwoWays) {
        EXPECT_NE(pair.one, pair.other);
        EXPECT_EQ(Utf8(Reading(pair.one)), Utf8(pair.seen)) << Utf8(pair.one);
        EXPECT_EQ(Utf8(Reading(pair.other)), Utf8(pair.seen)) << Utf8(pair.other);
    }
    EXPECT_EQ(Reading(u"maa$tI"), Reading(u"maarutI"));
}

TEST(Shivaji01ReadingTest, NamesReadTheSameWhateverTheirSpellingAndOnlyThen)
{
    std::mt19937 random(20260403);
    Name before;
    for (int i = 0; i < 20000; ++i) {
        const Name name = RandomName(random);
        ASSERT_EQ(Utf8(Reading(name.one)), Utf8(name.seen)) << Utf8(name.one);
        ASSERT_EQ(Utf8(Reading(name.other)), Utf8(name.seen)) << Utf8(name.other);
        ASSERT_EQ(Reading(FromUnicode(name.seen)), name.seen) << Utf8(name.seen);
        ASSERT_EQ(Reading(name.one) == Reading(before.other), name.seen == before.seen);
        before = name;
    }
}

TEST(Shivaji01ReadingTest, CodesReadTheSameIfTheTableSaysSo)
{
    int alike = 0;
    for (const Shivaji01::Glyph& one : Glyphs()) {
        for (const Shivaji01::Glyph& other : Glyphs()) {
            if (&one == &other || one.kind != other.kind || one.unicode != other.unicode)
                continue;
            EXPECT_EQ(Reading(QString(u"k" + QString(QChar(one.code)) + u"a")),
                Reading(QString(u"k" + QString(QChar(other.code)) + u"a")))
                << static_cast<int>(one.code);
            ++alike;
        }
    }
    EXPECT_GE(alike, 10);
}

TEST(Shivaji01ReadingTest, NoTwoWordsOfTheSystemReadTheSame)
{
    QFile file(WordsFile.toString());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList readings;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts).sliced(1))
        readings += Reading(line.section(u'\t', 0, 0));
    ASSERT_GT(readings.size(), 250);
    EXPECT_EQ(readings.removeDuplicates(), 0);
}

TEST(Shivaji01ReadingTest, BlanksThatNobodySeesDoNotCount)
{
    EXPECT_EQ(Reading(u" rama  paaTIla "), Reading(u"rama paaTIla"));
    EXPECT_NE(Reading(u"ramapaaTIla"), Reading(u"rama paaTIla"));
    EXPECT_EQ(Reading(u" \u200D"), QString());
}

TEST(Shivaji01ReadingTest, AJoinerBetweenThePiecesOfALetterDoesNotCount)
{
    for (const QStringView raw :
        {u"अ\u200D\u0945ड.", u"अ\u200C\u0945ड.", u"अ\u200D\u200D\u0945ड.", u"अ\u0945ड."}) {
        EXPECT_EQ(Utf8(Reading(raw)), Utf8(u"ॲड.")) << "stored as it came";
        EXPECT_EQ(Utf8(FromUnicode(raw)), Utf8(FromUnicode(u"ॲड."))) << "spelled anew";
    }
    EXPECT_EQ(Utf8(Reading(u"A\u200D^D.")), Utf8(u"ॲड."));
    EXPECT_EQ(Utf8(FromUnicode(u"अ\u093E\u200D\u0947ंकार")), Utf8(FromUnicode(u"ओंकार")));
    EXPECT_EQ(Utf8(Reading(u"र\u200D\u093C\u094Dय")), Utf8(Reading(u"áya"))) << "a dot behind a joiner";
}

TEST(Shivaji01ReadingTest, AJoinerThatKeepsLettersApartIsSpelled)
{
    for (const QStringView seen : {u"क्\u200Dष", u"अ\u200Dक", u"अ\u200D", u"\u200D\u0945"})
        EXPECT_EQ(Utf8(ToUnicode(FromUnicode(seen))), Utf8(seen));
}
