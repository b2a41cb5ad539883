#include "core/preview/ReportHandover.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportPreview.h"
#include "platform/report/PrintFiles.h"
#include "platform/shell/AppFolder.h"

ReportHandover::ReportHandover(std::unique_ptr<Printer> printer) : m_printer(std::move(printer))
{
    ReportSurroundings::Current() = {
        &m_window, m_printer.get(), [](const QString& path) { return LocalPath(path); }};
    PrintFiles::KeepIn(LocalPath(Paths::AppFolder));
}

ReportHandover::~ReportHandover()
{
    ReportControl::CloseConnections();
    ReportSurroundings::Current() = {};
}

void ReportHandover::Window::Show(std::shared_ptr<Report> report)
{
    frmReportPreview preview(std::move(report));
    preview.ShowModal();
}

void ReportHandover::Window::Tell(const QString& sentence)
{
    ShowPlain(sentence);
}
