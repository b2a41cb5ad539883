#pragma once

#include "tools/reckoning/MilkReckoning.h"
#include "tools/reckoning/PaymentReckoning.h"

// The bonus of each member worked out a second time. The run's figures are held in single precision, those
// that the clerk passes through are rounded to two decimals.
class BonusReckoning {
public:
    struct Asked {
        QDate from, to;
        int last = 0; // the first is member 1
        Exact cowRate, buffRate;
    };

    // Of all `members`, in their order, with the advances.
    BonusReckoning(const Asked& asked, const std::vector<int>& members, const MilkReckoning& milk,
        const PaymentReckoning& money);

    // What the clerk keys for a member: litres of an earlier span, and a deposit that is added.
    struct Keyed {
        Exact cowLitres, buffLitres, deposit;
    };
    void Correct(int member, const Keyed& keyed);

    // Beside the rows of the open books.
    Compared Comparison() const;

private:
    struct Row {
        int member = 0;
        QString name;
        Exact cow, buff, advance;
        std::optional<Keyed> keyed;
    };
    QStringList AsRun(const Row& row) const;
    QStringList AsCorrected(const Row& row) const;

    Asked m_asked;
    std::vector<Row> m_rows;
};
