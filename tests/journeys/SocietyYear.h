#pragma once

#include "core/preview/TemplateReport.h"
#include "tests/journeys/OpenedScreens.h"
#include "tests/journeys/PaymentYear.h"
#include "tools/reckoning/MilkReckoning.h"

#include <map>

// The year of a small society: eight members, who come and go, three customers, later four, and the
// federation. All of it is keyed on the real screens: members and customers, two charts, each delivery of
// each morning and evening at one of the counters, each sale, vouchers, installments, payments, and a backup
// every Saturday. Once the backup comes back, and the days that it lacks are keyed anew, with other figures.
// What the clerk keys is told to the reckonings, and the books have to agree with them.
class SocietyYear : public PaymentYear {
protected:
    // The days on which something happens once.
    struct Plan {
        QDate chart; // from which the second chart holds, the first of a period
        QDate charted; // on which it is keyed, after its evening
        QDate restored; // in the same period as the Saturday before it
        int leaving = 0; // the period, counted from 0, before which members and customers come and go
    };
    SocietyYear(unsigned seed, const Plan& plan);
    ~SocietyYear() override { TemplateReport::Engine() = m_engine; }

    // The next ten days, from the counter to the payments.
    void PlayTenDays(const Manner& manner);

    // What has to balance at the end, by the statements that the screens stage.
    void ExpectMilkBalances();
    void ExpectTheMilkBooks();
    void ExpectTheCashBook();
    void ExpectTheBonus();
    void ExpectClosingFiguresOfThePast();

    QDate LastDay() const { return m_period.to; }

    OpenedScreens Opened; // since the year began

private:
    using Shift = MilkReckoning::Shift;

    void BringMilk(bool isKeyed) override;
    void SetDeductions(const char* paise) override;
    void ExpectAgreement() override;
    static void ExpectSome(const Compared& rows); // there are rows, and they agree

    // People
    void KeyMember(int number);
    void DeleteMember(int number);
    void KeyCustomers();
    void KeyCustomer(Clerk& clerk, const MilkReckoning::Customer& customer);

    // Charts
    void KeyChart(const QString& day, Exact cow, Exact buff, const char* answer);

    // A day
    void PlayDay(const QDate& day);
    void Key(Clerk& clerk, const QString& keys) const;
    void KeyShiftOfMilk(Clerk& clerk, const Shift& shift);
    void KeyDelivery(Clerk& clerk, const Shift& shift, int member, bool isCow);
    void MendTheLastDelivery(Clerk& clerk, const Shift& shift);
    void KeyShiftOfSales(Clerk& clerk, const Shift& shift);
    void SellAll(Clerk& clerk, const Shift& shift, bool isCow);
    void SellToTheFederation(Clerk& clerk, const Shift& shift, bool isCow, Exact rest);
    void KeySale(Clerk& clerk, const Shift& shift, const MilkReckoning::Sale& sale, const QString& measure);
    void MendTheLastSale(Clerk& clerk, const Shift& shift, Exact litres);

    // The rounds of a clerk, beside the counter and the payments
    void OpenTheProgram();
    void KeyDepositSpan();
    int ForgottenMember() const; // of the period
    bool IsForgotten(int member, const Shift& shift) const;
    void KeyForgottenDays();
    void LookAtTheDay(); // the last of the period
    void LookAtMember(int member);
    void LookForTheAbsent();
    void PrintAgain(int member);
    void LookAtReports();
    void LookAtReport(const QString& keys, const QString& shown, const std::function<void()>& open);
    void LookAtRegister(const char* mode, const QString& keys, const QString& shown);
    void LookAtPaper(Clerk& clerk, const QString& shown, const std::string& below);
    void PrintAdvance();

    // Backups
    void BackUp(const QDate& day);
    QDate Restore();
    void AtBackup(const char* type, const std::function<void(Clerk&)>& script);

    Exact ThrowLitres(int least, int most);
    static bool IsGateOpen(const QDate& day) { return day.day() % 3 == 0; } // in its evening
    static bool TakesBoth(int member) { return member % 3 == 1; }

    // What has to be in the books as the newest backup has them.
    struct Kept {
        QDate day;
        QString file;
        PaymentReckoning money;
        MilkReckoning milk;
        Exact gained;
    };

    Plan m_plan;
    MilkReckoning m_milk;
    Exact m_gained; // by measuring, and by members who are gone with what they brought; less what came late
    std::vector<int> m_buyers = {1, 2, 3}; // customers who pay later
    bool m_isAtTheGate = false;
    Kept m_kept;
    std::map<int, PaymentReckoning::Columns> m_openings;
    std::function<void(const TemplateReport::Run&)> m_engine = TemplateReport::Engine();
};
