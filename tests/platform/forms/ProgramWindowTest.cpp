#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/ProgramWindow.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

// A card of a fixed size, with a label that can be shown besides.
class Card final : public Screen {
public:
    Card() : Screen("Card", Shape::Card)
    {
        SetTitle(Plain(u"कार्ड"));
        lblMore.Widget()->setMinimumHeight(100);
        lblMore.SetVisible(false);
        auto* body = new QVBoxLayout(this);
        body->addWidget(txtNote.Widget());
        body->addWidget(lblMore.Widget());
        setMinimumSize(300, 80);
    }
    NumberField txtNote{this, "txtNote", NumberField::Digits::Whole};
    Label lblMore{this, "lblMore"};
};

class ProgramWindowTest : public FormsTest {
protected:
    void OverACard(const std::function<void(Desk&)>& script)
    {
        Open<Desk>(
            [](Desk& desk) {
                desk.SetTitle(Plain(u"टेबल"));
                desk.Also("F2", [] { Card().ShowModal(); });
            },
            [&](Desk& desk) {
                Type("{F2}");
                script(desk);
            });
    }

    static QWidget& Window() { return ProgramWindow::Current(); }

    // What stands at a place of the window, as the mouse meets it.
    static QWidget* At(QPoint place) { return Window().childAt(place); }
};

TEST_F(ProgramWindowTest, AFullScreenFillsItAndTakesItsNewSize)
{
    Open<Desk>([](Desk&) {},
        [&](Desk& desk) {
            EXPECT_TRUE(Window().isVisible());
            EXPECT_EQ(desk.geometry(), Window().rect());
            Do([] { Window().resize(1300, 700); });
            EXPECT_EQ(desk.geometry(), QRect(0, 0, 1300, 700));
        });
}

TEST_F(ProgramWindowTest, ACardStandsInTheMiddleOverTheShadedScreenBeneath)
{
    OverACard([&](Desk& desk) {
        const Screen& card = TheClerk.Top();
        EXPECT_EQ(card.Name(), "Card");
        EXPECT_EQ(card.width(), 300);
        EXPECT_LE(std::abs((card.geometry().center() - Window().rect().center()).manhattanLength()), 2);
        EXPECT_EQ(At({5, 5})->parentWidget(), &Window()) << "the shade lies over the screen beneath";
        EXPECT_NE(At({5, 5}), &desk);
        const QColor shaded = Window().grab().toImage().pixelColor(5, 5);
        EXPECT_LT(shaded.lightness(), 120);
        Type("{ESC}");
        const QWidget* open = At({5, 5});
        EXPECT_TRUE(open == &desk || desk.isAncestorOf(open));
    });
}

TEST_F(ProgramWindowTest, AFullScreenCoversTheOneBeneathWhole)
{
    Open<Desk>([](Desk& desk) { desk.Also("F2", ShowTestNotice); },
        [&](Desk&) {
            Type("{F2}");
            const Screen& top = TheClerk.Top();
            for (const QPoint corner : {QPoint(0, 0), Window().rect().bottomRight()}) {
                const QWidget* there = At(corner);
                EXPECT_TRUE(there == &top || top.isAncestorOf(there));
            }
        });
}

TEST_F(ProgramWindowTest, ACardGrowsWithWhatItShows)
{
    OverACard([&](Desk&) {
        Card& card = TheClerk.On<Card>();
        const int before = card.height();
        Do([&] { card.lblMore.SetVisible(true); });
        EXPECT_GE(card.height(), before + 100 - 80 + card.txtNote.Widget()->height());
        EXPECT_LE(std::abs((card.geometry().center() - Window().rect().center()).manhattanLength()), 2);
    });
}

