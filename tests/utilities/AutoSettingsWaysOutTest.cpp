// The ways out of a field that aren't the next one: the buttons, the other pages, another field.

#include "tests/utilities/AutoSettingsTest.h"

namespace {

class AutoSettingsWaysOutTest : public AutoSettingsTest {
protected:
    // The last fields of the pages, which lead the clerk on when he steps on.
    static constexpr const char* Leading[] = {"CheckRepeatCol", "txtBuff", "txtMixSaleRate"};

    // A save loses this column.
    void MarkTheRow() { Given("ShowTransportCharges='True'"); }
    bool IsSaved() { return One("select ShowTransportCharges from AutoSettings") != u"True"; }
};

}

TEST_F(AutoSettingsWaysOutTest, SaveIsPressedFromEachFieldByItsKeyAndByTheMouse)
{
    Settings([&](Clerk& clerk) {
        for (const char* field : {"ComboAutoLiters", "ComboAutoFat", "ComboPrintStatus", "txtCowLimit",
                 "txtBuffLimit", "ComboReceipt", "CheckRepeatCol", "ComboPaymentDuration", "txtCow",
                 "txtBuff", "cmbFatRateType", "CheckCNP", "CheckSNU", "OptionAddThev", "txtCowSaleRate",
                 "txtBuffSaleRate", "txtMixSaleRate", "ComboMSRPrintStatus", "CmdExit", "CmdCancel"}) {
            for (bool byMouse : {false, true}) {
                MarkTheRow();
                GoTo(clerk, field);
                const QString page = Page(clerk);
                byMouse ? clerk.Press("CmdSave") : clerk.Type("%s");
                EXPECT_EQ(Focus(clerk), "CmdSave") << field << byMouse;
                EXPECT_EQ(Page(clerk), page) << field << byMouse;
                EXPECT_TRUE(IsSaved()) << field << byMouse;
            }
        }
    });
}

TEST_F(AutoSettingsWaysOutTest, WhatStandsInTheFieldIsFormattedAndSaved)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "CheckRepeatCol");
        clerk.Type(" %s");
        GoTo(clerk, "txtBuff");
        clerk.Type("0.755%s");
        GoTo(clerk, "txtMixSaleRate");
        clerk.Type("53.5");
        clerk.Press("CmdSave");
    });
    EXPECT_EQ(Rows("select RepeatCollection,ThevKapatBuff,SalesRateMix from AutoSettings"),
        QStringList("haoya|0.76|53.50"));
}

TEST_F(AutoSettingsWaysOutTest, AFigureThatIsRefusedIsNotSaved)
{
    MarkTheRow();
    Settings([&](Clerk& clerk) {
        for (const char* field : {"txtBuff", "txtMixSaleRate"}) {
            GoTo(clerk, field);
            clerk.Type("0%s");
            EXPECT_EQ(Focus(clerk), Q(field));
            clerk.Press("CmdSave");
            EXPECT_EQ(Focus(clerk), Q(field));
            clerk.Type("1");
        }
    });
    EXPECT_FALSE(IsSaved());
}

TEST_F(AutoSettingsWaysOutTest, ExitIsPressedFromTheLeadingFieldsByItsKeyAndByTheMouse)
{
    for (const char* field : Leading) {
        for (bool byMouse : {false, true}) {
            Settings([&](Clerk& clerk) {
                GoTo(clerk, field);
                byMouse ? clerk.Press("CmdExit") : clerk.Type("%b");
                EXPECT_EQ(clerk.ScreenName(), QString()) << field << byMouse;
            });
        }
    }
}

TEST_F(AutoSettingsWaysOutTest, ATabThatIsPressedIsTheOneThatIsTurnedTo)
{
    const char* first[] = {"ComboAutoLiters", "ComboPaymentDuration", "SSTab"};
    Settings([&](Clerk& clerk) {
        for (const char* field : Leading) {
            for (int page = 1; page <= 3; ++page) {
                GoTo(clerk, field);
                if (Page(clerk) == QString::number(page))
                    continue;
                PressTab(clerk, page);
                EXPECT_EQ(Page(clerk), QString::number(page)) << field;
                EXPECT_EQ(Focus(clerk), Q(first[page - 1])) << field;
            }
        }
    });
}

TEST_F(AutoSettingsWaysOutTest, AFieldThatIsPressedIsEnteredAndItsPageStays)
{
    const std::pair<const char*, const char*> ways[] = {
        {"CheckRepeatCol", "txtCowLimit"}, {"txtBuff", "CheckCNP"}, {"txtMixSaleRate", "txtCowSaleRate"}};
    Settings([&](Clerk& clerk) {
        for (const auto& [from, to] : ways) {
            GoTo(clerk, from);
            clerk.Press(Q(to));
            EXPECT_EQ(Focus(clerk), Q(to)) << from;
        }
    });
}

TEST_F(AutoSettingsWaysOutTest, ShiftTabLeadsFromTheFirstFieldToTheSampleWhoseGuideSaysSo)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("+{TAB}");
        EXPECT_EQ(Focus(clerk), "cmdReceipt");
        EXPECT_EQ(Guide(clerk), "Enter : नमुना पावती");
    });
}
