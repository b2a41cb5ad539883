#include "tests/platform/report/ReportTest.h"

#include <QFile>

namespace {

class FillingTest : public ReportTest {
protected:
    QString Joined(const QString& text) { return AllTexts(text).join(" | "); }
};

}

TEST_F(FillingTest, PairsStandBesideEachOtherAndVanishWhenTheirConditionFails)
{
    AddDelivery(7, Morning, "विठ्ठल", 12.5, 4.2, 437.5);
    const std::unique_ptr<Report> report =
        Make(Template("<pairs labelw=\"30\"><pair label=\"सभासद\">{MemberNo} {MemberName}</pair>"
                      "<pair label=\"एसएनएफ\" if=\"SNF &gt; 0\">{SNF}</pair><pair label=\"लिटर\" "
                      "align=\"right\">{Liters|0.000}</pair></pairs>"));
    report->Complete();
    const Page& page = report->PageAt(0);
    EXPECT_EQ(Texts(page).size(), 4);
    const PlacedItem label = Item(page, "सभासद");
    const PlacedItem value = Item(page, "7 विठ्ठल");
    EXPECT_FLOAT_EQ(value.y, label.y);
    EXPECT_NEAR(value.x - label.x, 30 * PointsPerMillimetre, 0.01);
    EXPECT_EQ(Item(page, "12.500").align, Align::Right);
    EXPECT_GT(Item(page, "12.500").y, value.y);
}

TEST_F(FillingTest, BlocksStandSideBySideAndTheNextElementBelowTheTaller)
{
    const std::unique_ptr<Report> report =
        Make(Template("<columns gap=\"10\"><column w=\"50\"><text>अ</text><text>आ</text></column>"
                      "<column><text>इ</text></column></columns><text>ई</text>"));
    report->Complete();
    const Page& page = report->PageAt(0);
    EXPECT_FLOAT_EQ(Item(page, "अ").y, Item(page, "इ").y);
    EXPECT_NEAR(Item(page, "इ").x - Item(page, "अ").x, 60 * PointsPerMillimetre, 0.01);
    EXPECT_GT(Item(page, "ई").y, Item(page, "आ").y);
}

TEST_F(FillingTest, EachRunsItsPartForEveryRowWithTheRowsThatHangOnIt)
{
    AddDelivery(1, Morning, "अशोक", 1, 4, 30);
    AddDelivery(2, Morning, "बाबू", 2, 4, 60);
    for (const char* pair : {"1,'A',5", "1,'B',6", "2,'C',7"})
        Run(QStringLiteral("insert into KapatDetails(MemberNo,Label1,Value1) values(%1)")
                .arg(QString::fromLatin1(pair)));
    const QString text = Template(
        "<source name=\"k\" table=\"KapatDetails\" link=\"MemberNo\" to=\"c\" order=\"Label1\"/>"
        "<each source=\"c\"><text>{MemberName}: {sum(k.Value1)}</text>"
        "<table source=\"k\"><col>{Label1|plain}</col><col>{Value1} {c.MemberNo}</col></table></each>");
    EXPECT_EQ(Joined(text), "अशोक: 11 | A | 5 1 | B | 6 1 | बाबू: 7 | C | 7 2");
}

TEST_F(FillingTest, AFieldOfALinkedSourceIsThatOfItsFirstRow)
{
    AddDelivery(1, Morning, "अशोक", 1, 4, 30);
    AddDelivery(2, Morning, "बाबू", 2, 4, 60);
    AddDelivery(3, Morning, "कमल", 3, 4, 90);
    RunSeen("insert into MembersMaster(MemberNo,City,PaymentType) values(1,'[कोल्हापूर]','[रोख]')");
    RunSeen("insert into MembersMaster(MemberNo,City,PaymentType) values(2,'[सांगली]','[बँक]')");
    const QString source = "<source name=\"m\" table=\"MembersMaster\" link=\"MemberNo\" to=\"c\"/>";
    EXPECT_EQ(Joined(Template(source + "<table source=\"c\"><col>{MemberNo} {m.City}</col></table>")),
        "1 कोल्हापूर | 2 सांगली | 3 ");
    EXPECT_EQ(Joined(Template(source
                  + QStringLiteral(
                      "<table source=\"c\" only=\"m.PaymentType = 'रोख'\"><col>{MemberNo}</col></table>"))),
        "1");
}

