#include "tests/utilities/AutoSettingsTest.h"

namespace {

class AutoSettingsFieldsTest : public AutoSettingsTest {
protected:
    // What a combo reads after each of the digits 0 to 9, beginning empty each time.
    static QStringList ByDigit(Clerk& clerk, const char* combo)
    {
        QStringList words;
        for (int digit = 0; digit <= 9; ++digit) {
            Put(clerk, combo, "");
            clerk.Type(QString::number(digit));
            words.append(Reads(clerk, combo));
        }
        while (!words.isEmpty() && words.back().isEmpty())
            words.removeLast();
        return words;
    }

    // A picked word of a combo's list.
    static QString Picked(Clerk& clerk, const char* combo, int row)
    {
        clerk.Press(Q(combo));
        PickFromList(clerk, row);
        return Reads(clerk, combo);
    }
};

}

TEST_F(AutoSettingsFieldsTest, OpenOnTheFirstPageWithEachColumnInItsField)
{
    Given("AutoLiters='haoya',AutoFat='naahI',PrintStatus='f@t sËIna',CanLimitCow='41.5',CanLimitBuff='42',"
          "ReceiptType='Tašp 7',RepeatCollection='haoya',PaymentDuration='1 maihnaa',ThevKapatCow=1.5,"
          "ThevKapatBuff=2,FatRateType='f^T nausaar',PurchaseEntry='Collection',UchalEntry='Sales',"
          "DecimalPayment='Payable',SalesRateCow='47',SalesRateBuff='57.5',SalesRateMix='51.255',"
          "MSRPrintStatus='saovh va sËIna'");
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Page(clerk), "1");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
        const std::pair<const char*, const char*> expected[] = {{"ComboAutoLiters", "haoya"},
            {"ComboAutoFat", "naahI"}, {"ComboPrintStatus", "f@t sËIna"}, {"txtCowLimit", "41.500"},
            {"txtBuffLimit", "42.000"}, {"ComboReceipt", "Tašp 7"}, {"CheckRepeatCol", "1"},
            {"ComboPaymentDuration", "1 maihnaa"}, {"txtCow", "1.50"}, {"txtBuff", "2.00"},
            {"cmbFatRateType", "f^T nausaar"}, {"CheckCNP", "1"}, {"CheckSNU", "1"}, {"OptionAddThev", "0"},
            {"OptionPayable", "1"}, {"OptionPayIt", "0"}, {"OptionDiscount", "0"},
            {"txtCowSaleRate", "47.00"}, {"txtBuffSaleRate", "57.50"}, {"txtMixSaleRate", "51.26"},
            {"ComboMSRPrintStatus", "saovh va sËIna"}};
        for (const auto& [control, text] : expected)
            EXPECT_EQ(Reads(clerk, control), Q(text)) << control;
    });
}

TEST_F(AutoSettingsFieldsTest, TheOtherWordsLeaveTheBoxesWithoutATick)
{
    Given("RepeatCollection='naahI',PurchaseEntry='Payment',UchalEntry='Uchal'");
    Settings([&](Clerk& clerk) {
        for (const char* box : {"CheckRepeatCol", "CheckCNP", "CheckSNU"})
            EXPECT_EQ(Reads(clerk, box), "0") << box;
    });
}

TEST_F(AutoSettingsFieldsTest, EachWordForPaiseChoosesItsOption)
{
    const std::pair<const char*, const char*> options[] = {{"AddThev", "OptionAddThev"},
        {"Payable", "OptionPayable"}, {"PayIt", "OptionPayIt"}, {"Discount", "OptionDiscount"}};
    for (const auto& [word, chosen] : options) {
        Given(qPrintable(QStringLiteral("DecimalPayment='%1'").arg(Q(word))));
        Settings([&](Clerk& clerk) {
            for (const auto& [other, option] : options)
                EXPECT_EQ(Reads(clerk, option), Q(option == chosen ? "1" : "0")) << word << ' ' << option;
        });
    }
}

