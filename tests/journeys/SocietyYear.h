#pragma once

#include "core/preview/TemplateReport.h"
#include "tests/journeys/PaymentYear.h"
#include "tools/reckoning/MilkReckoning.h"

#include <map>

// The year of a small society: eight members, who come and go, three customers and the federation. All of it
// is keyed on the real screens: members and customers, two charts, each delivery of each morning and evening
// at the counter, each sale, vouchers, installments, payments, and a backup every Saturday. Once the backup
// comes back, and the days that it lacks are keyed anew, with other figures. What the clerk keys is told to
// the reckonings, and the books have to agree with them.
class SocietyYear : public PaymentYear {
protected:
    // The days on which something happens once.
    struct Plan {
        QDate chart; // from which the second chart holds, the first of a period
        QDate charted; // on which it is keyed, after its evening
        QDate restored; // in the same period as the Saturday before it
        int leaving = 0; // the period before which two members go and one comes, counted from 0
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

private:
    using Shift = MilkReckoning::Shift;

    void BringMilk(bool isKeyed) override;
    void ExpectAgreement() override;
    static void ExpectSome(const Compared& rows); // there are rows, and they agree

    // People
    void KeyMember(int number);
    void DeleteMember(int number);
    void KeyCustomers();

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

    // Backups
    void BackUp(const QDate& day);
    QDate Restore();
    void AtBackup(const char* type, const std::function<void(Clerk&)>& script);

    Exact ThrowLitres(int least, int most) { return Exact::Of((least + Throw(most - least)) / 1000.0); }
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
    Exact m_gained; // by measuring, and by members who are gone with what they brought
    Kept m_kept;
    std::map<int, PaymentReckoning::Columns> m_openings;
    std::function<void(const TemplateReport::Run&)> m_engine = TemplateReport::Engine();
};
