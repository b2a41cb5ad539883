#include "platform/forms/Painting.h"
#include "tests/platform/forms/FormsTest.h"
#include "tests/support/EachPainting.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>

#include <utility>

namespace {

// What the clerk does reaches the windows by the application's queue here, as an input method's letters do.
void Later(const std::function<void()>& action)
{
    QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
}

void StrikeLater(const Desk& desk, Qt::Key key, const char* text = "")
{
    Later([&desk, key, text = Q(text)] {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(desk.KeyTarget(), &press);
    });
}

class PaintCounter final : public QObject {
public:
    int painted = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class PaintingTest : public FormsTest {
protected:
    void AtDesk(const std::function<void(Desk&)>& script)
    {
        Open<Desk>([](Desk&) {}, script);
        EXPECT_FALSE(Failure);
    }
};

TEST_F(PaintingTest, ALabelIsPaintedWhileTheHandlerRuns)
{
    AtDesk([&](Desk& desk) {
        std::vector<int> painted;
        desk.Also("!cmdGo", [&] {
            PaintCounter counter;
            desk.lblTitle.Widget()->installEventFilter(&counter);
            for (const char* text : {"1 %", "2 %"}) {
                desk.lblTitle.SetFigure(Q(text));
                counter.painted = 0;
                Painting::LetIn();
                painted.push_back(counter.painted);
            }
        });
        Type("%s");
        ASSERT_EQ(painted.size(), 2U);
        EXPECT_GT(painted[0], 0);
        EXPECT_GT(painted[1], 0);
        EXPECT_FALSE(Painting::IsUnderWay());
    });
}

TEST_F(PaintingTest, KeysThatComeMeanwhileAreTypedAfterTheHandlerInTheirOrder)
{
    AtDesk([&](Desk& desk) {
        std::string during = "none";
        desk.Also("!cmdGo", [&] {
            StrikeLater(desk, Qt::Key_1, "1");
            StrikeLater(desk, Qt::Key_2, "2");
            Painting::LetIn();
            StrikeLater(desk, Qt::Key_3, "3");
            Painting::LetIn();
            Painting::LetIn();
            during = desk.txtB.Text().toStdString() + desk.txtA.Text().toStdString();
            desk.txtB.SetFocus();
        });
        Type("%s");
        EXPECT_EQ(during, "");
        EXPECT_EQ(FocusName(), "txtB");
        EXPECT_EQ(desk.txtB.Text(), "123") << "into whoever holds the focus then";
    });
}

TEST_F(PaintingTest, TheKeyThatStartedTheHandlerDoesNotStartItAgainInside)
{
    AtDesk([&](Desk& desk) {
        int running = 0;
        int deepest = 0;
        int runs = 0;
        desk.Also("!cmdGo", [&] {
            deepest = std::max(deepest, ++running);
            if (++runs == 1)
                StrikeLater(desk, Qt::Key_Return);
            Painting::LetIn();
            --running;
        });
        Type("%s");
        EXPECT_EQ(deepest, 1);
        EXPECT_EQ(runs, 2) << "the Enter was kept";
    });
}

TEST_F(PaintingTest, ALoopThatComesByOftenPaintsOnlyWhenTheTimeIsUp)
{
    AtDesk([&](Desk& desk) {
        int early = -1;
        int due = -1;
        desk.Also("!cmdGo", [&] {
            PaintCounter counter;
            desk.lblTitle.Widget()->installEventFilter(&counter);
            const auto interval = std::exchange(Painting::Interval(), std::chrono::hours(1));
            Painting::LetIn();
            counter.painted = 0;
            desk.lblTitle.SetFigure("1 %");
            Painting::KeepUp();
            Painting::RepaintInTime();
            EXPECT_FALSE(Painting::IsDue());
            early = counter.painted;
            Painting::Interval() = std::chrono::milliseconds(0);
            EXPECT_TRUE(Painting::IsDue());
            Painting::KeepUp();
            due = counter.painted;
            Painting::Interval() = interval;
        });
        Type("%s");
        EXPECT_EQ(early, 0);
        EXPECT_GT(due, 0);
    });
}

TEST_F(PaintingTest, ARepaintingLetsNothingElseHappen)
{
    AtDesk([&](Desk& desk) {
        int painted = 0;
        int happened = 0;
        desk.Also("!cmdGo", [&] {
            const EachPainting each;
            PaintCounter counter;
            desk.lblTitle.Widget()->installEventFilter(&counter);
            StrikeLater(desk, Qt::Key_1, "1");
            QTimer::singleShot(0, qApp, [&] { ++happened; });
            Painting::RepaintInTime();
            painted = counter.painted;
            EXPECT_EQ(happened, 0);
            EXPECT_EQ(desk.txtA.Text(), "");
            EXPECT_FALSE(Painting::IsUnderWay());
        });
        Type("%s");
        EXPECT_GT(painted, 0) << "though nothing has changed";
        EXPECT_EQ(happened, 1);
    });
}

TEST_F(PaintingTest, PressesOfTheMouseAndOfTheCloseBoxAreThrownAway)
{
    AtDesk([&](Desk& desk) {
        desk.Also("!cmdGo", [&] {
            Later([&] {
                for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                    QMouseEvent event(type, QPointF(3, 3), QPointF(3, 3), Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                    QCoreApplication::sendEvent(desk.cmdCancel.Widget(), &event);
                }
                QCloseEvent close;
                QCoreApplication::sendEvent(&desk, &close);
            });
            Painting::LetIn();
        });
        desk.Happened();
        Type("%s");
        EXPECT_EQ(desk.Happened(), "-txtA +cmdGo !cmdGo");
        EXPECT_EQ(ScreenName(), "Desk");
    });
}

}
