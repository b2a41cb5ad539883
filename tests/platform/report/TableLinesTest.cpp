#include "tests/platform/report/ReportTest.h"

#include "platform/database/Sql.h"

#include <QFile>

namespace {

// What a table has besides its rows: lines of its own, summaries, the totals of a page.
class TableLinesTest : public ReportTest {
protected:
    void AddShifts()
    {
        AddDelivery(1, Morning, "अशोक", 10, 4.0, 350.5);
        AddDelivery(2, Morning, "बाबू", 5, 3.5, 180.25);
        AddDelivery(3, "संध्याकाळ", "कमल", 20, 5.0, 800);
    }

    void AddRows(int count)
    {
        for (int i = 1; i <= count; ++i)
            Run(Sql(u"insert into MilkCollectionsTemp(CollectionNo,MemberNo,Liters) values(", i, u",", i,
                u",1)"));
    }

    // The texts of a table over the collections.
    QString Table(const QString& inside, const QString& attributes = {})
    {
        return AllTexts(Template(QStringLiteral("<table source=\"c\" %1>%2</table>").arg(attributes, inside)))
            .join(u' ');
    }

    QString TableFault(const QString& inside, const QString& attributes = {})
    {
        return OnlyFault(QStringLiteral("<table source=\"c\" %1>%2</table>").arg(attributes, inside));
    }

    // The texts of each page of a small sheet.
    QStringList Pages(const QString& elements)
    {
        const std::unique_ptr<Report> report = Make(Template(elements, "paper=\"100x60mm\" margin=\"5\""));
        report->Complete();
        QStringList pages;
        for (std::size_t i = 0; i < report->PageCount(); ++i)
            pages.append(Texts(report->PageAt(i)).join(u' '));
        return pages;
    }
};

const QString Numbered = "<table source=\"c\" %1><col w=\"40\">{CollectionNo}</col>"
                         "<col total=\"sum\">{Liters|0}</col>%2</table>";

}

TEST_F(TableLinesTest, AColumnCanBeLeftOut)
{
    AddShifts();
    const QString columns = QStringLiteral(
        "<heads><head>A</head><head span=\"2\">B</head><head>C</head></heads><col head=\"अ\">{MemberNo}</col>"
        "<col head=\"ब\" if=\"sum(c.Fat) &gt; %1\">{Fat|0.0}</col>"
        "<col head=\"क\" total=\"sum\">{Liters|0}</col>"
        "<col head=\"ड\" if=\"sum(c.SNF) &gt; 0\">{SNF|0.0}</col><total label=\"=\"/>");
    EXPECT_EQ(Table(columns.arg(0)), "A B अ ब क 1 4.0 10 2 3.5 5 3 5.0 20 = 35");
    EXPECT_EQ(Table(columns.arg(99)), "A B अ क 1 10 2 5 3 20 = 35");
    const std::unique_ptr<Report> report =
        Make(Template(QStringLiteral("<table source=\"c\">%1</table>").arg(columns.arg(99))));
    report->Complete();
    const Page& page = report->PageAt(0);
    EXPECT_NEAR(Item(page, "क").x, page.width / 2, 3) << "two columns share the paper";
    EXPECT_NEAR(Item(page, "B").x, Item(page, "क").x, 0.1);
}

TEST_F(TableLinesTest, ATableIsNeverWithoutAColumn)
{
    EXPECT_EQ(
        TableFault("<col if=\"count() &gt; 0\">a</col>"), "every column has an \"if\", so there may be none");
    EXPECT_EQ(TableFault("<col if=\"count() &gt; 0\">a</col><col total=\"sum\">{Liters}</col>"
                         "<total label=\"=\"/>"),
        "the first column has a total, so there is no room for its label");
    EXPECT_EQ(
        TableFault("<col>a</col><col if=\"Liters\">b</col>"), "this must be a condition, such as Liters > 0");
}

TEST_F(TableLinesTest, ASummaryHasARowForEachGroup)
{
    AddShifts();
    EXPECT_EQ(Table("<col>{CollectionTime}</col><col total=\"count\">{count()}</col>"
                    "<col total=\"sum\">{sum(Amount)|0}</col><col>{running(Liters)|0}</col>"
                    "<group by=\"CollectionTime\"/><total label=\"=\"/>",
                  "rows=\"groups\""),
        "सकाळ 2 531 15 संध्याकाळ 1 800 35 = 2 1331"); // 531 + 800, as printed
    EXPECT_EQ(TableFault("<col>a</col>", "rows=\"groups\""), "rows=\"groups\" needs a <group>");
    EXPECT_EQ(TableFault("<col>a</col>", "rows=\"0\""), "rows=\"0\" isn't \"groups\"");
}

