#include "tests/platform/report/ReportTest.h"

#include "platform/database/Sql.h"

namespace {

const QString Small = "paper=\"100x80mm\" margin=\"5\"";

// Blocks side by side, and what is never torn.
class LanesTest : public ReportTest {
protected:
    void AddRows(int from, int to, const QString& group = "A")
    {
        for (int i = from; i <= to; ++i)
            Run(Sql(u"insert into MilkCollectionsTemp(CollectionNo,MemberNo,CollectionTime,Liters) values(",
                i, u",", i, u",'", group, u"',1)"));
    }

    std::unique_ptr<Report> Whole(const QString& elements, const QString& sheet = Small)
    {
        std::unique_ptr<Report> report = Make(Template(elements, sheet));
        report->Complete();
        return report;
    }

    // The texts of each page, joined with blanks.
    QStringList Pages(const QString& elements, const QString& sheet = Small)
    {
        const std::unique_ptr<Report> report = Whole(elements, sheet);
        QStringList pages;
        for (std::size_t i = 0; i < report->PageCount(); ++i)
            pages.append(Texts(report->PageAt(i)).join(u' '));
        return pages;
    }

    static QString InColumn(const QString& elements)
    {
        return "<columns><column>" + elements + "</column><column w=\"10\"/></columns>";
    }

    static QString Table(const QString& inside)
    {
        return "<table source=\"c\"><col w=\"30\">{CollectionNo}</col>" + inside + "</table>";
    }

    // The most rows that stand on a page behind a text.
    int RowsOfAPage()
    {
        AddRows(1, 60);
        const QString first = Pages("<text>अ</text>" + InColumn(Table({}))).value(0);
        Run("delete * from MilkCollectionsTemp");
        return static_cast<int>(first.split(u' ').size()) - 1;
    }
};

// A chart whose plot, from its scale to its bars, has to be on one page.
const QString Chart = "<chart source=\"c\" kind=\"bar\" x=\"{MemberNo}\" h=\"%1\">"
                      "<series label=\"लिटर\" value=\"Liters\"/></chart>";

}

TEST_F(LanesTest, TablesBesideEachOtherBeginBehindTheTextBeforeThem)
{
    AddRows(1, 60);
    const QStringList pages = Pages("<text>अ</text><text>ब</text>" + InColumn(Table({})));
    ASSERT_GT(pages.size(), 2);
    EXPECT_TRUE(pages[0].startsWith("अ ब 1 2 3 4")) << pages[0].toStdString();
    EXPECT_EQ(pages.join(u' ').split(u' ').size(), 62);
}

TEST_F(LanesTest, ATableThatAPageCouldHoldBeginsBehindTheTextBeforeItToo)
{
    const int rows = RowsOfAPage() + 1;
    AddRows(1, rows);
    const QStringList pages = Pages("<text>अ</text>" + InColumn(Table({})));
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].startsWith("अ 1 2 3")) << pages[0].toStdString();
    EXPECT_EQ(pages[1], QString::number(rows));
}

TEST_F(LanesTest, BlocksOfAFewLinesStayTogether)
{
    const QString pages =
        Pages("<space h=\"60\"/>" + InColumn("<text>अ</text><text>ब</text><text>क</text><text>ड</text>"))
            .join(u'|');
    EXPECT_EQ(pages, "|अ ब क ड");
}

TEST_F(LanesTest, ATitleStaysWithTheBeginningOfTheTablesBelowIt)
{
    AddRows(1, 60);
    const QString table = InColumn(Table("<group by=\"CollectionTime\" head=\"गट\"/>"));
    for (const int before : {40, 50, 55, 58, 60, 62}) {
        const QStringList pages =
            Pages(QStringLiteral("<space h=\"%1\"/><text keep=\"1\">अ</text>").arg(before) + table);
        const QString joined = pages.join(u'|');
        EXPECT_TRUE(joined.contains("अ गट 1")) << before << ' ' << joined.toStdString();
    }
}

TEST_F(LanesTest, GroupsHoldTheirHeadsAndFeetInAColumn)
{
    const int onPage = RowsOfAPage();
    const QString table =
        Table("<col total=\"count\"/><group by=\"CollectionTime\" keep=\"3\" "
              "head=\"{if(plain(CollectionTime)='B','गट','')}\" foot=\"तळ\"/><total label=\"एकूण\"/>");
    for (int first = onPage - 6; first <= onPage + 1; ++first) {
        Run("delete * from MilkCollectionsTemp");
        AddRows(1, first);
        AddRows(101, 104, "B");
        const QStringList pages = Pages("<text>अ</text>" + InColumn(table));
        const QString all = pages.join(" | ");
        EXPECT_TRUE(all.contains("गट 101 102 103")) << all.toStdString();
        EXPECT_TRUE(all.contains(QStringLiteral("%1 तळ %1").arg(first))) << all.toStdString();
        EXPECT_TRUE(all.contains(QStringLiteral("104 तळ 4 एकूण %1").arg(first + 4))) << all.toStdString();
    }
}

TEST_F(LanesTest, AKeptRowStaysOnOnePageInAColumn)
{
    AddRows(1, 4);
    EXPECT_EQ(Pages(InColumn("<each source=\"c\" keep=\"1\"><text>{CollectionNo}</text>"
                             "<space h=\"20\"/><text>।</text></each>")),
        QStringList({"1 । 2 ।", "3 । 4 ।"}));
}

