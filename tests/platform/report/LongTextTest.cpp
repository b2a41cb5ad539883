// Texts of many pages in one field: nothing is lost or moved, and the work grows with the text.

#include "platform/database/Sql.h"
#include "platform/report/LayoutCheck.h"
#include "platform/report/ReportFiller.h"
#include "tests/platform/report/ReportTest.h"

namespace {

const FontSpec Letters{"Noto Sans Devanagari", 10, false};
const QString Sentence = "दूध स्वच्छ भांड्यात आणावे, 12.5 litres a day. ";

class LongTextTest : public ReportTest {
protected:
    // A row whose name is a sentence so many times; it is stored as it is seen.
    void AddLong(int times, const QString& sentence = Sentence)
    {
        connection->RunScript(Sql(
            u"insert into MembersListReport(MemberName,City) select replace(hex(zeroblob(", times,
            u")),'00','", sentence, u"'),replace(hex(zeroblob(", times / 2, u")),'00','", sentence, u"')"));
    }

    static QString Text(const QString& elements)
    {
        return QStringLiteral("<report name=\"Test\" paper=\"A4\"><source name=\"m\" "
                              "table=\"MembersListReport\"/>%1</report>")
            .arg(elements);
    }

    // How much has to be laid out for a report to be filled, in characters.
    qsizetype WorkOf(const QString& text)
    {
        TemplateFaults faults;
        ReportTemplate report = ReportTemplate::ReadText(text, "test.rpt", faults);
        EXPECT_TRUE(CheckForLayout(report, *connection).empty() && faults.empty());
        FontTable fonts;
        ReportFiller filler(report, *connection, {}, fonts);
        for (Page page; filler.NextPage(page); page = Page()) { }
        return filler.Measure().LaidOut();
    }

    // The texts of all pages that begin at an edge, put together; they stand directly below each other.
    static QString Column(Report& report, float left)
    {
        TextMeasure measure;
        QString whole;
        for (std::size_t at = 0; at < report.PageCount(); ++at) {
            const Page& page = report.PageAt(at);
            float bottom = -1;
            for (const PlacedItem& item : page.items) {
                if (item.x != left)
                    continue;
                if (bottom >= 0) {
                    EXPECT_NEAR(item.y, bottom, 0.1) << "on page " << at + 1;
                }
                bottom = item.y + measure.Height(Letters, item.text.trimmed(), item.width);
                EXPECT_LE(bottom, page.height - 10 * PointsPerMillimetre + 0.1) << "on page " << at + 1;
                whole += item.text;
            }
        }
        return whole;
    }
};

}

TEST_F(LongTextTest, ThePiecesOfALongTextBreakWhereTheWholeDoes)
{
    const QString text = QStringLiteral("दूध स्वच्छ भांड्यात आणावे ").repeated(200);
    TextMeasure measure;
    for (const float width : {60.0F, 200.0F, 540.0F}) {
        const std::vector<MeasuredText> pieces = measure.Divide(Letters, text, width);
        ASSERT_GT(pieces.size(), 1U);
        QString before;
        float height = 0;
        for (const MeasuredText& piece : pieces) {
            before += piece.text;
            height += piece.height;
            EXPECT_EQ(measure.Fitting(Letters, text, width, height + 1), before.size()) << width;
        }
        EXPECT_EQ(before, text);
        EXPECT_EQ(measure.Height(Letters, text, width), height);
    }
}

TEST_F(LongTextTest, LinesThatEndByThemselvesAreCountedOnce)
{
    TextMeasure measure;
    const float line = measure.Height(Letters, "a", 100);
    for (const char16_t* end : {u"\n", u"\r\n", u"\r", u"\u2029"}) {
        const QString one = "a" + QString::fromUtf16(end);
        for (const int count : {3999, 4000, 4001}) {
            const QString text = one.repeated(count) + "a";
            EXPECT_NEAR(measure.Height(Letters, text, 100), line * static_cast<float>(count + 1), line / 2)
                << count;
        }
    }
}

TEST_F(LongTextTest, ATextOfManyPagesIsThereOnceAndNothingStandsOverIt)
{
    AddLong(2000);
    const std::unique_ptr<Report> report =
        Make(Text("<text>{MemberName|plain}</text><text>{MemberNo} शेवट</text>"));
    report->Complete();
    EXPECT_GT(report->PageCount(), 10U);
    const float left = report->PageAt(0).items.front().x;
    EXPECT_EQ(Column(*report, left), Sentence.repeated(2000) + " शेवट");
}

TEST_F(LongTextTest, LongCellsSideBySideEachGoOnBelowThemselves)
{
    AddLong(800);
    const std::unique_ptr<Report> report =
        Make(Text("<table source=\"m\"><col w=\"60\" wrap=\"1\">{MemberName|plain}</col>"
                  "<col wrap=\"1\">{City|plain}</col></table>"));
    report->Complete();
    const std::vector<PlacedItem>& items = report->PageAt(0).items;
    EXPECT_EQ(Column(*report, items.front().x), Sentence.repeated(800));
    EXPECT_EQ(Column(*report, items.back().x), Sentence.repeated(400));
}

TEST_F(LongTextTest, ATextIsLaidOutOnceAndNotAnewForEachOfItsPages)
{
    constexpr int Times = 2000;
    AddLong(Times);
    // Each line is laid out once, and those at the end of a page again where it is cut.
    constexpr int Most = 4;
    for (const char* elements :
        {"<text>{MemberName|plain}</text>", "<pairs><pair label=\"a\">{MemberName|plain}</pair></pairs>",
            "<table source=\"m\"><col w=\"40\" wrap=\"1\">{MemberName|plain}</col></table>",
            "<columns><column><text>{MemberName|plain}</text></column><column/></columns>"}) {
        const qsizetype work = WorkOf(Text(QString::fromLatin1(elements)));
        EXPECT_GE(work, Times * Sentence.size()) << elements;
        EXPECT_LE(work, Most * Times * Sentence.size()) << elements;
    }
}

TEST_F(LongTextTest, ALongTextInANarrowCellIsCutLikeAShortOne)
{
    const QString table = Text("<table source=\"m\"><col w=\"60\">{MemberName|plain}</col>"
                               "<col>{MemberNo}</col></table>");
    QStringList seen;
    for (const int times : {12, 12000}) {
        Run("delete * from MembersListReport");
        AddLong(times);
        const QString pdf = File("a.pdf");
        EXPECT_TRUE(Make(table)->SavePdf(pdf).Done());
        seen.append(PdfText(pdf).trimmed());
    }
    EXPECT_TRUE(seen[0].startsWith("दूध स्वच्छ")) << seen[0].toStdString();
    EXPECT_TRUE(seen[0].endsWith(u'…')) << seen[0].toStdString();
    EXPECT_EQ(seen[1], seen[0]);
}
