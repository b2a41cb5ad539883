#include "tests/platform/forms/FormsTest.h"

#include <QKeyEvent>

namespace {

class FocusTest : public FormsTest {
protected:
    // Plays on an open desk whose opening has been told already.
    void AtDesk(const std::function<void(Desk&)>& setUp, const std::function<void(Desk&)>& script)
    {
        Open<Desk>(setUp, [&](Desk& desk) {
            desk.Happened();
            script(desk);
        });
        EXPECT_FALSE(Failure);
    }

    static void Plain(Desk&) { }
};

TEST_F(FocusTest, OpeningPutsTheFocusOnTheFirstControlAndThenIsShown)
{
    Open<Desk>(Plain, [&](Desk& desk) {
        EXPECT_EQ(desk.Happened(), "load +txtA shown");
        EXPECT_EQ(FocusName(), "txtA");
    });
}

TEST_F(FocusTest, OpeningSkipsControlsThatCannotTakeTheFocus)
{
    Open<Desk>(
        [](Desk& desk) {
            desk.txtA.SetEnabled(false);
            desk.txtB.SetVisible(false);
        },
        [&](Desk& desk) { EXPECT_EQ(desk.Happened(), "load +txtC shown"); });
}

TEST_F(FocusTest, AFocusChosenWhileLoadingIsKept)
{
    Open<Desk>([](Desk& desk) { desk.Also("load", [&] { desk.txtB.SetFocus(); }); },
        [&](Desk& desk) { EXPECT_EQ(desk.Happened(), "load +txtB shown"); });
}

TEST_F(FocusTest, WhatIsLeftCanTellAStepFromAWayStraightToAControl)
{
    QString to;
    AtDesk(
        [&](Desk& desk) {
            for (const char* event : {"-txtA", "-txtB", "-txtC"})
                desk.Also(event, [&] { to = desk.GoingTo() ? desk.GoingTo()->Name() : Q("a step"); });
        },
        [&](Desk& desk) {
            for (const char* keys : {"{TAB}", "{ENTER}", "+{TAB}"}) {
                Type(keys);
                EXPECT_EQ(to, "a step") << keys;
            }
            TheClerk.Press("txtA");
            EXPECT_EQ(to, "txtA");
            Do([&] { desk.txtC.SetFocus(); });
            EXPECT_EQ(to, "txtC");
            EXPECT_EQ(desk.GoingTo(), nullptr) << "nothing is being left";
            Type("%s");
            EXPECT_EQ(to, "cmdGo");
        });
}

TEST_F(FocusTest, EveryKindOfMoveRunsLostFocusAndThenGotFocus)
{
    AtDesk(Plain, [&](Desk& desk) {
        Type("{TAB}");
        EXPECT_EQ(desk.Happened(), "-txtA +txtB");
        Type("{ENTER}");
        EXPECT_EQ(desk.Happened(), "-txtB +txtC");
        Type("+{TAB}");
        EXPECT_EQ(desk.Happened(), "-txtC +txtB");
        TheClerk.Press("txtA");
        EXPECT_EQ(desk.Happened(), "-txtB +txtA");
        Do([&] { desk.txtC.SetFocus(); });
        EXPECT_EQ(desk.Happened(), "-txtA +txtC");
    });
}

TEST_F(FocusTest, TabOrderWrapsAroundAtBothEnds)
{
    AtDesk(Plain, [&](Desk& desk) {
        Type("+{TAB}");
        EXPECT_EQ(desk.Happened(), "-txtA +cmdCancel");
        Type("{TAB}");
        EXPECT_EQ(desk.Happened(), "-cmdCancel +txtA");
    });
}

TEST_F(FocusTest, TabSkipsWhatIsNoStopButSetFocusReachesIt)
{
    AtDesk([](Desk& desk) { desk.txtB.SetTabStop(false); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtC");
            Do([&] { desk.txtB.SetFocus(); });
            EXPECT_EQ(desk.Happened(), "-txtC +txtB");
        });
}

TEST_F(FocusTest, SetFocusOnTheHolderIsNoMove)
{
    AtDesk(Plain, [&](Desk& desk) {
        Do([&] { desk.txtA.SetFocus(); });
        TheClerk.Press("txtA");
        EXPECT_EQ(desk.Happened(), "");
    });
}

TEST_F(FocusTest, SetFocusInsideLostFocusReplacesTheDestination)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtC.SetFocus(); }); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtC");
            EXPECT_EQ(FocusName(), "txtC");
        });
}

