#include "sales/CustomerLitres.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <cmath>

namespace {

constexpr QStringView LitresPattern = u"#####0.00";

struct LitresColumns {
    QStringView opening;
    QStringView closing;
    QStringView sum;
};

LitresColumns ColumnsOf(QStringView animal)
{
    if (animal == Word::Cow)
        return {u"CowOpeningLits", u"CowClosinglits", u"TLitersC"};
    return {u"BuffOpeningLits", u"BuffClosinglits", u"TLitersM"};
}

double Rounded(double litres)
{
    return Val(Format(litres, LitresPattern));
}

void WriteClosing(const QString& customerName, QStringView column, double litres)
{
    gCn.Execute(Sql(u"Update CustomersMaster Set ", column, u"=", litres, u" Where CompanyId=",
        gAppState.gCompanyId, u" and CustomerName=", Quoted(customerName)));
}

}

// A closing figure below the opening one has its gap counted twice.
void CustomerLitres::Advance(const QString& customerName, QStringView animal, double liters)
{
    const LitresColumns columns = ColumnsOf(animal);
    const Recordset customer(gCn,
        Sql(u"Select ", columns.opening, u",", columns.closing, u" From CustomersMaster Where CompanyId=",
            gAppState.gCompanyId, u" and CustomerName=", Quoted(customerName)));
    if (customer.Eof())
        return;
    const double opening = Rounded(customer[columns.opening].Number());
    const FieldValue closing = customer[columns.closing];
    const double taken = std::abs(opening - Rounded(closing.Number())) + liters;
    WriteClosing(customerName, columns.closing, closing.IsNull() ? taken : taken + opening);
}

// The opening is that of the name in whichever company has it first.
void CustomerLitres::Recompute(const QString& customerName, QStringView animal)
{
    const LitresColumns columns = ColumnsOf(animal);
    const double sold = Figure(
        Sql(u"Select sum(Liters) as ", columns.sum, u" From MilkSales Where CompanyId=", gAppState.gCompanyId,
            u" and CustomerName=", Quoted(customerName), u" and Animal=", Quoted(animal), u" "));
    const Recordset customer(gCn,
        Sql(u"Select ", columns.opening, u" From CustomersMaster Where CustomerName=", Quoted(customerName),
            u" "));
    if (!customer.Eof())
        WriteClosing(customerName, columns.closing, Rounded(sold + customer[columns.opening].Number()));
}
