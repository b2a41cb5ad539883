#include "tests/platform/report/ReportTest.h"

#include "delivered/Delivered.h"

#include <QFile>
#include <QProcess>

namespace {

class LayoutCheckTest : public ReportTest { };

}

TEST_F(LayoutCheckTest, AFontThatIsntInstalledIsAFault)
{
    const auto sheet = [](const char* font) {
        return QStringLiteral("<!-- a slip -->\n<report name=\"Test\" paper=\"A4\" font=\"%1\">"
                              "<text>{$society}</text></report>")
            .arg(QLatin1String(font));
    };
    EXPECT_EQ(
        Faults(sheet("Nobodys Letters 10")), QStringList("2: the font \"Nobodys Letters\" isn't installed"));
    EXPECT_EQ(Faults(sheet("Nobodys Letters, Nobodys Others 10")),
        QStringList("2: the font \"Nobodys Letters, Nobodys Others\" isn't installed"));
    const QString second = sheet("Nobodys Letters, Noto Sans Devanagari 12");
    EXPECT_EQ(Faults(second), QStringList());
    const std::unique_ptr<Report> report = Make(second);
    report->Complete();
    EXPECT_EQ(report->Fonts().At(report->PageAt(0).items.front().font),
        (FontSpec{"Noto Sans Devanagari", 12, false}));
}

TEST_F(LayoutCheckTest, ABadSizeOfLettersIsOneLineAndNothingElse)
{
    for (const char* size : {"nan", "-5", "1e300", "99999"}) {
        const QString file = Write("Test.rpt",
            Template("<text>{MemberName}</text><table source=\"c\">"
                     "<col head=\"a\">{Liters}</col></table>",
                QStringLiteral("paper=\"A4\" font=\"Noto Sans Devanagari %1\"").arg(QLatin1String(size))));
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(QStringLiteral(TEMPLATE_CHECKER), {file});
        ASSERT_TRUE(tool.waitForFinished());
        EXPECT_EQ(QString::fromUtf8(tool.readAllStandardOutput()),
            QStringLiteral("%1:1: \"Noto Sans Devanagari %2\" is no font such as "
                           "\"Noto Sans Devanagari 10\"\n")
                .arg(file, QLatin1String(size)));
    }
}

TEST_F(LayoutCheckTest, AChartHasRoomForItsScaleItsLabelsAndItsLegend)
{
    const auto chart = [](const char* attributes, int series) {
        return QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" %1>%2</chart>")
            .arg(QLatin1String(attributes), QStringLiteral("<series value=\"Liters\"/>").repeated(series));
    };
    const auto inColumn = [](const QString& element, const char* width) {
        return QStringLiteral("<columns><column w=\"%1\">%2</column><column/></columns>")
            .arg(QLatin1String(width), element);
    };
    EXPECT_EQ(OnlyFault(inColumn(chart("", 1), "10")), "the chart needs 25.4 mm, but there are 10.0 mm");
    EXPECT_EQ(Faults(Template(inColumn(chart("", 1), "26"))), QStringList());
    EXPECT_EQ(OnlyFault(inColumn(chart("", 3), "40")), "the chart needs 43.7 mm, but there are 40.0 mm");
    EXPECT_EQ(Faults(Template(inColumn(chart("", 3), "44"))), QStringList());
    EXPECT_TRUE(OnlyFault(chart("size=\"48\"", 1)).startsWith("the chart needs a height of "));
    EXPECT_EQ(Faults(Template(chart("size=\"48\" h=\"100\"", 1))), QStringList());
}

TEST_F(LayoutCheckTest, HeadAndFootOfThePageLeaveRoomForTheReport)
{
    const QString tooTall = "the head and the foot of the page need %1 mm, and 10.6 mm for the "
                            "report between them, but there are 277.0 mm";
    EXPECT_EQ(
        OnlyFault("<pageheader><space h=\"200\"/><space h=\"200\"/></pageheader>"), tooTall.arg("400.0"));
    EXPECT_EQ(OnlyFault("<pageheader><space h=\"200\"/></pageheader>"
                        "<pagefooter><columns><column><space h=\"70\"/></column>"
                        "<column><space h=\"20\"/></column></columns></pagefooter>"),
        tooTall.arg("270.0"));
    const auto texts = [](int count) -> QString {
        return "<pageheader>" + QStringLiteral("<text size=\"72\">a</text>").repeated(count)
            + "</pageheader>";
    };
    EXPECT_EQ(Faults(Template(texts(3))), QStringList());
    EXPECT_TRUE(OnlyFault(texts(12)).startsWith("the head and the foot of the page need "));
}