TEST_F(FillingTest, TheSelectionNarrowsTheFirstSourceOfItsTable)
{
    AddDelivery(1, Morning, "अशोक", 1, 4, 30);
    AddDelivery(2, Morning, "बाबू", 2, 4, 60);
    const QString text = Template("<table source=\"c\"><col>{MemberNo}</col></table>");
    const std::unique_ptr<Report> report = Make(text, {"MilkCollectionsTemp", "MemberNo=2"});
    report->Complete();
    EXPECT_EQ(Texts(report->PageAt(0)), QStringList({"2"}));
    EXPECT_THROW(Make(text, {"MilkPayments", "MemberNo=2"}), RunTimeError);
}

TEST_F(FillingTest, RepeatedSourcesOfOneTableCanBeFilteredApart)
{
    AddDelivery(1, Morning, "अशोक", 1, 4, 30);
    AddDelivery(2, "संध्याकाळ", "बाबू", 2, 4, 60);
    const QString text = QStringLiteral(
        "<report name=\"T\" paper=\"A4\">"
        "<source name=\"m\" table=\"MilkCollectionsTemp\" only=\"CollectionTime = 'सकाळ'\"/>"
        "<source name=\"e\" table=\"MilkCollectionsTemp\" only=\"CollectionTime &lt;&gt; 'सकाळ'\"/>"
        "<columns><column><table source=\"m\"><col>{MemberName}</col></table></column>"
        "<column><table source=\"e\"><col>{MemberName}</col></table></column></columns>"
        "<text>{sum(m.Liters)} {sum(e.Liters)}</text></report>");
    EXPECT_EQ(Joined(text), "अशोक | बाबू | 1 2");
}

TEST_F(FillingTest, HeadsSpanTheirColumns)
{
    AddDelivery(1, Morning, "अशोक", 1, 4, 30);
    const std::unique_ptr<Report> report =
        Make(Template("<table source=\"c\"><heads><head/><head span=\"2\">सकाळ</head></heads>"
                      "<col w=\"50\" head=\"नाव\">{MemberName}</col><col w=\"20\" head=\"ली.\">{Liters}</col>"
                      "<col w=\"20\" head=\"फॅट\">{Fat}</col></table>"));
    report->Complete();
    const Page& page = report->PageAt(0);
    const PlacedItem span = Item(page, Morning);
    EXPECT_FLOAT_EQ(span.x, Item(page, "ली.").x);
    EXPECT_NEAR(span.x + span.width, Item(page, "फॅट").x + Item(page, "फॅट").width, 0.01);
    EXPECT_LT(span.y, Item(page, "ली.").y);
}

TEST_F(FillingTest, FiguresAreShrunkWhereNamesAreCut)
{
    AddDelivery(1, Morning, "अशोक", 1234567.125, 4, 123456789.25);
    const auto fitOf = [this](const char* cell) {
        const std::unique_ptr<Report> report =
            Make(Template(QStringLiteral("<table source=\"c\"><col w=\"10\" %1</col></table>")
                              .arg(QString::fromUtf8(cell))));
        report->Complete();
        const std::vector<PlacedItem>& items = report->PageAt(0).items;
        EXPECT_EQ(items.size(), 1U) << cell;
        return items.front().fit;
    };
    for (const char* figure :
        {">{Amount|0.00}", ">{Liters}", ">{MemberNo}", ">{Liters|0.000} लि.", ">क्र. {MemberNo} {MemberName}",
            ">{Liters + 1}", ">{abs(Liters)}", ">{running(Liters)}", ">{if(Liters &gt; 0, Liters, '')}"})
        EXPECT_EQ(fitOf(figure), Fit::Shrink) << figure;
    for (const char* name :
        {">{MemberName}", ">{MemberName|plain}", ">{CollectionDate}", ">{if(Liters &gt; 0, MemberName, '')}"})
        EXPECT_EQ(fitOf(name), Fit::Cut) << name;
    EXPECT_EQ(fitOf("wrap=\"1\">{MemberNo}"), Fit::Wrap);
}

