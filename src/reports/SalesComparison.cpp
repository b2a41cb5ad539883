#include "reports/SalesComparison.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/MilkBooks.h"
#include "reports/ReportRun.h"
#include "society/Queries.h"

QString SalesComparison::Staged()
{
    return Sql(u"select * from MilkSalesTemp where CompanyId=", gAppState.gCompanyId);
}

void SalesComparison::Stage(const QString& account, const QDate& from, const QDate& to)
{
    Transaction staging(gCn);
    ReportRun::Empty({SalesBooks.copy});
    gCn.Execute(Sql(SalesBooks.CopyOf(from, to), u" and trim(CustomerName)=", Quoted(account)));
    if (Finds(Staged())) {
        ReportRun::Empty({u"ReportDates"});
        ReportRun::StageDates(DateText(from), DateText(to));
        ReportRun::Tidy(SalesBooks.copy);
    }
    staging.Commit();
}
