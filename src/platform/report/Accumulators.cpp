#include "platform/report/Accumulators.h"

#include "platform/report/Evaluation.h"
#include "platform/report/ReportData.h"

void Accumulator::Add(const Expression& aggregate, const Value* arguments)
{
    m_count += 1;
    if (aggregate.arguments.empty())
        return;
    const Value& value = arguments[0];
    switch (aggregate.aggregate) {
    case AggregateKind::Minimum:
    case AggregateKind::Maximum: {
        const int order = m_extreme.IsNull() ? 0 : Compare(value, m_extreme);
        const bool isBeyond = aggregate.aggregate == AggregateKind::Minimum ? order < 0 : order > 0;
        if (!value.IsNull() && (m_extreme.IsNull() || isBeyond))
            m_extreme = value;
        return;
    }
    case AggregateKind::Average:
        if (aggregate.arguments.size() > 1) {
            const double weight = arguments[1].Number();
            m_sum.AddProduct(value.Number(), weight);
            m_weight.Add(weight);
            return;
        }
        m_weight.Add(value.IsNull() ? 0 : 1);
        m_sum.Add(value.Number());
        return;
    case AggregateKind::Sum:
    case AggregateKind::Running:
        m_sum.Add(value.Number(), static_cast<int>(aggregate.number));
        return;
    case AggregateKind::Count:
        return;
    }
}

Value Accumulator::Result(const Expression& aggregate) const
{
    switch (aggregate.aggregate) {
    case AggregateKind::Count:
        return Value::OfNumber(m_count);
    case AggregateKind::Minimum:
    case AggregateKind::Maximum:
        return m_extreme;
    case AggregateKind::Average:
        return Value::OfNumber(m_weight.IsZero() ? 0 : m_sum.Number() / m_weight.Number());
    case AggregateKind::Sum:
    case AggregateKind::Running:
        break;
    }
    return Value::OfNumber(m_sum.Number());
}

Accumulators::Accumulators(const std::vector<Expression>& aggregates, std::size_t groups)
    : m_aggregates(aggregates)
    , m_levels(groups + 1, std::vector<Accumulator>(aggregates.size()))
{
}

std::vector<Value> Accumulators::Shares(ReportData& data) const
{
    std::vector<Value> shares;
    for (const Expression& aggregate : m_aggregates) {
        for (const Expression& argument : aggregate.arguments)
            shares.push_back(Evaluate(argument, data));
    }
    return shares;
}

void Accumulators::Add(const std::vector<Value>& shares)
{
    for (std::vector<Accumulator>& level : m_levels) {
        const Value* share = shares.data();
        for (std::size_t i = 0; i < m_aggregates.size(); ++i) {
            level[i].Add(m_aggregates[i], share);
            share += m_aggregates[i].arguments.size();
        }
    }
}

void Accumulators::Begin(std::size_t group)
{
    for (std::size_t level = group + 1; level < m_levels.size(); ++level)
        m_levels[level].assign(m_aggregates.size(), Accumulator());
}

Value Accumulators::Result(int slot, int level) const
{
    const std::size_t at = static_cast<std::size_t>(slot);
    return m_levels[static_cast<std::size_t>(level)][at].Result(m_aggregates[at]);
}

TotalsInSight::TotalsInSight(
    ReportData& data, const Accumulators& rows, const Accumulators& groups, int level)
    : m_data(data)
{
    data.Totals = &rows;
    data.GroupTotals = &groups;
    data.TotalsLevel = level;
}

TotalsInSight::~TotalsInSight()
{
    m_data.Totals = nullptr;
    m_data.GroupTotals = nullptr;
    m_data.TotalsLevel = 0;
}
