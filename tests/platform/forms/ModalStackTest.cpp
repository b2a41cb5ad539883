#include "tests/platform/forms/FormsTest.h"

namespace {

struct Guard {
    bool& ended;
    ~Guard() { ended = true; }
};

[[noreturn]] void Break()
{
    throw RunTimeError(RunTimeError::DatabaseFailure, "The statement failed.", "delete from T");
}

class ModalStackTest : public FormsTest {
protected:
    void ExpectBroken() const
    {
        ASSERT_TRUE(Failure);
        EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
        EXPECT_EQ(Failure->Statement().toStdString(), "delete from T");
        EXPECT_EQ(ModalStack::Current().Top(), nullptr);
        EXPECT_TRUE(ModalStack::Current().Open().empty());
    }
};

TEST_F(ModalStackTest, ScreensStandOnOneAnotherAndCloseInOrder)
{
    Open<Desk>([](Desk& desk) { desk.Also("F2", ShowTestNotice); },
        [&](Desk& desk) {
            EXPECT_EQ(ModalStack::Current().Top(), &desk);
            Type("{F2}");
            EXPECT_EQ(ModalStack::Current().Open().size(), 2U);
            EXPECT_TRUE(desk.isVisible());
            Type("{ENTER}");
            EXPECT_EQ(ModalStack::Current().Top(), &desk);
            Type("{ESC}");
            EXPECT_EQ(ModalStack::Current().Top(), nullptr);
        });
    EXPECT_FALSE(Failure);
}

TEST_F(ModalStackTest, ClosingLetsTheHandlerRunToItsEnd)
{
    std::string told;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [&] {
                desk.Close();
                told = "to the end";
            });
        },
        [&](Desk&) { Type("{F2}"); });
    EXPECT_EQ(told, "to the end");
}

TEST_F(ModalStackTest, AFailureLeavesEveryScreenAndRunsNothingAfterTheirOpening)
{
    bool inner = false;
    bool outer = false;
    std::string after;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [&] {
                const Guard guard{outer};
                Notice notice;
                notice.txtNote.GotFocus = [&] {
                    const Guard within{inner};
                    Break();
                };
                notice.ShowModal();
                after += "nothing runs after a failure";
            });
        },
        [&](Desk&) {
            Type("{F2}{TAB}");
            EXPECT_EQ(ScreenName(), "");
            Type("{TAB}1{ENTER}");
        });
    ExpectBroken();
    EXPECT_TRUE(inner);
    EXPECT_TRUE(outer);
    EXPECT_EQ(after, "");
}

TEST_F(ModalStackTest, AFailureWhileLoadingEndsAScreenThatWasNeverSeen)
{
    std::string told;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("load", Break);
            desk.Also("+txtA", [&] { told += "entered"; });
            desk.Also("shown", [&] { told += "shown"; });
        },
        [&](Desk&) { EXPECT_EQ(ScreenName(), ""); });
    ExpectBroken();
    EXPECT_EQ(told, "");
}

TEST_F(ModalStackTest, AFailureWhileLoadingASecondScreenEndsTheFirst)
{
    std::string told;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [&] {
                Desk second;
                second.Also("load", Break);
                second.ShowModal();
                told = "on we go";
            });
        },
        [&](Desk&) { Type("{F2}"); });
    ExpectBroken();
    EXPECT_EQ(told, "");
}

TEST_F(ModalStackTest, AFailureInLostFocusEntersNothing)
{
    std::string told;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("-txtA", Break);
            desk.Also("+txtB", [&] { told = "entered"; });
        },
        [&](Desk&) { Type("{TAB}"); });
    ExpectBroken();
    EXPECT_EQ(told, "");
}

TEST_F(ModalStackTest, AFailureInAClickByTheMouseEndsTheProgram)
{
    Open<Desk>([&](Desk& desk) { desk.Also("!cmdGo", Break); }, [&](Desk&) { TheClerk.Press("cmdGo"); });
    ExpectBroken();
}

TEST_F(ModalStackTest, AFailureInATimerEndsTheProgram)
{
    Open<Desk>([&](Desk& desk) { desk.Also("shown", [&] { desk.After(0, Break); }); },
        [&](Desk&) { EXPECT_EQ(ScreenName(), ""); });
    ExpectBroken();
}

TEST_F(ModalStackTest, AFailureInTheCloseBoxEndsTheProgram)
{
    Open<Desk>([&](Desk& desk) { desk.Also("closebox", Break); }, [&](Desk&) { TheClerk.CloseBox(); });
    ExpectBroken();
}

TEST_F(ModalStackTest, AFailureOutsideTheScreensEventsEndsTheProgram)
{
    Open<Desk>([](Desk&) {}, [&](Desk&) { Do(Break); });
    ExpectBroken();
}

TEST_F(ModalStackTest, NoKeyThatWasSentIsTypedAfterAFailure)
{
    std::string told;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [] {
                SendKeys("{TAB}");
                Break();
            });
            desk.Also("-txtA", [&] { told = "left"; });
        },
        [&](Desk&) { Type("{F2}"); });
    ExpectBroken();
    EXPECT_EQ(told, "");
}

TEST_F(ModalStackTest, TheFirstFailureIsTheOneThatIsTold)
{
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [&] {
                Notice notice;
                notice.txtNote.GotFocus = Break;
                try {
                    notice.ShowModal();
                } catch (const RunTimeError&) {
                    throw RunTimeError(RunTimeError::Overflow, "Later.");
                }
            });
        },
        [&](Desk&) { Type("{F2}{TAB}"); });
    ExpectBroken();
}

TEST_F(ModalStackTest, AScriptThatEndsLeavesTheScreensWithoutAFailure)
{
    bool ended = false;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [&] {
                const Guard guard{ended};
                ShowTestNotice();
            });
        },
        [&](Desk&) { Type("{F2}"); });
    EXPECT_FALSE(Failure);
    EXPECT_TRUE(ended);
}

TEST_F(ModalStackTest, ATimerRunsOnceItsTimeHasCome)
{
    Open<Desk>([](Desk& desk) { desk.Also("shown", [&] { desk.After(0, [&] { desk.Tell("timer"); }); }); },
        [&](Desk& desk) { EXPECT_EQ(desk.Happened(), "load +txtA shown timer"); });
}

TEST_F(ModalStackTest, ATimerWaitsForTheHandlerThatADialogHoldsUp)
{
    Open<Desk>(
        [](Desk& desk) {
            desk.Also("F2", [&] {
                desk.After(0, [&] { desk.Tell("timer"); });
                ShowTestNotice();
                desk.Tell("handled");
            });
        },
        [&](Desk& desk) {
            Type("{F2}{TAB}{TAB}");
            desk.Happened();
            Type("{ENTER}");
            EXPECT_EQ(desk.Happened(), "handled timer");
        });
}

TEST_F(ModalStackTest, ATimerOfAScreenThatHasClosedIsForgotten)
{
    std::string told;
    Open<Desk>(
        [&](Desk& desk) {
            desk.Also("F2", [&] {
                desk.After(0, [&] { told = "timer"; });
                desk.Close();
            });
        },
        [&](Desk&) { Type("{F2}"); });
    EXPECT_EQ(told, "");
}

}