TEST_F(TableLinesTest, ASummaryStandsInItsOuterGroupsAndInTheSpreadsheet)
{
    AddShifts();
    AddDelivery(4, "संध्याकाळ", "कमल", 1, 5.0, 40);
    const QString table = QStringLiteral(
        "<col head=\"फॅट\">{Fat|0.0}</col><col head=\"लि.\" total=\"sum\">{sum(Liters)|0.0}</col>"
        "<group by=\"CollectionTime\" head=\"{CollectionTime}\" foot=\"एकूण\"/><group by=\"Fat\"/>");
    EXPECT_EQ(
        Table(table, "rows=\"groups\""), "फॅट लि. सकाळ 4.0 10.0 3.5 5.0 एकूण 15.0 संध्याकाळ 5.0 21.0 एकूण 21.0");
    const std::unique_ptr<Report> report =
        Make(Template(QStringLiteral("<table source=\"c\" rows=\"groups\">%1</table>").arg(table)));
    ASSERT_TRUE(report->SaveCsv(File("a.csv")).Done());
    QFile csv(File("a.csv"));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(csv.readAll().mid(3)),
        "CollectionTime,Fat,फॅट,लि.\r\nसकाळ,4,4.0,10.0\r\nसकाळ,3.5,3.5,5.0\r\n"
        "संध्याकाळ,5,5.0,21.0\r\n");
}

TEST_F(TableLinesTest, AGroupsHeadHasFiguresInItsOwnColumns)
{
    AddShifts();
    const std::unique_ptr<Report> report = Make(Template(
        "<table source=\"c\"><col>{MemberName}</col><col w=\"30\" align=\"right\">{Liters|0}</col>"
        "<col w=\"30\" align=\"right\">{Amount|0.00}</col><group by=\"CollectionTime\">"
        "<head><cell>{CollectionTime}</cell><cell/><cell>{Amount + 1|0.00}</cell></head></group></table>"));
    report->Complete();
    const Page& page = report->PageAt(0);
    EXPECT_EQ(Texts(page).mid(0, 5).join(u' '), "सकाळ 351.50 अशोक 10 350.50");
    const PlacedItem figure = Item(page, "351.50");
    EXPECT_EQ(figure.x, Item(page, "350.50").x);
    EXPECT_EQ(figure.align, Align::Right);
    EXPECT_TRUE(report->Fonts().At(figure.font).isBold);
    EXPECT_EQ(figure.fit, Fit::Shrink);
    EXPECT_EQ(TableFault("<col>a</col><group by=\"CollectionTime\"><head><cell>{sum(Liters)}"
                         "</cell></head></group>"),
        "a total can't be used here");
}

TEST_F(TableLinesTest, AFootHasSeveralLinesWithCellsOfTheirOwn)
{
    AddShifts();
    EXPECT_EQ(Table("<col>{MemberNo}</col><col>{Fat|0.0}</col><col total=\"sum\">{Liters|0}</col>"
                    "<group by=\"CollectionTime\" foot=\"पाळी\">"
                    "<foot if=\"sum(Liters) &lt; 20\"><cell "
                    "span=\"2\">सरासरी</cell><cell>{average(Fat)|0.00}</cell></foot>"
                    "<foot><cell span=\"3\">{count()} नोंदी</cell></foot></group>"
                    "<total label=\"=\"><foot><cell "
                    "span=\"2\">कमाल</cell><cell>{max(Liters)|0}</cell></foot></total>"),
        "1 4.0 10 2 3.5 5 पाळी 15 सरासरी 3.75 2 नोंदी 3 5.0 20 पाळी 20 1 नोंदी = 35 कमाल 20");
    EXPECT_EQ(Table("<col>{MemberNo}</col><total><foot><cell>शेवट</cell></foot></total>"), "1 2 3 शेवट");
    EXPECT_EQ(TableFault("<col>a</col><total><foot/></total>"), "the line has no <cell>");
    EXPECT_EQ(TableFault("<col>a</col><total><foot><cell span=\"2\">a</cell></foot></total>"),
        "the cells span 2 columns, but there are 1");
}

