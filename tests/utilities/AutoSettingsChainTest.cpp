#include "tests/utilities/AutoSettingsTest.h"

namespace {

class AutoSettingsChainTest : public AutoSettingsTest {
protected:
    // Enters a control, gives it a text, and leaves it with Enter. Returns where the focus is then.
    static QString Leave(Clerk& clerk, const char* control, const char* text)
    {
        GoTo(clerk, control);
        Put(clerk, control, text);
        clerk.Type("{ENTER}");
        return Focus(clerk);
    }
};

// A choice, the field before it, and where Enter leads.
struct Choice {
    const char* combo;
    const char* before;
    const char* next;
    const char* word;
};
constexpr Choice Choices[] = {{"ComboAutoFat", "ComboAutoLiters", "ComboPrintStatus", "haoya"},
    {"ComboPrintStatus", "ComboAutoFat", "txtCowLimit", "haoya"},
    {"ComboReceipt", "txtBuffLimit", "CheckRepeatCol", "Tašp 8"},
    {"ComboMSRPrintStatus", "txtMixSaleRate", "CmdSave", "saovh"}};

// A figure that must not be 0, the field before it, and where Enter leads.
struct Figure {
    const char* field;
    const char* before;
    const char* next;
    const char* zero;
    const char* shown; // what "12.3456" becomes
};
constexpr Figure Figures[] = {{"txtCowLimit", "ComboPrintStatus", "txtBuffLimit", "0.000", "12.346"},
    {"txtBuffLimit", "txtCowLimit", "ComboReceipt", "0.000", "12.346"},
    {"txtBuffSaleRate", "txtCowSaleRate", "txtMixSaleRate", "0.00", "12.35"},
    {"txtMixSaleRate", "txtBuffSaleRate", "CmdSave", "0.00", "12.35"}};

}

TEST_F(AutoSettingsChainTest, EnterLeadsFromTheFirstFieldToTheSaveButton)
{
    Settings([&](Clerk& clerk) {
        const char* way[] = {"ComboAutoLiters", "ComboAutoFat", "ComboPrintStatus", "txtCowLimit",
            "txtBuffLimit", "ComboReceipt", "CheckRepeatCol", "ComboPaymentDuration", "txtCow", "txtBuff",
            "txtCowSaleRate", "txtBuffSaleRate", "txtMixSaleRate", "CmdSave"};
        for (const char* control : way) {
            EXPECT_EQ(Focus(clerk), Q(control));
            clerk.Type(Q(Focus(clerk) == u"CmdSave" ? "" : "{ENTER}"));
        }
        EXPECT_EQ(Page(clerk), "1");
        clerk.Type("{TAB}{TAB}{TAB}");
        EXPECT_EQ(Focus(clerk), "cmdReceipt");
        clerk.Type("{TAB}");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
    });
}

TEST_F(AutoSettingsChainTest, TheRestOfThePaymentPageIsWalkedInItsOrder)
{
    for (const char* figures : {"{ENTER}", "{ENTER}{ENTER}"}) {
        Settings([&](Clerk& clerk) {
            clerk.Type("^{PGDN}");
            clerk.Type(Q(figures));
            EXPECT_TRUE(Guide(clerk).contains("↓ : दराचा प्रकार व पुढील प्रश्न")) << figures;
            clerk.Type("{DOWN}");
            EXPECT_EQ(Focus(clerk), "cmbFatRateType") << figures;
            for (const char* control : {"CheckCNP", "CheckSNU", "OptionPayIt"}) {
                clerk.Type("{ENTER}");
                EXPECT_EQ(Focus(clerk), Q(control));
            }
            clerk.Type("{DOWN}");
            EXPECT_EQ(Focus(clerk), "OptionDiscount");
            EXPECT_EQ(Reads(clerk, "OptionDiscount"), "1");
            clerk.Type("{ENTER}");
            EXPECT_EQ(Focus(clerk), "CmdSave");
            EXPECT_EQ(Page(clerk), "2");
        });
    }
}

TEST_F(AutoSettingsChainTest, TheFiguresGuideNamesBothWaysOn)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "txtCow");
        EXPECT_EQ(Guide(clerk), "↓ : दराचा प्रकार व पुढील प्रश्न");
        clerk.Type("{ENTER}");
        EXPECT_EQ(Guide(clerk), "Enter : दूध विक्री    ↓ : दराचा प्रकार व पुढील प्रश्न");
        clerk.Type("{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCowSaleRate");
    });
}

