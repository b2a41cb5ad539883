#include "tests/support/SocietyTest.h"

#include "core/menu/Keys.h"
#include "platform/forms/Screen.h"
#include "society/Fields.h"
#include "society/MemberCombo.h"

#include <QVBoxLayout>

namespace {

// A member by number and by name, and one by name that opens at each coming.
class frmAsks final : public Screen {
public:
    frmAsks() : Screen("frmAsks")
    {
        ComboMemberName.OpenWithout(txtMemberNo);
        cmbAccountName.OpenWithMore();
        When(ComboMemberName.NamesLoaded, &frmAsks::CountLoading);
        auto* body = new QVBoxLayout(this);
        for (Control* control : Controls())
            body->addWidget(control->Widget());
    }

    int Loaded = 0;

    WholeField txtMemberNo{this, "txtMemberNo"};
    MemberCombo ComboMemberName{this, "ComboMemberName"};
    MemberCombo cmbAccountName{this, "cmbAccountName"};

private:
    void CountLoading() { ++Loaded; }
};

class MemberComboTest : public SocietyTest {
protected:
    void AtTheNames(const std::function<void(Clerk&, frmAsks&)>& script)
    {
        AddMember(3, "rama");
        AddMember(5, "sakaarama");
        On<frmAsks>([&](Clerk& clerk) { script(clerk, static_cast<frmAsks&>(clerk.Top())); });
        EXPECT_FALSE(Failure);
    }
};

}

TEST_F(MemberComboTest, ItOpensByItselfWithAllMembersAsLongAsThereIsNoNumber)
{
    AtTheNames([&](Clerk& clerk, frmAsks& screen) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_TRUE(screen.ComboMemberName.IsDroppedDown());
        EXPECT_EQ(screen.ComboMemberName.Items(), QStringList({"rama", "sakaarama"}));
        EXPECT_EQ(screen.Loaded, 1);
        Type(clerk, "+{TAB}7{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_FALSE(screen.ComboMemberName.IsDroppedDown());
        EXPECT_EQ(screen.Loaded, 1) << "a number stands beside it";
    });
}

TEST_F(MemberComboTest, ItAddsTheMembersAtEachComingWhereTheScreenWantsIt)
{
    AtTheNames([&](Clerk& clerk, frmAsks& screen) {
        Type(clerk, "7{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbAccountName");
        EXPECT_TRUE(screen.cmbAccountName.IsDroppedDown());
        EXPECT_EQ(screen.cmbAccountName.Items().size(), 2);
        Type(clerk, "+{TAB}{ENTER}");
        EXPECT_TRUE(screen.cmbAccountName.IsDroppedDown());
        EXPECT_EQ(screen.cmbAccountName.Items().size(), 4);
    });
}

TEST_F(MemberComboTest, DigitsAndApostrophesAreDroppedAndItsGuideIsThatOfNames)
{
    AtTheNames([&](Clerk& clerk, frmAsks& screen) {
        Type(clerk, "{ENTER}r'1a2");
        EXPECT_EQ(screen.ComboMemberName.Text().toStdString(), "ra");
        EXPECT_EQ(screen.ComboMemberName.Guide().Seen().toStdString(),
            Keys::Guide("NameCombo").Seen().toStdString());
        EXPECT_FALSE(screen.ComboMemberName.Guide().IsEmpty());
    });
}
