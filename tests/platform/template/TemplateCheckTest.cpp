#include "tests/platform/template/TemplateTest.h"

#include <QFile>

namespace {

class TemplateCheckTest : public TemplateTest { };

}

TEST_F(TemplateCheckTest, AllFaultsAreToldAtOnceWithTheirLines)
{
    const QStringList faults = Faults("<report name=\"T\" paper=\"A9\">\n"
                                      "<source name=\"c\" table=\"NoSuchTable\"/>\n"
                                      "<source name=\"m\" table=\"MembersMaster\" order=\"Nmae\"/>\n"
                                      "<text colour=\"red\">{m.Surname}</text>\n"
                                      "<blink/>\n"
                                      "<text>{m.MemberNo|0,00} {1 +}</text>\n"
                                      "<table source=\"x\"><col w=\"wide\">a</col></table>\n"
                                      "</report>",
        "T");
    const QStringList expected{"1: \"A9\" is no paper", "2: there is no table \"NoSuchTable\"",
        "3: there is no column \"Nmae\" in MembersMaster", "4: <text> has no attribute \"colour\"",
        "4: there is no column \"Surname\" in MembersMaster", "5: <blink> isn't known here",
        "6: \"0,00\" is no format of a number or a date", "6: {1 +}: the expression breaks off",
        "7: w=\"wide\" is neither millimetres nor *", "7: there is no source \"x\""};
    EXPECT_EQ(faults, expected);
}

TEST_F(TemplateCheckTest, AFontNeedsASizeThatCanBeRead)
{
    for (const char* size : {"", " 3", " 73", " nan", " inf", " big"}) {
        const QString font = QStringLiteral("Noto Sans Devanagari") + QLatin1String(size);
        EXPECT_EQ(Faults(QStringLiteral("<report name=\"Test\" paper=\"A4\" font=\"%1\"/>").arg(font)),
            QStringList(
                QStringLiteral("1: \"%1\" is no font such as \"Noto Sans Devanagari 10\"").arg(font)));
    }
}

TEST_F(TemplateCheckTest, NothingIsDeclaredBeforeATemplate)
{
    const QString many = QStringLiteral("&a;").repeated(30000);
    EXPECT_EQ(Faults(QStringLiteral("<!DOCTYPE report [<!ENTITY a \"%1\">]>\n"
                                    "<report name=\"Test\" paper=\"A4\"><text>%2</text></report>")
                         .arg(QString(4000, u'x'), many)),
        QStringList("1: a template has no <!DOCTYPE>"));
    EXPECT_EQ(Faults("<?xml version=\"1.0\"?>\n<!DOCTYPE report>\n" + Template({})),
        QStringList("2: a template has no <!DOCTYPE>"));
}

TEST_F(TemplateCheckTest, ATemplateIsNoLargerThanAMegabyte)
{
    const QString text = Template("<text>a</text>");
    const QString comment = "<!--%1-->";
    const qsizetype room = 1024 * 1024 - text.size() - comment.arg(QString()).size();
    EXPECT_EQ(Faults(text + comment.arg(QString(room, u'x'))), QStringList());
    EXPECT_EQ(
        Faults(text + comment.arg(QString(room + 1, u'x'))), QStringList("0: the file is larger than 1 MB"));
}

TEST_F(TemplateCheckTest, OfManyFaultsTheFirstHundredAreTold)
{
    const auto expect = [this](const QString& elements, int first, int count, const char* fault) {
        const QStringList faults = Faults(Template(elements));
        ASSERT_EQ(faults.size(), count) << fault;
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(faults[i].section(u':', 0, 0), QString::number(first + i)) << fault;
        EXPECT_TRUE(faults[count > 100 ? 99 : count - 1].contains(QLatin1String(fault)));
        EXPECT_EQ(faults.last().endsWith("there are more faults than 100"), count > 100);
    };
    const QString unknown = "<blink/>\n";
    expect(unknown.repeated(100), 3, 100, "<blink> isn't known here");
    expect(unknown.repeated(101), 3, 101, "<blink> isn't known here");
    expect(unknown.repeated(50000), 3, 101, "<blink> isn't known here");
    expect(QStringLiteral("<text>{Nmae}</text>\n").repeated(20000), 3, 101, "there is no column \"Nmae\"");
    expect(unknown.repeated(60) + QStringLiteral("<text>{Nmae}</text>\n").repeated(60), 3, 101,
        "there is no column \"Nmae\"");
}