TEST_F(LanesTest, AGroupTallerThanAPageIsBrokenInAColumnAndLosesNothing)
{
    AddRows(1, 60);
    const QStringList pages =
        Pages("<text>अ</text>" + InColumn(Table("<group by=\"CollectionTime\" head=\"गट\" keep=\"100\"/>")));
    EXPECT_GT(pages.size(), 2);
    EXPECT_TRUE(pages[0].startsWith("अ गट 1 2 3")) << pages[0].toStdString();
    EXPECT_EQ(pages.join(u' ').split(u' ').size(), 62);
}

TEST_F(LanesTest, ColumnsInAColumnGoOnOverPagesAndLoseNothing)
{
    const QString words = QStringLiteral("शेतकरी ").repeated(400);
    const QString lines = QStringLiteral("<text>ओळ</text>").repeated(60);
    const QStringList pages =
        Pages(InColumn(QStringLiteral("<columns><column><text>%1</text></column><column><text>वर</text>%2"
                                      "</column></columns><text>खाली</text>")
                           .arg(words, lines)));
    const QStringList all = pages.join(u' ').split(u' ', Qt::SkipEmptyParts);
    EXPECT_GT(pages.size(), 3);
    EXPECT_EQ(all.count("शेतकरी"), 400);
    EXPECT_EQ(all.count("ओळ"), 60);
    EXPECT_EQ(all.count("वर"), 1);
    EXPECT_EQ(all.last(), "खाली");
}

TEST_F(LanesTest, NothingGoesOnOverPagesInColumnsOfAColumn)
{
    const auto fault = [this](const char* element) {
        return OnlyFault(InColumn(InColumn(QLatin1String(element))));
    };
    const QString end = " can't stand in <columns> that stand in a <column>";
    EXPECT_EQ(fault("<table source=\"c\"><col>a</col></table>"), "<table>" + end);
    EXPECT_EQ(fault("<each source=\"c\"><text>a</text></each>"), "<each>" + end);
    EXPECT_EQ(
        fault("<chart source=\"c\" kind=\"bar\" x=\"a\"><series value=\"1\"/></chart>"), "<chart>" + end);
    EXPECT_EQ(fault("<pagebreak/>"), "<pagebreak>" + end);
    EXPECT_EQ(Faults(Template(InColumn(InColumn("<text>a</text><rule/><space/>")))), QStringList());
}

TEST_F(LanesTest, NoPageBeginsInAColumn)
{
    const QString fault = "no page can begin in a <column>";
    EXPECT_EQ(OnlyFault(InColumn("<pagebreak/>")), fault);
    EXPECT_EQ(OnlyFault(InColumn("<each source=\"c\" newpage=\"1\"><text>a</text></each>")), fault);
    EXPECT_EQ(OnlyFault(InColumn("<each source=\"c\"><pagebreak/></each>")), fault);
    EXPECT_EQ(OnlyFault(InColumn(Table("<group by=\"CollectionTime\" newpage=\"1\"/>"))), fault);
}

TEST_F(LanesTest, AChartThatHasNoRoomGoesToTheNextPageWhole)
{
    AddRows(1, 3);
    for (const QString& chart : {Chart.arg(40), InColumn(Chart.arg(40))}) {
        const std::unique_ptr<Report> report = Whole("<space h=\"40\"/>" + chart);
        ASSERT_EQ(report->PageCount(), 2U);
        EXPECT_TRUE(report->PageAt(0).items.empty());
        EXPECT_TRUE(Texts(report->PageAt(1)).contains("लिटर"));
    }
}

TEST_F(LanesTest, AChartIsMadeLowerWhereTheHeadOfThePageIsTallerThanWasReckoned)
{
    AddRows(1, 3);
    const QString header = "<pageheader><text size=\"16\">{$society} {$society} {$society} "
                           "{$society}</text></pageheader>";
    for (const QString& chart : {Chart.arg(60), InColumn(Chart.arg(60))}) {
        const std::unique_ptr<Report> report = Whole(header + chart);
        ASSERT_EQ(report->PageCount(), 1U);
        const Page& page = report->PageAt(0);
        const PlacedItem name = page.items.front();
        int bars = 0;
        for (const PlacedItem& item : page.items) {
            if (&item != &page.items.front()) {
                EXPECT_GE(item.Rect().top(), name.Rect().bottom() - 0.1) << item.text.toStdString();
            }
            EXPECT_LE(item.Rect().bottom(), page.height - 5 * PointsPerMillimetre + 0.1);
            if (item.kind == PlacedItem::Kind::Box) {
                ++bars;
                EXPECT_GT(item.height, 0);
            }
        }
        EXPECT_EQ(bars, 4) << "the legend's mark and three bars, none of them twice";
    }
}

TEST_F(LanesTest, HeadsThatGrewTallerThanThePageAreLeftOutWhereTheyWouldComeAgain)
{
    AddRows(1, 40);
    const QString head =
        QStringLiteral("{if(Liters &gt; 0, '%1', '')}").arg(QStringLiteral("शीर्ष ").repeated(60));
    const QStringList pages = Pages(QStringLiteral("<columns><column><table source=\"c\">"
                                                   "<col w=\"14\" head=\"%1\">{CollectionNo}</col></table>"
                                                   "</column></columns>")
                                        .arg(head));
    const QStringList all = pages.join(u' ').split(u' ', Qt::SkipEmptyParts);
    EXPECT_EQ(all.count("शीर्ष"), 60);
    EXPECT_EQ(all.size(), 100);
}