TEST_F(AutoSettingsFieldsTest, WithoutARowTheyAreEmptyAndTheReceiptIsToBePrinted)
{
    WithoutARow();
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "ComboPrintStatus"), "haoya");
        for (const char* field : {"ComboAutoLiters", "ComboAutoFat", "txtCowLimit", "txtBuffLimit",
                 "ComboReceipt", "ComboPaymentDuration", "txtCow", "txtBuff", "cmbFatRateType",
                 "txtCowSaleRate", "txtBuffSaleRate", "txtMixSaleRate", "ComboMSRPrintStatus"})
            EXPECT_EQ(Reads(clerk, field), QString()) << field;
    });
}

TEST_F(AutoSettingsFieldsTest, TheRowOfAnotherCompanyIsNotRead)
{
    Given("CompanyId=2");
    Settings([&](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "ComboReceipt"), QString()); });
}

TEST_F(AutoSettingsFieldsTest, NoTypeOfRateIsRateByFat)
{
    Given("FatRateType=Null");
    Settings([&](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "cmbFatRateType"), "f^T nausaar"); });
}

TEST_F(AutoSettingsFieldsTest, AColumnWithoutAFigureLeavesItsFieldEmpty)
{
    Given("ThevKapatCow=Null,CanLimitCow=''");
    Settings([&](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtCow"), QString());
        EXPECT_EQ(Reads(clerk, "txtCowLimit"), QString());
    });
}

TEST_F(AutoSettingsFieldsTest, EachChoiceShowsItsGuide)
{
    const char* yesNo = "  1– haoya  2– naahI ";
    const std::pair<const char*, const char*> guides[] = {{"ComboAutoLiters", yesNo},
        {"ComboAutoFat", "  1–haoya   2–naahI"},
        {"ComboPrintStatus", "  1–saovh  2–saovh va sËIna  3–saovh va ip`MT"},
        {"ComboReceipt",
            "  1–Tašp 1   2–Tašp 2   3–Tašp 3   4–Tašp 4   5–Tašp 5   6–Tašp 6   7–Tašp 7   8–Tašp 8"},
        {"ComboPaymentDuration",
            "  1Á– 1 idvasa    2Á– 7 idvasa    3Á– 10 idvasa    4Á– 15 idvasa    5Á– 1 maihnaa"},
        {"ComboMSRPrintStatus", "  1–saovh  2–saovh va sËIna  3–saovh va ip`MT"}, {"txtCowLimit", ""}};
    Settings([&](Clerk& clerk) {
        for (const auto& [control, guide] : guides) {
            GoTo(clerk, control);
            EXPECT_EQ(clerk.Top().Find(Q(control))->Guide().Text(), Q(guide));
            EXPECT_EQ(Guide(clerk), Seen(Q(guide))) << control;
        }
    });
}

TEST_F(AutoSettingsFieldsTest, TheFieldInFocusHasTheColourOfTheFocus)
{
    Settings([&](Clerk& clerk) {
        const auto colour = [&](const char* control) {
            const QPalette& palette = clerk.Top().Find(Q(control))->Widget()->palette();
            return palette.color(QPalette::Active, QPalette::Base).name();
        };
        EXPECT_EQ(colour("ComboAutoLiters"), "#ffc0c0");
        clerk.Type("{ENTER}");
        EXPECT_EQ(colour("ComboAutoLiters"), "#b4c4cd");
        EXPECT_EQ(colour("ComboAutoFat"), "#ffc0c0");
    });
}

TEST_F(AutoSettingsFieldsTest, DigitsChooseYesOrNo)
{
    Settings([&](Clerk& clerk) {
        for (const char* combo : {"ComboAutoLiters", "ComboAutoFat"}) {
            GoTo(clerk, combo);
            EXPECT_EQ(ByDigit(clerk, combo), QStringList({"", "haoya", "naahI"}));
            clerk.Type("1");
        }
    });
}

