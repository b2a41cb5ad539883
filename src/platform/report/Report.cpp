#include "platform/report/Report.h"

#include "platform/report/Evaluation.h"
#include "platform/report/OutputFile.h"
#include "platform/report/PagePainter.h"
#include "platform/report/PrintFiles.h"
#include "platform/report/ReportFiller.h"

#include <QTemporaryFile>

#include <algorithm>

Report::Report(ReportTemplate report, std::shared_ptr<Connection> connection, Selection selection)
    : m_template(std::move(report))
    , m_connection(std::move(connection))
    , m_filler(std::make_unique<ReportFiller>(m_template, *m_connection, std::move(selection), m_fonts))
    , m_painter(std::make_unique<PagePainter>(m_fonts))
{
}

Report::~Report() = default;

bool Report::LayOutNext()
{
    if (!m_filler)
        return false;
    Page page;
    if (m_filler->NextPage(page)) {
        m_pages.push_back(std::move(page));
        return true;
    }
    m_records = m_filler->Records();
    m_filler.reset();
    FillInPageCounts();
    return false;
}

void Report::FillInPageCounts()
{
    for (auto first = m_pages.begin(); first != m_pages.end();) {
        const auto end =
            std::find_if(first + 1, m_pages.end(), [](const Page& page) { return page.restartsPages; });
        const QString count = QString::number(end - first);
        for (; first != end; ++first) {
            for (const quint32 item : first->waiting)
                first->items[item].text.replace(Page::CountMark, count);
            first->waiting.clear();
        }
    }
}

void Report::Complete()
{
    while (LayOutNext()) { }
}

QImage Report::Image(std::size_t page, double scale)
{
    return m_painter->Image(m_pages.at(page), scale);
}

std::vector<Report::Found> Report::Search(const QString& text) const
{
    std::vector<Found> all;
    if (text.isEmpty())
        return all;
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        for (const PlacedItem& item : m_pages[page].items) {
            if (item.text.contains(text, Qt::CaseInsensitive))
                all.push_back({page, item.Rect()});
        }
    }
    return all;
}

bool Report::WritePdf(QIODevice& device)
{
    return m_painter->WritePdf(
        device, Title(), m_pages.size(), [this](std::size_t i) -> const Page& { return m_pages[i]; });
}

Outcome Report::SavePdf(const QString& file)
{
    Complete();
    return WriteWhole(file, [this](QIODevice& device) { return WritePdf(device); });
}

Outcome Report::SaveCsv(const QString& file)
{
    Complete();
    return WriteWhole(file, [this](QIODevice& device) { return WriteCsv(device, m_records); });
}

Outcome Report::Print(Printer& printer, const QString& printerName)
{
    Complete();
    QTemporaryFile pdf(PrintFiles::Pattern()); // only the user can read it
    if (!pdf.open() || !WritePdf(pdf) || !pdf.flush())
        return {QStringLiteral("छपाईसाठी तात्पुरती फाइल लिहिता आली नाही. डिस्कवर जागा आहे का ते पाहा.\n%1")
                    .arg(pdf.errorString())};
    const Page& first = m_pages.front();
    return printer.Print({pdf.fileName(), Title(), printerName, QSizeF(first.width, first.height)});
}
