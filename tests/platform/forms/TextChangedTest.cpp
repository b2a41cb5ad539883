#include "tests/platform/forms/FieldTest.h"

#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"

namespace {

// Every kind of field tells a change of its text, whoever makes it, with the new text in place.
class ChangeScreen : public Screen {
public:
    ChangeScreen() : Screen("ChangeScreen")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls()) {
            column->addWidget(control->Widget());
            auto& field = dynamic_cast<Field&>(*control);
            field.TextChanged = [this, &field] { told += field.Text().toStdString() + ";"; };
        }
        resize(400, 400);
    }

    NumberField txtNumber{this, "txtNumber", NumberField::Digits::Decimals};
    ChoiceField txtChoice{this, "txtChoice", {{u'1', "gaaya"}, {u'2', "mhOsa"}}};
    NameCombo cmbName{this, "cmbName"};
    DateField maskDate{this, "maskDate"};
    PlainField txtPlain{this, "txtPlain"};
    std::string told;
};

class TextChangedTest : public FormsTest {
protected:
    void With(const std::function<void(ChangeScreen&)>& script)
    {
        Open<ChangeScreen>([](ChangeScreen& screen) { screen.cmbName.SetItems({"rama", "saIta"}); }, script);
        EXPECT_FALSE(Failure);
    }

    // What was told since the last call.
    static std::string Told(ChangeScreen& screen) { return std::exchange(screen.told, {}); }
};

TEST_F(TextChangedTest, ANumberTellsEachKeyThatChangesIt)
{
    With([&](ChangeScreen& screen) {
        Type("4.a5{BS}{LEFT}{DEL}");
        EXPECT_EQ(Told(screen), "4;4.;4.5;4.;4;");
        Paste("12");
        EXPECT_EQ(Told(screen), "412;");
    });
}

TEST_F(TextChangedTest, AChoiceTellsItsWordOnce)
{
    With([&](ChangeScreen& screen) {
        Type("{TAB}1132{BS}{BS}");
        EXPECT_EQ(Told(screen), "gaaya;mhOsa;;");
    });
}

TEST_F(TextChangedTest, ANameTellsTypingAndPicking)
{
    With([&](ChangeScreen& screen) {
        Type("{TAB}{TAB}ra{BS}");
        EXPECT_EQ(Told(screen), "r;ra;r;");
        Type("{DOWN}{DOWN}");
        EXPECT_EQ(Told(screen), "rama;saIta;");
        Compose("राम");
        EXPECT_EQ(Told(screen), "rama;");
    });
}

TEST_F(TextChangedTest, ADateAndAPlainTextTellTheirsToo)
{
    With([&](ChangeScreen& screen) {
        Type("{TAB}{TAB}{TAB}1{BS}{BS}");
        EXPECT_EQ(Told(screen), "1_/__/____;__/__/____;");
        Type("{TAB}ab");
        EXPECT_EQ(Told(screen), "a;ab;");
    });
}

TEST_F(TextChangedTest, TheScreensOwnChangesAreToldAndTheSameTextIsNone)
{
    With([&](ChangeScreen& screen) {
        Do([&] {
            for (int twice = 0; twice < 2; ++twice) {
                screen.txtNumber.SetText("7");
                screen.txtChoice.SetText("mhOsa");
                screen.cmbName.SetText("rama");
                screen.maskDate.SetText("01/04/2026");
                screen.txtPlain.SetText("x");
            }
        });
        EXPECT_EQ(Told(screen), "7;mhOsa;rama;01/04/2026;x;");
        Do([&] {
            screen.txtNumber.Clear();
            screen.cmbName.Clear();
            screen.maskDate.Clear();
        });
        EXPECT_EQ(Told(screen), ";;__/__/____;");
    });
}

TEST_F(TextChangedTest, AFailureInItEndsTheScreen)
{
    Open<ChangeScreen>(
        [](ChangeScreen& screen) {
            screen.txtNumber.TextChanged = [] { throw RunTimeError(RunTimeError::Overflow, "too much"); };
        },
        [&](ChangeScreen&) { Type("4"); });
    EXPECT_TRUE(Failure);
}

}