TEST_F(AutoSettingsChainTest, TheTabThatIsPressedOnceMoreSaysWhereItsOwnPageGoesOn)
{
    Settings([&](Clerk& clerk) {
        PressTab(clerk, 1);
        EXPECT_EQ(Focus(clerk), "SSTab");
        EXPECT_EQ(Guide(clerk), QString());
        PressTab(clerk, 2);
        EXPECT_EQ(Focus(clerk), "ComboPaymentDuration");
        PressTab(clerk, 2);
        EXPECT_EQ(Focus(clerk), "SSTab");
        EXPECT_EQ(Guide(clerk), "Enter : पेमेंट कालावधी    ↓ : दराचा प्रकार व पुढील प्रश्न");
        clerk.Type("{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboPaymentDuration");
        PressTab(clerk, 2);
        clerk.Type("{DOWN}");
        EXPECT_EQ(Focus(clerk), "cmbFatRateType");
        clerk.Type("^{PGDN}");
        EXPECT_EQ(Focus(clerk), "SSTab");
        EXPECT_EQ(Guide(clerk), "Enter : दर    ↓ : विक्री पावती/प्रिंट");
    });
}

TEST_F(AutoSettingsChainTest, TheFirstChoiceIsNeverLeftEmpty)
{
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Leave(clerk, "ComboAutoLiters", ""), "ComboAutoLiters");
        EXPECT_EQ(Leave(clerk, "ComboAutoLiters", "saovh"), "ComboAutoLiters");
        EXPECT_EQ(Reads(clerk, "ComboAutoLiters"), QString());
        EXPECT_EQ(Leave(clerk, "ComboAutoLiters", "haoya"), "ComboAutoFat");
    });
}

TEST_F(AutoSettingsChainTest, AnEmptyChoiceTakesTheFocusAgain)
{
    for (const Choice& choice : Choices) {
        Settings([&](Clerk& clerk) {
            EXPECT_EQ(Leave(clerk, choice.combo, ""), Q(choice.combo));
            clerk.Type("+{TAB}");
            EXPECT_EQ(Focus(clerk), Q(choice.combo)) << "nor is it left backwards";
            Put(clerk, choice.combo, choice.word);
            clerk.Type("{ENTER}");
            EXPECT_EQ(Focus(clerk), Q(choice.next));
        });
    }
}

TEST_F(AutoSettingsChainTest, AChoiceThatHoldsNoneOfItsWordsIsEmptied)
{
    for (const Choice& choice : Choices) {
        Settings([&](Clerk& clerk) {
            EXPECT_EQ(Leave(clerk, choice.combo, "1"), Q(choice.combo));
            EXPECT_EQ(Reads(clerk, choice.combo), QString());
        });
    }
}

TEST_F(AutoSettingsChainTest, AChoiceBehindAnEmptyFieldIsNotChecked)
{
    for (const Choice& choice : Choices) {
        for (const char* text : {"", "1"}) {
            Settings([&](Clerk& clerk) {
                GoTo(clerk, choice.combo);
                Put(clerk, choice.before, "");
                EXPECT_EQ(Leave(clerk, choice.combo, text), Q(choice.next));
                EXPECT_EQ(Reads(clerk, choice.combo), Q(text));
            });
        }
    }
}

TEST_F(AutoSettingsChainTest, AZeroStaysInItsFieldInItsFormat)
{
    for (const Figure& figure : Figures) {
        Settings([&](Clerk& clerk) {
            EXPECT_EQ(Leave(clerk, figure.field, "0"), Q(figure.field));
            EXPECT_EQ(Reads(clerk, figure.field), Q(figure.zero));
            EXPECT_EQ(Leave(clerk, figure.field, ""), Q(figure.field)) << "nothing is a zero";
            EXPECT_EQ(Reads(clerk, figure.field), Q(figure.zero));
        });
    }
}

TEST_F(AutoSettingsChainTest, OtherFiguresAreFormattedAndPassed)
{
    for (const Figure& figure : Figures) {
        Settings([&](Clerk& clerk) {
            EXPECT_EQ(Leave(clerk, figure.field, "12.3456"), Q(figure.next));
            EXPECT_EQ(Reads(clerk, figure.field), Q(figure.shown));
        });
    }
}

TEST_F(AutoSettingsChainTest, AFigureBehindAnEmptyFieldIsNotChecked)
{
    for (const Figure& figure : Figures) {
        Settings([&](Clerk& clerk) {
            GoTo(clerk, figure.field);
            Put(clerk, figure.before, "");
            Put(clerk, figure.field, "0");
            clerk.Type("+{TAB}");
            EXPECT_EQ(Focus(clerk), Q(figure.before)) << "a step back isn't caught";
            EXPECT_EQ(Reads(clerk, figure.field), "0");
        });
    }
}

