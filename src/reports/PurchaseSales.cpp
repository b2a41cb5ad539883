#include "reports/PurchaseSales.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/MilkBooks.h"
#include "reports/ReportRun.h"
#include "reports/StagingProgress.h"
#include "society/Words.h"

#include <vector>

namespace {

SqlText IsSale()
{
    return Sql(u"TranType=", Quoted(Word::CashSale), u" or TranType=", Quoted(Word::CreditSale));
}

SqlText IsPurchase()
{
    return Sql(u"TranType=", Quoted(Word::CashPurchase), u" or TranType=", Quoted(Word::CreditPurchase));
}

// The statements that copy the transactions of the days.
std::vector<SqlText> Copies(const QDate& from, const QDate& to)
{
    std::vector<SqlText> copies;
    for (Recordset row(gCn,
             Sql(u"Select CompanyId,TranDate,TranType,Amount from TransactionsMaster where CompanyId=",
                 gAppState.gCompanyId, u" And  TranDate>=", SqlDay(from), u" And  TranDate<=", SqlDay(to),
                 u" and ( ", IsSale(), u" or ", IsPurchase(), u")"));
         !row.Eof(); row.MoveNext())
        copies.push_back(
            Sql(u"Insert Into TransactionsMasterTemp (CompanyId,Trandate,Amount,TranType) values(",
                Values(gAppState.gCompanyId, row[u"TranDate"].Date(), row[u"Amount"].Number(),
                    row[u"TranType"].Text()),
                u")"));
    return copies;
}

void CopyTransactions(const QDate& from, const QDate& to, StagingProgress& progress)
{
    const std::vector<SqlText> copies = Copies(from, to);
    progress.Begin(static_cast<int>(copies.size()));
    for (const SqlText& copy : copies) {
        gCn.Execute(copy);
        progress.Step();
    }
}

// What the copied transactions of some types come to on a day.
double SumOfDay(const QDate& day, const SqlText& name, const SqlText& isMeant)
{
    const Recordset sum(gCn,
        Sql(u"Select CompanyId,TranDate,Sum(Amount) as ", name,
            u" from TransactionsMasterTemp where CompanyId=", gAppState.gCompanyId, u" And  TranDate=",
            SqlDay(day), u" and (", isMeant, u") Group By CompanyId,TranDate"));
    return sum.Eof() ? 0 : sum[QString(name)].Number();
}

// A day without a transaction has a row of noughts.
void StageDays(const QDate& from, const QDate& to, StagingProgress& progress)
{
    progress.Begin(static_cast<int>(from.daysTo(to)) + 1);
    for (QDate day = from; day <= to; day = day.addDays(1)) {
        const double sales = SumOfDay(day, u"mCAmount", IsSale());
        const double purchases = SumOfDay(day, u"mDAmount", IsPurchase());
        gCn.Execute(
            Sql(u"Insert Into LedgersMaster (CompanyId,Trandate,CAmount,DAmount,FromDate,ToDate) values(",
                Values(gAppState.gCompanyId, day, sales, purchases, from, to), u")"));
        progress.Step();
    }
}

}

void PurchaseSales::StageAccounts(const QDate& from, const QDate& to, StagingProgress& progress)
{
    Transaction staging(gCn);
    ReportRun::Empty({u"LedgersMaster", u"TransactionsMasterTemp"});
    CopyTransactions(from, to, progress);
    StageDays(from, to, progress);
    ReportRun::Tidy(u"LedgersMaster");
    staging.Commit();
    progress.End();
}

void PurchaseSales::StageMilk(const MilkBooks& books, const QDate& from, const QDate& to)
{
    Transaction staging(gCn);
    ReportRun::Empty({books.copy, u"ReportDates"});
    gCn.Execute(books.CopyOf(from, to));
    ReportRun::StageDates(DateText(from), DateText(to));
    ReportRun::Tidy(books.copy);
    staging.Commit();
}
