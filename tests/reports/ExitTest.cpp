// The way out of each report screen.

#include "tests/reports/ReportsTest.h"

#include "reports/frmReportCashBook.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "reports/frmReportPaymentList.h"
#include "reports/frmReportPurchaseSales.h"
#include "reports/frmVadhTootReport.h"

namespace {

template <class S> class ReportExitTest : public ReportsTest {
};

using ReportScreens = testing::Types<frmReportMilkPS, frmReportMilkCollections, frmReportMembersList,
    frmReportPaymentList, frmReportMilkPayments, frmReportMilkPaymentsRegister, frmReportPurchaseSales,
    frmReportCashBook, frmVadhTootReport>;
TYPED_TEST_SUITE(ReportExitTest, ReportScreens);

template <class S>
constexpr bool HasTwoDates =
    std::is_same_v<S,
        frmReportMilkPS> || std::is_same_v<S, frmReportMilkPaymentsRegister> || std::is_same_v<S, frmVadhTootReport>;

TYPED_TEST(ReportExitTest, TheButtonLeavesTheScreenAndPrintsNothing)
{
    this->template On<TypeParam>([](Clerk& clerk) {
        EXPECT_EQ(clerk.Reads("cmdExit"), "&baahor");
        clerk.Press("cmdExit");
        EXPECT_EQ(clerk.Message(), QString());
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_FALSE(this->Failure);
    EXPECT_TRUE(this->TheWindow.Shown.empty());
}

TYPED_TEST(ReportExitTest, TheButtonLeavesTheScreenWhateverStandsInItsFirstField)
{
    this->template On<TypeParam>([](Clerk& clerk) {
        clerk.Type("3113");
        clerk.Press("cmdExit");
        EXPECT_EQ(clerk.Message(), QString());
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_TRUE(this->TheWindow.Shown.empty());
}

TYPED_TEST(ReportExitTest, ItsKeyLeavesTheScreen)
{
    this->Run("insert into MilkPayments(CompanyId,PaymentDate,MemberNo) values(1,'15/04/2026',3)");
    this->template On<TypeParam>([](Clerk& clerk) {
        if (HasTwoDates<TypeParam>)
            clerk.Type("01042026{ENTER}10042026");
        else if (!std::is_same_v<TypeParam, frmReportMembersList>)
            clerk.Type("15042026");
        EXPECT_NE(clerk.ScreenName(), QString());
        clerk.Type("%b");
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_FALSE(this->Failure);
    EXPECT_TRUE(this->TheWindow.Shown.empty());
}

}
