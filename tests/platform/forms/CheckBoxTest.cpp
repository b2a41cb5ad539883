#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/CheckBox.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace {

class BoxScreen : public Screen {
public:
    BoxScreen() : Screen("BoxScreen")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls())
            column->addWidget(control->Widget());
        chkSearch.Click = [this] { turned += chkSearch.Text().toStdString(); };
    }

    PlainField txtBefore{this, "txtBefore"};
    CheckBox chkSearch{this, "chkSearch", Shivaji(u"A^DvhansD saca-")};
    PlainField txtAfter{this, "txtAfter"};
    std::string turned; // the values that Click has met

    QCheckBox& Box() const { return *static_cast<QCheckBox*>(chkSearch.Widget()); }
};

class CheckBoxTest : public FormsTest {
protected:
    void AtBox(const std::function<void(BoxScreen&)>& script)
    {
        Open<BoxScreen>([](BoxScreen&) {}, script);
        EXPECT_FALSE(Failure);
    }
};

TEST_F(CheckBoxTest, BeginsWithoutTheTickUnderItsCaption)
{
    AtBox([](BoxScreen& screen) {
        EXPECT_FALSE(screen.chkSearch.Checked());
        EXPECT_EQ(screen.chkSearch.Text(), "0");
        EXPECT_EQ(screen.Box().text(), Shivaji(u"A^DvhansD saca-").Seen());
        EXPECT_EQ(screen.Box().accessibleName(), screen.Box().text());
    });
}

TEST_F(CheckBoxTest, SpaceTurnsItAndEnterGoesOn)
{
    AtBox([this](BoxScreen& screen) {
        Type("{TAB} ");
        EXPECT_EQ(screen.chkSearch.Text(), "1");
        Type(" ");
        EXPECT_EQ(screen.turned, "10");
        Type("x1{Down}");
        EXPECT_EQ(screen.turned, "10");
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "txtAfter");
        EXPECT_EQ(screen.turned, "10");
    });
}

TEST_F(CheckBoxTest, AClickTurnsItAndTakesTheFocus)
{
    AtBox([this](BoxScreen& screen) {
        TheClerk.Press("chkSearch");
        EXPECT_TRUE(screen.chkSearch.Checked());
        EXPECT_EQ(FocusName(), "chkSearch");
        EXPECT_EQ(screen.turned, "1");
    });
}

TEST_F(CheckBoxTest, AClickThatTheFieldBeforeRefusesDoesNotTurnIt)
{
    AtBox([this](BoxScreen& screen) {
        Do([&] { screen.txtBefore.LostFocus = [&] { screen.txtBefore.SetFocus(); }; });
        TheClerk.Press("chkSearch");
        EXPECT_FALSE(screen.chkSearch.Checked());
        EXPECT_EQ(FocusName(), "txtBefore");
    });
}

TEST_F(CheckBoxTest, TheScreenTurnsItWithoutAClick)
{
    AtBox([this](BoxScreen& screen) {
        Do([&] { screen.chkSearch.SetChecked(true); });
        EXPECT_TRUE(screen.chkSearch.Checked());
        EXPECT_EQ(screen.turned, "");
    });
}

TEST_F(CheckBoxTest, DisabledItIsNoStop)
{
    AtBox([this](BoxScreen& screen) {
        Do([&] { screen.chkSearch.SetEnabled(false); });
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "txtAfter");
        TheClerk.Press("chkSearch");
        EXPECT_FALSE(screen.chkSearch.Checked());
    });
}

TEST_F(CheckBoxTest, TheFocusIsSeenBehindTheCaption)
{
    AtBox([this](BoxScreen& screen) {
        EXPECT_FALSE(screen.Box().autoFillBackground());
        Type("{TAB}");
        EXPECT_TRUE(screen.Box().autoFillBackground());
        EXPECT_EQ(screen.Box().palette().color(QPalette::Window), screen.Colours().first);
    });
}

}
