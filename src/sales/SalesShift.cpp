#include "sales/SalesShift.h"

#include "core/state/AppState.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"

double SalesShift::NextNumber() const
{
    return Figure(Sql(u"SELECT max(SalesNo) as MaxTrId FROM MilkSales WHERE cstr(SalesDate)=", SqlDay(date),
               u" and SalesTime=", Quoted(time), u" "))
        + 1;
}

double SalesShift::NextNumberInCopy() const
{
    return Figure(Sql(u"SELECT max(SalesNo) as MaxTrId FROM MilkSalesTemp", Condition())) + 1;
}

void SalesShift::Open() const
{
    Transaction opening(gCn);
    gCn.Execute(u"delete * from MilkSalesTemp");
    gCn.Execute(
        Sql(u"insert into MilkSalesTemp select * from MilkSales where CompanyId=", gAppState.gCompanyId,
            u" and SalesDate=", SqlDay(date), u" and SalesTime=", Quoted(time), u" ORDER BY SalesNo"));
    TidyCopy();
    opening.Commit();
}

SqlText SalesShift::Condition() const
{
    return Sql(u" where SalesDate=", SqlDay(date), u" and SalesTime=", Quoted(time));
}

void SalesShift::EmptyCopy()
{
    Transaction emptying(gCn);
    gCn.Execute(u"delete * from MilkSalesTemp");
    emptying.Commit();
}

void SalesShift::TidyCopy()
{
    gCn.Execute(u"delete * from MilkSalesTemp where CompanyId=0");
}
