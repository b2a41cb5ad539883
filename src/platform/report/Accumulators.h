#pragma once

#include "platform/template/ExactSum.h"
#include "platform/template/Expression.h"
#include "platform/template/Value.h"

#include <vector>

class ReportData;

// One total in the making.
class Accumulator {
public:
    // Takes in what the arguments of the aggregate come to in one row.
    void Add(const Expression& aggregate, const Value* arguments);
    Value Result(const Expression& aggregate) const;

private:
    ExactSum m_sum;
    ExactSum m_weight;
    double m_count = 0;
    Value m_extreme;
};

// The totals of a table: one line of them for the whole table, and one for each of its groups.
class Accumulators {
public:
    Accumulators(const std::vector<Expression>& aggregates, std::size_t groups);

    // What the current row of the table adds to them, and the taking in of that.
    std::vector<Value> Shares(ReportData& data) const;
    void Add(const std::vector<Value>& shares);
    void Add(ReportData& data) { Add(Shares(data)); }

    // A group begins, and with it all groups inside it.
    void Begin(std::size_t group);

    // What one of them comes to so far: at level 0 of the whole table, at level n of its n-th group.
    Value Result(int slot, int level) const;

private:
    const std::vector<Expression>& m_aggregates;
    std::vector<std::vector<Accumulator>> m_levels;
};

// As long as it lives, totals of a table are told: those of its rows, those of the rows that stand for
// groups, both at one level.
class TotalsInSight {
public:
    TotalsInSight(ReportData& data, const Accumulators& rows, const Accumulators& groups, int level);
    ~TotalsInSight();
    TotalsInSight(const TotalsInSight&) = delete;
    TotalsInSight& operator=(const TotalsInSight&) = delete;

private:
    ReportData& m_data;
};
