#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/OptionButton.h"

#include <QMouseEvent>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

class OptionScreen : public Screen {
public:
    OptionScreen() : Screen("OptionScreen")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls())
            column->addWidget(control->Widget());
        for (OptionButton* option : {&OptionMorning, &OptionEvening, &OptionBoth})
            option->Click = [this, option] { clicked += option->Name().mid(6, 1).toStdString(); };
    }

    PlainField txtBefore{this, "txtBefore"};
    OptionButton OptionMorning{this, "OptionMorning", Shivaji(u"&sakaL")};
    OptionButton OptionEvening{this, "OptionEvening", Shivaji(u"saMQyaa&kaL")};
    OptionButton OptionBoth{this, "OptionBoth", Shivaji(u"  &3 daonhI")};
    OptionGroup shift{&OptionMorning, &OptionEvening, &OptionBoth};
    PlainField txtAfter{this, "txtAfter"};
    std::string clicked; // the first letters of the options that told of a click

    std::string Chosen() const { return shift.Chosen() ? shift.Chosen()->Name().toStdString() : ""; }
    std::string Values() const
    {
        return QString(OptionMorning.Text() + OptionEvening.Text() + OptionBoth.Text()).toStdString();
    }
    static QRadioButton& Radio(const OptionButton& option)
    {
        return *static_cast<QRadioButton*>(option.Widget());
    }
};

class OptionButtonTest : public FormsTest {
protected:
    void AtOptions(const std::function<void(OptionScreen&)>& script)
    {
        Open<OptionScreen>([](OptionScreen& screen) { screen.OptionMorning.Choose(); }, script);
        EXPECT_FALSE(Failure);
    }

    void ClickOn(const OptionButton& option)
    {
        Do([&] {
            QWidget& widget = *option.Widget();
            const QPointF at(8, widget.height() / 2.0);
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&widget, &event);
            }
        });
    }
};

TEST_F(OptionButtonTest, OneOfAGroupIsChosenAndTheOthersAreNot)
{
    AtOptions([this](OptionScreen& screen) {
        EXPECT_EQ(screen.Values(), "100");
        Do([&] { screen.OptionBoth.Choose(); });
        EXPECT_EQ(screen.Values(), "001");
        EXPECT_TRUE(screen.OptionBoth.Chosen());
        EXPECT_FALSE(screen.Radio(screen.OptionMorning).isChecked());
        EXPECT_TRUE(screen.Radio(screen.OptionBoth).isChecked());
        EXPECT_EQ(screen.clicked, "");
    });
}

TEST_F(OptionButtonTest, TabStopsAtTheChosenOneOnlyAndEnterGoesOn)
{
    AtOptions([this](OptionScreen& screen) {
        Do([&] { screen.OptionEvening.Choose(); });
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "OptionEvening");
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "txtAfter");
        EXPECT_EQ(screen.clicked, "");
    });
}

TEST_F(OptionButtonTest, BeforeOneIsChosenTabStopsAtTheFirstAndSpaceChoosesIt)
{
    Open<OptionScreen>([](OptionScreen&) {},
        [this](OptionScreen& screen) {
            EXPECT_EQ(screen.Chosen(), "");
            Type("{TAB}");
            EXPECT_EQ(FocusName(), "OptionMorning");
            EXPECT_EQ(screen.Chosen(), "");
            Type(" ");
            EXPECT_EQ(screen.Chosen(), "OptionMorning");
            EXPECT_EQ(screen.clicked, "M");
            Type(" ");
            EXPECT_EQ(screen.clicked, "M");
        });
}

TEST_F(OptionButtonTest, TheArrowsChooseTheNeighbourAndGoAroundTheEnds)
{
    AtOptions([this](OptionScreen& screen) {
        Type("{TAB}{Down}");
        EXPECT_EQ(FocusName(), "OptionEvening");
        EXPECT_EQ(screen.Chosen(), "OptionEvening");
        Type("{Right}{Down}{Up}{Left}");
        EXPECT_EQ(screen.clicked, "EBMBE");
        EXPECT_EQ(FocusName(), "OptionEvening");
    });
}

TEST_F(OptionButtonTest, AnOptionThatCannotBeChosenIsSteppedOver)
{
    AtOptions([this](OptionScreen& screen) {
        Do([&] { screen.OptionEvening.SetEnabled(false); });
        Type("{TAB}{Down}");
        EXPECT_EQ(screen.Chosen(), "OptionBoth");
        Type("%k");
        EXPECT_EQ(screen.Chosen(), "OptionBoth");
    });
}

TEST_F(OptionButtonTest, AltAndItsLetterOrFigureChooseItFromAnywhere)
{
    AtOptions([this](OptionScreen& screen) {
        Type("%k");
        EXPECT_EQ(FocusName(), "OptionEvening");
        EXPECT_EQ(screen.Chosen(), "OptionEvening");
        Type("{TAB}%3");
        EXPECT_EQ(screen.Chosen(), "OptionBoth");
        EXPECT_EQ(screen.clicked, "EB");
    });
}

TEST_F(OptionButtonTest, TheMouseChoosesItAndAClickOnTheChosenOneLeavesItChosen)
{
    AtOptions([this](OptionScreen& screen) {
        ClickOn(screen.OptionEvening);
        EXPECT_EQ(screen.Values(), "010");
        EXPECT_EQ(FocusName(), "OptionEvening");
        ClickOn(screen.OptionEvening);
        EXPECT_EQ(screen.Values(), "010");
        EXPECT_TRUE(screen.Radio(screen.OptionEvening).isChecked());
        EXPECT_EQ(screen.clicked, "E");
    });
}

TEST_F(OptionButtonTest, ItsCaptionShowsTheLetterOfItsKeyAndAFigureOnlyOnce)
{
    AtOptions([](OptionScreen& screen) {
        EXPECT_EQ(screen.Radio(screen.OptionMorning).text(), "सकाळ  (S)");
        EXPECT_EQ(screen.Radio(screen.OptionBoth).text(), "३ दोन्ही");
        EXPECT_EQ(screen.Radio(screen.OptionMorning).accessibleName(), "सकाळ");
    });
}

TEST_F(OptionButtonTest, AClearedGroupHasNoneChosenAndStopsAtItsFirst)
{
    AtOptions([this](OptionScreen& screen) {
        Do([&] { screen.OptionBoth.Choose(), screen.shift.Clear(); });
        EXPECT_EQ(screen.Chosen(), "");
        EXPECT_EQ(screen.Values(), "000");
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "OptionMorning");
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "txtAfter");
        EXPECT_EQ(screen.clicked, "");
    });
}

}
