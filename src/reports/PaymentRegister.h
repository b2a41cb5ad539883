#pragma once

#include <QDate>
#include <QString>

#include <vector>

class StagingProgress;

// Stages a register of one payment period: the payments themselves, the deposits or the advances, a row for
// each payment of the members of a range.
class PaymentRegister {
public:
    enum class Kind { Payments, Deposits, Advances };

    struct Wanted {
        QDate from, to; // the period
        double fromNo = 0;
        double toNo = 0;
    };

    PaymentRegister(Kind kind, const Wanted& wanted) : m_kind(kind), m_wanted(wanted) { }

    // Whether one of the members was paid for the period.
    bool Any() const;

    void Stage(StagingProgress& progress) const;

private:
    struct Payment {
        QDate date;
        double tranId = 0;
        double memberNo = 0;
        QString memberName;
        QString animal;
        double amount = 0;
        double kapat = 0;
        double netAmount = 0;
        double previousBalance = 0;
        double currentBalance = 0;
        double thevKapat = 0; // of both animals
        double previousAdvance = 0;

        // What was kept back but for the deposit.
        double ActualKapat() const { return kapat - thevKapat; }
    };
    using Payments = std::vector<Payment>;
    class Owed;

    QString Condition() const;
    void CopyCollections() const;
    Payments CopyPayments() const;
    void StageRow(const Payment& payment, const Owed* owed) const;
    void StagePayment(const Payment& payment) const;
    void StageDeposit(const Payment& payment) const;
    void StageAdvance(const Payment& payment, double previous) const;
    void AddPreviousBalances(const Payment& payment) const;

    Kind m_kind;
    Wanted m_wanted;
};
