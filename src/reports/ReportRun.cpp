#include "reports/ReportRun.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/report/ReportControl.h"
#include "platform/shell/AppFolder.h"

void ReportRun::StageDates(const QString& from, const QString& to)
{
    gCn.Execute(Sql(u"insert into ReportDates(CompanyId,FromDate,ToDate) values(",
        Values(gAppState.gCompanyId, from, to), u")"));
}

void ReportRun::Tidy(QStringView table)
{
    gCn.Execute(Sql(u"delete * from ", table, u" where CompanyId=0"));
}

void ReportRun::Show(QStringView templateName, const QString& subject, const QString& selectionFormula)
{
    ReportControl report;
    report.SetReportFileName(AppFolder.toString() + templateName);
    report.SetSubject(subject);
    report.SetLogon(Logon());
    report.SetSelectionFormula(selectionFormula);
    report.SetDestination(ReportDestination::Window);
    report.Print();
}
