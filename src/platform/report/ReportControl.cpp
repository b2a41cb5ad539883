#include "platform/report/ReportControl.h"

#include "platform/report/LayoutCheck.h"
#include "platform/report/ReportBooks.h"
#include "platform/text/RunTimeError.h"

#include <QFileInfo>

namespace {

constexpr double ScreenScale = 1.5; // pixels a point, about what the preview shows a slip at

[[noreturn]] void ThrowFaults(const QString& path, const TemplateFaults& faults)
{
    QStringList lines{QStringLiteral("The report template has faults:")};
    for (const TemplateFault& fault : faults)
        lines.append(fault.Line());
    throw RunTimeError(RunTimeError::FileAccess, lines.join(u'\n'), path);
}

}

std::shared_ptr<Report> ReportControl::Begin(const std::shared_ptr<Connection>& connection) const
{
    const auto& localPath = ReportSurroundings::Current().localPath;
    const QString file = localPath ? localPath(m_file) : m_file;
    if (!QFileInfo(file).isFile())
        throw RunTimeError(RunTimeError::FileNotFound,
            QStringLiteral("अहवालाचा नमुना सापडला नाही.\nThe report template isn't there."), m_file);
    TemplateFaults faults;
    ReportTemplate report = ReadForLayout(file, *connection, faults);
    if (!faults.empty())
        ThrowFaults(m_file, faults);
    Selection selection = ReadSelectionFormula(m_formula, *connection);
    auto run = std::make_shared<Report>(std::move(report), connection, std::move(selection));
    run->LayOutNext();
    return run;
}

bool ReportControl::Print()
{
    const std::shared_ptr<Report> report = Begin(ReportBooks::Current().Open(m_logon));
    report->SetSubject(m_subject);
    const ReportSurroundings& surroundings = ReportSurroundings::Current();
    if (m_destination == ReportDestination::Window) {
        Q_ASSERT(surroundings.window);
        ReportBooks::Current().Add(report);
        surroundings.window->Show(report);
        return true;
    }
    Q_ASSERT(surroundings.printer);
    const Outcome outcome = report->Print(*surroundings.printer);
    if (!outcome.Done() && surroundings.window)
        surroundings.window->Tell(outcome.fault);
    return outcome.Done();
}

void ReportControl::Prepare() const
{
    try {
        Begin(ReportBooks::Current().Prepare(m_logon))->Image(0, ScreenScale);
    } catch (const RunTimeError&) { // the clerk is told when the report is printed
    }
}

void ReportControl::CloseConnections()
{
    ReportBooks::Current().Close();
}
