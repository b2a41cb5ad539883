#pragma once

#include "platform/template/ExactSum.h"
#include "platform/template/Expression.h"
#include "platform/template/Value.h"

#include <vector>

class ReportData;

// One total while it is being added up.
class Accumulator {
public:
    // Adds one row: the values of the arguments of the aggregate in that row.
    void Add(const Expression& aggregate, const Value* arguments);
    Value Result(const Expression& aggregate) const;

private:
    ExactSum m_sum;
    ExactSum m_weight;
    double m_count = 0;
    Value m_extreme;
};

// All totals of a table at each level: level 0 is the whole table, level n its n-th group.
class Accumulators {
public:
    Accumulators(const std::vector<Expression>& aggregates, std::size_t groups);

    // Shares evaluates the arguments of all aggregates in the current row, and Add adds them.
    std::vector<Value> Shares(ReportData& data) const;
    void Add(const std::vector<Value>& shares);
    void Add(ReportData& data) { Add(Shares(data)); }

    // Starts a group anew, and all groups inside of it.
    void Begin(std::size_t group);

    // A total so far; slot is the index of its aggregate.
    Value Result(int slot, int level) const;

private:
    const std::vector<Expression>& m_aggregates;
    std::vector<std::vector<Accumulator>> m_levels;
};

// While it lives, expressions can use the totals of a table at one level: those over its rows, and those
// over the printed rows of rows="groups".
class TotalsInSight {
public:
    TotalsInSight(ReportData& data, const Accumulators& rows, const Accumulators& groups, int level);
    ~TotalsInSight();
    TotalsInSight(const TotalsInSight&) = delete;
    TotalsInSight& operator=(const TotalsInSight&) = delete;

private:
    ReportData& m_data;
};