TEST_F(TemplateCheckTest, ATemplateThatIsNoXmlIsToldWithItsLine)
{
    const QStringList faults = Faults("<report name=\"Test\" paper=\"A4\">\n<text>\n</report>");
    ASSERT_EQ(faults.size(), 1) << faults.join(u'\n').toStdString();
    EXPECT_TRUE(faults.first().startsWith("3: no XML: ")) << faults.first().toStdString();
    EXPECT_EQ(Faults(QString()).size(), 1);
    EXPECT_EQ(Faults("<html/>"), QStringList({"1: <html> isn't known here"}));
}

TEST_F(TemplateCheckTest, WhereTheXmlBreaksOffNoFaultsAreInvented)
{
    const QStringList faults = Faults("<report name=\"Test\" paper=\"A4\">\n"
                                      "<blink/>\n"
                                      "<text>{c.Liters}</text>\n"
                                      "<table source=\"c\">{Liters & Fat}\n"
                                      "<source name=\"c\" table=\"MilkCollectionsTemp\"/>\n"
                                      "</report>");
    ASSERT_EQ(faults.size(), 2) << faults.join(u'\n').toStdString();
    EXPECT_EQ(faults[0], "2: <blink> isn't known here");
    EXPECT_TRUE(faults[1].startsWith("4: no XML: ")) << faults[1].toStdString();
}

