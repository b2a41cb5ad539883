#include "bench/FloorSale.h"

#include "bench/CounterPlay.h"

#include <array>
#include <cmath>

namespace {

constexpr int MSRPrintStatus = 4; // of the settings

// Columns of the copy of the shift.
enum CopyColumn { SalesType = 3, SalesNo, CustomerNo, CustomerName, Animal, Liters, Fat, Rate, Amount };

}

double FloorSale::Save(const Row& row)
{
    Require(m_buyer.Bind(row.customer).Step(), "The customer is there.");
    m_customerNo = m_buyer.NumberAt(0);
    m_type = m_buyer.TextAt(1);
    m_buyer.Reset();
    m_begin.Run();
    Require(!m_there.Bind(row.day, row.time, row.number).Finds(), "It is a new sale.");
    Insert(row);
    Advance(row);
    m_tidy.Run();
    Require(!HasReceipt(), "Nothing is printed.");
    m_commit.Run();

    ReadList();
    Summarise(row);
    return m_next.Bind(row.day, row.time).Number() + 1;
}

void FloorSale::Insert(const Row& row)
{
    for (FloorStatement* insert : {&m_insertBooks, &m_insertCopy})
        insert
            ->Bind(row.day, row.time, m_type, row.number, m_customerNo, row.customer, row.animal, row.liters,
                row.fat, row.rate, row.amount, row.liters)
            .Run();
}

void FloorSale::Advance(const Row& row)
{
    Require(m_litres.Bind(row.customer).Step(), "The customer is there.");
    const double opening = m_litres.NumberAt(0);
    const double closing = std::abs(opening - m_litres.NumberAt(1)) + row.liters + opening;
    m_litres.Reset();
    m_advance.Bind(closing, row.customer).Run();
}

bool FloorSale::HasReceipt()
{
    const bool has = m_settings.Step() && m_settings.TextAt(MSRPrintStatus) != "saovh";
    m_settings.Reset();
    return has;
}

void FloorSale::ReadList()
{
    double numbers = 0;
    std::size_t texts = 0;
    while (m_list.Step()) {
        for (const int column : {SalesType, CustomerName, Animal})
            texts += m_list.TextAt(column).size();
        for (const int column : {SalesNo, CustomerNo, Liters, Fat, Rate, Amount})
            numbers += m_list.NumberAt(column);
    }
    m_list.Reset();
    Require(texts > 0 && numbers > 0, "The list has rows.");
}

// Litres and rupees of both animals, of local sale and of the rest.
void FloorSale::Summarise(const Row& row)
{
    std::array<double, 8> sums{};
    for (m_summary.Bind(row.day, row.time); m_summary.Step();) {
        const std::string_view type = m_summary.TextAt(0);
        const bool isLocal = type == "sqaainak ivaËI" || type == "raoK";
        const std::size_t at = (isLocal ? 0U : 4U) + (m_summary.TextAt(1) == "gaaya" ? 0U : 2U);
        sums.at(at) += m_summary.NumberAt(2);
        sums.at(at + 1) += m_summary.NumberAt(3);
    }
    m_summary.Reset();
    Require(sums[0] > 0 && sums[4] > 0, "Both kinds of sale have litres.");
}
