#include "bench/FloorSave.h"

#include "bench/CounterPlay.h"

namespace {

// Columns that are read by their position in the schema.
constexpr int PrintStatus = 3;
constexpr int RepeatCollection = 8;
constexpr int PurchaseEntry = 10;
constexpr int ClosingBalance = 12;

// Columns of the copy of the shift.
enum CopyColumn {
    CompanyId,
    CollectionDate,
    CollectionTime,
    CollectionNo,
    MemberNo,
    MemberName,
    Animal,
    Liters,
    Fat,
    Rate,
    Amount,
    TranId,
    ActualTime,
    Snf
};

// The number of rows that the list reads at first.
constexpr int ListRows = 100;

}

bool FloorSave::IsSetting(FloorStatement& settings, int column, std::string_view value)
{
    const bool is = settings.Step() && settings.TextAt(column) == value;
    settings.Reset();
    return is;
}

double FloorSave::Save(const Row& row)
{
    Require(IsSetting(m_settings, RepeatCollection, "naahI"), "A second can is looked for.");
    m_second.Bind(row.day, row.time, row.number, row.memberNo, row.animal);
    Require(!m_second.Finds(), "It is the member's first can.");
    Require(!m_there.Bind(row.day, row.time, row.number).Finds(), "It is a new row.");

    m_begin.Run();
    for (FloorStatement* insert : {&m_insertBooks, &m_insertCopy})
        insert
            ->Bind(row.day, row.time, row.number, row.memberNo, row.memberName, row.animal, row.liters,
                row.fat, row.rate, row.amount, row.actualTime)
            .Run();
    if (IsSetting(m_settings, PurchaseEntry, "Collection"))
        Post(row);
    RefreshLitres(row);
    m_tidy.Run();
    StageReceipt(row);
    m_commit.Run();

    ReadList();
    Require(WalkCopy() > 0, "The copy has litres.");
    Require(WalkCopy() > 0, "The copy has an average fat.");
    const double next = m_next.Bind(row.day, row.time).Number() + 1;
    Require(IsSetting(m_settings, PrintStatus, "naahI"), "Nothing is printed.");
    return next;
}

void FloorSave::Post(const Row& row)
{
    Require(m_balance.Bind(row.memberName).Step(), "The member is there.");
    const double balance = m_balance.NumberAt(ClosingBalance) + row.amount;
    m_balance.Reset();
    m_post.Bind(balance, balance <= 0 ? "D" : "C", row.memberName).Run();
}

void FloorSave::RefreshLitres(const Row& row)
{
    Require(m_opening.Bind(row.memberNo).Step(), "The member is there.");
    auto cow = static_cast<float>(m_opening.NumberAt(0));
    auto buff = static_cast<float>(m_opening.NumberAt(1));
    m_opening.Reset();
    cow += static_cast<float>(m_sum.Bind("gaaya", row.memberNo).Number());
    buff += static_cast<float>(m_sum.Bind("mhOsa", row.memberNo).Number());
    m_litres.Bind(static_cast<double>(cow), static_cast<double>(buff), row.memberNo).Run();
}

// The table is emptied twice, as at the counter.
void FloorSave::StageReceipt(const Row& row)
{
    m_emptyReceipt.Run();
    m_emptyReceipt.Run();
    m_stage
        .Bind(row.day, row.time, row.number, row.memberNo, row.memberName, row.animal, row.liters, row.fat,
            row.rate, row.amount, row.actualTime)
        .Run();
}

void FloorSave::ReadList()
{
    double numbers = 0;
    std::size_t texts = 0;
    for (int rows = 0; rows < ListRows && m_list.Step(); ++rows) {
        for (const int column : {CollectionDate, CollectionTime, MemberName, Animal, ActualTime})
            texts += m_list.TextAt(column).size();
        for (const int column : {CompanyId, CollectionNo, MemberNo, Liters, Fat, Rate, Amount, TranId, Snf})
            numbers += m_list.NumberAt(column);
    }
    m_list.Reset();
    Require(texts > 0 && numbers > 0, "The list has rows.");
}

// Sums the litres of both animals, and the litres weighted by their fat.
double FloorSave::WalkCopy()
{
    double liters = 0;
    double litersByFat = 0;
    while (m_copy.Step()) {
        if (m_copy.TextAt(Animal) != "gaaya" && m_copy.TextAt(Animal) != "mhOsa")
            continue;
        liters += m_copy.NumberAt(Liters);
        litersByFat += m_copy.NumberAt(Liters) * m_copy.NumberAt(Fat);
    }
    m_copy.Reset();
    return litersByFat > 0 ? liters : 0;
}
