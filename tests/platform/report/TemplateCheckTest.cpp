#include "ReportTest.h"

#include "Delivered.h"

#include <QFile>
#include <QProcess>

namespace {

class TemplateCheckTest : public ReportTest {
protected:
    QString OnlyFault(const QString& elements)
    {
        const QStringList faults = Faults(Template(elements));
        EXPECT_EQ(faults.size(), 1) << faults.join(u'\n').toStdString();
        return faults.value(0).section(QStringLiteral(": "), 1);
    }
};

}

TEST_F(TemplateCheckTest, AllFaultsAreToldAtOnceWithTheirLines)
{
    const QStringList faults =
        Faults(QStringLiteral("<report name=\"T\" paper=\"A9\">\n"
                              "<source name=\"c\" table=\"NoSuchTable\"/>\n"
                              "<source name=\"m\" table=\"MembersMaster\" order=\"Nmae\"/>\n"
                              "<text colour=\"red\">{m.Surname}</text>\n"
                              "<blink/>\n"
                              "<text>{m.MemberNo|0,00} {1 +}</text>\n"
                              "<table source=\"x\"><col w=\"wide\">a</col></table>\n"
                              "</report>"));
    const QStringList expected{QStringLiteral("1: \"A9\" is no paper"),
        QStringLiteral("4: <text> knows no \"colour\""), QStringLiteral("5: <blink> isn't known here"),
        QStringLiteral("6: \"0,00\" is no format of a number or a date"),
        QStringLiteral("6: {1 +}: the expression breaks off"),
        QStringLiteral("7: w=\"wide\" is neither millimetres nor *"),
        QStringLiteral("2: there is no table \"NoSuchTable\""),
        QStringLiteral("3: there is no column \"Nmae\" in MembersMaster"),
        QStringLiteral("4: there is no column \"Surname\" in MembersMaster"),
        QStringLiteral("7: there is no source \"x\"")};
    EXPECT_EQ(faults, expected);
}

TEST_F(TemplateCheckTest, ATemplateThatIsNoXmlIsToldWithItsLine)
{
    const QStringList faults = Faults(QStringLiteral("<report name=\"T\" paper=\"A4\">\n<text>\n</report>"));
    ASSERT_FALSE(faults.isEmpty());
    EXPECT_TRUE(faults.first().startsWith(QStringLiteral("3: no XML: "))) << faults.first().toStdString();
    EXPECT_FALSE(Faults(QString()).isEmpty());
    EXPECT_FALSE(Faults(QStringLiteral("<html/>")).isEmpty());
}

TEST_F(TemplateCheckTest, WidthsMustFitThePaper)
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
        QStringLiteral("the labels leave no room for their values"));
    EXPECT_EQ(
        OnlyFault(QStringLiteral(
            "<table source=\"c\"><heads><head span=\"3\">a</head></heads><col>a</col><col>b</col></table>")),
        QStringLiteral("the heads span 3 columns, but there are 2"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" h=\"300\">"
                                       "<series value=\"Liters\"/></chart>")),
        QStringLiteral("the chart is taller than the page"));
}

