#include "core/preview/TemplateReport.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/shell/AppFolder.h"

namespace {

void RunReport(const TemplateReport::Run& run)
{
    ReportControl report;
    report.SetReportFileName(run.fileName);
    report.SetLogon(run.logon);
    report.SetSelectionFormula(run.formula);
    report.SetSubject(run.subject);
    report.SetDestination(run.destination);
    report.Print();
}

}

std::function<void(const TemplateReport::Run&)>& TemplateReport::Engine()
{
    static std::function<void(const Run&)> engine = RunReport;
    return engine;
}

void TemplateReport::SetTemplate(QStringView name)
{
    m_run.fileName = Paths::AppFolder.toString() + name;
}

int TemplateReport::CountRecords(const QString& query) const
{
    int count = 0;
    for (Recordset record(gCn, query); !record.Eof(); record.MoveNext())
        ++count;
    if (count == 0)
        ShowPlain(QStringLiteral("No Records in the Given Crieteria"), m_title);
    return count;
}

void TemplateReport::Print()
{
    if (m_run.fileName.isEmpty()) {
        ShowPlain(QStringLiteral("निवडलेल्या पावती प्रकाराचा नमुना येथे नाही."));
        return;
    }
    m_run.logon = Logon();
    Engine()(m_run);
}

void TemplateReport::Prepare() const
{
    ReportControl report;
    report.SetReportFileName(m_run.fileName);
    report.SetLogon(Logon());
    report.Prepare();
}
