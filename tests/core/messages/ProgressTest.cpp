#include "core/messages/Progress.h"

#include "core/start/BooksOpening.h"
#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "platform/forms/Screen.h"
#include "tests/support/EachPainting.h"
#include "tests/support/SocietyTest.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <optional>

namespace {

// A report screen whose button walks so many rows and writes down what the bar shows at each.
class WalkingScreen : public Screen {
public:
    WalkingScreen() : Screen("WalkingScreen")
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(txtNote.Widget());
        column->addWidget(cmdReport.Widget());
        column->addWidget(Bar.Widget());
        resize(600, 300);
        cmdReport.Click = [this] { Walk(); };
    }

    NumberField txtNote{this, "txtNote", NumberField::Digits::Whole};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-")};
    Progress Bar{this};

    int rows = 4;
    std::function<void(int)> atRow;
    QStringList seen; // "25 % 100" is the percent and how much of a hundred is filled
    int painted = 0;

    QLabel& Find(const char* name) const { return *findChild<QLabel*>(QLatin1String(name)); }

    bool IsBarSeen() const
    {
        return Find("lblBack").isVisible() || Find("lblProgress").isVisible()
            || Find("lblPercent").isVisible();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        painted += event->type() == QEvent::Paint && watched == &Find("lblPercent") ? 1 : 0;
        return Screen::eventFilter(watched, event);
    }

private:
    void Walk()
    {
        Find("lblPercent").installEventFilter(this);
        Bar.Begin(rows);
        Note();
        for (int row = 0; row < rows; ++row) {
            if (atRow)
                atRow(row);
            Bar.Step();
            Note();
        }
        Bar.End();
    }

    void Note()
    {
        if (!IsBarSeen()) {
            seen.append("hidden");
            return;
        }
        const int whole = Bar.Widget()->contentsRect().width();
        const int filled = Find("lblProgress").width();
        seen.append(Find("lblPercent").text() + u' '
            + (filled == 1 ? QStringLiteral("1px") : QString::number((filled * 100 + whole / 2) / whole)));
    }
};

class ProgressTest : public SocietyTest {
protected:
    std::optional<EachPainting> m_each{std::in_place};

    // So many that a statement works on them for a while.
    void FillDeliveries()
    {
        Run("insert into MilkCollections(CompanyId,CollectionDate,MemberNo) values(1,'01/04/2026',1)");
        for (int doublings = 0; doublings < 14; ++doublings)
            Run("insert into MilkCollections select * from MilkCollections");
    }

    // Opens the screen, lets it walk so many rows, and looks at it afterwards.
    void Walk(int rows, const std::function<void(WalkingScreen&)>& look,
        const std::function<void(WalkingScreen&, int)>& atRow = {})
    {
        On<WalkingScreen>([&](Clerk& clerk) {
            auto& screen = clerk.On<WalkingScreen>();
            EXPECT_FALSE(screen.IsBarSeen()) << "hidden at rest";
            screen.rows = rows;
            if (atRow)
                screen.atRow = [&](int row) { atRow(screen, row); };
            Type(clerk, "{TAB}{ENTER}");
            EXPECT_FALSE(screen.IsBarSeen());
            look(screen);
        });
        EXPECT_FALSE(Failure);
    }
};

TEST_F(ProgressTest, TheBarFillsRowByRow)
{
    Walk(4, [](WalkingScreen& screen) {
        EXPECT_EQ(screen.seen.join(u'|'), "0 % 1px|25 % 25|50 % 50|75 % 75|100 % 100");
        EXPECT_EQ(screen.Bar.Done(), 4);
        EXPECT_GE(screen.painted, 5) << "it is seen, not only set";
    });
}

TEST_F(ProgressTest, ThePercentIsItsWholePart)
{
    Walk(3, [](WalkingScreen& screen) {
        EXPECT_EQ(screen.seen.join(u'|'), "0 % 1px|33 % 33|66 % 67|100 % 100");
    });
}

TEST_F(ProgressTest, ManyRowsArePaintedOnceAPercent)
{
    Walk(20000, [](WalkingScreen& screen) {
        EXPECT_EQ(screen.seen.last(), "100 % 100");
        EXPECT_LE(screen.painted, 250);
        EXPECT_GE(screen.painted, 100);
    });
}

TEST_F(ProgressTest, AQuickRunDoesNotWaitForPaintings)
{
    m_each.reset();
    Painting::Interval() = std::chrono::hours(1);
    Walk(20000, [](WalkingScreen& screen) {
        EXPECT_EQ(screen.seen.last(), "100 % 100") << "set, though not painted";
        EXPECT_LE(screen.painted, 3) << "as it begins";
    });
    Painting::Interval() = std::chrono::milliseconds(50);
}

// What is painted while one statement of the books is at work, and what is let in.
TEST_F(ProgressTest, AStatementThatWorksForLongLetsTheWindowBePaintedAndNoKeyIn)
{
    FillDeliveries();
    int painted = 0;
    QString during = "none";
    Walk(
        1,
        [&](WalkingScreen& screen) {
            EXPECT_GT(painted, 3);
            EXPECT_EQ(during, QString());
            EXPECT_EQ(screen.txtNote.Text(), "1") << "typed afterwards";
        },
        [&](WalkingScreen& screen, int) {
            QMetaObject::invokeMethod(
                qApp,
                [&screen] {
                    QKeyEvent press(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, "1");
                    QCoreApplication::sendEvent(screen.KeyTarget(), &press);
                },
                Qt::QueuedConnection);
            screen.painted = 0;
            gCn.Execute(u"update MilkCollections set Liters=2");
            painted = screen.painted;
            during = screen.txtNote.Text();
            screen.txtNote.SetFocus();
        });
}

TEST_F(ProgressTest, AStatementLetsTheWindowBePaintedAfterABackupToo)
{
    FillDeliveries();
    int painted = 0;
    Walk(
        1, [](WalkingScreen&) {},
        [&](WalkingScreen& screen, int) {
            CloseBooks();
            ReopenBooks();
            screen.painted = 0;
            gCn.Execute(u"update MilkCollections set Liters=2");
            painted = screen.painted;
        });
    EXPECT_GT(painted, 3);
}

TEST_F(ProgressTest, ForNoRowsThereIsNothingToShow)
{
    Walk(0, [](WalkingScreen& screen) { EXPECT_EQ(screen.seen, QStringList("hidden")); });
}

TEST_F(ProgressTest, WhatIsTypedWhileItFillsIsTypedAfterwards)
{
    QString during = "none";
    Walk(
        4, [](WalkingScreen& screen) { EXPECT_EQ(screen.txtNote.Text(), "12"); },
        [&](WalkingScreen& screen, int row) {
            if (row == 0 || row == 2)
                QMetaObject::invokeMethod(
                    qApp,
                    [&screen, row] {
                        QKeyEvent press(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier,
                            QString(QChar(row == 0 ? u'1' : u'2')));
                        QCoreApplication::sendEvent(screen.KeyTarget(), &press);
                    },
                    Qt::QueuedConnection);
            if (row == 3) {
                during = screen.txtNote.Text();
                screen.txtNote.SetFocus();
            }
        });
    EXPECT_EQ(during, QString()) << "no key gets in meanwhile";
}

}
