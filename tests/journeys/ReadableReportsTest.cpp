// The settings, the report screens, and the reports before the clerk's eyes.

#include "core/preview/ReportHandover.h"
#include "reports/frmReportCashBook.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "reports/frmReportPaymentList.h"
#include "reports/frmReportPurchaseSales.h"
#include "reports/frmVadhTootReport.h"
#include "tests/journeys/ReadableTest.h"
#include "utilities/frmAutoSettings.h"

namespace {

// Two printers that take nothing.
class TwoPrinters final : public Printer {
public:
    QStringList Names() override { return {"Epson_LX-300_Office", "HP_LaserJet_Professional_P1108"}; }
    Outcome Print(const PrintJob&) override { return {"प्रिंटरने काम घेतले नाही."}; }
};

// The screens with reports that can be looked at.
class ReadableReportsTest : public ReadableTest {
protected:
    // Goes round the tab order and looks at each control.
    static void TabAndLook(Clerk& clerk)
    {
        for (QStringList met; !met.contains(clerk.Focus()); Type(clerk, "{TAB}")) {
            met.append(clerk.Focus());
            ExpectReadable(clerk, "at " + Focus(clerk));
        }
    }

    // The report of a screen, opened with the keys.
    template <class S> void LookAtReport(const char* keys)
    {
        On<S>([keys](Clerk& clerk) {
            Type(clerk, keys);
            ASSERT_EQ(OnTop(clerk), "frmReportPreview");
            ExpectReadable(clerk, "as it opens");
            Type(clerk, "{ESC}");
            ExpectReadable(clerk, "after its report");
        });
        EXPECT_FALSE(Failure);
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    }

private:
    ReportHandover m_handover{std::make_unique<TwoPrinters>()};
};

}

