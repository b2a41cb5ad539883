#include "vouchers/AmountInWords.h"

#include "platform/database/Sql.h"
#include "tests/support/SocietyTest.h"

#include <QHash>

#include <random>
#include <set>

namespace {

class AmountInWordsTest : public SocietyTest {
protected:
    AmountInWordsTest()
    {
        for (const QString& row : Rows("select no1,word1 from rswords"))
            m_words.insert(row.section(u'|', 0, 0).toInt(), row.section(u'|', 1));
    }

    // The word of a number as the table has it; empty for 0.
    std::string Word(int number) const { return m_words.value(number).toStdString(); }

    static std::string In(const char* amount)
    {
        return AmountInWords(QString::fromLatin1(amount)).toStdString();
    }

    static std::string Rupees(const char* amount)
    {
        return RupeeWords(QString::fromLatin1(amount)).toStdString();
    }
    static std::string Paise(const char* amount)
    {
        return PaiseWords(QString::fromLatin1(amount)).toStdString();
    }

    // Another way to say rupees, from the size of the number: what a part adds is said behind a blank unless
    // it is the first of all, also if the parts before it had no word.
    QString Said(int rupees) const
    {
        struct Part {
            int count;
            const char* unit;
        };
        const Part parts[] = {{rupees / 100000, " laaK"},
            {rupees / 1000 % 100, rupees >= 100000 ? " Hajaar" : " hjaar"}, {rupees / 100 % 10, "Sao"},
            {rupees % 100, ""}};
        const int worth[] = {100000, 1000, 100, 1};
        QStringList said;
        for (int at = 0; at < 4; ++at)
            if (rupees >= worth[at] && parts[at].count > 0)
                said.append(m_words.value(parts[at].count) + QString::fromLatin1(parts[at].unit));
        return said.join(u' ');
    }

