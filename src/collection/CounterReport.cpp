#include "collection/CounterReport.h"

#include "core/state/AppState.h"
#include "platform/report/ReportControl.h"
#include "platform/shell/AppFolder.h"
#include "society/ReceiptLayouts.h"

namespace {

void RunReport(const CounterReport::Run& run)
{
    ReportControl report;
    report.SetReportFileName(run.fileName);
    report.SetLogon(run.logon);
    report.SetSubject(run.subject);
    report.SetDestination(run.destination == CounterReport::Destination::Printer ? ReportDestination::Printer
                                                                                 : ReportDestination::Window);
    report.Print();
}

}

std::function<void(const CounterReport::Run&)>& CounterReport::Engine()
{
    static std::function<void(const Run&)> engine = RunReport;
    return engine;
}

void CounterReport::SetReportFileName(QStringView name)
{
    m_run.fileName = AppFolder.toString() + name;
}

void CounterReport::Prepare() const
{
    ReportControl report;
    report.SetReportFileName(m_run.fileName);
    report.SetLogon(Logon());
    report.Prepare();
}

void CounterReport::Print()
{
    if (m_run.fileName.isEmpty()) {
        TellNoTemplate();
        return;
    }
    m_run.logon = Logon();
    Engine()(m_run);
}