TEST_F(TemplateCheckTest, AFileThatIsntUtf8IsToldWithItsLine)
{
    const auto faults = [this](const QByteArray& bytes) {
        QFile file(File("Test.rpt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return FaultsOfFile(file.fileName());
    };
    const QByteArray begin = "<report name=\"Test\" paper=\"A4\">\n<text>";
    const QByteArray end = "</text>\n</report>";
    EXPECT_EQ(faults(begin + "caf\xC3\xA9 \xEF\xBF\xBD" + end), QStringList());
    EXPECT_EQ(faults("\xEF\xBB\xBF" + begin + "a" + end), QStringList());
    const QStringList second{"2: the file isn't written in UTF-8"};
    EXPECT_EQ(faults(begin + "caf\xE9" + end), second);
    EXPECT_EQ(faults("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + begin + "caf\xE9" + end), second);
    EXPECT_EQ(faults(begin + "\xE0\xA4\n" + end), second) << "a sign that breaks off with its line";
    EXPECT_EQ(faults("\xFF\xFE<\0r\0"), QStringList({"1: the file isn't written in UTF-8"}));
}

TEST_F(TemplateCheckTest, TheReportHasTheNameOfItsFile)
{
    const QString text = Template("<text>a</text>");
    EXPECT_EQ(
        Faults(text, "Other"), QStringList({"1: the report is called \"Test\", but its file \"Other\""}));
    EXPECT_EQ(Faults(text, "TEST"), QStringList());
}

TEST_F(TemplateCheckTest, TextThatWouldNotBePrintedIsAFault)
{
    EXPECT_EQ(Faults(Template("\nदूध\nलिटर <text>a</text>\n")),
        QStringList({"4: \"दूध लिटर\" stands where no text is printed"}));
    for (const char16_t* elements :
        {u"<table source=\"c\">दूध<col>a</col></table>", u"<columns><column>दूध</column></columns>",
            u"<columns>दूध<column/></columns>", u"<pairs><pair label=\"a\">b</pair>दूध</pairs>",
            u"<each source=\"c\">दूध</each>", u"<rule>दूध</rule>", u"<pageheader><![CDATA[दूध]]></pageheader>"})
        EXPECT_EQ(OnlyFault(QString::fromUtf16(elements)), "\"दूध\" stands where no text is printed")
            << QString::fromUtf16(elements).toStdString();
    EXPECT_EQ(Faults(Template("<!-- दूध --><table source=\"c\"> <!-- दूध -->\n<col>a</col>"
                              "</table>")),
        QStringList());
}

TEST_F(TemplateCheckTest, ABraceThatClosesNothingIsAFault)
{
    const QString fault = "a } closes nothing; as a sign it is written {'}'}";
    EXPECT_EQ(OnlyFault("<text>a } b {MemberNo}</text>"), fault);
    EXPECT_EQ(OnlyFault("<text>{MemberNo}}</text>"), fault);
    EXPECT_EQ(OnlyFault("<pairs><pair label=\"}\">a</pair></pairs>"), fault);
    EXPECT_EQ(Faults(Template("<text>{'}'}{'{'}</text>")), QStringList());
}

TEST_F(TemplateCheckTest, EveryPartOfAnOrderIsAColumn)
{
    const auto fault = [this](const char* order) {
        return OnlyFault(QStringLiteral("<source name=\"m\" table=\"MembersMaster\" order=\"%1\"/>")
                             .arg(QLatin1String(order)));
    };
    EXPECT_EQ(fault("MemberNo,"), "\"\" is no order");
    EXPECT_EQ(fault(",MemberNo desc"), "\"\" is no order");
    EXPECT_EQ(fault("MemberNo,,City"), "\"\" is no order");
    EXPECT_EQ(fault("MemberNo up"), "\"MemberNo up\" is no order");
    EXPECT_EQ(OnlyFault("<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo,\" to=\"c\"/>"),
        "the two sources don't share a column \"\"");
}

TEST_F(TemplateCheckTest, RowsThatAreKeptCantBeChosenByARowThatMovesOn)
{
    const auto linked = [](const char* only) {
        return QStringLiteral(
            "<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo\" to=\"c\" only=\"%1\"/>")
            .arg(QLatin1String(only));
    };
    const QString end = "; use \"link\", or the \"only\" of the element that goes through the rows";
    EXPECT_EQ(OnlyFault(linked("City = 'a' and c.Liters &gt; 3")),
        "the rows of \"m\" are chosen once and not for each row of \"c\", so its \"only\" "
        "can't use c.Liters"
            + end);
    EXPECT_EQ(OnlyFault(linked("City = 'a'")
                  + "<source name=\"n\" table=\"MembersMaster\" link=\"MemberNo\" to=\"c\" "
                    "only=\"m.City = 'a'\"/>"),
        "the rows of \"n\" are chosen once and not for each row of \"m\", so its \"only\" "
        "can't use m.City"
            + end);
    const QString dates = "<source name=\"d\" table=\"ReportDates\"/>";
    const QString ofDate = linked("CompanyId = d.CompanyId");
    EXPECT_EQ(Faults(Template(dates + ofDate)), QStringList()) << "it stands still";
    EXPECT_EQ(OnlyFault(dates + ofDate + "<each source=\"d\"><text>{m.City}</text></each>"),
        "the rows of \"m\" are chosen once and not for each row of \"d\", so its \"only\" "
        "can't use d.CompanyId"
            + end);
    EXPECT_EQ(Faults(Template(linked("City = 'a'")
                  + "<source name=\"p\" table=\"MilkPayments\" only=\"k.City = 'a'\"/>"
                    "<source name=\"k\" table=\"MembersMaster\" link=\"MemberNo\" to=\"p\"/>")),
        QStringList())
        << "what hangs on a row goes with it";
}

TEST_F(TemplateCheckTest, ASourceReadByItsFirstRowCantBeChosenByARowThatMovesOn)
{
    const QString members = "<source name=\"m\" table=\"MembersMaster\" only=\"MemberNo = c.MemberNo\"/>";
    EXPECT_EQ(
        Faults(Template(members + "<each source=\"c\"><table source=\"m\"><col>{City}</col></table></each>")),
        QStringList())
        << "its rows are chosen anew each time";
    EXPECT_EQ(OnlyFault(members + "<each source=\"c\"><text>{m.City}</text></each>"),
        "the rows of \"m\" are chosen once and not for each row of \"c\", so its \"only\" "
        "can't use c.MemberNo; use \"link\", or the \"only\" of the element that goes through the rows");
}

TEST_F(TemplateCheckTest, KindsOfValuesMustSuit)
{
    EXPECT_EQ(OnlyFault("<text>{CollectionDate|0.00}</text>"), "the format \"0.00\" needs a number");
    EXPECT_EQ(OnlyFault("<text>{Liters|dd/MM/yyyy}</text>"), "the format \"dd/MM/yyyy\" needs a date");
    EXPECT_EQ(
        OnlyFault("<text>{CollectionDate + 1}</text>"), "dates and conditions can't be added or multiplied");
    const QString noText = "texts can't be added or multiplied; words are written outside of the braces";
    EXPECT_EQ(OnlyFault("<text>{'रु. ' + Amount}</text>"), noText);
    EXPECT_EQ(OnlyFault("<text>{MemberName * 2}</text>"), noText);
    EXPECT_EQ(OnlyFault("<text>{-plain(MemberName)} {abs(Amount)}</text>"), noText);
    EXPECT_EQ(OnlyFault("<text>{sum(MemberName)} {count(MemberName)}</text>"), "a total needs numbers");
    EXPECT_EQ(
        OnlyFault("<text if=\"Liters = 'दोन'\">a</text>"), "values of different kinds can't be compared");
    EXPECT_EQ(OnlyFault("<text if=\"Liters\">a</text>"), "this must be a condition, such as Liters > 0");
    EXPECT_EQ(OnlyFault("<text>{Liters = 2}</text>"), "a condition can't be printed; use if(…)");
    EXPECT_EQ(OnlyFault("<text>{Liters|plain}</text>"), "\"Liters\" isn't a text, so it can't be \"plain\"");
}

TEST_F(TemplateCheckTest, AChoiceThatMayBeATextOrADateIsNotReckonedWith)
{
    const QString noText = "texts can't be added or multiplied; words are written outside of the braces";
    const QString noDate = "dates and conditions can't be added or multiplied";
    EXPECT_EQ(OnlyFault("<text>{if(MemberNo = 1, 'x', Amount) * 2}</text>"), noText);
    EXPECT_EQ(OnlyFault("<text>{2 + if(MemberNo = 1, Amount, MemberName)}</text>"), noText);
    EXPECT_EQ(OnlyFault("<text>{abs(if(MemberNo = 1, '', if(Liters = 1, 1, 'x')))}</text>"), noText);
    EXPECT_EQ(OnlyFault("<text>{sum(if(MemberNo = 1, 'x', Amount))}</text>"), "a total needs numbers");
    EXPECT_EQ(OnlyFault("<text if=\"if(MemberNo = 1, 'x', Amount) = 2\">a</text>"),
        "values of different kinds can't be compared");
    EXPECT_EQ(OnlyFault("<text>{if(MemberNo = 1, CollectionDate, Amount) * 2}</text>"), noDate);
    EXPECT_EQ(OnlyFault("<text>{if(MemberNo = 1, CollectionDate, 'x') * 2}</text>"), noDate);
    EXPECT_EQ(OnlyFault("<text>{if(MemberNo = 1, '', CollectionDate)|0.00}</text>"),
        "the format \"0.00\" needs a number");
    EXPECT_EQ(Faults(Template("<text>{if(MemberNo = 1, '', Amount) * 2} "
                              "{if(MemberNo = 1, '-', CollectionDate)|dd/MM/yyyy} "
                              "{if(MemberNo = 1, '-', Amount)|0.00} {if(MemberNo = 1, 1, Amount)}</text>")),
        QStringList())
        << "an empty text counts as 0, and a word may stand for what is printed";
}

TEST_F(TemplateCheckTest, TotalsStandOnlyWhereTheyAreKnown)
{
    EXPECT_EQ(
        OnlyFault("<table source=\"c\"><col>{sum(Liters)}</col></table>"), "a total can't be used here");
    EXPECT_EQ(OnlyFault("<text>{running(Liters)}</text>"), "a running sum stands in a table's columns only");
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col>{running(Liters by Fat)}</col></table>"),
        "no group of this table is by \"Fat\"");
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col>a</col><col total=\"sum\">{Liters}</col></table>"),
        "the total is never printed: there is no <total> and no group's foot");
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col total=\"sum\">{Liters}</col><total label=\"a\"/></table>"),
        "the first column has a total, so there is no room for its label");
    EXPECT_EQ(
        OnlyFault("<table source=\"c\"><col>a</col><col total=\"sum\">{Liters} ली.</col><total/></table>"),
        "total=\"sum\" needs a column of one {expression}");
}

