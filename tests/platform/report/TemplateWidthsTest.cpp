#include "tests/platform/report/ReportTest.h"

namespace {

class TemplateWidthsTest : public ReportTest { };

}

TEST_F(TemplateWidthsTest, WidthsMustFitThePaper)
{
    EXPECT_EQ(
        OnlyFault(QStringLiteral("<table source=\"c\"><col w=\"100\">a</col><col w=\"95\">b</col></table>")),
        QStringLiteral("the columns need 195.0 mm, but there are 190.0 mm"));
    EXPECT_EQ(
        OnlyFault(QStringLiteral("<columns gap=\"10\"><column w=\"100\"/><column w=\"85\"/></columns>")),
        QStringLiteral("the columns need 195.0 mm, but there are 190.0 mm"));
    EXPECT_EQ(
        OnlyFault(QStringLiteral("<columns><column w=\"60\"><table source=\"c\"><col w=\"61\">a</col></table>"
                                 "</column><column/></columns>")),
        QStringLiteral("the columns need 61.0 mm, but there are 60.0 mm"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<table source=\"c\"><col w=\"188\">a</col><col>b</col></table>")),
        QStringLiteral("the columns need 192.0 mm, but there are 190.0 mm"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<pairs labelw=\"200\"><pair label=\"a\">b</pair></pairs>")),
        QStringLiteral("the labels leave 0.0 mm for their values, which need 10.0 mm"));
    EXPECT_EQ(
        OnlyFault(QStringLiteral(
            "<table source=\"c\"><heads><head span=\"3\">a</head></heads><col>a</col><col>b</col></table>")),
        QStringLiteral("the heads span 3 columns, but there are 2"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" h=\"300\">"
                                       "<series value=\"Liters\"/></chart>")),
        QStringLiteral("the chart is taller than the page"));
}

TEST_F(TemplateWidthsTest, AChartHasRoomForItsScaleItsLabelsAndItsLegend)
{
    const auto chart = [](const char* attributes, int series) {
        return QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" %1>%2</chart>")
            .arg(QLatin1String(attributes), QStringLiteral("<series value=\"Liters\"/>").repeated(series));
    };
    const auto inColumn = [](const QString& element, const char* width) {
        return QStringLiteral("<columns><column w=\"%1\">%2</column><column/></columns>")
            .arg(QLatin1String(width), element);
    };
    EXPECT_EQ(OnlyFault(inColumn(chart("", 1), "10")),
        QStringLiteral("the chart needs 25.4 mm, but there are 10.0 mm"));
    EXPECT_EQ(Faults(Template(inColumn(chart("", 1), "26"))), QStringList());
    EXPECT_EQ(OnlyFault(inColumn(chart("", 3), "40")),
        QStringLiteral("the chart needs 43.7 mm, but there are 40.0 mm"));
    EXPECT_EQ(Faults(Template(inColumn(chart("", 3), "44"))), QStringList());
    EXPECT_TRUE(
        OnlyFault(chart("size=\"48\"", 1)).startsWith(QStringLiteral("the chart needs a height of ")));
    EXPECT_EQ(Faults(Template(chart("size=\"48\" h=\"100\"", 1))), QStringList());
}

TEST_F(TemplateWidthsTest, WhatIsTooNarrowToBeReadIsAFault)
{
    const auto slip = [this](const char* pairs) {
        return Faults(Template(QString::fromUtf8(pairs), QStringLiteral("paper=\"58mm\" margin=\"5\"")));
    };
    EXPECT_EQ(slip("<pairs labelw=\"40\"><pair label=\"a\">{MemberNo}</pair></pairs>"),
        QStringList({QStringLiteral("3: the labels leave 8.0 mm for their values, which need 10.0 mm")}));
    EXPECT_EQ(slip("<pairs labelw=\"38\"><pair label=\"a\">{MemberNo}</pair></pairs>"), QStringList());
    EXPECT_EQ(slip("<pairs labelw=\"36\" size=\"20\"><pair label=\"a\">{Liters|0.00}</pair></pairs>"),
        QStringList({QStringLiteral("3: the labels leave 12.0 mm for their values, which need 28.2 mm")}));
    EXPECT_EQ(slip("<pairs labelw=\"2\"><pair label=\"a\">{MemberNo}</pair></pairs>"),
        QStringList({QStringLiteral("3: the labels have 2.0 mm, but need 4.0 mm")}));
    const QString narrow = QStringLiteral("w=\"0.2\" is too narrow for what stands there: it needs 4.0 mm");
    EXPECT_EQ(
        OnlyFault(QStringLiteral("<table source=\"c\"><col w=\"0.2\">{Liters}</col><col>a</col></table>")),
        narrow);
    EXPECT_EQ(
        OnlyFault(QStringLiteral("<columns><column w=\"0.2\"><text>a</text></column><column/></columns>")),
        narrow);
    EXPECT_EQ(Faults(Template(QStringLiteral("<table source=\"c\"><col>a</col><col w=\"1\"/></table>"
                                             "<columns><column w=\"2\"/><column/></columns>"))),
        QStringList())
        << "an empty one only keeps others apart";
}

