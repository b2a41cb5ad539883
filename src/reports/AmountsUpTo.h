#pragma once

#include "platform/database/Sql.h"

#include <QDate>

#include <map>

// What members were given (TransactionsDetails), gave back (AdvanceReceipt) or had kept back
// (MilkPaymentsDetails) up to the end of a day, in rupees: the sums of the whole years before, which the
// engine keeps, and the rows of the last year. So a balance costs what its year costs, however old the
// society is.
class AmountsUpTo {
public:
    enum class Heads { All, ButDeposits };

    // The members are those that the query, of one column, finds.
    AmountsUpTo(QStringView table, const QDate& day, const SqlText& members, Heads heads = Heads::All);

    // 0 for a member without any.
    double Of(double memberNo) const;

    // The condition of rows that are under another head than the deposits.
    static SqlText ButDeposits();

private:
    void Add(const SqlText& sums);

    std::map<double, double> m_amounts;
};