TEST_F(FillingTest, AChartAddsTheRowsOfALabelAndScalesItsBars)
{
    AddDelivery(1, Morning, "अ", 10, 4, 30);
    AddDelivery(2, Morning, "ब", 30, 4, 60);
    AddDelivery(3, "संध्याकाळ", "क", 20, 4, 60);
    const std::unique_ptr<Report> report =
        Make(Template("<chart source=\"c\" kind=\"bar\" x=\"{CollectionTime}\" h=\"80\" title=\"दूध\">"
                      "<series label=\"लिटर\" value=\"Liters\"/></chart>"));
    report->Complete();
    const Page& page = report->PageAt(0);
    std::vector<float> bars;
    for (const PlacedItem& item : page.items) {
        if (item.kind == PlacedItem::Kind::Box)
            bars.push_back(item.height);
    }
    ASSERT_EQ(bars.size(), 3U) << "the legend's mark and two bars";
    EXPECT_NEAR(bars[1], 2 * bars[2], 0.01) << "40 litres against 20";
    EXPECT_EQ(Item(page, "दूध").align, Align::Center);
    EXPECT_LT(Item(page, Morning).x, Item(page, "संध्याकाळ").x);
    EXPECT_LT(Item(page, "40").y, Item(page, "0").y);
}

TEST_F(FillingTest, ALineChartJoinsItsPointsBelowZeroToo)
{
    AddDelivery(1, Morning, "अ", 10, 4, 30);
    AddDelivery(2, Morning, "ब", -10, 4, 60);
    AddDelivery(3, Morning, "क", 10, 4, 60);
    const std::unique_ptr<Report> report =
        Make(Template("<chart source=\"c\" kind=\"line\" x=\"{MemberNo}\"><series "
                      "label=\"लिटर\" value=\"Liters\"/></chart>"));
    report->Complete();
    int falling = 0;
    int rising = 0;
    for (const PlacedItem& item : report->PageAt(0).items) {
        const bool isSlanted = item.kind == PlacedItem::Kind::Line && item.width > 1 && item.height != 0;
        falling += isSlanted && item.height > 0;
        rising += isSlanted && item.height < 0;
    }
    EXPECT_EQ(falling, 1);
    EXPECT_EQ(rising, 1);
}

TEST_F(FillingTest, TheDarkLineOfAChartIsThatOfNoughtAndBarsBelowZeroHangFromIt)
{
    AddDelivery(1, Morning, "अ", 10, 4, 30);
    AddDelivery(2, Morning, "ब", -25, 4, 60);
    const std::unique_ptr<Report> report =
        Make(Template("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\"><series "
                      "label=\"लिटर\" value=\"Liters\"/></chart>"));
    report->Complete();
    const Page& page = report->PageAt(0);
    std::vector<float> dark;
    std::vector<PlacedItem> boxes;
    for (const PlacedItem& item : page.items) {
        if (item.kind == PlacedItem::Kind::Line && item.height == 0 && item.gray == 0)
            dark.push_back(item.y);
        if (item.kind == PlacedItem::Kind::Box)
            boxes.push_back(item);
    }
    ASSERT_EQ(dark.size(), 1U);
    EXPECT_NEAR(dark[0], Item(page, "0").Rect().center().y(), 0.01);
    ASSERT_EQ(boxes.size(), 3U) << "the legend's mark and two bars";
    EXPECT_NEAR(boxes[1].Rect().bottom(), dark[0], 0.01);
    EXPECT_NEAR(boxes[2].y, dark[0], 0.01);
    EXPECT_NEAR(boxes[2].height, 2.5 * boxes[1].height, 0.01);
}

TEST_F(FillingTest, ALineChartMarksItsPointsSoThatOneAloneIsSeen)
{
    AddDelivery(1, Morning, "अ", 10, 4, 30);
    const QString chart = Template("<chart source=\"c\" kind=\"line\" x=\"{MemberNo}\"><series "
                                   "label=\"लिटर\" value=\"Liters\"/></chart>");
    const auto marks = [&] {
        const std::unique_ptr<Report> report = Make(chart);
        report->Complete();
        std::vector<QPointF> middles;
        for (const PlacedItem& item : report->PageAt(0).items) {
            if (item.kind == PlacedItem::Kind::Box)
                middles.push_back(item.Rect().center());
        }
        middles.erase(middles.begin()); // the legend's
        const PlacedItem label = Item(report->PageAt(0), "1");
        EXPECT_NEAR(middles.front().x(), label.Rect().center().x(), 0.01);
        EXPECT_NEAR(middles.front().y(), Item(report->PageAt(0), "10").Rect().center().y(), 0.01);
        return middles.size();
    };
    EXPECT_EQ(marks(), 1U);
    AddDelivery(2, Morning, "ब", 5, 4, 60);
    EXPECT_EQ(marks(), 2U);
}