TEST_F(TemplateCheckTest, KindsOfValuesMustSuit)
{
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{CollectionDate|0.00}</text>")),
        QStringLiteral("the format \"0.00\" needs a number"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{Liters|dd/MM/yyyy}</text>")),
        QStringLiteral("the format \"dd/MM/yyyy\" needs a date"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{CollectionDate + 1}</text>")),
        QStringLiteral("dates and conditions can't be reckoned with"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text if=\"Liters = 'दोन'\">a</text>")),
        QStringLiteral("things of different kinds are compared"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text if=\"Liters\">a</text>")),
        QStringLiteral("a condition is needed that holds or doesn't"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{Liters = 2}</text>")),
        QStringLiteral("a condition can't be printed; use if(…)"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{Liters|plain}</text>")),
        QStringLiteral("\"Liters\" is no text, so \"plain\" says nothing"));
}

TEST_F(TemplateCheckTest, TotalsStandOnlyWhereTheyAreKnown)
{
    EXPECT_EQ(OnlyFault(QStringLiteral("<table source=\"c\"><col>{sum(Liters)}</col></table>")),
        QStringLiteral("a total isn't known here"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{running(Liters)}</text>")),
        QStringLiteral("a running sum stands in a table's columns only"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<table source=\"c\"><col>{running(Liters by Fat)}</col></table>")),
        QStringLiteral("no group of this table is by \"Fat\""));
    EXPECT_EQ(OnlyFault(QStringLiteral(
                  "<table source=\"c\"><col>a</col><col total=\"sum\">{Liters}</col></table>")),
        QStringLiteral("the total is never printed: there is no <total> and no group's foot"));
    EXPECT_EQ(OnlyFault(QStringLiteral(
                  "<table source=\"c\"><col total=\"sum\">{Liters}</col><total label=\"a\"/></table>")),
        QStringLiteral("the first column has a total, so there is no room for its label"));
    EXPECT_EQ(OnlyFault(QStringLiteral(
                  "<table source=\"c\"><col>a</col><col total=\"sum\">{Liters} ली.</col><total/></table>")),
        QStringLiteral("total=\"sum\" needs a column of one {expression}"));
}

TEST_F(TemplateCheckTest, PageNumbersBelongToTheEdgesOfThePage)
{
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{#page}</text>")),
        QStringLiteral("#page stands in a pageheader or a pagefooter only"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<pagefooter><text>{#pages + 1}</text></pagefooter>")),
        QStringLiteral("#pages stands alone in its braces"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<pageheader><table source=\"c\"><col>a</col></table></pageheader>")),
        QStringLiteral("<table> isn't known here"));
}

TEST_F(TemplateCheckTest, ASourceThatHangsOnAnotherIsWalkedWithinIt)
{
    const QString linked =
        QStringLiteral("<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo\" to=\"c\"/>");
    EXPECT_EQ(OnlyFault(linked + QStringLiteral("<table source=\"m\"><col>{City}</col></table>")),
        QStringLiteral("\"m\" can only be walked within an <each> of \"c\""));
    EXPECT_EQ(
        Faults(Template(linked
            + QStringLiteral("<each source=\"c\"><table source=\"m\"><col>{City}</col></table></each>"))),
        QStringList());
    EXPECT_EQ(
        OnlyFault(QStringLiteral("<source name=\"m\" table=\"MembersMaster\" link=\"Liters\" to=\"c\"/>")),
        QStringLiteral("the two sources don't share a column \"Liters\""));
    EXPECT_EQ(OnlyFault(QStringLiteral("<source name=\"c\" table=\"MembersMaster\"/>")),
        QStringLiteral("there is a second source \"c\""));
    EXPECT_EQ(OnlyFault(QStringLiteral("<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo\"/>")),
        QStringLiteral("\"link\" and \"to\" go together"));
}

TEST_F(TemplateCheckTest, EveryPaperIsKnownByItsName)
{
    for (const char16_t* paper : {u"A4", u"A5", u"A6", u"58mm", u"80mm", u"10x12in", u"105x148mm"}) {
        const QString attributes = QStringLiteral("paper=\"%1\" margin=\"3\"").arg(QString::fromUtf16(paper));
        EXPECT_EQ(Faults(Template(QStringLiteral("<text>a</text>"), attributes)), QStringList());
    }
    EXPECT_EQ(Faults(Template(QString(), QStringLiteral("paper=\"80mm\" landscape=\"1\""))),
        QStringList({QStringLiteral("1: a roll can't lie on its side")}));
    EXPECT_EQ(Faults(Template(QString(), QStringLiteral("paper=\"58mm\" margin=\"30\""))),
        QStringList({QStringLiteral("1: the margins leave nothing of the paper")}));
}

TEST_F(TemplateCheckTest, LettersOfAChartTakeASizeAndNoPlace)
{
    const auto chart = [](const char* look) {
        return QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" %1>"
                              "<series value=\"Liters\"/></chart>")
            .arg(QLatin1String(look));
    };
    EXPECT_EQ(Faults(Template(chart("size=\"7\""))), QStringList());
    EXPECT_EQ(OnlyFault(chart("align=\"right\"")), QStringLiteral("<chart> knows no \"align\""));
}

TEST_F(TemplateCheckTest, TheExamplesOfTheManualHaveNoFaultsAndThoseThatAreShippedAreAsTheyAreShipped)
{
    QFile manual(QStringLiteral(DOCS_FOLDER "/templates.md"));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    QStringList parts = QString::fromUtf8(manual.readAll()).split(QStringLiteral("```xml\n"));
    ASSERT_EQ(parts.size(), 4);
    parts.removeFirst();
    int shipped = 0;
    for (const QString& part : parts) {
        const QString example = part.section(QStringLiteral("```"), 0, 0);
        EXPECT_EQ(Faults(example), QStringList());
        const QString name = example.section(u'"', 1, 1) + QStringLiteral(".rpt");
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

TEST_F(TemplateCheckTest, TheShellToolTellsEachFaultOnALineAndAnswersWithItsExitCode)
{
    const QString good =
        Write(QStringLiteral("good.rpt"), Template(QStringLiteral("<text>{MemberName}</text>")));
    const QString bad =
        Write(QStringLiteral("bad.rpt"), Template(QStringLiteral("<text>{Nmae}</text>\n<blink/>")));
    const auto check = [](const QStringList& files) {
        QProcess tool;
        tool.start(QStringLiteral(TEMPLATE_CHECKER), files);
        EXPECT_TRUE(tool.waitForFinished());
        return std::pair(tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()));
    };
    EXPECT_EQ(check({good}), std::pair(0, QString()));
    const QString expected = bad + QStringLiteral(":4: <blink> isn't known here\n") + bad
        + QStringLiteral(":3: there is no column \"Nmae\" in MilkCollectionsTemp\n");
    EXPECT_EQ(check({good, bad}), std::pair(1, expected));
    EXPECT_EQ(check({File(QStringLiteral("missing.rpt"))}).first, 1);
    EXPECT_EQ(check({}).first, 2);
}
