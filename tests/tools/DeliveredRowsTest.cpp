#include "delivered/Delivered.h"
#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

namespace {

QString Rows(const QString& statement)
{
    return AskDelivered(statement).join(u'\n');
}

TEST(DeliveredRowsTest, AllSevenMenusAreOpen)
{
    EXPECT_EQ(Rows("select MenuName,AccessYesNo from MenuAccessTable;"),
        "Master|1\nAccount Voucher|1\nStock Voucher|1\nAccount Report|1\nStock Report|1\n"
        "Statistical Report|1\nUtilities|1");
}

TEST(DeliveredRowsTest, FeedIsSummedByItsTypeAndTheOtherHeadsByTheirWords)
{
    EXPECT_EQ(Rows("select CompanyId,TypeId,UchalType from UchalTypes;"),
        "1|1|]cala\n1|0|KaV\n1|1|ikraNaa maalaÀroSana\n1|1|[tr");
}

TEST(DeliveredRowsTest, NumberWordsReadAsMarathiFrom1To99)
{
    const QStringList words = AskDelivered("select no1,word1 from rswords order by no1;");
    const QStringList expected = Delivered::NumberWords().split(u'\n', Qt::SkipEmptyParts).mid(1);
    ASSERT_EQ(words.size(), 99);
    ASSERT_EQ(expected.size(), 99);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QStringList cells = words[i].split(u'|');
        EXPECT_EQ(cells[0], QString::number(i + 1));
        EXPECT_EQ(QString(cells[0] % u'\t' % Shivaji01::ToUnicode(cells[1])), expected[i].trimmed());
    }
}

TEST(DeliveredRowsTest, TheAccountsAreCashAndOneBank)
{
    const QStringList rows = AskDelivered(
        "select AccountName,GroupCode,OpeningBalance,OpeningDorC from AccountsMaster order by AccountId;");
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0], "raoK|Cash|0.0|D");
    const QStringList bank = rows[1].split(u'|');
    EXPECT_EQ(Shivaji01::ToUnicode(bank[0]), "जिल्हा मध्यवर्ती सहकारी बँक");
    EXPECT_EQ(bank[1], "Bank");
}

TEST(DeliveredRowsTest, TheSettingsAreInTheSystemsWords)
{
    EXPECT_EQ(Rows("select * from AutoSettings;"),
        "1|naahI|naahI|naahI|saovh|40.000|40.000|Tašp 1|naahI|10 idvasa|Payment|Uchal|PayIt|0.5|0.5|"
        "48.00|58.00|52.00|NO|f^T nausaar|0.0|0.0|0.0|0.0|0.0|False");
    EXPECT_EQ(Rows("select typeof(CanLimitCow),typeof(SalesRateMix),typeof(ThevKapatCow) from "
                   "AutoSettings;"),
        "text|text|real");
}

TEST(DeliveredRowsTest, ThePortsStandForAScaleAndATester)
{
    EXPECT_EQ(
        Rows("select LComPortNo,LSetting,FComPortNo,FSetting from PortTable;"), "1|2400,n,8,1|2|9600,n,8,1");
}

TEST(DeliveredRowsTest, TheCompanyRunsFromAprilToMarch)
{
    const QStringList selected = Rows("select * from CompanySelected;").split(u'|');
    ASSERT_EQ(selected.size(), 7);
    EXPECT_EQ(Shivaji01::ToUnicode(selected[1]), GoodPlan().name);
    EXPECT_EQ(selected[2], "2026-2027");
    EXPECT_EQ(selected[3], "2026-04-01");
    EXPECT_EQ(selected[4], "2027-03-31");
    EXPECT_EQ(selected[6], "0");
    EXPECT_EQ(Rows("select CompanyId,FromDate from CompanyMaster;"), "1|2026-04-01");
}

TEST(DeliveredRowsTest, TownsAndBanksReadAsMarathi)
{
    EXPECT_EQ(Shivaji01::ToUnicode(Rows("select CityName from CityMaster;")), "कराड\nसातारा");
    EXPECT_EQ(Shivaji01::ToUnicode(Rows("select BankName from BankMaster;")),
        "जिल्हा मध्यवर्ती सहकारी बँक\nमहाराष्ट्र बँक");
}

TEST(FirstChartTest, IsNamedByTheFirstDayOfTheYear)
{
    EXPECT_EQ(Rows("select FromDate,FatFileName from FatDates;"), "2026-04-01|Fat010426");
    EXPECT_EQ(Rows("select sql from sqlite_master where name='Fat010426';").remove("CREATE TABLE "),
        "Fat010426 (Fat TEXT,CowRate TEXT,BuffRate TEXT)");
}

TEST(FirstChartTest, KeysAreTextsInShortestFormByTenths)
{
    const QStringList keys = AskDelivered("select Fat||' '||typeof(Fat) from Fat010426;");
    ASSERT_EQ(keys.size(), 131);
    for (int tenths = 20; tenths <= 150; ++tenths)
        EXPECT_EQ(keys[tenths - 20], QString(ShortestDecimal(tenths / 10.0) % u" text"));
    EXPECT_EQ(Rows("select count(*) from Fat010426 where Fat='4';"), "1");
    EXPECT_EQ(Rows("select count(*) from Fat010426 where Fat='4.0';"), "0");
}

TEST(FirstChartTest, RatesRiseAndStayBelowTheCeiling)
{
    double lastCow = 0;
    double lastBuffalo = 0;
    for (const QString& row : AskDelivered("select CowRate,BuffRate from Fat010426;")) {
        const QStringList rates = row.split(u'|');
        ASSERT_EQ(rates.size(), 2);
        for (const QString& rate : rates)
            EXPECT_EQ(rate, ShortestDecimal(Val(Format(Val(rate), u"####0.00"))));
        EXPECT_GT(Val(rates[0]), lastCow);
        EXPECT_GT(Val(rates[1]), lastBuffalo);
        EXPECT_GT(Val(rates[1]), Val(rates[0]));
        lastCow = Val(rates[0]);
        lastBuffalo = Val(rates[1]);
    }
    EXPECT_GT(lastCow, 40);
    EXPECT_LT(lastBuffalo, 60);
}

}
