#pragma once

#include "tests/support/SocietyTest.h"
#include "tools/reckoning/PaymentReckoning.h"

#include <random>

// A society whose clerk gives advances, takes receipts, keeps the list of installments, and pays the milk of
// ten days, period after period, all by keys on the real screens. The reckoning is told the same, and the
// books have to agree with it. Members stop bringing milk for two periods and come back.
class PaymentYear : public SocietyTest {
protected:
    // So many members, without the number 7; nothing is in the books yet.
    PaymentYear(int members, unsigned seed);

    // Nobody yet: who comes is for the journey to say.
    explicit PaymentYear(unsigned seed) : m_dice(seed) { }

    // How the payments of a period are made.
    struct Manner {
        const char* paise; // what becomes of them
        bool byInstallments = false;
        bool isMilkKeyed = false; // at the counter; otherwise its rows are laid into the books
    };

    // The next ten days: milk, vouchers, installments, payments and what is taken back of them.
    void PlayPeriod(const Manner& manner);

    // All rows and closing columns are what they have to be.
    virtual void ExpectAgreement();
    static void Expect(const Compared& rows);

    // What was unpaid before each payment of the period is what the raw rows say was given and came back
    // until then, and so is what each member owes at its end.
    void ExpectSumsOfYears();
    void ExpectOwedIsGivenLessReceived();

    PaymentReckoning Reckoning;

    // The days of a period, morning and evening.
    virtual void BringMilk(bool isKeyed);

    // An advance of one head or two, on the screen of the vouchers. The one who owes more than his milk
    // brings is the last member.
    void GiveAdvance(Clerk& clerk, int member, const QDate& day) { GiveAdvance(clerk, member, day, "%n"); }

    // `printing`: what is typed to the question whether to print it.
    void GiveAdvance(Clerk& clerk, int member, const QDate& day, const char* printing);

    // What is deducted for each litre, and what becomes of the paise.
    virtual void SetDeductions(const char* paise);

    static QString Typed(const QDate& day) { return day.toString("ddMMyyyy"); }
    int Throw(int sides) { return static_cast<int>(m_dice() % static_cast<unsigned>(sides)); }
    int ThrowMember()
    {
        return m_members[static_cast<std::size_t>(Throw(static_cast<int>(m_members.size())))];
    }
    bool Brings(int member) const;

    std::vector<int> m_members; // in their order
    PaymentReckoning::Period m_period; // that is played
    int m_periods = 0; // that were played before it
    int m_printed = 0; // vouchers

private:
    Exact ThrowPaise(int most) { return Exact::OfPaise(1 + Throw(most)); }
    QDate ThrowDay(); // of the period, or at times some days before it
    std::vector<int> ThrowPayees(int count); // some who bring milk, none of them twice

    void LayDelivery(int member, const QDate& day, QStringView time, int number);
    void KeyShift(const QDate& day, int time);

    void KeyVouchers();
    void TakeReceipt(Clerk& clerk, int member, const QDate& day);
    void ChangeVouchers(Clerk& clerk);
    void ChangeReceipts(Clerk& clerk);

    void KeyInstallments();
    void SetManner(const Manner& manner);

    void PaySome();
    void Pay(Clerk& clerk, int member, const PaymentReckoning::Period& period,
        const PaymentReckoning::Keyed& keyed = {});
    void TakeBack(Clerk& clerk, int member);
    void PayTheRest();
    void OnOnePayment(const std::function<void(Clerk&)>& script);

    std::mt19937 m_dice;
};
