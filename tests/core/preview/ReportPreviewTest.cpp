#include "tests/core/preview/ReportPreviewTest.h"

#include "core/menu/Keys.h"
#include "core/preview/ReportPageView.h"
#include "platform/forms/Look.h"
#include "platform/text/Shivaji01.h"
#include "tests/core/ScreenFace.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLayout>
#include <QScrollBar>

namespace {

constexpr int LongReport = 30000; // deliveries; they fill more than 300 pages

// What the head of the preview says when its page is painted for the first time.
class FirstPaint final : public QObject {
public:
    FirstPaint() { qApp->installEventFilter(this); }
    QString Pages;

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && Pages.isEmpty() && object->parent()
            && object->parent()->objectName() == u"picPage")
            Pages = static_cast<QWidget*>(object)->window()->findChild<QLabel*>("lblPages")->text();
        return false;
    }
};

class PreviewTest : public ReportPreviewTest {
protected:
    // Five deliveries, each on a page of its own: the second and the fourth are Kamal's.
    void AddFivePages()
    {
        AddDeliveries(5, [](int number) {
            return number % 2 == 0 ? QStringLiteral("कमल पाटील") : QStringLiteral("अशोक शिंदे");
        });
        WritePagesTemplate();
    }

    static ReportPageView& View(Clerk& clerk)
    {
        return dynamic_cast<ReportPageView&>(*clerk.Top().Find(u"picPage"));
    }

    static int Scrolled(Clerk& clerk)
    {
        return static_cast<QAbstractScrollArea*>(View(clerk).Widget())->verticalScrollBar()->value();
    }

    // Types without a rest between the keys, so that little is laid out meanwhile.
    static void TypeAtOnce(Clerk& clerk, const QString& keys)
    {
        clerk.Do([&] { SendKeys(keys); });
    }

    // Types words into the search and looks for them.
    static void Seek(Clerk& clerk, const QString& words)
    {
        Type(clerk, "^f");
        EXPECT_EQ(Focus(clerk), "txtSearch");
        clerk.Type(Shivaji01::FromUnicode(words) + "{ENTER}");
    }
};

}

TEST_F(PreviewTest, TheFirstPageIsSeenBeforeTheLastOfThreeHundredIsLaidOut)
{
    AddDeliveries(LongReport, [](int) { return "अशोक शिंदे"; });
    WriteTableTemplate();
    FirstPaint first;
    Show([&](Clerk& clerk) {
        EXPECT_EQ(first.Pages, "1 / …");
        EXPECT_EQ(Pages(clerk), "1 / …");
        TypeAtOnce(clerk, "{F6}{PGDN}{PGDN}{END}");
        EXPECT_EQ(Pages(clerk), "3 / …") << "one can leaf before the last page is there";
        EXPECT_EQ(State(clerk), "शेवटचे पान तयार होत आहे …");
        WaitForLastPage(clerk);
        const QStringList pages = Pages(clerk).split(" / ");
        EXPECT_EQ(pages.first(), pages.last()) << "End leads to the last page once it is there";
        EXPECT_GE(pages.last().toInt(), 300);
        EXPECT_EQ(State(clerk), QString());
    });
}

TEST_F(PreviewTest, ATurnOfThePageWhileTheLastIsAwaitedStays)
{
    AddDeliveries(LongReport, [](int) { return "अशोक शिंदे"; });
    WriteTableTemplate();
    Show([](Clerk& clerk) {
        TypeAtOnce(clerk, "{F6}{END}{PGDN}");
        EXPECT_EQ(Pages(clerk), "2 / …");
        WaitForLastPage(clerk);
        EXPECT_TRUE(Pages(clerk).startsWith("2 / ")) << qPrintable(Pages(clerk));
    });
}

TEST_F(PreviewTest, TheTitleIsTheReportsAndTheKeysFitIntoTheWindow)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_EQ(clerk.Top().Title().Seen(), "Deliveries");
        EXPECT_LE(clerk.Top().minimumSizeHint().width(), Look::ScreenWidth);
        EXPECT_LE(clerk.Top().layout()->minimumHeightForWidth(Look::ScreenWidth), Look::ScreenHeight);
        EXPECT_EQ(Focus(clerk), "picPage");
    });
}

TEST_F(PreviewTest, AReportWithATitleShowsItInPlaceOfItsName)
{
    WriteTemplate("<report name=\"Deliveries\" title=\"दूध संकलन रिपोर्ट\" paper=\"A4\">"
                  "<text>एक</text></report>");
    Show([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), "दूध संकलन रिपोर्ट");
        WaitForLastPage(clerk);
        EXPECT_EQ(Pages(clerk), "1 / 1");
    });
}

TEST_F(PreviewTest, PgDnAndPgUpHomeAndEndTurnThePagesThatAreWhollySeen)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "{F6}");
        const std::pair<const char*, const char*> steps[] = {{"{PGUP}", "1 / 5"}, {"{PGDN}", "2 / 5"},
            {"{PGDN}", "3 / 5"}, {"{PGUP}", "2 / 5"}, {"{END}", "5 / 5"}, {"{PGDN}", "5 / 5"},
            {"{HOME}", "1 / 5"}};
        for (const auto& [key, pages] : steps) {
            clerk.Type(QLatin1String(key));
            EXPECT_EQ(Pages(clerk), QLatin1String(pages)) << key;
        }
    });
}

