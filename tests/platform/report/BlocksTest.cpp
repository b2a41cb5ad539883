#include "tests/platform/report/ReportTest.h"

#include "platform/database/Sql.h"

namespace {

// Blocks: their frames and heights, what stands at their bottom, and which rows they are made for.
class BlocksTest : public ReportTest {
protected:
    void AddRows(int from, int to, const QString& group = "A")
    {
        for (int i = from; i <= to; ++i)
            Run(Sql(u"insert into MilkCollectionsTemp(CollectionNo,MemberNo,CollectionTime,Liters) values(",
                i, u",", i, u",'", group, u"',1)"));
    }

    std::unique_ptr<Report> Whole(
        const QString& elements, const QString& sheet = "paper=\"100x80mm\" margin=\"5\"")
    {
        std::unique_ptr<Report> report = Make(Template(elements, sheet));
        report->Complete();
        return report;
    }

    static QStringList Pages(const Report& report)
    {
        QStringList pages;
        for (std::size_t i = 0; i < report.PageCount(); ++i)
            pages.append(Texts(report.PageAt(i)).join(u' '));
        return pages;
    }

    // The rectangles of the frames of a page, each from its four lines.
    static std::vector<QRectF> Frames(const Page& page)
    {
        std::vector<QRectF> frames;
        const std::vector<PlacedItem>& items = page.items;
        for (std::size_t i = 0; i + 3 < items.size(); ++i) {
            const bool isUpright = items[i + 2].kind == PlacedItem::Kind::Line && items[i + 2].width == 0
                && items[i + 2].height > 0;
            if (items[i].kind == PlacedItem::Kind::Line && items[i].width > 0 && items[i + 1].width > 0
                && isUpright)
                frames.emplace_back(items[i].x, items[i].y, items[i].width, items[i + 1].y - items[i].y);
        }
        return frames;
    }

    static double Bottom(const Page& page, const QString& text) { return Item(page, text).Rect().bottom(); }
};

}

TEST_F(BlocksTest, AFrameStandsAroundWhatIsInIt)
{
    const std::unique_ptr<Report> report =
        Whole("<text>वर</text><columns box=\"0.8\"><column box=\"0.4\"><text>अ</text></column>"
              "<column w=\"30\"><text>ब</text><text>क</text></column></columns><text>खाली</text>");
    const Page& page = report->PageAt(0);
    const std::vector<QRectF> frames = Frames(page);
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_TRUE(frames[0].contains(frames[1]));
    EXPECT_TRUE(frames[1].contains(Item(page, "अ").Rect()));
    for (const char16_t* text : {u"ब", u"क"}) {
        EXPECT_TRUE(frames[0].contains(Item(page, QString::fromUtf16(text)).Rect()));
        EXPECT_FALSE(frames[1].intersects(Item(page, QString::fromUtf16(text)).Rect()));
    }
    EXPECT_LE(Bottom(page, "वर"), frames[0].top() + 0.1);
    EXPECT_GE(Item(page, "खाली").y, frames[0].bottom() - 0.1);
    EXPECT_NEAR(frames[0].width(), 90 * PointsPerMillimetre, 0.1);
}

TEST_F(BlocksTest, WhatGoesOnOverThePageIsFramedOnEach)
{
    AddRows(1, 60);
    const std::unique_ptr<Report> report =
        Whole("<text>अ</text><columns box=\"0.5\"><column><table source=\"c\">"
              "<col>{CollectionNo}</col></table></column></columns>");
    ASSERT_GT(report->PageCount(), 2U);
    for (std::size_t i = 0; i < report->PageCount(); ++i) {
        const std::vector<QRectF> frames = Frames(report->PageAt(i));
        ASSERT_EQ(frames.size(), 1U) << i;
        for (const PlacedItem& item : report->PageAt(i).items) {
            if (item.kind == PlacedItem::Kind::Text && item.text != "अ") {
                EXPECT_TRUE(frames[0].contains(item.Rect())) << item.text.toStdString();
            }
        }
    }
}

TEST_F(BlocksTest, SlipsOfAGivenHeightShareAPage)
{
    AddRows(1, 7);
    const std::unique_ptr<Report> report =
        Whole("<each source=\"c\"><columns h=\"92\"><column><text>{CollectionNo}</text>"
              "</column></columns></each>",
            "paper=\"A4\" margin=\"8\"");
    EXPECT_EQ(Pages(*report), QStringList({"1 2 3", "4 5 6", "7"}));
    const Page& page = report->PageAt(0);
    EXPECT_NEAR(Item(page, "2").y - Item(page, "1").y, 92 * PointsPerMillimetre, 0.1);
    EXPECT_EQ(
        OnlyFault("<columns h=\"290\"><column/></columns>"), "the strip of columns is taller than the page");
}

TEST_F(BlocksTest, ABlockOfAGivenHeightStaysWhole)
{
    AddRows(1, 6);
    const std::unique_ptr<Report> report =
        Whole("<space h=\"50\"/><columns h=\"30\"><column><table source=\"c\">"
              "<col>{CollectionNo}</col></table></column></columns>");
    EXPECT_EQ(Pages(*report), QStringList({QString(), "1 2 3 4 5 6"}));
}

