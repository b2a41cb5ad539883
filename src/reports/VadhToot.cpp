#include "reports/VadhToot.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Painting.h"
#include "reports/ReportRun.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr qsizetype MostFederationCustomers = 11;

// The milk of a shift and an animal, and what the sum of its sales is called.
struct ShiftMilk {
    QStringView shift;
    QStringView animal;
    QStringView sum;
};

constexpr ShiftMilk MilkOfADay[] = {
    {Word::Morning, Word::Cow, u"TotalCowMLiters"},
    {Word::Morning, Word::Buffalo, u"TotalBuffMLiters"},
    {Word::Evening, Word::Cow, u"TotalCowELiters"},
    {Word::Evening, Word::Buffalo, u"TotalBuffELiters"},
};

// The books of milk, by the column of their day.
struct DayColumn {
    QStringView table;
    QStringView day;
};

constexpr DayColumn MilkByDay[] = {{u"MilkCollections", u"CollectionDate"}, {u"MilkSales", u"SalesDate"}};

// What came in and went out, in litres or rupees.
struct InAndOut {
    double in = 0;
    double federation = 0;
    double out = 0;

    double Local() const { return out - federation; }
    bool IsNothing() const { return in <= 0 && out <= 0; }
};

// What came in on a day, in the order of MilkOfADay.
using DayIn = std::array<double, std::size(MilkOfADay)>;

// What came in on the days of a range. Both animals are summed in one reading: asked for one shift and animal
// at a time, the deliveries of each day would be gone through four times.
QHash<QDate, DayIn> Collected(QStringView column, const QDate& from, const QDate& to)
{
    const auto sumOf = [column](QStringView animal) {
        return Sql(u"sum(case when trim(Animal)=", Quoted(animal), u" then ", column, u" end)");
    };
    QHash<QDate, DayIn> days;
    for (Recordset shift(gCn,
             Sql(u"select CollectionDate,trim(CollectionTime) as Shift,", sumOf(Word::Cow),
                 u" as TotalCowLiters,", sumOf(Word::Buffalo),
                 u" as TotalBuffLiters from MilkCollections where CollectionDate>=", SqlDay(from),
                 u" and CollectionDate<=", SqlDay(to), u" group by CollectionDate,CollectionTime"));
         !shift.Eof(); shift.MoveNext()) {
        DayIn& day = days[shift[u"CollectionDate"].Date()];
        const QString word = shift[u"Shift"].Text();
        for (std::size_t at = 0; at < day.size(); ++at)
            if (word == MilkOfADay[at].shift)
                day[at] += shift[MilkOfADay[at].animal == Word::Cow ? u"TotalCowLiters" : u"TotalBuffLiters"]
                               .Number();
        Painting::RepaintInTime();
    }
    return days;
}

SqlText Sold(QStringView column, QStringView sum, const QDate& day, const ShiftMilk& milk)
{
    return Sql(u"select sum(", column, u") as ", sum, u" from MilkSales where SalesDate=", SqlDay(day),
        u" and trim(SalesTime)=", Quoted(milk.shift), u" and trim(Animal)=", Quoted(milk.animal));
}

InAndOut Reckon(double in, QStringView column, const QDate& day, const ShiftMilk& milk,
    const QStringList& federationCustomers)
{
    InAndOut reckoned;
    reckoned.in = in;
    const SqlText sold = Sold(column, milk.sum, day, milk);
    for (const QString& name : federationCustomers)
        reckoned.federation += Figure(Sql(sold, u" and trim(CustomerName)=", Quoted(name)));
    reckoned.out = Figure(sold);
    return reckoned;
}

// What the society measured of the milk that it sold, below zero: the statement sets it against what came in.
double OurLitersTakenAway(const QDate& day, const ShiftMilk& milk)
{
    return 0 - Figure(Sold(u"OurLiters", u"TotalLiters", day, milk));
}

void InsertLiters(const QDate& day, const ShiftMilk& milk, const InAndOut& liters)
{
    gCn.Execute(Sql(u"insert into VadhTootReport(CompanyId,CollectionDate,CollectionTime,Animal,LitersIn,"
                    u"LitersLocal,LitersSangh,LitersOut,OurLiters) values(",
        Values(gAppState.gCompanyId, day, milk.shift, milk.animal, liters.in, liters.Local(),
            liters.federation, liters.out, OurLitersTakenAway(day, milk)),
        u")"));
}