TEST_F(LayoutCheckTest, StripsOfThePageEdgeThatAreThereAtTimesAreReckonedOneByOne)
{
    const QString either = "<pageheader><space h=\"140\" if=\"#page = 1\"/>"
                           "<space h=\"140\" if=\"#page &gt; 1\"/></pageheader>";
    EXPECT_EQ(Faults(Template(either)), QStringList());
    EXPECT_TRUE(OnlyFault("<pageheader><space h=\"140\"/>"
                          "<space h=\"140\" if=\"#page = 1\"/></pageheader>")
                    .startsWith("the head and the foot of the page need 280.0 mm"));
}

TEST_F(LayoutCheckTest, WhatCannotBreakFitsBetweenHeadAndFootOfThePage)
{
    const QString header = "<pageheader><space h=\"200\"/></pageheader>";
    EXPECT_EQ(OnlyFault(header + "<space h=\"80\"/>"), "the space is taller than the page");
    EXPECT_EQ(Faults(Template(header + "<space h=\"70\"/>")), QStringList());
    EXPECT_EQ(Faults(Template("<text size=\"72\">a</text>", "paper=\"100x22mm\" margin=\"2\"")),
        QStringList({"3: a line of the text is taller than the page"}));
    EXPECT_EQ(OnlyFault("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" h=\"300\">"
                        "<series value=\"Liters\"/></chart>"),
        "the chart is taller than the page");
}

TEST_F(LayoutCheckTest, TheHeadsOfATableLeaveRoomForARow)
{
    const QString table = "<table source=\"c\"><col w=\"12\" head=\"%1\">{CollectionNo}</col>"
                          "<col>{MemberName}</col></table>";
    const QString fault = "the head of the table with a row is taller than the page";
    const QString tall = table.arg(QStringLiteral("विस्तारित माहिती ").repeated(40));
    EXPECT_EQ(OnlyFault(tall), fault);
    EXPECT_EQ(OnlyFault(QStringLiteral("<columns><column>%1</column></columns>").arg(tall)), fault);
    EXPECT_EQ(Faults(Template(table.arg(QStringLiteral("विस्तारित माहिती ").repeated(10)))), QStringList());
}

TEST_F(LayoutCheckTest, TheExamplesOfTheManualHaveNoFaultsAndThoseThatAreShippedAreAsTheyAreShipped)
{
    QFile manual(QStringLiteral(DOCS_FOLDER "/templates.md"));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    QStringList parts = QString::fromUtf8(manual.readAll()).split("```xml\n");
    ASSERT_EQ(parts.size(), 4);
    parts.removeFirst();
    int shipped = 0;
    for (const QString& part : parts) {
        const QString example = part.section("```", 0, 0);
        EXPECT_EQ(Faults(example, example.section(u'"', 1, 1)), QStringList());
        const QString name = example.section(u'"', 1, 1) + ".rpt";
        for (const Delivered::File& file : Delivered::Templates()) {
            if (file.name != name)
                continue;
            ++shipped;
            EXPECT_TRUE(QString::fromUtf8(file.content).endsWith(example))
                << name.toStdString() << " isn't as it is shipped";
        }
    }
    EXPECT_EQ(shipped, 2);
}

TEST_F(LayoutCheckTest, TheShellToolTellsEachFaultOnALineAndAnswersWithItsExitCode)
{
    const QString good = Write("Test.rpt", Template("<text>{MemberName}</text>"));
    const QString bad = Write("bad.rpt", Template("<text>{Nmae}</text>\n<blink/>"));
    const auto check = [](const QStringList& files) {
        QProcess tool;
        tool.start(QStringLiteral(TEMPLATE_CHECKER), files);
        EXPECT_TRUE(tool.waitForFinished());
        return std::pair(tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()));
    };
    EXPECT_EQ(check({good}), std::pair(0, QString()));
    const QString expected = bad + ":1: the report is called \"Test\", but its file \"bad\"\n" + bad
        + ":3: there is no column \"Nmae\" in MilkCollectionsTemp\n" + bad + ":4: <blink> isn't known here\n";
    EXPECT_EQ(check({good, bad}), std::pair(1, expected));
    EXPECT_EQ(check({File("missing.rpt")}).first, 1);
    EXPECT_EQ(check({}).first, 2);
}
