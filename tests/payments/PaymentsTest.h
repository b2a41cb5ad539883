#pragma once

#include "payments/frmNewMilkPayment.h"
#include "tests/support/SocietyTest.h"

// A clerk at the payments of a society that pays every ten days and keeps 10 paise of a cow's litre and 20 of
// a buffalo's. Member 5 is rama, and 12 is saIta.
class PaymentsTest : public SocietyTest {
protected:
    PaymentsTest();

    // Opens the screen; the clerk stands at the choice between one member and many.
    void Play(const std::function<void(Clerk&)>& script) { On<frmNewMilkPayment>(script); }

    // The same with the payment of one member chosen, on cmdNew.
    void PlaySingle(const std::function<void(Clerk&)>& script);

    // Begins a payment for the ten days from a day, as it is typed, up to the member's number.
    static void Begin(Clerk& clerk, const char* from);

    // Begins it and leaves the member's number.
    static void Work(Clerk& clerk, const char* from, int member);

    // The same, saved as it was worked out.
    static void Pay(Clerk& clerk, const char* from, int member);

    // Looks a payment up to take it back.
    static void Load(Clerk& clerk, const char* from, int member);

    // Runs over a range of members, for the ten days from a day.
    static void PayMany(Clerk& clerk, const char* from, const char* first, const char* last);

    void Set(const char* setting)
    {
        Run(QStringLiteral("update AutoSettings set ") + QLatin1String(setting));
    }
    void AddMilk(int member, const char* day, const char* animal, double litres, double amount,
        int company = 1, const char* time = "sakaL");

    // What was given to a member, and what came back from him.
    void AddVoucher(const char* day, int member, const char* head, double amount, int company = 1);
    void AddReceipt(const char* day, int member, const char* head, double amount, int company = 1);

    // The figures of the worked example: milk of 4300.50 from 01/04/2026 on, and debts of 823.45.
    void AddExample();

    static std::string Guide(const Clerk& clerk) { return Label(clerk, "lblGuide"); }

    // The rows of a list as they are seen, "maagaIla baakI|500.00".
    static QStringList Seen(const Clerk& clerk, const char* list, int columns);

    // Columns of the one payment.
    std::string Paid(const char* columns);
};
