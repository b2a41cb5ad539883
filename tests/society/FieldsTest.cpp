#include "tests/support/SocietyTest.h"

#include "platform/forms/Screen.h"
#include "society/Fields.h"

namespace {

class Figures final : public Screen {
public:
    Figures() : Screen("Figures") { }

    LitresField txtLiters{this, "txtLiters"};
    LitresField txtGateLiters{this, "txtGateLiters", u"########0.00"};
    FatField txtFat{this, "txtFat"};
    RateField txtRate{this, "txtRate"};
    MoneyField txtAmount{this, "txtAmount"};
    WholeField txtMemberNo{this, "txtMemberNo"};
};

class FieldsTest : public SocietyTest { };

}

TEST_F(FieldsTest, EachKindShowsItsFigureWithItsOwnDecimalsOrInAPatternOfTheScreens)
{
    Figures screen;
    QStringList shown;
    for (NumberField* field : std::initializer_list<NumberField*>{&screen.txtLiters, &screen.txtGateLiters,
             &screen.txtFat, &screen.txtRate, &screen.txtAmount, &screen.txtMemberNo}) {
        field->Show(1234.5);
        shown.append(field->Text());
    }
    EXPECT_EQ(shown.join(u' ').toStdString(), "1234.500 1234.50 1234.5 1234.50 1234.50 1234.5");
}

namespace {

class Choices final : public Screen {
public:
    Choices() : Screen("Choices") { }

    ShiftField txtTime{this, "txtTime"};
    AnimalField txtAnimal{this, "txtAnimal"};
    ChoiceField txtAnyAnimal{this, "txtAnyAnimal", ChoicesOf({Word::Cow, Word::Buffalo, Word::Both})};
};

}

TEST_F(FieldsTest, TheGuideOfAChoiceNamesEachFigureWithItsWord)
{
    Choices screen;
    EXPECT_EQ(screen.txtTime.Guide().Text(), "  1 ¹ sakaL    2 ¹ saMQyaakaL");
    EXPECT_EQ(screen.txtAnimal.Guide().Text(), "  1 ¹ gaaya    2 ¹ mhOsa");
    EXPECT_EQ(screen.txtAnyAnimal.Guide().Text(), "1 ¹ gaaya    2 ¹ mhOsa    3 ¹ daonhI");
    screen.txtAnyAnimal.SetGuide(Plain(u"1 ते 3"));
    EXPECT_EQ(screen.txtAnyAnimal.Guide().Text(), "1 ते 3");
}