TEST_F(BlocksTest, TheBottomsOfBlocksEndAtOneHeight)
{
    const std::unique_ptr<Report> report = Whole(
        "<columns h=\"40\"><column><text>अ</text><bottom><text>सही</text></bottom></column>"
        "<column><text>ब</text><text>क</text><bottom><rule/><text>एकूण</text></bottom></column></columns>"
        "<text>खाली</text>");
    const Page& page = report->PageAt(0);
    EXPECT_EQ(Bottom(page, "सही"), Bottom(page, "एकूण"));
    EXPECT_NEAR(Bottom(page, "सही"), 45 * PointsPerMillimetre, 0.1);
    EXPECT_NEAR(Item(page, "खाली").y, 45 * PointsPerMillimetre, 0.1);
}

TEST_F(BlocksTest, TheBottomsOfTablesThatGoOnOverPagesEndAtOneHeight)
{
    const QString element =
        "<text>वर</text><columns><column><table source=\"c\"><col>{CollectionNo}</col></table>"
        "<bottom><rule/><text>सही</text><text>क</text></bottom></column><column><text>ब</text>"
        "<bottom><text>एकूण</text></bottom></column></columns><text>खाली</text>";
    for (int rows = 1; rows <= 40; ++rows) {
        Run("delete * from MilkCollectionsTemp");
        AddRows(1, rows);
        const std::unique_ptr<Report> report = Whole(element);
        const QStringList pages = Pages(*report);
        EXPECT_EQ(pages.join(u' ').split(u' ').size(), rows + 6) << "nothing is lost " << rows;
        for (std::size_t i = 0; i < report->PageCount(); ++i) {
            const Page& page = report->PageAt(i);
            EXPECT_EQ(pages[static_cast<qsizetype>(i)].contains("सही"),
                pages[static_cast<qsizetype>(i)].contains("एकूण"))
                << rows;
            for (const PlacedItem& item : page.items)
                EXPECT_LE(item.Rect().bottom(), 75 * PointsPerMillimetre + 0.1) << rows;
            if (!pages[static_cast<qsizetype>(i)].contains("सही"))
                continue;
            EXPECT_NEAR(Bottom(page, "क"), Bottom(page, "एकूण"), 0.01) << rows;
        }
    }
}

TEST_F(BlocksTest, ATextThatKeepsToABottomAsksForNoRoomBetween)
{
    AddRows(1, 8);
    const QStringList pages = Pages(*Whole(
        "<space h=\"40\"/><columns><column><table source=\"c\"><col>{CollectionNo}</col></table></column>"
        "<column><text keep=\"1\">ब</text><bottom><text>एकूण</text></bottom></column></columns>"));
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].startsWith("1 2 3 ")) << pages[0].toStdString();
    EXPECT_TRUE(pages[1].endsWith("8 एकूण")) << pages[1].toStdString();
}

TEST_F(BlocksTest, ABottomIsTheLastOfItsColumnAndHoldsNoRows)
{
    const auto fault = [this](const char* inside) {
        return OnlyFault(QStringLiteral("<columns><column>%1</column></columns>").arg(QLatin1String(inside)));
    };
    EXPECT_EQ(fault("<bottom><text>a</text></bottom><text>b</text>"),
        "a <bottom> must be the last element of its <column>");
    EXPECT_EQ(fault("<bottom><table source=\"c\"><col>a</col></table></bottom>"),
        "<table> can't stand in <columns> that stand in a <column>");
    EXPECT_EQ(
        fault("<bottom><text>{Nmae}</text></bottom>"), "there is no column \"Nmae\" in MilkCollectionsTemp");
    EXPECT_EQ(OnlyFault("<bottom><text>a</text></bottom>"), "<bottom> isn't known here");
}

TEST_F(BlocksTest, APartComesOnceForEachValue)
{
    AddRows(1, 2, "A");
    AddRows(3, 5, "B");
    const QString inside = QStringLiteral(
        "<text>{CollectionTime|plain}: {sum(c.Liters)}</text>"
        "<table source=\"c\"><col w=\"30\">{CollectionNo}</col><col total=\"sum\">{Liters|0}</col>"
        "<total label=\"=\"/></table><text>{CollectionNo}</text>");
    EXPECT_EQ(Pages(*Whole(QStringLiteral("<each source=\"c\" by=\"CollectionTime\">%1</each><text>{count()}"
                                          "</text>")
                               .arg(inside)))
                  .join(u' '),
        "A: 2 1 1 2 1 = 2 1 B: 3 3 1 4 1 5 1 = 3 3 5");
    EXPECT_EQ(
        Pages(*Whole(QStringLiteral("<each source=\"c\" by=\"CollectionTime\" only=\"CollectionNo &gt; 2\" "
                                    "newpage=\"1\">%1</each>")
                         .arg(inside))),
        QStringList("B: 3 3 1 4 1 5 1 = 3 3"));
}

