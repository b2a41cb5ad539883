#include "Screens.h"

#include "bonus/frmBonusPayments.h"
#include "collection/frmAbsenseMemberCollection.h"
#include "collection/frmCollectionGate.h"
#include "collection/frmDailyCollection.h"
#include "collection/frmMilkCollections.h"
#include "collection/frmSearchCollections.h"
#include "core/menu/ScreenDirectory.h"
#include "core/preview/ReportPreview.h"
#include "core/preview/ReportPreviewDialogs.h"
#include "masters/frmCustomers.h"
#include "masters/frmMembers.h"
#include "payments/frmInstallment.h"
#include "payments/frmNewMilkPayment.h"
#include "payments/frmThevDate.h"
#include "rates/frmNewFatRates.h"
#include "reports/frmReportCashBook.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "reports/frmReportPaymentList.h"
#include "reports/frmReportPurchaseSales.h"
#include "reports/frmVadhTootReport.h"
#include "sales/frmMilkSales.h"
#include "utilities/frmAutoSettings.h"
#include "utilities/frmBackup.h"
#include "vouchers/frmSelectInwards.h"
#include "vouchers/frmUchalVouchers.h"

namespace {

template <class S> void Register()
{
    const Keys::Places keys = S::KeyPlaces();
    ScreenDirectory::Add(keys.front().name, [] { return std::make_unique<S>(); });
    Keys::Add(keys);
}

}

// The key sheet (docs/keys.md) lists them in this order.
void RegisterScreens()
{
    Register<frmMembers>();
    Register<frmCustomers>();
    Register<frmNewFatRates>();
    Register<frmMilkCollections>();
    Register<frmCollectionGate>();
    Register<frmDailyCollection>();
    Register<frmSearchCollections>();
    Register<frmAbsenseMemberCollection>();
    Register<frmUchalVouchers>();
    Keys::Add(frmSelectInwards::KeyPlaces());
    Register<frmInstallment>();
    Register<frmNewMilkPayment>();
    Register<frmMilkSales>();
    Keys::Add(frmReportPreview::KeyPlaces());
    Keys::Add(frmReportFile::KeyPlaces());
    Keys::Add(frmReportPrinter::KeyPlaces());
    Register<frmReportMilkPS>();
    Register<frmReportMilkCollections>();
    Register<frmReportMembersList>();
    Register<frmReportPaymentList>();
    Register<frmReportMilkPayments>();
    Register<frmReportMilkPaymentsRegister>();
    Register<frmVadhTootReport>();
    Register<frmReportPurchaseSales>();
    Register<frmReportCashBook>();
    Register<frmBackup>();
    Register<frmAutoSettings>();
    Register<frmBonusPayments>();
    Register<frmThevDate>();
}