TEST_F(FocusTest, TheLastOfSeveralDestinationsCounts)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("-txtA", [&] {
                desk.txtC.SetFocus();
                desk.cmdGo.SetFocus();
            });
        },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +cmdGo");
        });
}

TEST_F(FocusTest, ARefusalGetsTheFocusBackWithoutASecondValidation)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            Type("7{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtA");
            EXPECT_EQ(FocusName(), "txtA");
            Type("8");
            EXPECT_EQ(TheClerk.Reads("txtA").toStdString(), "8") << "the text is selected anew";
        });
}

TEST_F(FocusTest, TwoRefusingFieldsNeverFight)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("-txtA", [&] { desk.txtA.SetFocus(); });
            desk.Also("-txtB", [&] { desk.txtB.SetFocus(); });
        },
        [&](Desk& desk) {
            TheClerk.Press("txtB");
            EXPECT_EQ(desk.Happened(), "-txtA +txtA");
            Do([&] { desk.Also("-txtA", {}); });
        });
}

TEST_F(FocusTest, FieldsThatSendTheFocusToEachOtherComeToRest)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("-txtA", [&] { desk.txtB.SetFocus(); });
            desk.Also("-txtB", [&] { desk.txtA.SetFocus(); });
        },
        [&](Desk& desk) {
            TheClerk.Press("txtC");
            EXPECT_EQ(desk.Happened(), "-txtA +txtB");
            TheClerk.Press("txtC");
            EXPECT_EQ(desk.Happened(), "-txtB +txtA");
        });
}

TEST_F(FocusTest, SetFocusInsideGotFocusIsAMoveOfItsOwn)
{
    AtDesk([](Desk& desk) { desk.Also("+txtB", [&] { desk.txtC.SetFocus(); }); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtB -txtB +txtC");
        });
}

TEST_F(FocusTest, SetFocusOnADisabledOrHiddenControlDoesNothing)
{
    AtDesk(
        [](Desk& desk) {
            desk.txtB.SetEnabled(false);
            desk.txtC.SetVisible(false);
        },
        [&](Desk& desk) {
            Do([&] {
                desk.txtB.SetFocus();
                desk.txtC.SetFocus();
            });
            EXPECT_EQ(desk.Happened(), "");
            EXPECT_EQ(FocusName(), "txtA");
        });
}

TEST_F(FocusTest, ADisabledControlIsNoDestinationInLostFocusEither)
{
    AtDesk(
        [](Desk& desk) {
            desk.txtC.SetEnabled(false);
            desk.Also("-txtA", [&] { desk.txtC.SetFocus(); });
        },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtB");
        });
}

TEST_F(FocusTest, AMessageInsideLostFocusIsNoMove)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("-txtA", [&] {
                ShowTestNotice();
                desk.txtA.SetFocus();
                desk.Tell("after");
            });
        },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(ScreenName(), "Notice");
            EXPECT_EQ(desk.Happened(), "-txtA");
            Type("{ENTER}");
            EXPECT_EQ(ScreenName(), "Desk");
            EXPECT_EQ(desk.Happened(), "after +txtA");
        });
}

TEST_F(FocusTest, AMessageBetweenKeysLeavesTheFocusWhereItWas)
{
    AtDesk([](Desk& desk) { desk.Also("F2", ShowTestNotice); },
        [&](Desk& desk) {
            Type("{F2}{ENTER}5");
            EXPECT_EQ(desk.Happened(), "F2");
            EXPECT_EQ(TheClerk.Reads("txtA").toStdString(), "5");
        });
}

TEST_F(FocusTest, AHolderThatIsDisabledPassesTheFocusOnWithoutValidation)
{
    AtDesk([](Desk& desk) { desk.Also("F2", [&] { desk.txtA.SetEnabled(false); }); },
        [&](Desk& desk) {
            Type("{F2}");
            EXPECT_EQ(desk.Happened(), "F2 +txtB");
        });
}

TEST_F(FocusTest, AHolderThatHidesItselfOnEntryPassesTheFocusOn)
{
    AtDesk([](Desk& desk) { desk.Also("+txtB", [&] { desk.txtB.SetVisible(false); }); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtB +txtC");
        });
}

