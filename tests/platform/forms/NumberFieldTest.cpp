#include "tests/platform/forms/FieldTest.h"

#include <QClipboard>
#include <QGuiApplication>

#include <tuple>

namespace {

class NumberFieldTest : public FieldTest<NumberField> {
protected:
    static std::unique_ptr<NumberField> Decimals(Screen* screen)
    {
        return std::make_unique<NumberField>(screen, "txtLiters", NumberField::Digits::Decimals);
    }
    static std::unique_ptr<NumberField> Whole(Screen* screen)
    {
        return std::make_unique<NumberField>(screen, "txtMemberNo", NumberField::Digits::Whole);
    }
};

TEST_F(NumberFieldTest, TakesDigitsAndThePointAndDropsTheRest)
{
    With(Decimals, [&](NumberField& field) {
        EXPECT_EQ(Typed(field, "12.5"), "12.5");
        EXPECT_EQ(Typed(field, "a1b2'-{+},/ e3"), "123");
        EXPECT_EQ(Typed(field, ".5"), ".5");
    });
}

TEST_F(NumberFieldTest, ItReadsTheNumberThatItsTextBeginsWith)
{
    With(Decimals, [&](NumberField& field) {
        for (const auto& [text, value, isNumber] : {std::tuple("12.50", 12.5, true), {"", 0.0, false},
                 {".", 0.0, false}, {"1.2.3", 1.2, false}, {"007", 7.0, true}}) {
            Do([&field, text = text] { field.SetText(Q(text)); });
            EXPECT_EQ(field.Value(), value) << text;
            EXPECT_EQ(field.HoldsNumber(), isNumber) << text;
        }
    });
}

TEST_F(NumberFieldTest, ItShowsANumberInItsPatternAndWithoutOneInItsShortestForm)
{
    With([](Screen* screen) { return std::make_unique<NumberField>(screen, "txtRate", u"#0.00"); },
        [&](NumberField& field) {
            Do([&field] { field.Show(1234567.005); });
            EXPECT_EQ(Text(field), "1234567.01") << "the # before the point set no limit";
            EXPECT_EQ(Typed(field, "3.456"), "3.456");
            double typed = 0;
            Do([&] { typed = field.Reformat(); });
            EXPECT_EQ(typed, 3.456) << "as it was typed";
            EXPECT_EQ(Text(field), "3.46");
        });
    With(Whole, [&](NumberField& field) {
        Do([&field] { field.Show(12); });
        EXPECT_EQ(Text(field), "12");
    });
}

TEST_F(NumberFieldTest, AWholeNumberTakesNoPoint)
{
    With(Whole, [&](NumberField& field) {
        EXPECT_EQ(Typed(field, "12.5"), "125");
        EXPECT_EQ(Typed(field, "-7"), "7");
    });
}

TEST_F(NumberFieldTest, ASecondPointIsTakenAsItIsTyped)
{
    With(Decimals, [&](NumberField& field) { EXPECT_EQ(Typed(field, "1.2.3"), "1.2.3"); });
}

TEST_F(NumberFieldTest, TheCommaOfTheNumericPadIsAPoint)
{
    With(Decimals, [&](NumberField& field) {
        const auto comma = [&](Qt::KeyboardModifiers modifiers) {
            Do([&field, modifiers] {
                QKeyEvent key(QEvent::KeyPress, Qt::Key_Comma, modifiers, ",");
                QCoreApplication::sendEvent(field.Widget(), &key);
            });
        };
        Type("4");
        comma(Qt::NoModifier);
        EXPECT_EQ(Text(field), "4");
        comma(Qt::KeypadModifier);
        Type("5");
        EXPECT_EQ(Text(field), "4.5");
    });
}

TEST_F(NumberFieldTest, DevanagariDigitsBecomeWesternOnes)
{
    With(Decimals, [&](NumberField& field) {
        EXPECT_EQ(Typed(field, "१२.५"), "12.5");
        EXPECT_EQ(Composed(field, "३४"), "34");
        EXPECT_EQ(Composed(field, "क"), "");
    });
}

TEST_F(NumberFieldTest, PastingKeepsTheFigures)
{
    With(Decimals, [&](NumberField& field) {
        EXPECT_EQ(Pasted(field, " Rs 1,234.50\n"), "1234.50");
        EXPECT_EQ(Pasted(field, "१२"), "12");
        EXPECT_EQ(Pasted(field, "abc"), "");
    });
}

TEST_F(NumberFieldTest, PastingDecimalsIntoAWholeNumberCutsThemOff)
{
    With(Whole, [&](NumberField& field) { EXPECT_EQ(Pasted(field, "12.50"), "12"); });
}

TEST_F(NumberFieldTest, NothingLongerThanItsLengthCanBeTypedOrPasted)
{
    With(Whole, [&](NumberField& field) {
        Do([&] { field.SetMaxLength(4); });
        EXPECT_EQ(Typed(field, "123456"), "1234");
        EXPECT_EQ(Pasted(field, "987654"), "9876");
        Do([&] { field.SetMaxLength(0); });
        EXPECT_EQ(Typed(field, "1234567890"), "1234567890");
    });
}

TEST_F(NumberFieldTest, WhatIsShownMayBeLongerThanWhatCanBeTyped)
{
    With(Decimals, [&](NumberField& field) {
        Do([&] {
            field.SetMaxLength(4);
            field.SetText("22.9333319");
        });
        EXPECT_EQ(Text(field), "22.9333319");
        Type("{END}7");
        EXPECT_EQ(Text(field), "22.9333319") << "and no longer";
        EnterAnew();
        Type("98765");
        EXPECT_EQ(Text(field), "9876");
    });
}

TEST_F(NumberFieldTest, EntrySelectsTheWholeTextAndTheNextFigureReplacesIt)
{
    With(Decimals, [&](NumberField& field) {
        Type("12.5");
        EXPECT_EQ(Selected(field), "");
        EnterAnew();
        EXPECT_EQ(Selected(field), "12.5");
        Type("7");
        EXPECT_EQ(Text(field), "7");
    });
}

TEST_F(NumberFieldTest, ADroppedKeyLeavesTheSelectedTextAlone)
{
    With(Whole, [&](NumberField& field) {
        Type("12");
        EnterAnew();
        Type("a.");
        EXPECT_EQ(Text(field), "12");
        Paste("abc");
        EXPECT_EQ(Text(field), "12");
        EXPECT_EQ(Selected(field), "12");
    });
}

TEST_F(NumberFieldTest, TheEditingKeysWork)
{
    With(Decimals, [&](NumberField& field) {
        EXPECT_EQ(Typed(field, "125{BS}"), "12");
        EXPECT_EQ(Typed(field, "125{Left}{Left}{DEL}"), "15");
        EXPECT_EQ(Typed(field, "25{Home}1{End}6"), "1256");
        EXPECT_EQ(Typed(field, "125{Home}+{Right}+{Right}9"), "95");
        EXPECT_EQ(Typed(field, "125^a7"), "7");
    });
}

TEST_F(NumberFieldTest, CopyingTakesWhatIsSelected)
{
    With(Decimals, [&](NumberField&) {
        Type("12.5^a^c");
        Do([] { EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "12.5"); });
    });
}

