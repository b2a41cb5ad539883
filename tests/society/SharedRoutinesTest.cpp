#include "tests/support/SocietyTest.h"

#include "core/menu/CommonKeys.h"
#include "core/menu/Keys.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "society/FieldRoutines.h"

#include <QKeyEvent>

namespace {

class frmProbe final : public Screen {
public:
    frmProbe() : Screen("frmProbe")
    {
        MaskDate.LostFocus = [this] { CheckDateField(MaskDate, DateBad); };
    }

    NameCombo ComboName{this, "ComboName"};
    DateField MaskDate{this, "MaskDate"};
    NumberField txtNumber{this, "txtNumber", NumberField::Digits::Whole};
    int DateBad = -1;

    bool KeyDown(const QKeyEvent& key) override
    {
        return Keys::Answer(*this,
            {CommonKeys::CalculatorKey(&frmProbe::StartCalculator),
                CommonKeys::TutorKey(&frmProbe::ShowTutor)},
            key);
    }

    void StartCalculator() { CommonKeys::Calculator(); }
    void ShowTutor() { CommonKeys::Tutor(); }
};

using SharedRoutinesTest = SocietyTest;

}

TEST_F(SharedRoutinesTest, FillComboTakesOneColumnInTheOrderOfTheQuery)
{
    Run("delete * from CityMaster");
    for (const char* city : {"vaa[-", "pauNao", "sataara"})
        Run(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                .arg(QLatin1String(city)));
    On<frmProbe>([](Clerk& clerk) {
        NameCombo& combo = clerk.On<frmProbe>().ComboName;
        clerk.Do(
            [&] { FillCombo(combo, u"CityMaster", u"CityName", u"where CompanyId=1 ORDER BY CityName"); });
        EXPECT_EQ(combo.Items(), QStringList({"pauNao", "sataara", "vaa[-"}));
        clerk.Do([&] { FillCombo(combo, u"CityMaster", u"CityName", u"where CompanyId=2"); });
        EXPECT_TRUE(combo.Items().isEmpty()) << "the list is cleared first";
    });
}

TEST_F(SharedRoutinesTest, CheckDateFieldClearsABadDateAndHoldsTheFocusWithoutAMessage)
{
    On<frmProbe>([](Clerk& clerk) {
        Type(clerk, "{TAB}31022026{TAB}");
        EXPECT_EQ(OnTop(clerk), "frmProbe");
        EXPECT_EQ(Focus(clerk), "MaskDate");
        EXPECT_EQ(Reads(clerk, "MaskDate"), "__/__/____");
        EXPECT_EQ(clerk.On<frmProbe>().DateBad, 1);
        Type(clerk, "28022026{TAB}");
        EXPECT_EQ(clerk.On<frmProbe>().DateBad, 0);
        EXPECT_EQ(Focus(clerk), "txtNumber");
    });
}

TEST_F(SharedRoutinesTest, SelectFieldTextSelectsWhatTheFocusHoldsSoThatTypingReplacesIt)
{
    On<frmProbe>([](Clerk& clerk) {
        Type(clerk, "{TAB}01042026{TAB}123{END}");
        clerk.Do([] { SelectFieldText(); });
        Type(clerk, "9");
        EXPECT_EQ(Reads(clerk, "txtNumber"), "9");
    });
}

TEST_F(SharedRoutinesTest, F2StartsTheCalculatorOfAppFolderMaximised)
{
    On<frmProbe>([](Clerk& clerk) { Type(clerk, "{F2}"); });
    EXPECT_EQ(TheCalculator.Started, QStringList("C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"));
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(SharedRoutinesTest, WithoutAnyCalculatorAPlainMessageSaysSo)
{
    TheCalculator.There = false;
    On<frmProbe>([](Clerk& clerk) { Type(clerk, "{F2}"); });
    EXPECT_EQ(TheBox.Shown, QStringList("या संगणकावर कॅलक्युलेटर सापडला नाही."));
}