TEST_F(FocusTest, ADestinationThatLostFocusDisablesGivesWayToTheNext)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtB.SetEnabled(false); }); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtC");
        });
}

TEST_F(FocusTest, ADestinationThatIsAskedForAndThenDisabledGivesWayToTheNext)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("-txtA", [&] {
                desk.txtC.SetFocus();
                desk.txtC.SetEnabled(false);
            });
        },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(desk.Happened(), "-txtA +cmdGo");
        });
}

TEST_F(FocusTest, WithNothingToHoldTheFocusNobodyDoesAndItComesBack)
{
    const auto enableAll = [](Desk& desk, bool enabled) {
        for (Control* control : desk.Controls())
            control->SetEnabled(enabled);
    };
    AtDesk([&](Desk& desk) { desk.Also("F2", [&] { enableAll(desk, desk.FocusHolder() == nullptr); }); },
        [&](Desk& desk) {
            Type("{F2}");
            EXPECT_EQ(FocusName(), "");
            Type("12{TAB}{ENTER}");
            EXPECT_EQ(desk.txtA.Text().toStdString(), "");
            EXPECT_EQ(desk.Happened(), "F2");
            Type("{F2}3");
            EXPECT_EQ(desk.Happened(), "F2 +txtA");
            EXPECT_EQ(desk.txtA.Text().toStdString(), "3");
        });
}

TEST_F(FocusTest, MousePressOnCancelSkipsTheValidationOfTheFieldThatIsLeft)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            TheClerk.Press("cmdCancel");
            EXPECT_EQ(desk.Happened(), "+cmdCancel !cmdCancel");
        });
}

TEST_F(FocusTest, MousePressOnAnotherButtonValidatesFirst)
{
    AtDesk(Plain, [&](Desk& desk) {
        TheClerk.Press("cmdGo");
        EXPECT_EQ(desk.Happened(), "-txtA +cmdGo !cmdGo");
    });
}

TEST_F(FocusTest, MousePressThatIsRefusedPressesNothing)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            TheClerk.Press("cmdGo");
            EXPECT_EQ(desk.Happened(), "-txtA +txtA");
        });
}

TEST_F(FocusTest, MousePressOnADisabledControlIsNothing)
{
    AtDesk([](Desk& desk) { desk.cmdGo.SetEnabled(false); },
        [&](Desk& desk) {
            TheClerk.Press("cmdGo");
            EXPECT_EQ(desk.Happened(), "");
        });
}

TEST_F(FocusTest, AltAndTheLetterMoveToTheButtonAndPressIt)
{
    AtDesk(Plain, [&](Desk& desk) {
        Type("%s");
        EXPECT_EQ(desk.Happened(), "-txtA +cmdGo !cmdGo");
        Type("%S");
        EXPECT_EQ(desk.Happened(), "!cmdGo") << "it holds the focus already";
    });
}

TEST_F(FocusTest, AltAndTheLetterRefusedByTheValidationPressNothing)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            Type("%s");
            EXPECT_EQ(desk.Happened(), "-txtA +txtA");
        });
}

TEST_F(FocusTest, CancelByItsKeyIsNoMousePressAndValidates)
{
    AtDesk(Plain, [&](Desk& desk) {
        Type("%r");
        EXPECT_EQ(desk.Happened(), "-txtA +cmdCancel !cmdCancel");
    });
}

TEST_F(FocusTest, CancelByItsKeyIsPressedThoughTheFieldBeforeItRefuses)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            Type("%r");
            EXPECT_EQ(desk.Happened(), "-txtA +txtA +cmdCancel !cmdCancel");
        });
}

TEST_F(FocusTest, CancelByItsKeyIsNotPressedWhenTheFieldBeforeItHasDisabledIt)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.cmdCancel.SetEnabled(false); }); },
        [&](Desk& desk) {
            Type("%r");
            EXPECT_EQ(desk.Happened(), "-txtA +txtA");
        });
}

TEST_F(FocusTest, AltKeysThatNoButtonHasDoNothing)
{
    AtDesk([](Desk& desk) { desk.cmdGo.SetEnabled(false); },
        [&](Desk& desk) {
            Type("%s%x%{Down}%{F4}%5");
            EXPECT_EQ(desk.Happened(), "");
            EXPECT_EQ(desk.txtA.Text().toStdString(), "");
        });
}

