#include "sales/Sale.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <array>

namespace {

constexpr std::array<QStringView, 2> BooksAndCopy{u"MilkSales", u"MilkSalesTemp"};

}

bool Sale::IsForCash() const
{
    return customerName == Word::Cash;
}

double Sale::OurAmount() const
{
    return Val(Format(ourLiters * ourRate, u"#######0.00"));
}

std::optional<Sale> Sale::Find(const SalesShift& shift, double number)
{
    const Recordset row(gCn,
        Sql(u"SELECT * FROM MilkSales where cstr(SalesDate)=", SqlDay(shift.date), u" and SalesTime=",
            Quoted(shift.time), u" AND SalesNo=", number));
    if (row.Eof())
        return {};
    return Sale{shift, number, row[u"SalesType"].Text(), row[u"CustomerNo"].Number(),
        row[u"CustomerName"].Text(), row[u"Animal"].Text(), row[u"Liters"].Number(), row[u"Fat"].Number(),
        row[u"Rate"].Number(), row[u"Amount"].Number(), row[u"OurLiters"].Number(), row[u"SNF"].Number(),
        row[u"OurFat"].Number(), row[u"OurRate"].Number()};
}

bool Sale::IsStored() const
{
    return Finds(Sql(u"SELECT * FROM MilkSales", OfItself()));
}

void Sale::Insert() const
{
    const SqlText values = Values(gAppState.gCompanyId, shift.date, shift.time, type, number, customerNo,
        customerName, animal, liters, fat, rate, amount, ourLiters, snf, ourFat, ourRate, OurAmount());
    for (const QStringView table : BooksAndCopy)
        gCn.Execute(Sql(u"insert into ", table,
            u"(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,Animal,Liters,Fat,"
            u"Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) values(",
            values, u")"));
}

void Sale::Update() const
{
    for (const QStringView table : BooksAndCopy)
        gCn.Execute(Sql(u"update ", table, u" set CompanyId=", gAppState.gCompanyId, u",CustomerNo=",
            customerNo, u",CustomerName=", Quoted(customerName), u",Animal=", Quoted(animal), u",Liters=",
            liters, u",Fat=", fat, u",Rate=", rate, u",Amount=", amount, u",OurLiters=", ourLiters, u",SNF=",
            snf, u",OurFat=", ourFat, u",OurRate=", ourRate, u",OurAmount=", OurAmount(), OfItself()));
}

void Sale::Delete() const
{
    for (const QStringView table : BooksAndCopy)
        gCn.Execute(Sql(u"delete * from ", table, OfItself()));
}

SqlText Sale::OfItself() const
{
    return Sql(shift.Condition(), u" and SalesNo=", number);
}