TEST_F(TemplateCheckTest, PageNumbersBelongToTheEdgesOfThePage)
{
    EXPECT_EQ(OnlyFault("<text>{#page}</text>"), "#page stands in a pageheader or a pagefooter only");
    EXPECT_EQ(OnlyFault("<pagefooter><text>{#pages + 1}</text></pagefooter>"),
        "#pages must be alone in its braces");
    EXPECT_EQ(OnlyFault("<pageheader><table source=\"c\"><col>a</col></table></pageheader>"),
        "<table> isn't known here");
}

TEST_F(TemplateCheckTest, ASourceThatHangsOnAnotherIsWalkedWithinIt)
{
    const QString linked = "<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo\" to=\"c\"/>";
    EXPECT_EQ(OnlyFault(linked + "<table source=\"m\"><col>{City}</col></table>"),
        "the rows of \"m\" can be gone through only inside an <each> of \"c\"");
    EXPECT_EQ(
        Faults(Template(linked + "<each source=\"c\"><table source=\"m\"><col>{City}</col></table></each>")),
        QStringList());
    EXPECT_EQ(OnlyFault("<source name=\"m\" table=\"MembersMaster\" link=\"Liters\" to=\"c\"/>"),
        "the two sources don't share a column \"Liters\"");
    EXPECT_EQ(OnlyFault("<source name=\"c\" table=\"MembersMaster\"/>"), "there is a second source \"c\"");
    EXPECT_EQ(OnlyFault("<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo\"/>"),
        "\"link\" and \"to\" go together");
}