void InsertAmounts(const QDate& day, const ShiftMilk& milk, const InAndOut& rupees)
{
    gCn.Execute(Sql(u"insert into VadhTootReport(CompanyId,CollectionDate,CollectionTime,Animal,LitersIn,"
                    u"LitersLocal,LitersSangh,LitersOut) values(",
        Values(gAppState.gCompanyId, day, milk.shift, milk.animal, rupees.in, rupees.Local(),
            rupees.federation, rupees.out),
        u")"));
}

// The name of the federation's ledger account, the first if there are several; a blank if there is none.
QString FederationAccount()
{
    const Recordset account(gCn,
        Sql(u"select * from AccountsMaster where CompanyId=", gAppState.gCompanyId,
            u" and trim(GroupCode)='Debtors' and trim(Category)=", Quoted(Word::Federation)));
    return account.Eof() ? QStringLiteral(" ") : account[u"AccountName"].Text();
}

// The first day of a range in these books, or with " desc" the last; not valid if there is none.
QDate FirstDay(const DayColumn& books, const QDate& from, const QDate& to, QStringView order)
{
    const Recordset found(gCn,
        Sql(u"select ", books.day, u" from ", books.table, u" where ", books.day, u">=", SqlDay(from),
            u" and ", books.day, u"<=", SqlDay(to), u" order by ", books.day, order));
    return found.Eof() ? QDate() : found.At(0).Date();
}

// The part of a range in which there is milk, not valid without any. Other days have no row, and a year that
// was keyed as 0202 would be walked through day by day.
std::pair<QDate, QDate> DaysOfMilk(const QDate& from, const QDate& to)
{
    std::pair<QDate, QDate> days;
    auto& [first, last] = days;
    for (const DayColumn& books : MilkByDay) {
        const QDate begins = FirstDay(books, from, to, u"");
        if (!begins.isValid())
            continue;
        const QDate ends = FirstDay(books, from, to, u" desc");
        first = first.isValid() ? std::min(first, begins) : begins;
        last = last.isValid() ? std::max(last, ends) : ends;
    }
    return days;
}

using Insertion = void (*)(const QDate& day, const ShiftMilk& milk, const InAndOut& figures);

void StageDays(const QDate& from, const QDate& to, QStringView column, const QStringList& federationCustomers,
    Insertion insert)
{
    Transaction staging(gCn);
    ReportRun::Empty({u"VadhTootReport", u"ReportDates"});
    ReportRun::StageDates(DateText(from), DateText(to));
    const QHash<QDate, DayIn> collected = Collected(column, from, to);
    const auto [first, last] = DaysOfMilk(from, to);
    for (QDate day = first; day.isValid() && day <= last; day = day.addDays(1)) {
        const DayIn in = collected.value(day);
        for (std::size_t at = 0; at < in.size(); ++at) {
            const ShiftMilk& milk = MilkOfADay[at];
            const InAndOut figures = Reckon(in[at], column, day, milk, federationCustomers);
            if (!figures.IsNothing())
                insert(day, milk, figures);
        }
        Painting::RepaintInTime();
    }
    ReportRun::Tidy(u"VadhTootReport");
    staging.Commit();
}

}

QStringList VadhToot::FederationCustomers()
{
    QStringList names;
    for (Recordset customer(gCn,
             Sql(u"select * from CustomersMaster where CompanyId=", gAppState.gCompanyId,
                 u" and Trim(CustomerType)=", Quoted(Word::FederationSale)));
         !customer.Eof() && names.size() < MostFederationCustomers; customer.MoveNext())
        names.append(customer[u"CustomerName"].Text());
    return names;
}

void VadhToot::StageLiters(const QDate& from, const QDate& to, const QStringList& federationCustomers)
{
    StageDays(from, to, u"Liters", federationCustomers, InsertLiters);
}

void VadhToot::StageAmounts(const QDate& from, const QDate& to)
{
    StageDays(from, to, u"Amount", {FederationAccount()}, InsertAmounts);
}
