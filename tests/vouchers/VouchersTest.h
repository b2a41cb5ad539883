#pragma once

#include "tests/support/FakeReportWindow.h"
#include "tests/support/SocietyTest.h"

#include "vouchers/frmUchalVouchers.h"

// A clerk at the screen of vouchers, with two members who have figures already.
class VouchersTest : public SocietyTest {
protected:
    VouchersTest();
    ~VouchersTest() override;

    void Play(const std::function<void(Clerk&)>& script) { On<frmUchalVouchers>(script); }

    // Keys an advance of one head up to its saving, at which the question of printing is open. `date` as
    // digits.
    static void KeyAdvance(Clerk& clerk, const char* date, int member, const char* head, const char* amount);

    // The same for a receipt, on its panel.
    static void KeyReceipt(Clerk& clerk, const char* date, int member, const char* amount);

    // Shows the panel of receipts.
    static void ToReceipts(Clerk& clerk);

    // "ClosingBalance|ClosingUchal" of a member.
    std::string Closing(int member);

    // What the rows say of what a member owes: given less received, from the details of all vouchers.
    std::string Owed(int member);

    FakeReportWindow TheWindow;
};