TEST_F(PreviewTest, AnArrowScrollsAPageThatIsLargerThanTheWindowAndTurnsItAtItsEdge)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "{DOWN}");
        const int once = Scrolled(clerk);
        EXPECT_GT(once, 0);
        Type(clerk, "{DOWN}{UP}");
        EXPECT_EQ(Scrolled(clerk), once);
        EXPECT_EQ(Pages(clerk), "1 / 5");
        for (int presses = 0; presses < 100 && Pages(clerk) == "1 / 5"; ++presses)
            Type(clerk, "{DOWN}");
        EXPECT_EQ(Pages(clerk), "2 / 5");
        EXPECT_EQ(Scrolled(clerk), 0) << "the next page from its top";
        Type(clerk, "{UP}");
        EXPECT_EQ(Pages(clerk), "1 / 5");
        EXPECT_GT(Scrolled(clerk), once) << "the page before from its bottom";
    });
}

TEST_F(PreviewTest, PgDnAndPgUpScrollALargerPageByTheWindowAndTurnItAtItsEdge)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "{F7}{PGDN}");
        EXPECT_EQ(Pages(clerk), "1 / 5");
        EXPECT_GT(Scrolled(clerk), View(clerk).Widget()->height() / 4);
        EXPECT_LT(Scrolled(clerk), View(clerk).Widget()->height()) << "nothing is passed over";
        for (int presses = 0; presses < 10 && Pages(clerk) == "1 / 5"; ++presses)
            Type(clerk, "{PGDN}");
        EXPECT_EQ(Pages(clerk), "2 / 5");
        EXPECT_EQ(Scrolled(clerk), 0);
        Type(clerk, "{PGUP}");
        EXPECT_EQ(Pages(clerk), "1 / 5");
        EXPECT_GT(Scrolled(clerk), 0) << "the page before from its bottom";
    });
}

TEST_F(PreviewTest, ASlipIsWhollyAndLegiblySeenAtOnceAndCanBeScrolledWhenItIsEnlarged)
{
    for (const char* roll : {"58mm", "80mm"}) {
        WriteTemplate(QStringLiteral("<report name=\"Deliveries\" paper=\"%1\" margin=\"4\"><text>एक</text>"
                                     "<space h=\"80\"/><text>दोन</text></report>")
                          .arg(QLatin1String(roll)));
        Show([](Clerk& clerk) {
            WaitForLastPage(clerk);
            EXPECT_GE(View(clerk).Percent(), 100) << qPrintable(Zoom(clerk));
            Type(clerk, "{DOWN}");
            EXPECT_EQ(Scrolled(clerk), 0) << "all of it is seen";
            for (int presses = 0; presses < 15; ++presses)
                Type(clerk, "{+}");
            EXPECT_EQ(Scrolled(clerk), 0);
            Type(clerk, "{DOWN}");
            const int once = Scrolled(clerk);
            EXPECT_GT(once, 0);
            Type(clerk, "{PGDN}");
            EXPECT_GT(Scrolled(clerk), once);
        });
    }
}

TEST_F(PreviewTest, APageThatWouldBeTooSmallAsAWholeIsShownInItsWidthAtFirst)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        const QString first = Zoom(clerk);
        Type(clerk, "{F5}");
        EXPECT_EQ(Zoom(clerk), first);
        EXPECT_GE(View(clerk).Percent(), 75);
    });
}

TEST_F(PreviewTest, ThePageIsFittedToTheWidthToTheWindowOrShownInItsOwnSize)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        const QString wide = Zoom(clerk);
        Type(clerk, "{F6}");
        const QString whole = Zoom(clerk);
        EXPECT_NE(whole, wide);
        Type(clerk, "{DOWN}");
        EXPECT_EQ(View(clerk).Text(), "2") << "there is nothing to scroll in a whole page";
        Type(clerk, "{F7}");
        EXPECT_EQ(Zoom(clerk), "100 %");
        Type(clerk, "{F5}");
        EXPECT_EQ(Zoom(clerk), wide);
    });
}

TEST_F(PreviewTest, PlusAndMinusGoThroughTheSizesAndStopAtTheLast)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        Type(clerk, "{F7}{+}");
        EXPECT_EQ(Zoom(clerk), "125 %");
        Type(clerk, "--");
        EXPECT_EQ(Zoom(clerk), "75 %");
        for (int presses = 0; presses < 15; ++presses)
            Type(clerk, "-");
        EXPECT_EQ(Zoom(clerk), "25 %");
        for (int presses = 0; presses < 15; ++presses)
            Type(clerk, "{+}");
        EXPECT_EQ(Zoom(clerk), "300 %");
        Type(clerk, "{RIGHT}");
        const auto* area = static_cast<QAbstractScrollArea*>(View(clerk).Widget());
        EXPECT_GT(area->horizontalScrollBar()->value(), 0);
        Type(clerk, "{LEFT}");
        EXPECT_EQ(area->horizontalScrollBar()->value(), 0);
    });
}

