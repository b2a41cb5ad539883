#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/CheckBox.h"
#include "platform/forms/ChoiceCombo.h"
#include "platform/forms/DateField.h"
#include "platform/forms/MenuList.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/OptionButton.h"

#include <QVBoxLayout>

namespace {

// A screen that names the function of each control where it declares it.
class Declared final : public Screen {
public:
    Declared() : Screen("Declared")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls())
            column->addWidget(control->Widget());
        lstPlaces.SetEntries({Plain(u"Place")});
        lstPlaces.SetCurrentIndex(0);
    }

    QStringList Answered;

private:
    DateField MaskDate{this, "MaskDate", &Declared::MaskDate_LostFocus};
    NumberField txtNo{this, "txtNo", NumberField::Digits::Whole, &Declared::txtNo_LostFocus};
    NameCombo ComboName{this, "ComboName", &Declared::ComboName_LostFocus};
    TextField txtAddress{this, "txtAddress", &Declared::txtAddress_LostFocus};
    ChoiceField txtTime{this, "txtTime", {{u'1', "sakaL"}}, &Declared::txtTime_LostFocus};
    ChoiceCombo ComboPrint{this, "ComboPrint", {"haoya"}, &Declared::ComboPrint_LostFocus};
    NumberField txtBare{this, "txtBare", NumberField::Digits::Whole};
    CheckBox CheckRepeat{this, "CheckRepeat", Plain(u"Repeat"), &Declared::CheckRepeat_Click};
    OptionButton OptionBoth{this, "OptionBoth", Plain(u"Both"), &Declared::OptionBoth_Click};
    OptionGroup shift{&OptionBoth};
    Button cmdGo{this, "cmdGo", Plain(u"&Go"), &Declared::cmdGo_Click};
    MenuList lstPlaces{this, "lstPlaces", &Declared::lstPlaces_Chosen};

    void Enter() override { lstPlaces.Choose(); }

    void MaskDate_LostFocus() { Answered.append("date"); }
    void txtNo_LostFocus() { Answered.append("number"); }
    void ComboName_LostFocus() { Answered.append("name"); }
    void txtAddress_LostFocus() { Answered.append("text"); }
    void txtTime_LostFocus() { Answered.append("choice"); }
    void ComboPrint_LostFocus() { Answered.append("list"); }
    void CheckRepeat_Click() { Answered.append("box"); }
    void OptionBoth_Click() { Answered.append("option"); }
    void cmdGo_Click() { Answered.append("button"); }
    void lstPlaces_Chosen() { Answered.append("entry"); }
};

class HandlersTest : public FormsTest { };

}

TEST_F(HandlersTest, TheFunctionNamedAtTheDeclarationAnswersTheUsualEventOfItsControl)
{
    Open<Declared>([](Declared&) {},
        [&](Declared& screen) {
            Type("{TAB}{TAB}{TAB}{TAB}{TAB}{TAB}{TAB} {TAB} {TAB} {TAB}{ENTER}");
            EXPECT_EQ(screen.Answered.join(u' ').toStdString(),
                "date number name text choice list box option button entry");
        });
    EXPECT_FALSE(Failure);
}