TEST_F(TemplateCheckTest, EveryPaperIsKnownByItsName)
{
    for (const char16_t* paper : {u"A4", u"A5", u"A6", u"58mm", u"80mm", u"10x12in", u"105x148mm"}) {
        const QString attributes = QStringLiteral("paper=\"%1\" margin=\"3\"").arg(QString::fromUtf16(paper));
        EXPECT_EQ(Faults(Template("<text>a</text>", attributes)), QStringList());
    }
    EXPECT_EQ(Faults(Template(QString(), "paper=\"80mm\" landscape=\"1\"")),
        QStringList({"1: a roll can't lie on its side"}));
    EXPECT_EQ(Faults(Template(QString(), "paper=\"58mm\" margin=\"30\"")),
        QStringList({"1: the margins leave nothing of the paper"}));
}

TEST_F(TemplateCheckTest, LettersOfAChartTakeASizeAndNoPlace)
{
    const auto chart = [](const char* look) {
        return QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" %1>"
                              "<series value=\"Liters\"/></chart>")
            .arg(QLatin1String(look));
    };
    EXPECT_EQ(Faults(Template(chart("size=\"7\""))), QStringList());
    EXPECT_EQ(OnlyFault(chart("align=\"right\"")), "<chart> has no attribute \"align\"");
}

TEST_F(TemplateCheckTest, ElementsStandInOneAnotherToADepthOnly)
{
    const auto nested = [](int depth) -> QString {
        return QStringLiteral("<columns><column>").repeated(depth) + "<text>a</text>"
            + QStringLiteral("</column></columns>").repeated(depth);
    };
    EXPECT_EQ(Faults(Template(nested(40))), QStringList());
    EXPECT_EQ(OnlyFault(nested(41)), "there are more than 40 elements around this one");
    EXPECT_EQ(OnlyFault(nested(20000)), "there are more than 40 elements around this one");
}

TEST_F(TemplateCheckTest, RowsArentGroupedByACondition)
{
    EXPECT_EQ(OnlyFault("<table source=\"c\"><col>{MemberNo}</col><group by=\"MemberNo &gt; 75\"/></table>"),
        "rows can't be grouped by a condition; use if(…)");
}