TEST_F(PreviewTest, ASearchGoesToThePageAndMarksTheHitAndF3GoesOn)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Seek(clerk, "कमल");
        EXPECT_EQ(Focus(clerk), "picPage");
        EXPECT_EQ(Pages(clerk), "2 / 5");
        EXPECT_FALSE(View(clerk).Marked().isEmpty());
        EXPECT_EQ(State(clerk), "सापडले: 1 / 2");
        const std::pair<const char*, const char*> steps[] = {
            {"{F3}", "4 / 5"}, {"{F3}", "2 / 5"}, {"+{F3}", "4 / 5"}, {"+{F3}", "2 / 5"}};
        for (const auto& [key, pages] : steps) {
            clerk.Type(QLatin1String(key));
            EXPECT_EQ(Pages(clerk), QLatin1String(pages)) << key;
            EXPECT_FALSE(View(clerk).Marked().isEmpty()) << key;
        }
        Type(clerk, "{END}{F3}");
        EXPECT_EQ(Pages(clerk), "2 / 5") << "behind the last it begins anew";
        Type(clerk, "{F6}{PGDN}{F3}");
        EXPECT_EQ(Pages(clerk), "4 / 5") << "it goes on from the page that is looked at";
    });
}

TEST_F(PreviewTest, ASearchThatFindsNothingSaysSoAndLeavesThePage)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "{F6}{PGDN}");
        Seek(clerk, "गणपत");
        EXPECT_EQ(State(clerk), "सापडले नाही");
        EXPECT_EQ(Pages(clerk), "2 / 5");
        EXPECT_TRUE(View(clerk).Marked().isEmpty());
        Type(clerk, "{F3}");
        EXPECT_EQ(State(clerk), "सापडले नाही");
    });
}

TEST_F(PreviewTest, AnEmptySearchAsksForTheWords)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        Type(clerk, "{F3}");
        EXPECT_EQ(Focus(clerk), "txtSearch");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtSearch");
        EXPECT_EQ(State(clerk), QString());
    });
}

TEST_F(PreviewTest, FiguresAndDatesAreFoundAsTheyAreTyped)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "^f1.50{ENTER}");
        EXPECT_EQ(Pages(clerk), "3 / 5");
        EXPECT_EQ(State(clerk), "सापडले: 1 / 1");
        Type(clerk, "^f05/04/2026{ENTER}");
        EXPECT_EQ(State(clerk), "सापडले: 3 / 5");
    });
}

TEST_F(PreviewTest, LatinLettersOnThePaperAreFoundAsTheyAreTyped)
{
    WriteTemplate("<report name=\"Deliveries\" paper=\"A4\"><text>SNF</text></report>");
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "^fSNF{ENTER}");
        EXPECT_EQ(State(clerk), "सापडले: 1 / 1");
    });
}

TEST_F(PreviewTest, BlanksAroundTheTypedWordsAreNoPartOfThem)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        clerk.Type("^f " + Shivaji01::FromUnicode(u"पाटील") + " {ENTER}");
        EXPECT_EQ(State(clerk), "सापडले: 1 / 2");
    });
}

TEST_F(PreviewTest, ASearchBehindWhatIsLaidOutWaitsForTheRest)
{
    AddDeliveries(LongReport, [](int number) {
        return number == LongReport - 1 ? QStringLiteral("कमल पाटील") : QStringLiteral("अशोक शिंदे");
    });
    WriteTableTemplate();
    Show([](Clerk& clerk) {
        TypeAtOnce(clerk, "^f" + Shivaji01::FromUnicode(u"कमल") + u"{ENTER}");
        EXPECT_EQ(State(clerk), "शोधत आहे …");
        EXPECT_EQ(Pages(clerk), "1 / …");
        WaitForLastPage(clerk);
        EXPECT_EQ(State(clerk), "सापडले: 1 / 1");
        EXPECT_GE(View(clerk).Text().toInt(), 300);
        EXPECT_FALSE(View(clerk).Marked().isEmpty());
    });
}

TEST_F(PreviewTest, EscLeavesTheSearchFirstAndThenCloses)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        Type(clerk, "^f{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_EQ(Focus(clerk), "picPage");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(PreviewTest, EscClosesAReportWhoseLastPageIsNotYetThereAndTheNextReadsTheBooksAnew)
{
    AddDeliveries(LongReport, [](int) { return "अशोक शिंदे"; });
    WriteTableTemplate();
    Show([](Clerk& clerk) { Type(clerk, "{ESC}"); });
    Run("delete * from MilkCollectionsTemp");
    AddDeliveries(1, [](int) { return "कमल पाटील"; });
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        EXPECT_EQ(Pages(clerk), "1 / 1");
    });
}

TEST_F(PreviewTest, ThePageNumbersOnThePagesAreCompleteOnceTheyAreKnown)
{
    AddFivePages();
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "^f5{ENTER}");
        EXPECT_NE(State(clerk), "सापडले नाही");
    });
}