TEST_F(BlocksTest, ValuesStandWithinValues)
{
    AddRows(1, 2, "A");
    AddRows(3, 4, "B");
    Run("update MilkCollectionsTemp set Fat=CollectionNo where CollectionTime='B'");
    Run("update MilkCollectionsTemp set Fat=9 where CollectionTime='A'");
    EXPECT_EQ(Pages(*Whole("<each source=\"c\" by=\"CollectionTime\"><text>{CollectionTime|plain}</text>"
                           "<each source=\"c\" by=\"Fat\"><text>{Fat}</text>"
                           "<each source=\"c\"><text>n{CollectionNo}</text></each></each>"
                           "<text>{count()}</text></each>"))
                  .join(u' '),
        "A 9 n1 n2 2 B 3 n3 4 n4 2");
    EXPECT_EQ(OnlyFault("<each source=\"c\"><each source=\"c\"><text>a</text></each></each>"),
        "an <each> around this goes through the rows of \"c\" already");
    EXPECT_EQ(OnlyFault("<each source=\"c\" by=\"Fat\"><each source=\"c\"><table source=\"c\">"
                        "<col>a</col></table></each></each>"),
        "an <each> around this goes through the rows of \"c\" already");
    EXPECT_EQ(OnlyFault("<each source=\"c\" by=\"Fat &gt; 3\"><text>a</text></each>"),
        "rows can't be grouped by a condition; use if(…)");
}

TEST_F(BlocksTest, ARecordOfSeveralPagesIsNumberedByItself)
{
    AddRows(1, 3);
    const QString edge = QStringLiteral(
        "<pagefooter><text>({#page}/{#pages})</text></pagefooter><each source=\"c\" newpage=\"1\" "
        "%1><text>{CollectionNo}</text><space h=\"50\"/>"
        "<text>{if(CollectionNo = 2, 'अ', '')}</text><space h=\"{40}\"/></each>");
    QString own = edge.arg("ownpages=\"1\"");
    QString all = edge.arg(QString());
    for (QString* text : {&own, &all})
        text->replace("<space h=\"{40}\"/>", "<space h=\"40\" if=\"CollectionNo = 2\"/>");
    EXPECT_EQ(Pages(*Whole(own)), QStringList({"1 (1/1)", "2 अ (1/2)", "(2/2)", "3 (1/1)"}));
    EXPECT_EQ(Pages(*Whole(all)), QStringList({"1 (1/4)", "2 अ (2/4)", "(3/4)", "3 (4/4)"}));
    EXPECT_EQ(OnlyFault("<each source=\"c\" ownpages=\"1\"><text>a</text></each>"),
        "ownpages=\"1\" needs newpage=\"1\"");
}

// Three to a sheet: the days of each member and, beside them, what is kept back, over signatures at one
// height. Only the second member's milk was tested for fat, so only that slip has the column.
TEST_F(BlocksTest, TheItemsOfSlipsAreThoseOfTheGoldenFile)
{
    for (int member = 1; member <= 4; ++member) {
        for (int day = 1; day <= 3 + member; ++day)
            RunSeen(Sql(u"insert into MilkCollectionsTemp(CompanyId,MemberNo,MemberName,CollectionDate,"
                        u"CollectionNo,Liters,Fat,Amount) values(1,",
                member, u",'[विठ्ठल शिंदे]','0", day, u"/04/2026',", member * 10 + day, u",", 10.5 * day, u",",
                member == 2 ? 4.5 : 0, u",", 36543.25 * day, u")"));
        RunSeen(Sql(u"insert into KapatDetails(MemberNo,Label1,Value1) values(", member, u",'[उचल]',1500)"));
    }
    const std::unique_ptr<Report> report = Make(QString::fromUtf8(R"xml(
<report name="Slips" paper="A4" margin="8" font="Noto Sans Devanagari 9">
  <source name="c" table="MilkCollectionsTemp" order="MemberNo,CollectionDate"/>
  <source name="k" table="KapatDetails" link="MemberNo" to="c"/>
  <each source="c" by="MemberNo">
    <columns h="88" box="0.8" gap="4">
      <column>
        <text bold="1" size="11">{$society}</text>
        <text>{MemberNo} {MemberName}</text>
        <table source="c">
          <col w="25" head="दिनांक">{CollectionDate}</col>
          <col w="20" head="लिटर" align="right" total="sum">{Liters|0.0}</col>
          <col w="15" head="फॅट" align="right" if="sum(Fat) &gt; 0">{Fat|0.0}</col>
          <col head="रक्कम" align="right" total="sum">{Amount|#,##,##0.00}</col>
          <total label="एकूण"/>
        </table>
        <bottom><text>घेणाऱ्याची सही</text></bottom>
      </column>
      <column w="55" box="0.4">
        <table source="k"><col head="कपात">{Label1}</col><col w="25" align="right">{Value1|#,##0.00}</col></table>
        <bottom>
          <pairs labelw="20" align="right" bold="1"><pair label="देय रु.">{sum(c.Amount) - k.Value1|#,##,##0.00}</pair></pairs>
        </bottom>
      </column>
    </columns>
    <space h="5"/>
  </each>
</report>)xml"));
    report->Complete();
    ExpectGolden(*report, "slips.txt");
}
