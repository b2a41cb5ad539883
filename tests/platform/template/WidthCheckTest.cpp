#include "tests/platform/template/TemplateTest.h"

namespace {

class WidthCheckTest : public TemplateTest { };

}

TEST_F(WidthCheckTest, WidthsMustFitThePaper)
{
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col w=\"100\">a</col><col w=\"95\">b</col></table>"),
        "the columns need 195.0 mm, but there are 190.0 mm");
    EXPECT_EQ(OnlyFault("<columns gap=\"10\"><column w=\"100\"/><column w=\"85\"/></columns>"),
        "the columns need 195.0 mm, but there are 190.0 mm");
    EXPECT_EQ(OnlyFault("<columns><column w=\"60\"><table source=\"c\"><col w=\"61\">a</col></table>"
                        "</column><column/></columns>"),
        "the columns need 61.0 mm, but there are 60.0 mm");
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col w=\"188\">a</col><col>b</col></table>"),
        "the columns need 192.0 mm, but there are 190.0 mm");
    EXPECT_EQ(OnlyFault("<pairs labelw=\"200\"><pair label=\"a\">b</pair></pairs>"),
        "the labels leave 0.0 mm for their values, which need 10.0 mm");
    EXPECT_EQ(
        OnlyFault(
            "<table source=\"c\"><heads><head span=\"3\">a</head></heads><col>a</col><col>b</col></table>"),
        "the heads span 3 columns, but there are 2");
}

TEST_F(WidthCheckTest, WhatIsTooNarrowToBeReadIsAFault)
{
    const auto slip = [this](const char* pairs) {
        return Faults(Template(QString::fromUtf8(pairs), "paper=\"58mm\" margin=\"5\""));
    };
    EXPECT_EQ(slip("<pairs labelw=\"40\"><pair label=\"a\">{MemberNo}</pair></pairs>"),
        QStringList({"3: the labels leave 8.0 mm for their values, which need 10.0 mm"}));
    EXPECT_EQ(slip("<pairs labelw=\"38\"><pair label=\"a\">{MemberNo}</pair></pairs>"), QStringList());
    EXPECT_EQ(slip("<pairs labelw=\"36\" size=\"20\"><pair label=\"a\">{Liters|0.00}</pair></pairs>"),
        QStringList({"3: the labels leave 12.0 mm for their values, which need 28.2 mm"}));
    EXPECT_EQ(slip("<pairs labelw=\"2\"><pair label=\"a\">{MemberNo}</pair></pairs>"),
        QStringList({"3: the labels have 2.0 mm, but need 4.0 mm"}));
    const QString narrow = "w=\"0.2\" is too narrow for what stands there: it needs 4.0 mm";
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col w=\"0.2\">{Liters}</col><col>a</col></table>"), narrow);
    EXPECT_EQ(OnlyFault("<columns><column w=\"0.2\"><text>a</text></column><column/></columns>"), narrow);
    EXPECT_EQ(Faults(Template("<table source=\"c\"><col>a</col><col w=\"1\"/></table>"
                              "<columns><column w=\"2\"/><column/></columns>")),
        QStringList())
        << "an empty one only keeps others apart";
}

TEST_F(WidthCheckTest, ALetterHasRoomInItsPlace)
{
    const QString inColumn = "<columns><column w=\"%1\">%2</column><column/></columns>";
    EXPECT_EQ(OnlyFault(inColumn.arg("4", "<text size=\"40\">W</text>")),
        "letters of 40 points don't fit into a place of 4.0 mm");
    EXPECT_EQ(Faults(Template(inColumn.arg("15", "<text size=\"40\">W</text>"))), QStringList());
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col>{MemberNo}</col>"
                        "<col w=\"4\" size=\"60\">{MemberName}</col></table>"),
        "letters of 60 points don't fit into a place of 4.0 mm");
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col>{MemberNo}</col>"
                        "<col w=\"4\" size=\"12\" head=\"a\"/></table>"),
        "letters of 12 points don't fit into a place of 4.0 mm");
    EXPECT_EQ(OnlyFault("<pairs labelw=\"5\"><pair label=\"a\" size=\"20\">b</pair></pairs>"),
        "letters of 20 points don't fit into a place of 5.0 mm");
    EXPECT_EQ(OnlyFault("<pairs labelw=\"178\"><pair size=\"36\">b</pair></pairs>"),
        "letters of 36 points don't fit into a place of 12.0 mm");
}

TEST_F(WidthCheckTest, ATotalHasRoomForItsLabel)
{
    const auto table = [](const char* first, const char* end) {
        return QStringLiteral(
            "<table source=\"c\"><col w=\"%1\"/><col w=\"30\" total=\"sum\">{Liters|0.00}</col>"
            "<col>{MemberName}</col>%2</table>")
            .arg(QLatin1String(first), QLatin1String(end));
    };
    const QString fault = "before the first total there are 1.0 mm for its label, which needs 14.1 mm";
    EXPECT_EQ(OnlyFault(table("1", "<total label=\"GRAND TOTAL\"/>")), fault);
    EXPECT_EQ(OnlyFault(table("1", "<group by=\"MemberNo\" foot=\"a\"/>")), fault);
    EXPECT_EQ(Faults(Template(table("1", "<total/>"))), QStringList());
    EXPECT_EQ(Faults(Template(table("15", "<total label=\"GRAND TOTAL\"/>"))), QStringList());
}
