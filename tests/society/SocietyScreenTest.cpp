#include "tests/support/SocietyTest.h"

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "society/SocietyScreen.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

// A small screen under the name of one that has keys.
template <int which> class frmProbe final : public SocietyScreen {
public:
    frmProbe()
        : SocietyScreen(which == 0 ? "frmSearchCollections" : "frmMembers", Shivaji(u"maombar yaadI"),
            {.guide = "lblFooter"})
    {
        txtMemberNo.SetGuide(Plain(u"the number of a member"));
        auto* body = new QVBoxLayout;
        body->addWidget(lblGuide.Widget());
        body->addWidget(txtMemberNo.Widget());
        body->addWidget(cmdExit.Widget());
        Stack(body);
    }

private:
    WholeField txtMemberNo{this, "txtMemberNo"};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmProbe::cmdExit_Click};
};

class SocietyScreenTest : public SocietyTest {
protected:
    static std::string LabelOf(const Clerk& clerk, const char* name)
    {
        return clerk.Top().findChild<QLabel*>(QLatin1String(name))->text().toStdString();
    }
};

}

TEST_F(SocietyScreenTest, ItsBandHasTheTitleTheSocietyAndTheYearAndItsLineTheGuideOfTheField)
{
    On<frmProbe<0>>([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), "मेम्बर यादी");
        EXPECT_EQ(LabelOf(clerk, "lblCompanyTitle"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(LabelOf(clerk, "lblAcYear"), "2026-2027");
        EXPECT_EQ(LabelOf(clerk, "lblFooter"), "the number of a member");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, WithoutACompanyTheBandHasTheTitleAlone)
{
    Run(QStringLiteral("delete * from CompanySelected"));
    On<frmProbe<0>>([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblCompanyTitle"), "");
        EXPECT_EQ(LabelOf(clerk, "lblAcYear"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, EscEmptiesTheFieldsAndCloses)
{
    QString left = QStringLiteral("never closed");
    Failure = TheClerk.Play(
        [&] {
            frmProbe<0> screen;
            screen.ShowModal();
            left = screen.Find(u"txtMemberNo")->Text();
        },
        [](Clerk& clerk) { clerk.Type(QStringLiteral("12{ESC}")); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(left.toStdString(), "");
}

TEST_F(SocietyScreenTest, ItsExitCloses)
{
    On<frmProbe<0>>([](Clerk& clerk) {
        clerk.Type(QStringLiteral("12%b"));
        EXPECT_EQ(clerk.ScreenName().toStdString(), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SocietyScreenTest, F2AndF12AnswerWhereTheStripNamesThem)
{
    On<frmProbe<0>>([](Clerk& clerk) { clerk.Type(QStringLiteral("{F2}")); });
    EXPECT_EQ(TheCalculator.Started.size(), 1);
    On<frmProbe<1>>([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{F2}{F12}"));
        EXPECT_EQ(clerk.ScreenName().toStdString(), "frmKeyboardTutor");
    });
    EXPECT_EQ(TheCalculator.Started.size(), 1) << "the strip of frmMembers has no F2";
    EXPECT_FALSE(Failure);
}