TEST_F(ProgramWindowTest, ItBearsTheTitleOfTheScreenOnTop)
{
    OverACard([&](Desk& desk) {
        EXPECT_EQ(Window().windowTitle(), "कार्ड");
        Do([&] { TheClerk.Top().SetTitle(Plain(u"दुसरे")); });
        EXPECT_EQ(Window().windowTitle(), "दुसरे");
        Type("{ESC}");
        EXPECT_EQ(Window().windowTitle(), "टेबल");
        EXPECT_EQ(&desk, &TheClerk.Top());
    });
}

TEST_F(ProgramWindowTest, ItsCloseBoxIsThatOfTheScreenOnTop)
{
    OverACard([&](Desk&) {
        Do([] { Window().close(); });
        EXPECT_EQ(ScreenName(), "Desk");
        EXPECT_TRUE(Window().isVisible());
        Do([] { Window().close(); });
        EXPECT_EQ(ScreenName(), "");
    });
}

TEST_F(ProgramWindowTest, F11ChangesToTheWholeScreenAndBack)
{
    Open<Desk>([](Desk&) {},
        [&](Desk& desk) {
            Type("{F11}");
            EXPECT_TRUE(Window().isFullScreen());
            EXPECT_EQ(desk.size(), Window().size());
            Type("{F11}");
            EXPECT_FALSE(Window().isFullScreen());
        });
}

TEST_F(ProgramWindowTest, KeysTypedBehindTheOneThatClosesACardReachTheScreenBeneath)
{
    OverACard([&](Desk& desk) {
        TheClerk.TypeAhead("{ESC}12{TAB}3");
        EXPECT_EQ(desk.txtA.Text(), "12");
        EXPECT_EQ(desk.txtB.Text(), "3");
    });
}

TEST_F(ProgramWindowTest, KeysTypedBehindTheLastScreensEndReachTheNextOne)
{
    std::string typed;
    Failure = TheClerk.Play(
        [&] {
            Card().ShowModal();
            Card next;
            next.ShowModal();
            typed = next.txtNote.Text().toStdString();
        },
        [&](Clerk& clerk) {
            clerk.TypeAhead("1{ESC}27");
            EXPECT_EQ(clerk.Reads("txtNote"), "27");
            clerk.Type("{ESC}");
        });
    EXPECT_EQ(typed, "27");
}

TEST_F(ProgramWindowTest, KeysTypedBehindAScreensEndReachTheCardThatTheNextOneOpensAtOnce)
{
    std::string typed;
    Failure = TheClerk.Play(
        [&] {
            Card().ShowModal();
            Desk desk;
            desk.Also("shown", [&] {
                Card card;
                card.ShowModal();
                typed = card.txtNote.Text().toStdString();
            });
            desk.ShowModal();
        },
        [&](Clerk& clerk) {
            clerk.TypeAhead("1{ESC}27{ESC}3{TAB}4");
            EXPECT_EQ(clerk.Reads("txtA"), "3");
            EXPECT_EQ(clerk.Reads("txtB"), "4");
        });
    EXPECT_EQ(typed, "27");
}

TEST_F(ProgramWindowTest, WhatIsForgottenOfTheKeysTypedAheadReachesNobody)
{
    Open<Desk>(
        [](Desk& desk) {
            desk.Also("F2", [] {
                Card().ShowModal();
                ModalStack::Current().ForgetTypedAhead();
            });
        },
        [&](Desk& desk) {
            Type("{F2}");
            TheClerk.TypeAhead("{ESC}12");
            EXPECT_EQ(desk.txtA.Text(), QString());
            Type("7");
            EXPECT_EQ(desk.txtA.Text(), "7");
        });
}

TEST_F(ProgramWindowTest, AKeyThatMeetsNoControlIsTheScreensOnTop)
{
    Open<Desk>([](Desk&) {},
        [&](Desk& desk) {
            Do([] {
                QKeyEvent press(QEvent::KeyPress, Qt::Key_4, Qt::NoModifier, "4");
                QCoreApplication::sendEvent(&Window(), &press);
            });
            EXPECT_EQ(desk.txtA.Text(), "4");
        });
}

}
