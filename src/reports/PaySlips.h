#pragma once

#include <QDate>
#include <QString>

#include <vector>

class KapatSummary;
class StagingProgress;

// Stages the pay slips of a payment date for a range of members: what each delivered day by day, what was
// kept back beside it, and the deposit before and after.
class PaySlips {
public:
    struct Wanted {
        QDate paymentDate;
        QDate from, to; // the period of the first payment of that date
        double fromNo = 0;
        double toNo = 0;
    };

    explicit PaySlips(const Wanted& wanted) : m_wanted(wanted) { }

    // Whether anything was paid on that date to one of the members.
    bool Any() const;

    void Stage(StagingProgress& progress) const;

private:
    // A payment of the date. A member who was paid for several periods has several.
    struct Payment {
        double memberNo = 0;
        QString memberName;
        QDate from, to;
        double litersCow = 0;
        double litersBuff = 0;
    };
    using Payments = std::vector<Payment>;

    QString Condition() const;
    Payments CopyPayments() const;
    void CopyCollections(const Payments& payments) const;
    void StageDays(const Payment& payment, bool repeats) const;
    void StageMember(double memberNo) const;
    void StageKapat(double memberNo) const;
    double PreviousBalance(double memberNo, double previousAdvance) const;
    void FillUpDays(double memberNo) const;
    void StageDeposit(double memberNo) const;
    void RemoveEmptyAnimals(const Payment& payment) const;

    Wanted m_wanted;
};