TEST_F(TemplateWidthsTest, HeadAndFootOfThePageLeaveRoomForTheReport)
{
    const QString tooTall =
        QStringLiteral("the head and the foot of the page need %1 mm, and 10.6 mm for the "
                       "report between them, but there are 277.0 mm");
    EXPECT_EQ(OnlyFault(QStringLiteral("<pageheader><space h=\"200\"/><space h=\"200\"/></pageheader>")),
        tooTall.arg(QStringLiteral("400.0")));
    EXPECT_EQ(OnlyFault(QStringLiteral("<pageheader><space h=\"200\"/></pageheader>"
                                       "<pagefooter><columns><column><space h=\"70\"/></column>"
                                       "<column><space h=\"20\"/></column></columns></pagefooter>")),
        tooTall.arg(QStringLiteral("270.0")));
    const auto texts = [](int count) -> QString {
        return QStringLiteral("<pageheader>") + QStringLiteral("<text size=\"72\">a</text>").repeated(count)
            + QStringLiteral("</pageheader>");
    };
    EXPECT_EQ(Faults(Template(texts(3))), QStringList());
    EXPECT_TRUE(OnlyFault(texts(12)).startsWith(QStringLiteral("the head and the foot of the page need ")));
}

TEST_F(TemplateWidthsTest, StripsOfThePageEdgeThatAreThereAtTimesAreReckonedOneByOne)
{
    const QString either = QStringLiteral("<pageheader><space h=\"140\" if=\"#page = 1\"/>"
                                          "<space h=\"140\" if=\"#page &gt; 1\"/></pageheader>");
    EXPECT_EQ(Faults(Template(either)), QStringList());
    EXPECT_TRUE(OnlyFault(QStringLiteral("<pageheader><space h=\"140\"/>"
                                         "<space h=\"140\" if=\"#page = 1\"/></pageheader>"))
                    .startsWith(QStringLiteral("the head and the foot of the page need 280.0 mm")));
}

TEST_F(TemplateWidthsTest, WhatCannotBreakFitsBetweenHeadAndFootOfThePage)
{
    const QString header = QStringLiteral("<pageheader><space h=\"200\"/></pageheader>");
    EXPECT_EQ(OnlyFault(header + QStringLiteral("<space h=\"80\"/>")),
        QStringLiteral("the space is taller than the page"));
    EXPECT_EQ(Faults(Template(header + QStringLiteral("<space h=\"70\"/>"))), QStringList());
    EXPECT_EQ(Faults(Template(QStringLiteral("<text size=\"72\">a</text>"),
                  QStringLiteral("paper=\"100x22mm\" margin=\"2\""))),
        QStringList({QStringLiteral("3: a line of the text is taller than the page")}));
}

TEST_F(TemplateWidthsTest, ALetterHasRoomInItsPlace)
{
    const QString inColumn = QStringLiteral("<columns><column w=\"%1\">%2</column><column/></columns>");
    EXPECT_EQ(OnlyFault(inColumn.arg(QStringLiteral("4"), QStringLiteral("<text size=\"40\">W</text>"))),
        QStringLiteral("letters of 40 points don't stand in a place of 4.0 mm"));
    EXPECT_EQ(
        Faults(Template(inColumn.arg(QStringLiteral("15"), QStringLiteral("<text size=\"40\">W</text>")))),
        QStringList());
    EXPECT_EQ(OnlyFault(QStringLiteral("<table source=\"c\"><col>{MemberNo}</col>"
                                       "<col w=\"4\" size=\"60\">{MemberName}</col></table>")),
        QStringLiteral("letters of 60 points don't stand in a place of 4.0 mm"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<table source=\"c\"><col>{MemberNo}</col>"
                                       "<col w=\"4\" size=\"12\" head=\"a\"/></table>")),
        QStringLiteral("letters of 12 points don't stand in a place of 4.0 mm"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<pairs labelw=\"5\"><pair label=\"a\" size=\"20\">b</pair></pairs>")),
        QStringLiteral("letters of 20 points don't stand in a place of 5.0 mm"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<pairs labelw=\"178\"><pair size=\"36\">b</pair></pairs>")),
        QStringLiteral("letters of 36 points don't stand in a place of 12.0 mm"));
}

TEST_F(TemplateWidthsTest, ATotalHasRoomForItsLabel)
{
    const auto table = [](const char* first, const char* end) {
        return QStringLiteral(
            "<table source=\"c\"><col w=\"%1\"/><col w=\"30\" total=\"sum\">{Liters|0.00}</col>"
            "<col>{MemberName}</col>%2</table>")
            .arg(QLatin1String(first), QLatin1String(end));
    };
    const QString fault =
        QStringLiteral("before the first total there are 1.0 mm for its label, which needs 14.1 mm");
    EXPECT_EQ(OnlyFault(table("1", "<total label=\"GRAND TOTAL\"/>")), fault);
    EXPECT_EQ(OnlyFault(table("1", "<group by=\"MemberNo\" foot=\"a\"/>")), fault);
    EXPECT_EQ(Faults(Template(table("1", "<total/>"))), QStringList());
    EXPECT_EQ(Faults(Template(table("15", "<total label=\"GRAND TOTAL\"/>"))), QStringList());
}

TEST_F(TemplateWidthsTest, TheHeadsOfATableLeaveRoomForARow)
{
    const QString table = QStringLiteral("<table source=\"c\"><col w=\"12\" head=\"%1\">{CollectionNo}</col>"
                                         "<col>{MemberName}</col></table>");
    const QString fault = QStringLiteral("the head of the table with a row is taller than the page");
    const QString tall = table.arg(QStringLiteral("विस्तारित माहिती ").repeated(40));
    EXPECT_EQ(OnlyFault(tall), fault);
    EXPECT_EQ(OnlyFault(QStringLiteral("<columns><column>%1</column></columns>").arg(tall)), fault);
    EXPECT_EQ(Faults(Template(table.arg(QStringLiteral("विस्तारित माहिती ").repeated(10)))), QStringList());
}
