#include "tests/platform/report/ReportTest.h"

namespace {

const QString Evening = "संध्याकाळ";

class TotalsTest : public ReportTest {
protected:
    void AddShifts()
    {
        AddDelivery(1, Morning, "अशोक", 10.125, 4.0, 350.55);
        AddDelivery(2, Morning, "बाबू", 5.5, 3.5, 180.1);
        AddDelivery(3, Evening, "कमल", 20, 5.0, 800.01);
    }
};

}

TEST_F(TotalsTest, GroupsAndTheWholeTableHaveTheirSums)
{
    AddShifts();
    const QStringList texts = AllTexts(
        Template("<table source=\"c\"><col>{MemberName}</col>"
                 "<col total=\"sum\">{Liters|0.000}</col><col total=\"sum\">{Amount|0.00}</col>"
                 "<group by=\"CollectionTime\" head=\"{CollectionTime}\" foot=\"एकूण {CollectionTime}\"/>"
                 "<total label=\"एकंदर\"/></table>"));
    const QStringList expected{Morning, "अशोक", "10.125", "350.55", "बाबू", "5.500", "180.10", "एकूण सकाळ",
        "15.625", "530.65", Evening, "कमल", "20.000", "800.01", "एकूण संध्याकाळ", "20.000", "800.01", "एकंदर",
        "35.625", "1330.66"};
    EXPECT_EQ(texts, expected);
}

TEST_F(TotalsTest, AWeightedAverageWeighsAndOneOfNothingIsZero)
{
    AddShifts();
    const QString table = "<table source=\"c\"><col>{MemberName}</col>"
                          "<col total=\"average(Fat by Liters)\">{Fat|0.00}</col>"
                          "<col total=\"average(Fat by SNF)\">{Fat|0.0}</col>"
                          "<col total=\"average(Fat)\">{Fat|0.000}</col>"
                          "<total label=\"सरासरी\"/></table>";
    const QStringList texts = AllTexts(Template(table));
    // (10.125 x 4 + 5.5 x 3.5 + 20 x 5) / 35.625
    EXPECT_EQ(texts.mid(texts.indexOf("सरासरी")), QStringList({"सरासरी", "4.48", "0.0", "4.167"}));
}

TEST_F(TotalsTest, ARunningSumGoesOnOrBeginsAnewWithItsGroup)
{
    AddShifts();
    AddDelivery(4, Evening, "दत्ता", 1, 4, 40);
    const QStringList texts = AllTexts(Template(
        "<table source=\"c\"><col>{running(Amount)|0.00}</col>"
        "<col>{running(Amount by CollectionTime)|0.00}</col><group by=\"CollectionTime\"/></table>"));
    EXPECT_EQ(texts,
        QStringList({"350.55", "350.55", "530.65", "530.65", "1330.66", "800.01", "1370.66", "840.01"}));
}

TEST_F(TotalsTest, RowsAreGroupedByTheirMonths)
{
    AddShifts();
    Run("update MilkCollectionsTemp set CollectionDate='30/04/2026' where CollectionNo=2");
    Run("update MilkCollectionsTemp set CollectionDate='01/05/2026' where CollectionNo=3");
    const QString table = QStringLiteral(
        "<table source=\"c\"><col>{MemberNo}</col><col total=\"sum\">{Amount|0.00}</col>"
        "<group by=\"format(CollectionDate, 'MMMM yyyy')\" label=\"महिना\" head=\"{CollectionDate|MMMM}\" "
        "foot=\"=\"/></table>");
    EXPECT_EQ(AllTexts(Template(table)).join(u' '), "एप्रिल 1 350.55 2 180.10 = 530.65 मे 3 800.01 = 800.01");
}

TEST_F(TotalsTest, NestedGroupsEndFromTheInnermost)
{
    AddShifts();
    AddDelivery(4, Evening, "दत्ता", 1, 5, 40);
    const QStringList texts = AllTexts(
        Template("<table source=\"c\"><col>{MemberNo}</col><col total=\"count\">{Fat|0.0}</col>"
                 "<group by=\"CollectionTime\" foot=\"पाळी\"/><group by=\"Fat\" foot=\"फॅट\"/></table>"));
    EXPECT_EQ(texts.join(u' '), "1 4.0 फॅट 1 2 3.5 फॅट 1 पाळी 2 3 5.0 4 5.0 फॅट 2 पाळी 2");
}

TEST_F(TotalsTest, ATotalIsTheSumOfTheFiguresAsTheyArePrinted)
{
    for (int i = 1; i <= 3; ++i)
        AddDelivery(i, Morning, "अ", 1, 4, 0.125);
    const QStringList texts =
        AllTexts(Template("<table source=\"c\"><col>{MemberNo}</col><col "
                          "total=\"sum\">{Amount|0.00}</col><total label=\"=\"/></table>"));
    EXPECT_EQ(texts.last(), "0.39"); // 3 x 0.13
}