TEST_F(NumberFieldTest, AThousandFiguresAreHeld)
{
    With(Decimals, [&](NumberField& field) {
        const std::string figures(1000, '7');
        EXPECT_EQ(Pasted(field, figures.c_str()), figures);
    });
}

TEST_F(NumberFieldTest, TheTextIsSetAsItIsAndStandsAtTheRight)
{
    With(Decimals, [&](NumberField& field) {
        Do([&] { field.SetText("24.350"); });
        EXPECT_EQ(Text(field), "24.350");
        EXPECT_EQ(Seen(field), "24.350");
        EXPECT_TRUE(Line(field).alignment().testFlag(Qt::AlignRight));
    });
}

class ChoiceFieldTest : public FieldTest<ChoiceField> {
protected:
    static std::unique_ptr<ChoiceField> Animal(Screen* screen)
    {
        return std::make_unique<ChoiceField>(screen, "txtAnimal",
            std::vector<ChoiceField::Choice>{{u'1', "gaaya"}, {u'2', "mhOsa"}, {u'3', "daonhI"}});
    }
};

TEST_F(ChoiceFieldTest, ADigitPutsItsWordAndLeavesTheFocusInTheField)
{
    With(Animal, [&](ChoiceField& field) {
        Type("1");
        EXPECT_EQ(Text(field), "gaaya");
        EXPECT_EQ(Seen(field), "गाय");
        EXPECT_EQ(FocusName(), "txtAnimal");
        Type("2");
        EXPECT_EQ(Text(field), "mhOsa");
        EXPECT_EQ(Seen(field), "म्हैस");
    });
}

TEST_F(ChoiceFieldTest, OtherKeysAreDropped)
{
    With(Animal, [&](ChoiceField& field) {
        EXPECT_EQ(Typed(field, "0459ag. {DEL}"), "");
        EXPECT_EQ(Typed(field, "3x4{DEL}{Home}{Left}"), "daonhI");
        EXPECT_EQ(Pasted(field, "1"), "");
    });
}