TEST_F(AutoSettingsFieldsTest, DigitsChooseWhatBecomesOfTheReceipts)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "ComboPrintStatus");
        EXPECT_EQ(ByDigit(clerk, "ComboPrintStatus"), QStringList({"", "naahI", "f@t sËIna", "haoya"}));
        clerk.Type("1");
        GoTo(clerk, "ComboMSRPrintStatus");
        EXPECT_EQ(ByDigit(clerk, "ComboMSRPrintStatus"),
            QStringList({"", "saovh", "saovh va sËIna", "saovh va ip`MT"}));
    });
}

TEST_F(AutoSettingsFieldsTest, TheLayoutTakesTheDigits1To6AndTheMousePicksTheOthers)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "ComboReceipt");
        EXPECT_EQ(ByDigit(clerk, "ComboReceipt"),
            QStringList({"", "Tašp 1", "Tašp 2", "Tašp 3", "Tašp 4", "Tašp 5", "Tašp 6"}));
        EXPECT_EQ(Picked(clerk, "ComboReceipt", 6), "Tašp 7");
        EXPECT_EQ(Picked(clerk, "ComboReceipt", 7), "Tašp 8");
        clerk.Type("{ENTER}");
        EXPECT_EQ(Focus(clerk), "CheckRepeatCol");
    });
}

TEST_F(AutoSettingsFieldsTest, ThePeriodTakesTheDigits1To4AndTheMousePicksTheMonth)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "ComboPaymentDuration");
        EXPECT_EQ(ByDigit(clerk, "ComboPaymentDuration"),
            QStringList({"", "1 idvasa", "7 idvasa", "10 idvasa", "15 idvasa"}));
        clerk.Type("15");
        EXPECT_EQ(Reads(clerk, "ComboPaymentDuration"), "1 idvasa") << "5 is dropped";
        EXPECT_EQ(Picked(clerk, "ComboPaymentDuration", 4), "1 maihnaa");
        clerk.Type("{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCow");
    });
}

TEST_F(AutoSettingsFieldsTest, LettersAreDroppedInAChoice)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("1haoya.x");
        EXPECT_EQ(Reads(clerk, "ComboAutoLiters"), "haoya");
    });
}

TEST_F(AutoSettingsFieldsTest, TheTypeOfRateTakesNoKeyButEnter)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "cmbFatRateType");
        clerk.Type("2{BS}{DEL}x%{DOWN}{DOWN}");
        EXPECT_EQ(Reads(clerk, "cmbFatRateType"), "f^T nausaar");
        clerk.Type("{ENTER}");
        EXPECT_EQ(Focus(clerk), "CheckCNP");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}

TEST_F(AutoSettingsFieldsTest, RateByFatAndSnfIsNotYetToBeHad)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "cmbFatRateType");
        EXPECT_EQ(Picked(clerk, "cmbFatRateType", 1), "f^T va esa ena ef nausaar");
        clerk.Type("{ENTER}");
        EXPECT_EQ(TheBox.Shown, QStringList("This Facility is available in the next version."));
        EXPECT_EQ(Reads(clerk, "cmbFatRateType"), "f^T nausaar");
        EXPECT_EQ(Focus(clerk), "CheckCNP");
    });
}

TEST_F(AutoSettingsFieldsTest, AnEmptyTypeOfRateBecomesRateByFatOnLeaving)
{
    Given("FatRateType=''");
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "cmbFatRateType");
        EXPECT_EQ(Reads(clerk, "cmbFatRateType"), QString());
        clerk.Type("{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbFatRateType"), "f^T nausaar");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}

TEST_F(AutoSettingsFieldsTest, TheBoxOfThePurchaseEntryTellsWhatItMeans)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "CheckCNP");
        EXPECT_EQ(Guide(clerk), QString());
        clerk.Type(" ");
        EXPECT_EQ(Guide(clerk), Seen("dUQa KrodIcaI enT/I dUQa saMklana krtovaoLIca kolaI jaa[-la"));
        clerk.Press("CheckCNP");
        EXPECT_EQ(Guide(clerk), Seen("dUQa KrodIcaI enT/I dUQa pomaonT krtovaoLIca kolaI jaa[-la"));
        clerk.Type("{ENTER}");
        EXPECT_EQ(Guide(clerk), QString());
    });
}

