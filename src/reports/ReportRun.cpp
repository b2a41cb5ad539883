#include "reports/ReportRun.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"

void ReportRun::StageDates(const QString& from, const QString& to)
{
    gCn.Execute(Sql(u"insert into ReportDates(CompanyId,FromDate,ToDate) values(",
        Values(gAppState.gCompanyId, from, to), u")"));
}

void ReportRun::Tidy(QStringView table)
{
    gCn.Execute(Sql(u"delete * from ", table, u" where CompanyId=0"));
}