TEST_F(AutoSettingsChainTest, TheSaleRateOfCowMilkIsNeverZero)
{
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Leave(clerk, "txtCowSaleRate", "0"), "txtCowSaleRate");
        EXPECT_EQ(Reads(clerk, "txtCowSaleRate"), "0.00");
        EXPECT_EQ(Leave(clerk, "txtCowSaleRate", "12.345"), "txtBuffSaleRate");
        EXPECT_EQ(Reads(clerk, "txtCowSaleRate"), "12.35");
    });
}

TEST_F(AutoSettingsChainTest, ThePeriodMustBeChosen)
{
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Leave(clerk, "ComboPaymentDuration", ""), "ComboPaymentDuration");
        EXPECT_EQ(Leave(clerk, "ComboPaymentDuration", "2 idvasa"), "ComboPaymentDuration");
        EXPECT_EQ(Reads(clerk, "ComboPaymentDuration"), QString());
        EXPECT_EQ(Leave(clerk, "ComboPaymentDuration", "7 idvasa"), "txtCow");
    });
}

TEST_F(AutoSettingsChainTest, ADepositOfZeroStaysWhereThePeriodIsChosen)
{
    Settings([&](Clerk& clerk) {
        for (const char* field : {"txtCow", "txtBuff"}) {
            EXPECT_EQ(Leave(clerk, field, "0"), Q(field));
            EXPECT_EQ(Reads(clerk, field), "0.00");
            clerk.Type("1");
        }
    });
}

TEST_F(AutoSettingsChainTest, ADepositOfZeroPassesWithoutAPeriod)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "txtCow");
        Put(clerk, "ComboPaymentDuration", "");
        clerk.Type("0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtBuff");
        clerk.Type("0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCowSaleRate");
        EXPECT_EQ(Reads(clerk, "txtCow"), "0.00");
        EXPECT_EQ(Reads(clerk, "txtBuff"), "0.00");
    });
}

TEST_F(AutoSettingsChainTest, ANegativeDepositStaysEvenWithoutAPeriod)
{
    Settings([&](Clerk& clerk) {
        for (const char* field : {"txtCow", "txtBuff"}) {
            for (const char* period : {"7 idvasa", ""}) {
                GoTo(clerk, field);
                Put(clerk, "ComboPaymentDuration", period);
                EXPECT_EQ(Leave(clerk, field, "-1"), Q(field));
                EXPECT_EQ(Reads(clerk, field), "-1.00");
            }
            Put(clerk, "ComboPaymentDuration", "7 idvasa");
            clerk.Type("1");
        }
    });
}

TEST_F(AutoSettingsChainTest, TheBuffaloDepositLeadsToTheThirdPage)
{
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Leave(clerk, "txtBuff", "0.755"), "txtCowSaleRate");
        EXPECT_EQ(Page(clerk), "3");
        EXPECT_EQ(Reads(clerk, "txtBuff"), "0.76");
    });
}

TEST_F(AutoSettingsChainTest, TheBuffaloDepositBehindAnEmptyOneIsNotChecked)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "txtBuff");
        Put(clerk, "txtCow", "");
        Put(clerk, "txtBuff", "0");
        clerk.Type("+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtCow");
        EXPECT_EQ(Page(clerk), "2");
    });
}

TEST_F(AutoSettingsChainTest, TheBuffaloDepositBehindAnEmptyOneLeadsOnUnchecked)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "txtBuff");
        Put(clerk, "txtCow", "");
        EXPECT_EQ(Leave(clerk, "txtBuff", "0"), "txtCowSaleRate");
        EXPECT_EQ(Page(clerk), "3");
        EXPECT_EQ(Reads(clerk, "txtBuff"), "0");
    });
}

TEST_F(AutoSettingsChainTest, TheBoxOfRepeatedDeliveriesLeadsToTheSecondPage)
{
    for (const char* key : {"{ENTER}", "{TAB}"}) {
        Settings([&](Clerk& clerk) {
            GoTo(clerk, "CheckRepeatCol");
            clerk.Type(Q(key));
            EXPECT_EQ(Focus(clerk), "ComboPaymentDuration") << key;
            EXPECT_EQ(Page(clerk), "2");
        });
    }
}

TEST_F(AutoSettingsChainTest, ShiftTabLeadsBackFromTheFieldsThatTurnThePage)
{
    const std::pair<const char*, const char*> fields[] = {
        {"CheckRepeatCol", "ComboReceipt"}, {"txtBuff", "txtCow"}, {"txtMixSaleRate", "txtBuffSaleRate"}};
    for (const auto& [field, before] : fields) {
        Settings([&, name = field, expected = before](Clerk& clerk) {
            GoTo(clerk, name);
            const QString page = Page(clerk);
            clerk.Type("+{TAB}");
            EXPECT_EQ(Focus(clerk), Q(expected));
            EXPECT_EQ(Page(clerk), page);
        });
    }
}