TEST_F(FocusTest, EnterAndSpacePressTheButtonInFocus)
{
    AtDesk(Plain, [&](Desk& desk) {
        Do([&] { desk.cmdGo.SetFocus(); });
        desk.Happened();
        Type("{ENTER} ");
        EXPECT_EQ(desk.Happened(), "!cmdGo !cmdGo");
        EXPECT_EQ(FocusName(), "cmdGo");
    });
}

TEST_F(FocusTest, TheButtonsCaptionIsItsStateAndItsKey)
{
    AtDesk(Plain, [&](Desk& desk) {
        Do([&] { desk.cmdGo.SetCaption(Shivaji(u"&navaIna")); });
        EXPECT_TRUE(desk.cmdGo.Reads(u"&navaIna"));
        Type("%s");
        EXPECT_EQ(desk.Happened(), "");
        Type("%n");
        EXPECT_EQ(desk.Happened(), "-txtA +cmdGo !cmdGo");
    });
}

TEST_F(FocusTest, EscClosesWithoutValidation)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            Do([&] { desk.Also("escape", [&] { EXPECT_EQ(desk.Happened(), "escape"); }); });
            Type("{ESC}");
            EXPECT_EQ(ScreenName(), "");
        });
}

TEST_F(FocusTest, TheCloseBoxAsksTheScreen)
{
    bool asked = false;
    AtDesk([&](Desk& desk) { desk.Also("closebox", [&] { asked = true; }); },
        [&](Desk&) {
            TheClerk.CloseBox();
            EXPECT_TRUE(asked);
            EXPECT_EQ(ScreenName(), "");
        });
}

TEST_F(FocusTest, ClosingInLostFocusEndsTheMove)
{
    std::string happened;
    AtDesk(
        [&](Desk& desk) {
            desk.Also("-txtA", [&] { desk.Close(); });
            desk.Also("+txtB", [&] { happened = "B was entered"; });
        },
        [&](Desk&) {
            Type("{TAB}");
            EXPECT_EQ(ScreenName(), "");
            EXPECT_EQ(happened, "");
        });
}

TEST_F(FocusTest, WorksInAWindowThatIsNotActive)
{
    const auto deactivate = [](Desk& desk) {
        QApplication::setActiveWindow(nullptr);
        EXPECT_FALSE(desk.isActiveWindow());
    };
    AtDesk(Plain, [&](Desk& desk) {
        Do([&] {
            deactivate(desk);
            desk.txtB.SetFocus();
            deactivate(desk);
            desk.txtC.SetFocus();
            deactivate(desk);
        });
        EXPECT_EQ(desk.Happened(), "-txtA +txtB -txtB +txtC");
        Type("5");
        EXPECT_EQ(desk.txtC.Text().toStdString(), "5");
    });
}

TEST_F(FocusTest, AScreenOpenedAgainBeginsAnew)
{
    Failure = TheClerk.Play(
        [] {
            Desk desk;
            desk.ShowModal();
            desk.Happened();
            desk.ShowModal();
            EXPECT_EQ(desk.Happened(), "load +txtA shown -txtA +txtB escape");
        },
        [&](Clerk&) {
            Type("{TAB}{TAB}{ESC}");
            EXPECT_EQ(FocusName(), "txtA");
            Type("{TAB}{ESC}");
        });
    EXPECT_FALSE(Failure);
}

TEST_F(FocusTest, ControlsAreFoundInAnySpelling)
{
    AtDesk(Plain, [&](Desk& desk) {
        EXPECT_EQ(desk.Find(u"TXTb"), &desk.txtB);
        EXPECT_EQ(desk.Find(u"txtD"), nullptr);
    });
}

TEST_F(FocusTest, AControlsOwnKeysComeBeforeItsHandling)
{
    AtDesk(
        [](Desk& desk) {
            desk.txtA.KeyDown = [&](const QKeyEvent& key) {
                desk.Tell("key");
                return key.text() == u"5";
            };
        },
        [&](Desk& desk) {
            Type("56");
            EXPECT_EQ(desk.txtA.Text().toStdString(), "6");
            EXPECT_EQ(desk.Happened(), "key key");
        });
}

}
