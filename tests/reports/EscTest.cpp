// Esc empties the fields of a report screen before it closes.

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

// A report screen and the keys that fill its fields.
struct Statement {
    using Screen = frmReportMilkPS;
    static constexpr const char* Keys = "13042026{ENTER}15042026{ENTER}{ENTER}gaNaoSa{ENTER}";
    static constexpr int Fields = 3;
};
struct CollectionList {
    using Screen = frmReportMilkCollections;
    static constexpr const char* Keys = "15042026{ENTER}gaaya{ENTER}";
    static constexpr int Fields = 2;
};
struct MembersList {
    using Screen = frmReportMembersList;
    static constexpr const char* Keys = "%2{ENTER}kraD{ENTER}";
    static constexpr int Fields = 1;
};
struct PaymentList {
    using Screen = frmReportPaymentList;
    static constexpr const char* Keys = "15042026{ENTER}";
    static constexpr int Fields = 1;
};
struct PaySlipList {
    using Screen = frmReportMilkPayments;
    static constexpr const char* Keys = "15042026{ENTER}3{ENTER}{ENTER}";
    static constexpr int Fields = 3;
};
struct PaymentRegisters {
    using Screen = frmReportMilkPaymentsRegister;
    static constexpr const char* Keys = "11042026{ENTER}{ENTER}3{ENTER}{ENTER}";
    static constexpr int Fields = 4;
};
struct PurchaseAndSales {
    using Screen = frmReportPurchaseSales;
    static constexpr const char* Keys = "11042026{ENTER}15042026{ENTER}";
    static constexpr int Fields = 2;
};
struct CashBook {
    using Screen = frmReportCashBook;
    static constexpr const char* Keys = "11042026{ENTER}15042026{ENTER}";
    static constexpr int Fields = 3;
};
struct GainAndLoss {
    using Screen = frmVadhTootReport;
    static constexpr const char* Keys = "13042026{ENTER}15042026{ENTER}";
    static constexpr int Fields = 2;
};

template <class S> class ReportEscTest : public ReportsTest {
protected:
    // How many fields of a screen hold a text.
    static int Filled(const ::Screen& screen)
    {
        int filled = 0;
        for (const Control* control : screen.Controls()) {
            const auto* field = dynamic_cast<const Field*>(control);
            filled += field && !field->IsEmpty() && field->Text() != u"__/__/____" ? 1 : 0;
        }
        return filled;
    }
};

using Screens = testing::Types<Statement, CollectionList, MembersList, PaymentList, PaySlipList,
    PaymentRegisters, PurchaseAndSales, CashBook, GainAndLoss>;
TYPED_TEST_SUITE(ReportEscTest, Screens);

TYPED_TEST(ReportEscTest, TheFieldsAreEmptyWhenTheScreenHasClosed)
{
    this->AddMember(3, "gaNaoSa");
    this->Run("insert into CityMaster(CompanyId,CityName) values(1,'kraD')");
    this->Run("insert into MilkPayments(CompanyId,PaymentDate,MemberNo) values(1,'15/04/2026',3)");
    this->Failure = this->TheClerk.Play(
        [this] {
            typename TypeParam::Screen screen;
            screen.ShowModal();
            EXPECT_EQ(this->Filled(screen), 0);
        },
        [this](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(TypeParam::Keys));
            EXPECT_EQ(this->Filled(clerk.Top()), TypeParam::Fields);
            clerk.Type("{ESC}");
            EXPECT_EQ(clerk.ScreenName(), QString());
        });
    EXPECT_FALSE(this->Failure);
}

}
