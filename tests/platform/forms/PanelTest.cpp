#include "platform/forms/Panel.h"
#include "platform/forms/TextField.h"
#include "tests/platform/forms/FormsTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

// Two fields, the second of them and a label in a panel.
class PanelScreen : public Screen {
public:
    PanelScreen() : Screen("PanelScreen")
    {
        auto* inside = new QVBoxLayout;
        inside->addWidget(caption);
        inside->addWidget(txtInside.Widget());
        inside->addWidget(lblInside.Widget());
        auto* column = new QVBoxLayout(this);
        column->addWidget(txtBefore.Widget());
        column->addWidget(Frame1.LaidOut(inside));
        column->addWidget(txtBehind.Widget());
    }

    PlainField txtBefore{this, "txtBefore"};
    PlainField txtInside{this, "txtInside"};
    PlainField txtBehind{this, "txtBehind"};
    Label lblInside{this, "lblInside"};
    Panel Frame1{this, {&txtInside}, {&lblInside}};
    QLabel* caption = new QLabel;
};

class PanelTest : public FormsTest {
protected:
    void AtPanel(const std::function<void(PanelScreen&)>& script)
    {
        Open<PanelScreen>([](PanelScreen& screen) { screen.Frame1.SetVisible(false); }, script);
        EXPECT_FALSE(Failure);
    }
};

TEST_F(PanelTest, WhatIsHiddenIsNoStop)
{
    AtPanel([&](PanelScreen& screen) {
        EXPECT_FALSE(screen.Frame1.Visible());
        EXPECT_FALSE(screen.caption->isVisible());
        EXPECT_FALSE(screen.lblInside.Visible());
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "txtBehind");
        Do([&] { screen.txtInside.SetFocus(); });
        EXPECT_EQ(FocusName(), "txtBehind");
    });
}

TEST_F(PanelTest, WhatIsShownIsSeenAndEntered)
{
    AtPanel([&](PanelScreen& screen) {
        Do([&] { screen.Frame1.SetVisible(true); });
        EXPECT_TRUE(screen.Frame1.Visible());
        EXPECT_TRUE(screen.caption->isVisible());
        EXPECT_TRUE(screen.lblInside.Widget()->isVisible());
        Type("{TAB}x");
        EXPECT_EQ(FocusName(), "txtInside");
        EXPECT_EQ(screen.txtInside.Text(), "x");
    });
}

TEST_F(PanelTest, APanelThatHidesPassesTheFocusOn)
{
    AtPanel([&](PanelScreen& screen) {
        Do([&] { screen.Frame1.SetVisible(true); });
        Type("{TAB}");
        screen.txtInside.KeyDown = [&](const QKeyEvent&) {
            screen.Frame1.SetVisible(false);
            return true;
        };
        Type("x");
        EXPECT_EQ(FocusName(), "txtBehind");
    });
}

// Figures and a text that a run changes while their panel is hidden.
class FiguresScreen : public Screen {
public:
    FiguresScreen() : Screen("FiguresScreen")
    {
        auto* inside = new QVBoxLayout;
        inside->addWidget(txtLiters.Widget());
        inside->addWidget(txtName.Widget());
        auto* column = new QVBoxLayout(this);
        column->addWidget(txtBefore.Widget());
        column->addWidget(Frame1.LaidOut(inside));
        Frame1.SetVisible(false);
    }

    PlainField txtBefore{this, "txtBefore"};
    NumberField txtLiters{this, "txtLiters", u"#0.00"};
    TextField txtName{this, "txtName"};
    Panel Frame1{this, {&txtLiters, &txtName}};
};

TEST_F(PanelTest, WhatChangesOnAHiddenPanelIsHeldAtOnceAndLaidOutWhenItIsShown)
{
    const auto line = [](const Control& field) {
        return static_cast<const QLineEdit*>(field.Widget())->text().toStdString();
    };
    Open<FiguresScreen>([](FiguresScreen&) {},
        [&](FiguresScreen& screen) {
            int changes = 0;
            Do([&] {
                screen.txtLiters.TextChanged = [&] { ++changes; };
                screen.txtLiters.Show(12.5);
                screen.txtLiters.Show(12.5);
                screen.txtName.SetText("gaaya");
                screen.txtName.SetText("rama");
            });
            EXPECT_EQ(screen.txtLiters.Value(), 12.5);
            EXPECT_EQ(screen.txtLiters.Seen(), "12.50");
            EXPECT_EQ(screen.txtName.Text(), "rama");
            EXPECT_EQ(changes, 1);
            EXPECT_EQ(line(screen.txtLiters) + line(screen.txtName), "");
            Do([&] { screen.Frame1.SetVisible(true); });
            EXPECT_EQ(line(screen.txtLiters), "12.50");
            EXPECT_EQ(line(screen.txtName), Shivaji01::ToUnicode(u"rama").toStdString());
            Type("{TAB}3");
            EXPECT_EQ(screen.txtLiters.Text(), "3") << "entering it has selected all of it";
            Do([&] { screen.Frame1.SetVisible(false); });
            Do([&] { screen.txtLiters.Show(4); });
            EXPECT_EQ(line(screen.txtLiters), "3");
            EXPECT_EQ(screen.txtLiters.Text(), "4.00");
        });
    EXPECT_FALSE(Failure);
}

// The field of the panel on a widget that the screen has made.
class SheetScreen : public Screen {
public:
    SheetScreen() : Screen("SheetScreen")
    {
        Frame1.SetVisible(false);
        Frame1.SetFrame(sheet);
        auto* inside = new QVBoxLayout(sheet);
        inside->addWidget(txtInside.Widget());
        auto* column = new QVBoxLayout(this);
        column->addWidget(txtBefore.Widget());
        column->addWidget(sheet);
    }

    QWidget* sheet = new QWidget(this);
    PlainField txtBefore{this, "txtBefore"};
    PlainField txtInside{this, "txtInside"};
    Panel Frame1{this, {&txtInside}};
};

TEST_F(PanelTest, TheScreensOwnWidgetGoesAndComesWithIt)
{
    Open<SheetScreen>([](SheetScreen&) {},
        [&](SheetScreen& screen) {
            EXPECT_FALSE(screen.sheet->isVisible());
            Do([&] { screen.Frame1.SetVisible(true); });
            EXPECT_TRUE(screen.sheet->isVisible());
            EXPECT_TRUE(screen.txtInside.Widget()->isVisible());
            EXPECT_EQ(screen.Frame1.Controls(), std::vector<Control*>{&screen.txtInside});
            Do([&] { screen.Frame1.SetVisible(false); });
            EXPECT_FALSE(screen.sheet->isVisible());
        });
    EXPECT_FALSE(Failure);
}

}