TEST_F(AutoSettingsFieldsTest, CancelReadsTheRowAgainAndSavesNothing)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("1{ENTER}1{ENTER}");
        GoTo(clerk, "txtCow");
        clerk.Type("9{ENTER}");
        clerk.Press("CmdCancel");
        EXPECT_EQ(Reads(clerk, "ComboAutoLiters"), "naahI");
        EXPECT_EQ(Reads(clerk, "ComboAutoFat"), "naahI");
        EXPECT_EQ(Reads(clerk, "txtCow"), "0.50");
        EXPECT_EQ(Page(clerk), "1");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
    });
    EXPECT_EQ(One("select AutoLiters from AutoSettings"), "naahI");
}

TEST_F(AutoSettingsFieldsTest, CancelTakesTheChoiceForPaiseBackToo)
{
    Given("DecimalPayment=''");
    Settings([&](Clerk& clerk) {
        clerk.Type("^{PGDN}");
        clerk.Press("OptionDiscount");
        EXPECT_EQ(Reads(clerk, "OptionDiscount"), "1");
        clerk.Press("CmdCancel");
        EXPECT_EQ(Reads(clerk, "OptionDiscount"), "0");
    });
}

TEST_F(AutoSettingsFieldsTest, PressingCancelWithTheMouseLetsAnEmptyFieldGo)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("{ENTER}{BS}");
        clerk.Press("CmdCancel");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
        EXPECT_EQ(Reads(clerk, "ComboAutoFat"), "naahI");
    });
}

TEST_F(AutoSettingsFieldsTest, EscAndTheExitButtonCloseWithoutASave)
{
    const QStringList before = Rows("select * from AutoSettings");
    for (const char* way : {"{ESC}", "%b"}) {
        Settings([&](Clerk& clerk) {
            clerk.Type("1");
            clerk.Type(Q(way));
            EXPECT_EQ(clerk.ScreenName(), QString()) << way;
        });
        EXPECT_EQ(Rows("select * from AutoSettings"), before) << way;
    }
    EXPECT_EQ(gAppState.gAutoLiters, "naahI");
}

TEST_F(AutoSettingsFieldsTest, EscAndTheExitButtonLeaveEvenAFieldThatRefuses)
{
    for (const char* way : {"{ESC}", "%b"}) {
        Settings([&](Clerk& clerk) {
            clerk.Type("{BS}{ENTER}");
            ASSERT_EQ(Focus(clerk), "ComboAutoLiters");
            clerk.Type(Q(way));
            EXPECT_EQ(clerk.ScreenName(), QString()) << way;
        });
    }
}

TEST_F(AutoSettingsFieldsTest, CancelByItsKeyReadsTheRowAgainFromAFieldThatRefuses)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("{BS}%r");
        EXPECT_EQ(Reads(clerk, "ComboAutoLiters"), "naahI");
        EXPECT_EQ(Focus(clerk), "ComboAutoLiters");
    });
}

TEST_F(AutoSettingsFieldsTest, EscClearsTheFieldsBeforeItCloses)
{
    Failure = TheClerk.Play(
        [] {
            frmAutoSettings screen;
            screen.ShowModal();
            for (const char* field : {"ComboAutoLiters", "ComboReceipt", "ComboPaymentDuration", "txtCow",
                     "cmbFatRateType", "txtMixSaleRate", "ComboMSRPrintStatus"})
                EXPECT_EQ(screen.Find(Q(field))->Text(), QString()) << field;
        },
        [](Clerk& clerk) {
            ASSERT_NE(clerk.Reads("ComboReceipt"), QString());
            clerk.Type("{ESC}");
            EXPECT_EQ(clerk.ScreenName(), QString());
        });
}
