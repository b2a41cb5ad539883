#pragma once

#include "tests/reports/PaymentsTest.h"

#include "reports/frmReportCashBook.h"
#include "reports/frmReportPurchaseSales.h"

// A society with accounts and transactions.
class BooksTest : public PaymentsTest {
protected:
    // A row of TransactionsMaster.
    struct Voucher {
        const char* date = "10/04/2026";
        int tranId = 1;
        const char* type = "irsaIT";
        const char* debit = "raoK";
        const char* credit = "rama";
        double amount = 0;
        const char* narration = "";
        int company = 1;
    };
    void Post(const Voucher& voucher);

    void AddAccount(const char* name, const char* group, const char* category, double opening = 0,
        const char* side = "D", int company = 1);

    // The opening of the cash account.
    void Open(double balance, const char* side);

    // Opens a screen in a mode and plays; without a word more, it goes to the end without a run-time error.
    template <class S> void InMode(const char* mode, const std::function<void(Clerk&)>& script)
    {
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<S>(script);
        EXPECT_FALSE(Failure) << mode;
    }
    template <class S> void Print(const char* mode, const char* keys)
    {
        InMode<S>(mode, [keys](Clerk& clerk) { clerk.Type(QString::fromUtf8(keys)); });
    }
};