TEST_F(TotalsTest, ThousandsOfPaiseAddUpExactly)
{
    connection->RunScript(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<10000) "
        "insert into MilkCollectionsTemp(CollectionNo,MemberName,Amount) select i,'A',0.1 from n");
    const QStringList texts = AllTexts(Template("<table source=\"c\"><col>{CollectionNo}</col><col "
                                                "total=\"sum\">{Amount}</col><total label=\"=\"/></table>"));
    EXPECT_EQ(texts.last(), "1000");
}

TEST_F(TotalsTest, ATotalCanBeReckonedFromOthers)
{
    AddShifts();
    const QStringList texts = AllTexts(Template(
        "<table source=\"c\"><col>{MemberNo}</col><col total=\"sum(Amount) / sum(Liters)\">{Rate|0.00}</col>"
        "<total label=\"{count()} नोंदी, कमाल {max(Liters)|0.0}\"/></table>"));
    EXPECT_EQ(texts.mid(texts.size() - 2), QStringList({"3 नोंदी, कमाल 20.0", "37.35"}));
}

TEST_F(TotalsTest, AnEmptyTableHasItsHeadsAndNoTotal)
{
    const QStringList texts =
        AllTexts(Template("<table source=\"c\"><col head=\"नाव\">{MemberName}</col><col "
                          "head=\"रक्कम\" total=\"sum\">{Amount|0.00}</col>"
                          "<total label=\"एकूण\"/></table>"));
    EXPECT_EQ(texts, QStringList({"नाव", "रक्कम"}));
}

TEST_F(TotalsTest, RowsThatAreLeftOutAreNotAdded)
{
    AddShifts();
    const QStringList texts =
        AllTexts(Template("<table source=\"c\" only=\"CollectionTime = 'सकाळ'\"><col>{MemberNo}</col>"
                          "<col total=\"sum\">{Amount|0.00}</col><total label=\"=\"/></table>"));
    EXPECT_EQ(texts.join(u' '), "1 350.55 2 180.10 = 530.65");
}

TEST_F(TotalsTest, TheLeastAndTheGreatestAreOfNumbersAndDates)
{
    AddShifts();
    Run("update MilkCollectionsTemp set CollectionDate='12/11/2026' where CollectionNo=2");
    EXPECT_EQ(AllTexts(Template("<text>{min(CollectionDate)} {max(CollectionDate)} "
                                "{max(CollectionDate)|dd MM} {min(Liters)}</text>")),
        QStringList({"05/04/2026 12/11/2026 12 11 5.5"}));
    EXPECT_EQ(
        AllTexts(
            Template("<table source=\"c\" only=\"CollectionNo = 2\"><col w=\"40\">{MemberNo}</col>"
                     "<col total=\"max(CollectionDate)\">{Liters|0.0}</col><total label=\"=\"/></table>"))
            .last(),
        "12/11/2026");
    for (const char* text : {"{max(MemberName)}", "{min(MemberName)|0.00}"})
        EXPECT_EQ(OnlyFault(QStringLiteral("<text>%1</text>").arg(QLatin1String(text))),
            "min and max need numbers or dates");
}

TEST_F(TotalsTest, ATotalHasTheFormatAndTheWordsOfItsCells)
{
    AddShifts();
    const auto total = [this](const char* column) {
        return AllTexts(Template(QStringLiteral("<table source=\"c\"><col w=\"40\">{MemberNo}</col>%1"
                                                "<total label=\"=\"/></table>")
                                     .arg(QString::fromUtf8(column))))
            .last();
    };
    EXPECT_EQ(total("<col total=\"average(Fat)\">{Fat|0.0} %</col>"), "4.2 %");
    EXPECT_EQ(total("<col total=\"sum(Liters)\">लि. {Liters|0.00}</col>"), "लि. 35.63");
    EXPECT_EQ(total("<col total=\"average(Fat)\">{MemberNo}: {Fat|0.00} %</col>"), "4.17");
    EXPECT_EQ(total("<col total=\"count\">{Fat|0.0} %</col>"), "3");
    EXPECT_EQ(total("<col total=\"max(Liters)\"></col>"), "20");
}

TEST_F(TotalsTest, WhatHangsOnARowIsTotalledForThatRowOnly)
{
    const QString linked = "<source name=\"k\" table=\"KapatDetails\" link=\"MemberNo\" to=\"c\"/>";
    EXPECT_EQ(OnlyFault(linked + "<text>{sum(k.Value1)}</text>"),
        "the rows of \"k\" can be gone through only inside an <each> of \"c\"");
    EXPECT_EQ(
        Faults(Template(linked + "<each source=\"c\"><text>{sum(k.Value1)}</text></each>")), QStringList());
}
