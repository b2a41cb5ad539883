#include "ReportRun.h"

#include "AppFolder.h"
#include "DateField.h"
#include "Dates.h"
#include "MdlAccounts.h"
#include "ReportControl.h"
#include "Sql.h"

bool ReportRun::HoldDates(std::initializer_list<DateField*> fields)
{
    for (DateField* field : fields) {
        if (!field->HoldsDate()) {
            field->SetFocus();
            return false;
        }
    }
    return true;
}

QString ReportRun::SqlDay(const QDate& day)
{
    return u'#' + Format(day, u"MM/dd/yyyy") + u'#';
}

void ReportRun::StageDates(const QString& from, const QString& to)
{
    gCn.Execute(QStringLiteral("Delete * From ReportDates"));
    gCn.Execute(Sql(u"insert into ReportDates(CompanyId,FromDate,ToDate) values(", gAppState.gCompanyId,
        u",'", from, u"','", to, u"')"));
}

void ReportRun::Tidy(QStringView table)
{
    gCn.Execute(Sql(u"delete * from ", table, u" where CompanyId=0"));
}

void ReportRun::Show(QStringView templateName, const QString& selectionFormula)
{
    ReportControl report;
    report.SetReportFileName(AppFolder.toString() + templateName);
    report.SetLogon(QStringLiteral("dsn=VetrolanDSN;pwd=") + gAppState.gDbPassword);
    report.SetSelectionFormula(selectionFormula);
    report.SetDestination(ReportDestination::Window);
    report.Print();
}