    void GiveZeroAWord() { Run(Sql(u"insert into rswords(no1,word1) values(0,'SaUnya')")); }

private:
    QHash<int, QString> m_words;
};

TEST_F(AmountInWordsTest, TheTableHasAWordForEachNumberFromOneToNinetyNine)
{
    std::set<std::string> different;
    for (int number = 1; number <= 99; ++number) {
        EXPECT_FALSE(Word(number).empty()) << number;
        different.insert(Word(number));
    }
    EXPECT_EQ(different.size(), 99U);
    EXPECT_EQ(One("select count(*) from rswords"), "99");
}

TEST_F(AmountInWordsTest, SevenIsTheWordForSevenAndRupees)
{
    EXPECT_EQ(In("7"), (Word(7) + " $pyao  "));
    EXPECT_EQ(Seen(AmountInWords("7")), "सात रुपये  ");
}

TEST_F(AmountInWordsTest, TwoHundredAndFiftyIsTwoHundredsAndFifty)
{
    EXPECT_EQ(In("250.00"), (Word(2) + "Sao " + Word(50) + " $pyao  "));
    EXPECT_EQ(Seen(AmountInWords("250.00")), "दोनशे पन्नास रुपये  ");
}

TEST_F(AmountInWordsTest, OneThousandTwoHundredAndFiftyAndAHalfHasItsPaise)
{
    EXPECT_EQ(In("1250.50"),
        (Word(1) + " hjaar " + Word(2) + "Sao " + Word(50) + " $pyao  " + Word(50) + " pOsao"));
    EXPECT_EQ(Seen(AmountInWords("1250.50")), "एक हजार दोनशे पन्नास रुपये  पन्नास पैसे");
}

TEST_F(AmountInWordsTest, OneLakhTwentyThreeThousandHasTheOtherSpellingOfThousand)
{
    EXPECT_EQ(In("123456"),
        (Word(1) + " laaK " + Word(23) + " Hajaar " + Word(4) + "Sao " + Word(56) + " $pyao  "));
}

TEST_F(AmountInWordsTest, EightWholeDigitsLeaveTheRupeesEmpty)
{
    EXPECT_EQ(Rupees("12345678.00"), "");
    EXPECT_EQ(In("12345678.00"), " $pyao  ");
    EXPECT_EQ(In("12345678.05"), (" $pyao  " + Word(5) + " pOsao"));
    EXPECT_EQ(In("999999999999999999"), " $pyao  ");
}

TEST_F(AmountInWordsTest, OneThousandAndFiveHasNoHundreds)
{
    EXPECT_EQ(In("1005"), (Word(1) + " hjaar " + Word(5) + " $pyao  "));
}

TEST_F(AmountInWordsTest, GroupsOfNoughtsAreSkippedWithTheirSuffixesAndBlanks)
{
    const auto one = Word(1);
    EXPECT_EQ(In("100"), one + "Sao $pyao  ");
    EXPECT_EQ(In("1000"), one + " hjaar $pyao  ");
    EXPECT_EQ(In("10000"), Word(10) + " hjaar $pyao  ");
    EXPECT_EQ(In("100000"), one + " laaK $pyao  ");
    EXPECT_EQ(In("1000000"), Word(10) + " laaK $pyao  ");
    EXPECT_EQ(In("100007"), one + " laaK " + Word(7) + " $pyao  ");
}

TEST_F(AmountInWordsTest, ADigitBehindANoughtWorksAsItself)
{
    EXPECT_EQ(In("105"), (Word(1) + "Sao " + Word(5) + " $pyao  "));
    EXPECT_EQ(In("1.05"), (Word(1) + " $pyao  " + Word(5) + " pOsao"));
    EXPECT_EQ(In("105000"), (Word(1) + " laaK " + Word(5) + " Hajaar $pyao  "));
}

TEST_F(AmountInWordsTest, NothingAndNoughtHaveNoRupees)
{
    EXPECT_EQ(Rupees(""), "");
    EXPECT_EQ(In(""), " $pyao  ");
    EXPECT_EQ(In("0.00"), " $pyao  ");
    EXPECT_EQ(In("0.75"), (" $pyao  " + Word(75) + " pOsao"));
}

TEST_F(AmountInWordsTest, TheRupeesHaveNoSignAndNoDecimals)
{
    EXPECT_EQ(Rupees("-250.99"), Rupees("250"));
    EXPECT_EQ(Rupees("99.99"), Word(99));
}

TEST_F(AmountInWordsTest, PaiseAreTheLastTwoCharactersOfTheAmountWithTwoDecimals)
{
    for (int paise = 0; paise < 100; ++paise)
        EXPECT_EQ(PaiseWords(Format(12 + paise / 100.0, u"0.00")).toStdString(), Word(paise)) << paise;
    EXPECT_EQ(Paise("12.5"), Word(50));
    EXPECT_EQ(Paise("12"), "");
    EXPECT_EQ(Paise("56"), "");
}

TEST_F(AmountInWordsTest, ANumberWithoutARowAddsNothing)
{
    Run("delete * from rswords where no1=23 or no1=50");
    EXPECT_EQ(In("23"), " $pyao  ");
    EXPECT_EQ(In("123456"), (Word(1) + " laaK " + Word(4) + "Sao " + Word(56) + " $pyao  "));
    EXPECT_EQ(In("7.50"), (Word(7) + " $pyao  "));
}

TEST_F(AmountInWordsTest, AWordForNoughtIsSaidExceptForTheHundredsOfFiveDigits)
{
    GiveZeroAWord();
    const std::string nought = "SaUnya";
    EXPECT_EQ(Rupees("1005"), Word(1) + " hjaar " + nought + "Sao " + Word(5));
    EXPECT_EQ(Rupees("12005"), Word(12) + " hjaar " + Word(5));
    EXPECT_EQ(Rupees("12000"), Word(12) + " hjaar " + nought);
    EXPECT_EQ(Rupees("112005"), Word(1) + " laaK " + Word(12) + " Hajaar " + nought + "Sao " + Word(5));
    EXPECT_EQ(Rupees("0.00"), nought);
    EXPECT_EQ(Rupees(""), "");
}

// A fifth of the sample each has up to three, four, five, six and seven digits, so that the short ones have
// their share.
TEST_F(AmountInWordsTest, TenThousandAmountsReadAsTheyAreSaidAnotherWay)
{
    std::mt19937 dice(20260415);
    constexpr int below[] = {1000, 10000, 100000, 1000000, 10000000};
    for (int drawn = 0; drawn < 10000; ++drawn) {
        std::uniform_int_distribution<int> one(1, below[drawn % 5] - 1);
        const int rupees = one(dice);
        ASSERT_EQ(RupeeWords(QString::number(rupees) + ".00"), Said(rupees)) << rupees;
    }
}

}