TEST_F(AutoSettingsChainTest, ThePageBeforeIsTurnedToFromThoseFieldsToo)
{
    const std::pair<const char*, const char*> fields[] = {
        {"CheckRepeatCol", "3"}, {"txtBuff", "1"}, {"txtMixSaleRate", "2"}};
    for (const auto& [field, page] : fields) {
        Settings([&, name = field, expected = page](Clerk& clerk) {
            GoTo(clerk, name);
            clerk.Type("^{PGUP}");
            EXPECT_EQ(Page(clerk), Q(expected)) << name;
        });
    }
}

TEST_F(AutoSettingsChainTest, TheMixedRateLeadsBackToTheFirstPageAndToSave)
{
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Leave(clerk, "txtMixSaleRate", "50"), "CmdSave");
        EXPECT_EQ(Page(clerk), "1");
    });
}

TEST_F(AutoSettingsChainTest, TheMixedRateBehindAnEmptyOneLeadsToSaveUnchecked)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "txtMixSaleRate");
        Put(clerk, "txtBuffSaleRate", "");
        EXPECT_EQ(Leave(clerk, "txtMixSaleRate", "0"), "CmdSave");
        EXPECT_EQ(Page(clerk), "1");
        EXPECT_EQ(Reads(clerk, "txtMixSaleRate"), "0");
    });
}

TEST_F(AutoSettingsChainTest, DownLeadsToThePrintOfTheSalesFromAnywhereOnItsPage)
{
    for (const char* control : {"SSTab", "txtCowSaleRate", "txtMixSaleRate", "CmdSave"}) {
        Settings([&](Clerk& clerk) {
            clerk.Type("^{PGUP}");
            GoTo(clerk, control);
            clerk.Type("{DOWN}");
            EXPECT_EQ(Focus(clerk), "ComboMSRPrintStatus") << control;
            EXPECT_EQ(Page(clerk), "3");
        });
    }
}

TEST_F(AutoSettingsChainTest, DownPassesNoRateThatIsRefused)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "txtMixSaleRate");
        clerk.Type("0{DOWN}");
        EXPECT_EQ(Focus(clerk), "txtMixSaleRate");
    });
}

TEST_F(AutoSettingsChainTest, DownPassesNoDepositThatIsRefused)
{
    Settings([&](Clerk& clerk) {
        for (const char* field : {"txtCow", "txtBuff"}) {
            GoTo(clerk, field);
            clerk.Type("0{DOWN}");
            EXPECT_EQ(Focus(clerk), Q(field));
            clerk.Type("1");
        }
    });
}

TEST_F(AutoSettingsChainTest, DownDoesNothingElsewhere)
{
    Settings([&](Clerk& clerk) {
        for (const char* control : {"ComboAutoLiters", "txtCowLimit", "ComboPaymentDuration",
                 "cmbFatRateType", "CheckCNP", "CheckSNU"}) {
            GoTo(clerk, control);
            clerk.Type("{DOWN}");
            EXPECT_EQ(Focus(clerk), Q(control));
        }
    });
}

TEST_F(AutoSettingsChainTest, TurningThePageEntersItsFirstFieldOnTheFirstTwo)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("^{PGDN}");
        EXPECT_EQ(Focus(clerk), "ComboPaymentDuration");
        clerk.Type("^{PGDN}");
        EXPECT_EQ(Page(clerk), "3");
        EXPECT_EQ(Focus(clerk), "SSTab");
        clerk.Type("^{PGDN}");
        EXPECT_EQ(Page(clerk), "1");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
        clerk.Type("^{PGUP}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCowSaleRate");
    });
}

TEST_F(AutoSettingsChainTest, PressingTheTabOfThePaymentsEntersThePeriod)
{
    Settings([&](Clerk& clerk) {
        PressTab(clerk, 2);
        EXPECT_EQ(Page(clerk), "2");
        EXPECT_EQ(Focus(clerk), "ComboPaymentDuration");
    });
}

TEST_F(AutoSettingsChainTest, AnEmptyChoiceKeepsItsPage)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("{BS}^{PGDN}");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
        EXPECT_EQ(Page(clerk), "1");
    });
}

TEST_F(AutoSettingsChainTest, NothingThatIsRefusedIsToldInAMessage)
{
    Settings([&](Clerk& clerk) {
        for (const char* control : {"ComboAutoLiters", "txtCowLimit", "txtCow", "txtCowSaleRate"}) {
            EXPECT_EQ(Leave(clerk, control, ""), Q(control));
            EXPECT_EQ(clerk.Message(), QString());
            Put(clerk, control, control[0] == 'C' ? "haoya" : "1");
        }
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}
