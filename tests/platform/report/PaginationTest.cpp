#include "tests/platform/report/ReportTest.h"

#include "platform/database/Sql.h"

namespace {

const QString Small = "paper=\"100x80mm\" margin=\"5\"";

class PaginationTest : public ReportTest {
protected:
    void AddRows(int from, int to, const QString& group = "A")
    {
        for (int i = from; i <= to; ++i)
            Run(Sql(u"insert into MilkCollectionsTemp(CollectionNo,MemberNo,CollectionTime,Liters) values(",
                i, u",", i, u",'", group, u"',1)"));
    }

    // The texts of each page, joined with blanks.
    QStringList Pages(const QString& text)
    {
        const std::unique_ptr<Report> report = Make(text);
        report->Complete();
        QStringList pages;
        for (std::size_t i = 0; i < report->PageCount(); ++i) {
            ExpectWithinPaper(report->PageAt(i));
            pages.append(Texts(report->PageAt(i)).join(u' '));
        }
        return pages;
    }

    static void ExpectWithinPaper(const Page& page)
    {
        constexpr double Tolerance = 0.1;
        for (const PlacedItem& item : page.items) {
            const QRectF rect = item.Rect();
            EXPECT_TRUE(rect.left() >= 0 && rect.top() >= 0 && rect.right() <= page.width + Tolerance
                && rect.bottom() <= page.height + Tolerance)
                << item.text.toStdString();
        }
    }

    // As many rows as stand on one small page under the heads of a table.
    int RowsOfAPage()
    {
        AddRows(1, 60);
        const int rows = static_cast<int>(Pages(Rows()).value(0).split(u' ').size());
        Run("delete * from MilkCollectionsTemp");
        return rows;
    }

    static QString Rows() { return Template("<table source=\"c\"><col>{CollectionNo}</col></table>", Small); }
};

}

TEST_F(PaginationTest, HeadsAndEdgesAreRepeatedOnEveryPage)
{
    AddRows(1, 40);
    const QStringList pages =
        Pages(Template("<pageheader><text>वर {#page}/{#pages}</text></pageheader>"
                       "<pagefooter><text>खाली</text></pagefooter>"
                       "<table source=\"c\"><col head=\"क्र.\">{CollectionNo}</col></table>",
            Small));
    ASSERT_GT(pages.size(), 2);
    const QString count = QString::number(pages.size());
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QString head = QStringLiteral("वर %1/%2 क्र. ").arg(i + 1).arg(count);
        EXPECT_TRUE(pages[i].startsWith(head)) << pages[i].toStdString();
        EXPECT_TRUE(pages[i].endsWith(" खाली"));
    }
    QStringList all;
    for (const QString& page : pages)
        all += page.split(u' ').mid(3);
    all.removeAll("खाली");
    QStringList expected;
    for (int i = 1; i <= 40; ++i)
        expected.append(QString::number(i));
    EXPECT_EQ(all, expected) << "every row once, in order";
}

TEST_F(PaginationTest, TheFirstPageIsThereBeforeTheLastIsLaidOut)
{
    AddRows(1, 200);
    const std::unique_ptr<Report> report =
        Make(Template("<pageheader><text>{#page}/{#pages}</text></pageheader>"
                      "<table source=\"c\"><col>{CollectionNo}</col></table>",
            Small));
    EXPECT_TRUE(report->LayOutNext());
    EXPECT_EQ(report->PageCount(), 1U);
    EXPECT_FALSE(report->IsComplete());
    EXPECT_FALSE(Texts(report->PageAt(0)).first().contains(u'2')) << "the number of pages isn't known yet";
    report->Complete();
    EXPECT_EQ(Texts(report->PageAt(0)).first(), QStringLiteral("1/%1").arg(report->PageCount()));
}

TEST_F(PaginationTest, AGroupsHeadGoesOnToTheNextPageWithItsFirstRows)
{
    const int onPage = RowsOfAPage();
    for (const int first : {onPage - 3, onPage - 2, onPage - 1}) {
        Run("delete * from MilkCollectionsTemp");
        AddRows(1, first);
        AddRows(101, 104, "B");
        const QStringList pages = Pages(Template(
            "<table source=\"c\"><col>{CollectionNo}</col>"
            "<group by=\"CollectionTime\" head=\"{if(plain(CollectionTime)='B','गट','')}\" keep=\"3\"/>"
            "</table>",
            Small));
        ASSERT_EQ(pages.size(), 2) << first;
        EXPECT_TRUE(pages[1].startsWith("गट 101 102 103 104")) << pages[1].toStdString();
    }
}

TEST_F(PaginationTest, ATotalNeverStandsAlone)
{
    const int onPage = RowsOfAPage();
    AddRows(1, onPage);
    const QStringList pages =
        Pages(Template("<table source=\"c\"><col w=\"40\">{CollectionNo}</col>"
                       "<col total=\"count\">{Fat}</col><group by=\"CollectionTime\" foot=\"गट\"/>"
                       "<total label=\"एकूण\"/></table>",
            Small));
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages[1], QStringLiteral("%1 गट %1 एकूण %1").arg(onPage));
}

TEST_F(PaginationTest, OneRowMoreThanAPageHoldsMakesASecondPage)
{
    const int onPage = RowsOfAPage();
    AddRows(1, onPage);
    EXPECT_EQ(Pages(Rows()).size(), 1);
    AddRows(onPage + 1, onPage + 1);
    const QStringList pages = Pages(Rows());
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages[1], QString::number(onPage + 1));
}

