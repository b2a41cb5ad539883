#include "reports/ReportRun.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Queries.h"
#include "society/Words.h"

void ReportRun::Empty(std::initializer_list<QStringView> tables)
{
    for (const QStringView table : tables)
        gCn.Execute(Sql(u"delete * from ", table));
}

void ReportRun::StageDates(const QString& from, const QString& to)
{
    gCn.Execute(Sql(u"insert into ReportDates(CompanyId,FromDate,ToDate) values(",
        Values(gAppState.gCompanyId, from, to), u")"));
}

void ReportRun::Tidy(QStringView table)
{
    gCn.Execute(Sql(u"delete * from ", table, u" where CompanyId=0"));
}

bool ReportRun::ReachesIntoLastYear(const QDate& from)
{
    const Recordset company(gCn, Sql(u"SELECT * FROM CompanyMaster where CompanyId=", gAppState.gCompanyId));
    return !company.Eof() && from < company[u"FromDate"].Date();
}

bool ReportRun::RepeatsCollections()
{
    return Setting(u"RepeatCollection") == Word::Yes;
}