TEST_F(TableLinesTest, TheLinesOfAFootStayTogetherWithTheLastRow)
{
    const QString table = Numbered.arg(
        QString(), "<total label=\"=\"><foot><cell>क</cell></foot><foot><cell>ख</cell></foot></total>");
    for (int rows = 5; rows <= 16; ++rows) {
        Run("delete * from MilkCollectionsTemp");
        AddRows(rows);
        EXPECT_TRUE(Pages(table).last().endsWith(QStringLiteral("%1 1 = %1 क ख").arg(rows))) << rows;
    }
}

TEST_F(TableLinesTest, APageHasItsOwnTotalAndCarriesOver)
{
    const QString table =
        Numbered.arg(QString(), "<page foot=\"पान\" carry=\"पुढे\" head=\"मागील\"/><total label=\"एकूण\"/>");
    for (int rows = 1; rows <= 40; ++rows) {
        Run("delete * from MilkCollectionsTemp");
        AddRows(rows);
        int row = 0;
        int before = 0; // rows on the pages before
        const QStringList pages = Pages(table);
        for (qsizetype page = 0; page < pages.size(); ++page) {
            QStringList expected;
            if (page > 0)
                expected.append(QStringLiteral("मागील %1").arg(row));
            before = row;
            while (pages[page].contains(QStringLiteral(" %1 1").arg(row + 1))
                || pages[page].startsWith(QStringLiteral("%1 1").arg(row + 1)))
                expected.append(QStringLiteral("%1 1").arg(++row));
            expected.append(page + 1 == pages.size()
                    ? QStringLiteral("एकूण %1").arg(rows)
                    : QStringLiteral("पान %1 पुढे %2").arg(row - before).arg(row));
            ASSERT_EQ(pages[page], expected.join(u' ')) << rows;
        }
        ASSERT_EQ(row, rows);
    }
    EXPECT_GT(Pages(table).size(), 3);
}

TEST_F(TableLinesTest, NothingStandsBelowTheFootOfAPage)
{
    AddRows(40);
    const std::unique_ptr<Report> report =
        Make(Template(Numbered.arg("lines=\"1\"", "<page foot=\"पान\" carry=\"पुढे\" head=\"मागील\"/>"),
            "paper=\"100x60mm\" margin=\"5\""));
    report->Complete();
    ASSERT_GT(report->PageCount(), 3U);
    const double end = (60 - 5) * PointsPerMillimetre + 0.1;
    for (std::size_t page = 0; page < report->PageCount(); ++page) {
        for (const PlacedItem& item : report->PageAt(page).items)
            EXPECT_LE(item.Rect().bottom(), end) << page << ' ' << item.text.toStdString();
    }
}

TEST_F(TableLinesTest, ASummaryHasPageTotalsOfWhatIsPrinted)
{
    AddRows(30);
    const QStringList pages =
        Pages("<table source=\"c\" rows=\"groups\"><col w=\"40\">{CollectionNo}</col>"
              "<col total=\"sum\">{sum(Liters) + 0.4|0}</col><group by=\"CollectionNo\"/>"
              "<page carry=\"पुढे\"/><total label=\"एकूण\"/></table>");
    ASSERT_GT(pages.size(), 2);
    const int first = pages[0].section(u' ', -1).toInt();
    EXPECT_TRUE(pages[0].endsWith(QStringLiteral("%1 1 पुढे %1").arg(first))) << pages[0].toStdString();
    EXPECT_TRUE(pages.last().endsWith("एकूण 30"));
}