TEST_F(FillingTest, AChartWithoutRowsHasItsAxesAndNoBars)
{
    const std::unique_ptr<Report> report =
        Make(Template("<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\"><series "
                      "label=\"लिटर\" value=\"Liters\"/></chart>"));
    report->Complete();
    EXPECT_EQ(std::count_if(report->PageAt(0).items.begin(), report->PageAt(0).items.end(),
                  [](const PlacedItem& item) { return item.kind == PlacedItem::Kind::Box; }),
        1);
    EXPECT_TRUE(Texts(report->PageAt(0)).contains("0"));
}

// Every placed item of one page. VETROLAN_RENEW=1 writes the file anew.
TEST_F(FillingTest, TheItemsOfAPageAreThoseOfTheGoldenFile)
{
    AddDelivery(1, Morning, "अशोक पाटील", 10.125, 4.0, 350.55);
    AddDelivery(2, Morning, "बाबू शिंदे", 5.5, 3.5, 180.1);
    AddDelivery(3, "संध्याकाळ", "कमल जाधव", 20, 5.0, 800.01);
    const std::unique_ptr<Report> report = Make(QStringLiteral(R"xml(
<report name="Golden" paper="A5" margin="10" font="Noto Sans Devanagari 9">
  <source name="c" table="MilkCollectionsTemp" order="CollectionNo"/>
  <pageheader>
    <text align="center" bold="1" size="12">{$society}</text>
    <columns><column><text>{$from} ते {$to}</text></column><column><text align="right">पान {#page}/{#pages}</text></column></columns>
    <rule/>
  </pageheader>
  <table source="c" lines="1">
    <col w="12" head="क्र." align="right">{CollectionNo}</col>
    <col head="नाव">{MemberName}</col>
    <col w="22" head="लिटर" align="right" total="sum">{Liters|0.000}</col>
    <col w="26" head="रक्कम" align="right" total="sum">{Amount|0.00}</col>
    <group by="CollectionTime" head="{CollectionTime}" foot="एकूण {CollectionTime}"/>
    <total label="एकूण"/>
  </table>
  <pagefooter><rule/><text size="7">सही</text></pagefooter>
</report>)xml"));
    report->Complete();
    ExpectGolden(*report, "page.txt");
}

TEST_F(FillingTest, TheLabelsOfAChartStayWithinIt)
{
    for (int i = 1; i <= 40; ++i)
        AddDelivery(i, Morning, "अ", i, 4, 30);
    for (int rows = 1; rows <= 40; ++rows) {
        const std::unique_ptr<Report> report =
            Make(Template(QStringLiteral("<chart source=\"c\" kind=\"bar\" x=\"LBL{CollectionNo}\" h=\"40\" "
                                         "only=\"CollectionNo &lt;= %1\"><series value=\"Liters\"/></chart>")
                              .arg(rows),
                "paper=\"58mm\" margin=\"2\""));
        report->Complete();
        const double right = (58 - 2) * PointsPerMillimetre;
        EXPECT_TRUE(Texts(report->PageAt(0)).contains("LBL1"));
        for (const PlacedItem& item : report->PageAt(0).items)
            EXPECT_LE(item.Rect().right(), right + 0.01) << rows << ' ' << item.text.toStdString();
    }
}

TEST_F(FillingTest, AColumnOfAViewWithoutATypeIsTakenAsItIsStored)
{
    AddDelivery(1, Morning, "अशोक", 9.5, 4, 30);
    AddDelivery(2, Morning, "बाबू", 12.5, 4, 60);
    connection->RunScript("create view Reckoned as select CollectionNo, Liters + 0 as Twice, "
                          "MemberName || '' as Named from MilkCollectionsTemp");
    const QString view = "<source name=\"v\" table=\"Reckoned\" order=\"CollectionNo desc\"/>";
    EXPECT_EQ(Joined(Template(view
                  + "<text>{v.Twice} {v.Named} {v.Twice|0.00}</text>"
                    "<text if=\"v.Twice &gt; 9\">जास्त</text><text if=\"v.Twice &lt; 9\">कमी</text>"
                    "<text>{min(v.Twice)} {max(v.Twice)} {sum(v.Twice)}</text>"
                    "<each source=\"v\" only=\"v.Twice &lt; 10\"><text>{v.Twice}</text></each>")),
        "12.5 बाबू 12.50 | जास्त | 9.5 12.5 22 | 9.5");
}