TEST_F(PaginationTest, AReportWithoutRowsIsOnePage)
{
    EXPECT_EQ(Pages(Rows()), QStringList({QString()}));
}

TEST_F(PaginationTest, KeptPartsStayTogetherAndNewPagesBeginWhereTheyAreAsked)
{
    AddRows(1, 4);
    const QString part = "<text>{CollectionNo}</text><space h=\"20\"/><text>।</text></each>";
    const QStringList kept = Pages(Template("<each source=\"c\" keep=\"1\">" + part, Small));
    EXPECT_EQ(kept, QStringList({"1 । 2 ।", "3 । 4 ।"}));
    const QStringList alone = Pages(Template("<each source=\"c\" newpage=\"1\">" + part, Small));
    EXPECT_EQ(alone, QStringList({"1 ।", "2 ।", "3 ।", "4 ।"}));
    EXPECT_EQ(Pages(Template("<text>अ</text><pagebreak/><text>ब</text>", Small)), QStringList({"अ", "ब"}));
}

TEST_F(PaginationTest, AGroupCanBeginAPage)
{
    AddRows(1, 2);
    AddRows(3, 4, "B");
    EXPECT_EQ(Pages(Template("<table source=\"c\"><col head=\"न\">{CollectionNo}</col>"
                             "<group by=\"CollectionTime\" newpage=\"1\"/></table>",
                  Small)),
        QStringList({"न 1 2", "न 3 4"}));
}

TEST_F(PaginationTest, AKeptPartTallerThanAPageIsBrokenAndLosesNothing)
{
    AddRows(1, 40);
    const QStringList pages = Pages(Template("<table source=\"c\"><col>{CollectionNo}</col><group "
                                             "by=\"CollectionTime\" head=\"गट\" keep=\"100\"/>"
                                             "</table>",
        Small));
    EXPECT_GT(pages.size(), 1);
    EXPECT_TRUE(pages[0].startsWith("गट 1 2 3")) << pages[0].toStdString();
    EXPECT_EQ(pages.join(u' ').split(u' ').size(), 41);
}

TEST_F(PaginationTest, ATextTallerThanAPageIsSplitBetweenItsLines)
{
    const QString word = "शेतकरी ";
    const QStringList pages = Pages(Template("<text>" + word.repeated(600) + "</text>", Small));
    EXPECT_GT(pages.size(), 2);
    EXPECT_EQ(pages.join(QString()).count("शेतकरी"), 600);
}

TEST_F(PaginationTest, ALineTallerThanAPageIsReportedAndNotRetried)
{
    const QString strip = "<space h=\"3.5\" if=\"#page &gt; 0\"/>";
    const std::unique_ptr<Report> report =
        Make(Template("<pageheader>" + strip + strip + "</pageheader><text size=\"26\">ॐ</text>",
            "paper=\"100x22mm\" margin=\"2\""));
    EXPECT_THROW(report->Complete(), RunTimeError);
}

TEST_F(PaginationTest, AnEdgeThatLeavesNoRoomIsReported)
{
    const std::unique_ptr<Report> report =
        Make(Template("<pageheader><text size=\"72\">{$society}</text></pageheader><text>ब</text>", Small));
    EXPECT_THROW(report->LayOutNext(), RunTimeError);
}

TEST_F(PaginationTest, BlocksSideBySideGoOnOverThePages)
{
    AddRows(1, 40);
    AddRows(41, 60, "B");
    const QStringList pages =
        Pages(Template("<columns><column><table source=\"c\" only=\"plain(CollectionTime)='A'\">"
                       "<col head=\"अ\">{CollectionNo}</col></table></column>"
                       "<column><table source=\"c\" only=\"plain(CollectionTime)='B'\">"
                       "<col head=\"ब\">{CollectionNo}</col></table></column></columns><text>शेवट</text>",
            Small));
    ASSERT_GT(pages.size(), 2);
    QStringList all = pages.join(u' ').split(u' ');
    EXPECT_EQ(all.count("अ"), pages.size()) << "the heads again on every page";
    EXPECT_EQ(all.takeLast(), "शेवट");
    all.removeAll("अ");
    all.removeAll("ब");
    EXPECT_EQ(all.size(), 60);
    all.removeDuplicates();
    EXPECT_EQ(all.size(), 60);
}

TEST_F(PaginationTest, ARollIsAsLongAsItsContent)
{
    const auto length = [this](const QString& elements) {
        const std::unique_ptr<Report> report = Make(Template(elements, "paper=\"58mm\" margin=\"3\""));
        report->Complete();
        EXPECT_EQ(report->PageCount(), 1U);
        EXPECT_NEAR(report->PageAt(0).width, 58 * PointsPerMillimetre, 0.01);
        ExpectWithinPaper(report->PageAt(0));
        return report->PageAt(0).height;
    };
    const float one = length("<space h=\"40\"/><pagefooter><space h=\"10\"/></pagefooter>");
    EXPECT_NEAR(one, (40 + 10 + 2 * 3) * PointsPerMillimetre, 0.01);
    AddRows(1, 500);
    EXPECT_GT(length("<table source=\"c\"><col>{CollectionNo}</col></table>"), 500 * 10);
}