TEST_F(TableLinesTest, ATotalOfAPageKnowsNoRow)
{
    const auto fault = [this](const char* inside) {
        return TableFault("<col w=\"40\">{MemberNo}</col>" + QString::fromUtf8(inside));
    };
    const QString row = "\"%1\" is a field, and a <page> can use totals only";
    EXPECT_EQ(fault("<page foot=\"{MemberName}\"/>"), row.arg("MemberName"));
    EXPECT_EQ(fault("<col total=\"Fat + sum(Liters)\">{Liters}</col><page foot=\"=\"/>"), row.arg("Fat"));
    EXPECT_EQ(fault("<page/>"), "<page> needs \"foot\", \"carry\" or \"head\"");
    EXPECT_EQ(fault("<page foot=\"a\"/><page foot=\"b\"/>"), "there is a second <page>");
    EXPECT_EQ(OnlyFault("<columns><column><table source=\"c\"><col>a</col><page foot=\"a\"/>"
                        "</table></column></columns>"),
        "the table of a <page> can't stand in a <column>");
    EXPECT_EQ(
        Faults(Template(
            "<source name=\"o\" table=\"MilkPayments\"/><table source=\"c\"><col w=\"40\">{MemberNo}</col>"
            "<col total=\"o.Amount + sum(Amount)\">{Amount}</col><page foot=\"{count()}\"/></table>")),
        QStringList());
}

// A day begins with its opening balance on its own side and ends with what it came to, and so does the book.
// Behind it are the receipts of the last days, whose pages are numbered by the day.
TEST_F(TableLinesTest, TheItemsOfABookAreThoseOfTheGoldenFile)
{
    for (int i = 1; i <= 24; ++i) {
        const int day = 1 + i / 7;
        const double receipt = i % 3 == 0 ? 0 : 12500.5 * i;
        const double payment = i % 3 == 0 ? 98765.25 : 0;
        RunSeen(Sql(u"insert into LedgersMaster(CompanyId,LedgerName,TranDate,TranId,AccountName,Narration,"
                    u"Narration2,DAmount,CAmount,OpeningBalance,OpeningDorC) values(1,'[रोख]','0",
            day, u"/04/2026',", i, u",'[दूध विक्री]','[पावती] ", i, u"','", i % 2 == 0 ? u"[स्थानिक]" : u"",
            u"',", receipt, u",", payment, u",", 1000 * i, u",'D')"));
    }
    const std::unique_ptr<Report> report = Make(QString::fromUtf8(R"xml(
<report name="Book" paper="A5" margin="8" font="Noto Sans Devanagari 9">
  <source name="l" table="LedgersMaster" order="TranDate,TranId"/>
  <pageheader><text bold="1" size="12" align="center">{$society}</text><text align="center">रोख वही</text></pageheader>
  <table source="l">
    <col w="12" head="क्र." align="right">{TranId}</col>
    <col head="तपशील">{join(', ', AccountName, Narration, Narration2)}</col>
    <col w="30" head="जमा" align="right" total="sum">{DAmount|#,##,##0.00}</col>
    <col w="30" head="नावे" align="right" total="sum">{CAmount|#,##,##0.00}</col>
    <group by="TranDate" foot="दिवसाची बेरीज">
      <head><cell span="2">{TranDate}  आरंभी शिल्लक</cell><cell>{if(plain(OpeningDorC) = 'D', OpeningBalance, '')|#,##,##0.00}</cell></head>
      <foot><cell/><cell>शिल्लक</cell><cell>{sum(DAmount) - sum(CAmount)|#,##,##0.00}</cell></foot>
    </group>
    <page foot="पानाची बेरीज" carry="पुढील पानावर" head="मागील पानावरून"/>
    <total label="एकूण">
      <foot><cell/><cell>अखेरची शिल्लक</cell><cell>{sum(DAmount) - sum(CAmount)|#,##,##0.00}</cell></foot>
    </total>
  </table>
  <space h="5"/>
  <table source="l" rows="groups">
    <col head="महिना">{TranDate|MMMM yyyy}</col>
    <col w="20" head="नोंदी" align="right">{count()}</col>
    <col w="30" head="जमा" align="right">{sum(DAmount)|#,##,##0.00}</col>
    <group by="format(TranDate, 'MMMM yyyy')"/>
  </table>
  <each source="l" by="TranDate" only="TranId &gt; 13" newpage="1" ownpages="1">
    <text bold="1">दिनांक {TranDate}</text>
    <each source="l">
      <columns box="0.4" h="25">
        <column><text>पावती क्र. {TranId}</text></column>
        <column w="40"><text align="right">{DAmount + CAmount|#,##,##0.00}</text></column>
      </columns>
      <space h="2"/>
    </each>
  </each>
  <pagefooter><text size="7" align="center">पान {#page} / {#pages}</text></pagefooter>
</report>)xml"));
    report->Complete();
    ExpectGolden(*report, "book.txt");
}