TEST_F(ChoiceFieldTest, BackspaceEmptiesItUnlessItIsLocked)
{
    With(Animal, [&](ChoiceField& field) {
        EXPECT_EQ(Typed(field, "1{BS}"), "");
        EXPECT_EQ(Seen(field), "");
        Do([&] { field.SetLocked(true); });
        EXPECT_EQ(Typed(field, "1{BS}"), "gaaya");
        EXPECT_EQ(Typed(field, "1{BS}2"), "mhOsa");
    });
}

TEST_F(ChoiceFieldTest, DevanagariDigitsChooseAsWell)
{
    With(Animal, [&](ChoiceField& field) {
        EXPECT_EQ(Typed(field, "२"), "mhOsa");
        EXPECT_EQ(Composed(field, "३"), "daonhI");
        EXPECT_EQ(Composed(field, "क"), "");
    });
}

TEST_F(ChoiceFieldTest, EnterTabAndShiftTabPass)
{
    With(Animal, [&](ChoiceField&) {
        Type("1{ENTER}");
        EXPECT_EQ(FocusName(), "next");
        Type("+{TAB}");
        EXPECT_EQ(FocusName(), "txtAnimal");
    });
}

TEST_F(ChoiceFieldTest, AWordThatIsNoChoiceCanBeSetByTheScreen)
{
    With(Animal, [&](ChoiceField& field) {
        Do([&] { field.SetText("roKD"); });
        EXPECT_EQ(Text(field), "roKD");
    });
}

class PlainFieldTest : public FieldTest<PlainField> {
protected:
    static std::unique_ptr<PlainField> Make(Screen* screen)
    {
        return std::make_unique<PlainField>(screen, "txtEnglish");
    }
};

TEST_F(PlainFieldTest, EveryChangeByTheClerkIsToldAndNoneByTheScreen)
{
    With(Make, [&](PlainField& field) {
        int changes = 0;
        Do([&] { field.Change = [&] { ++changes; }; });
        Type("ab{Left}c");
        EXPECT_EQ(Text(field), "acb");
        EXPECT_EQ(changes, 3);
        Type("{BS}{DEL}");
        EXPECT_EQ(Text(field), "a");
        EXPECT_EQ(changes, 5);
        Paste("xyz");
        Compose("w");
        EXPECT_EQ(Text(field), "axyzw");
        EXPECT_EQ(changes, 7);
        Do([&] { field.SetText("new"); });
        EXPECT_EQ(changes, 7);
    });
}

TEST_F(PlainFieldTest, LettersAreSeenAsTheyAreTyped)
{
    With(Make, [&](PlainField& field) {
        EXPECT_EQ(Typed(field, "gaaya 12"), "gaaya 12");
        EXPECT_EQ(Seen(field), "gaaya 12");
    });
}

TEST_F(NumberFieldTest, APressOfTheMouseSelectsItAllAndItsMovesChangeNothing)
{
    With(Decimals, [&](NumberField& field) {
        for (const char* before : {"{TAB}", "", "{Home}"}) {
            Do([&] { field.SetText("12.5"); });
            Type(before);
            Do([&] {
                QLineEdit& line = Line(field);
                const auto mouse = [&](QEvent::Type type, const QPointF& at, Qt::MouseButtons held) {
                    QMouseEvent event(type, at, line.mapToGlobal(at),
                        type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
                    QCoreApplication::sendEvent(&line, &event);
                };
                mouse(QEvent::MouseButtonPress, line.rect().center(), Qt::LeftButton);
                mouse(QEvent::MouseMove, {2, 2}, Qt::LeftButton);
                mouse(QEvent::MouseButtonRelease, {2, 2}, Qt::NoButton);
            });
            EXPECT_EQ(FocusName(), "txtLiters") << "after " << before;
            EXPECT_EQ(Selected(field), "12.5") << "after " << before;
        }
        Type("7");
        EXPECT_EQ(Text(field), "7");
    });
}

TEST_F(NumberFieldTest, ItTakesTheLetterNWhereTheScreenLetsItThrough)
{
    With([](Screen* screen) { return std::make_unique<NumberField>(screen, "txtUchal", u"######0.00"); },
        [&](NumberField& field) {
            EXPECT_EQ(Typed(field, "1n2"), "12");
            Do([&field] { field.TakeLetterN(); });
            EXPECT_EQ(Typed(field, "1n2Nab"), "1n2");
            EXPECT_EQ(field.Value(), 1);
            EXPECT_FALSE(field.HoldsNumber());
            Do([&field] { field.Reformat(); });
            EXPECT_EQ(Text(field), "1.00");
            EXPECT_EQ(Typed(field, "n"), "n");
            EXPECT_EQ(field.Value(), 0);
        });
}

}