TEST_F(ReadableReportsTest, TheSettingsAtEachFieldOfEachTab)
{
    Run("update AutoSettings set CanLimitCow='999999.999',CanLimitBuff='999999.999',"
        "SalesRateCow='99999.99',ThevKapatCow=99999.99,ThevKapatBuff=99999.99");
    On<frmAutoSettings>([](Clerk& clerk) {
        TabAndLook(clerk);
        for (const char* turn : {"once", "twice", "thrice"}) {
            Type(clerk, "^{PGDN}");
            ExpectReadable(clerk, std::string("turned ") + turn);
        }
    });
    EXPECT_FALSE(Failure);
    for (const char* keys : {"%{DOWN}", "^{PGDN}{TAB}{TAB}{TAB}{TAB} "}) {
        On<frmAutoSettings>([keys](Clerk& clerk) { TypeAndLook(clerk, {keys}); });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(ReadableReportsTest, TheStatementAndItsPreview)
{
    On<frmReportMilkPS>([](Clerk& clerk) {
        TypeAndLook(clerk, {"", "14042026{ENTER}", "15042026{ENTER}", "{ENTER}", "{DOWN}{DOWN}{ENTER}"});
    });
    EXPECT_FALSE(Failure);
    LookAtReport<frmReportMilkPS>("14042026{ENTER}15042026{ENTER}%i");
}

TEST_F(ReadableReportsTest, TheListOfTheDayAndItsPreview)
{
    On<frmReportMilkCollections>([](Clerk& clerk) {
        TypeAndLook(clerk, {"", "14042026{ENTER}", "{DOWN}{ENTER}", "{ENTER}"});
    });
    EXPECT_FALSE(Failure);
    LookAtReport<frmReportMilkCollections>("14042026{ENTER}{ENTER}%i");
}

TEST_F(ReadableReportsTest, TheListOfTheMembersAndItsPreview)
{
    for (const char* choice : {"%1", "%2", "%3"}) {
        On<frmReportMembersList>([choice](Clerk& clerk) {
            TypeAndLook(clerk, {choice, "{ENTER}", "{ENTER}"});
        });
        EXPECT_FALSE(Failure);
    }
    LookAtReport<frmReportMembersList>("%i");
}

TEST_F(ReadableReportsTest, TheListOfThePaymentsAndItsPreview)
{
    On<frmReportPaymentList>([](Clerk& clerk) { TypeAndLook(clerk, {"", "11042026{ENTER}", "{DOWN}"}); });
    EXPECT_FALSE(Failure);
    LookAtReport<frmReportPaymentList>("11042026{ENTER}%i");
}

TEST_F(ReadableReportsTest, ThePaySlipsAndTheirPreview)
{
    On<frmReportMilkPayments>([](Clerk& clerk) {
        TypeAndLook(clerk, {"", "12042026{ENTER}", "11042026{ENTER}", "1{ENTER}", "{ENTER}"});
    });
    EXPECT_FALSE(Failure);
    TheBox.Shown.clear();
    LookAtReport<frmReportMilkPayments>("11042026{ENTER}1{ENTER}{ENTER}%i");
}

TEST_F(ReadableReportsTest, TheRegistersAndTheirPreviews)
{
    for (const char* mode : {"PR", "TR", "UR", "UD", "UchalBalanceStatement", "ThevBalanceStatement"}) {
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<frmReportMilkPaymentsRegister>([](Clerk& clerk) {
            TypeAndLook(clerk, {"", "01042026{ENTER}", "10042026{ENTER}", "1{ENTER}", "{ENTER}"});
        });
        EXPECT_FALSE(Failure);
        LookAtReport<frmReportMilkPaymentsRegister>("01042026{ENTER}10042026{ENTER}1{ENTER}%i");
    }
}

TEST_F(ReadableReportsTest, PurchaseAndSalesAndTheirPreviews)
{
    for (const char* mode : {"PS", "MP", "MS"}) {
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<frmReportPurchaseSales>([](Clerk& clerk) {
            TypeAndLook(clerk, {"", "{ENTER}", "01042026{ENTER}", "15042026{ENTER}"});
        });
        EXPECT_FALSE(Failure);
        LookAtReport<frmReportPurchaseSales>("01042026{ENTER}15042026{ENTER}%i");
    }
}

TEST_F(ReadableReportsTest, TheBooksOfCashAndBankTheComparisonAndTheirPreviews)
{
    Run("update AccountsMaster set OpeningBalance=-9877887.25 where GroupCode<>'Debtors'");
    for (const char* mode : {"C", "B", "V"}) {
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<frmReportCashBook>([](Clerk& clerk) {
            TypeAndLook(clerk, {"", "{ENTER}", "01042026{ENTER}", "15042026{ENTER}"});
        });
        EXPECT_FALSE(Failure);
    }
    for (const char* mode : {"B", "V"}) {
        gAppState.gReportMode = QString::fromLatin1(mode);
        LookAtReport<frmReportCashBook>("01042026{ENTER}15042026{ENTER}{DOWN}{ENTER}%i");
    }
}

TEST_F(ReadableReportsTest, TheGainAndLossAndItsPreviews)
{
    On<frmVadhTootReport>([](Clerk& clerk) {
        TypeAndLook(clerk, {"", "14042026{ENTER}", "{ENTER}", "15042026{ENTER}", "{DOWN}", "{ENTER}"});
    });
    EXPECT_FALSE(Failure);
    LookAtReport<frmVadhTootReport>("14042026{ENTER}15042026{ENTER}{ENTER}{ENTER}");
    LookAtReport<frmVadhTootReport>("14042026{ENTER}15042026{ENTER}{DOWN}{ENTER}{ENTER}");
}

TEST_F(ReadableReportsTest, AReportWithItsSearchItsFilesAndItsPrinters)
{
    On<frmReportMilkCollections>([](Clerk& clerk) {
        Type(clerk, "14042026{ENTER}{ENTER}%i");
        ASSERT_EQ(OnTop(clerk), "frmReportPreview");
        TypeAndLook(clerk, {"{F6}", "{F7}", "{F5}", "{END}", "^f"});
        clerk.Type(Stored(u"देशमुख-कुलकर्णी"));
        TypeAndLook(clerk, {"{ENTER}", "^fxyz{ENTER}"});
        for (const char* key : {"^s", "^e"}) {
            Type(clerk, key);
            EXPECT_EQ(OnTop(clerk), "frmReportFile");
            TypeAndLook(clerk, {"", "{TAB}", "{ESC}"});
        }
        Type(clerk, "^p");
        EXPECT_EQ(OnTop(clerk), "frmReportPrinter");
        TypeAndLook(clerk, {"", "{DOWN}", "{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
    });
    EXPECT_FALSE(Failure);
}
