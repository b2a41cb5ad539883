#include "tests/support/SocietyTest.h"

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "society/SocietyScreen.h"

#include <QVBoxLayout>

namespace {

// A small screen with keys of its own.
class frmProbe final : public SocietyScreen {
public:
    static Keys::Places KeyPlaces()
    {
        using namespace KeyHints;
        return {
            {"frmProbe", Plain(u"a probe"),
                {Next, Leave, CalculatorKey(), TutorKey(),
                    {"F3", Plain(u"the screen's own"), &frmProbe::TellScreen}}},
            {"frmProbe.txtMemberNo", Plain(u"its number"),
                {{"F3", Plain(u"the field's own"), &frmProbe::TellField},
                    {"↑", Plain(u"up"), &frmProbe::TellField}}},
        };
    }

    frmProbe() : SocietyScreen(KeyPlaces(), Shivaji(u"maombar yaadI"), {.guide = "lblFooter"})
    {
        txtMemberNo.SetGuide(KeyGuide(txtMemberNo));
        auto* body = new QVBoxLayout;
        body->addWidget(lblGuide.Widget());
        for (Control* control : Controls())
            body->addWidget(control->Widget());
        Stack(body);
    }

    QStringList Told;

private:
    WholeField txtMemberNo{this, "txtMemberNo"};
    WholeField txtOther{this, "txtOther"};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmProbe::cmdExit_Click};

    void TellScreen() { Told.append("screen"); }
    void TellField() { Told.append("field"); }
};

// One whose strip has neither calculator nor tutor.
class frmBare final : public SocietyScreen {
public:
    frmBare() : SocietyScreen({{"frmBare", Plain(u"bare"), {KeyHints::Leave}}}, Plain(u"Bare"))
    {
        auto* body = new QVBoxLayout;
        body->addWidget(txtMemberNo.Widget());
        body->addWidget(lblGuide.Widget());
        Stack(body);
    }

private:
    WholeField txtMemberNo{this, "txtMemberNo"};
};

using SocietyScreenTest = SocietyTest;

}

TEST_F(SocietyScreenTest, ItsBandHasTheTitleTheSocietyAndTheYearAndItsLineTheGuideOfTheField)
{
    On<frmProbe>([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblTitle"), "मेम्बर यादी");
        EXPECT_EQ(Label(clerk, "lblCompanyTitle"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(Label(clerk, "lblAcYear"), "2026-2027");
        EXPECT_EQ(Label(clerk, "lblFooter"), "F3 : the field's own    ↑ : up");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, WithoutACompanyTheBandHasTheTitleAlone)
{
    Run("delete * from CompanySelected");
    On<frmProbe>([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblCompanyTitle"), "");
        EXPECT_EQ(Label(clerk, "lblAcYear"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, EscEmptiesTheFieldsAndCloses)
{
    QString left = "never closed";
    Failure = TheClerk.Play(
        [&] {
            frmProbe screen;
            screen.ShowModal();
            left = screen.Find(u"txtMemberNo")->Text();
        },
        [](Clerk& clerk) { Type(clerk, "12{ESC}"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(left.toStdString(), "");
}

TEST_F(SocietyScreenTest, ItsExitCloses)
{
    On<frmProbe>([](Clerk& clerk) {
        Type(clerk, "12%b");
        EXPECT_EQ(clerk.ScreenName().toStdString(), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, F2AndF12AnswerWhereTheScreenHasThemAndNowhereElse)
{
    On<frmBare>([](Clerk& clerk) {
        Type(clerk, "{F2}{F12}");
        EXPECT_EQ(clerk.ScreenName().toStdString(), "frmBare");
    });
    EXPECT_TRUE(TheCalculator.Started.isEmpty());
    On<frmProbe>([](Clerk& clerk) {
        Type(clerk, "{F2}{F12}");
        EXPECT_EQ(clerk.ScreenName().toStdString(), "frmKeyboardTutor");
    });
    EXPECT_EQ(TheCalculator.Started.size(), 1);
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, AKeyOfTheFieldInFocusComesBeforeThatOfTheScreen)
{
    On<frmProbe>([](Clerk& clerk) {
        Type(clerk, "{F3}{UP}{TAB}{F3}{UP}");
        EXPECT_EQ(clerk.On<frmProbe>().Told.join(u' ').toStdString(), "field field screen");
    });
    EXPECT_FALSE(Failure);
}
