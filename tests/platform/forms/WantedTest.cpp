// A control that is given the focus with what it wants says so in the guide line until it is left.

#include "tests/platform/forms/FormsTest.h"

namespace {

class WantedTest : public FormsTest {
protected:
    // Plays on a desk whose txtA keeps the focus while it is empty, and has a guide of its own.
    void AtDesk(const std::function<void(Desk&)>& script)
    {
        Open<Desk>(
            [](Desk& desk) {
                desk.SetGuideLabel(desk.lblGuide);
                desk.txtA.SetGuide(Plain(u"guide"));
                desk.Also("-txtA", [&] {
                    if (desk.txtA.IsEmpty())
                        desk.txtA.SetFocus(Plain(u"wanted"));
                });
            },
            script);
        EXPECT_FALSE(Failure);
    }

    static std::string Guide(const Desk& desk) { return desk.lblGuide.Widget()->text().toStdString(); }
};

TEST_F(WantedTest, AFieldThatIsGivenTheFocusBackSaysWhatItWants)
{
    AtDesk([this](Desk& desk) {
        EXPECT_EQ(Guide(desk), "guide");
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "txtA");
        EXPECT_EQ(Guide(desk), "wanted");
    });
}

TEST_F(WantedTest, ItIsSaidNoLongerWhenTheFieldIsLeft)
{
    AtDesk([this](Desk& desk) {
        Type("{ENTER}5{ENTER}");
        EXPECT_EQ(Guide(desk), "");
        Type("+{TAB}");
        EXPECT_EQ(FocusName(), "txtA");
        EXPECT_EQ(Guide(desk), "guide");
    });
}

TEST_F(WantedTest, AWishThatGivesWayToAnotherFieldIsForgotten)
{
    AtDesk([this](Desk& desk) {
        desk.Also("-txtB", [&] {
            desk.txtA.SetFocus(Plain(u"wanted"));
            desk.txtC.SetFocus();
        });
        Type("5{ENTER}{ENTER}");
        EXPECT_EQ(FocusName(), "txtC");
        EXPECT_EQ(Guide(desk), "");
        TheClerk.Press("txtA");
        EXPECT_EQ(Guide(desk), "guide");
    });
}

TEST_F(WantedTest, AFieldThatHoldsTheFocusAlreadySaysItAtOnceAndOneThatCannotTakeItDoesNot)
{
    AtDesk([this](Desk& desk) {
        Do([&] { desk.txtA.SetFocus(Plain(u"more")); });
        EXPECT_EQ(Guide(desk), "more");
        Do([&] {
            desk.txtB.SetEnabled(false);
            desk.txtB.SetFocus(Plain(u"less"));
        });
        EXPECT_EQ(Guide(desk), "more");
    });
}

}
