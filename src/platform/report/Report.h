#pragma once

#include "platform/database/Connection.h"
#include "platform/report/Page.h"
#include "platform/report/Printer.h"
#include "platform/report/SelectionFormula.h"
#include "platform/template/ReportTemplate.h"

#include <QImage>

#include <memory>
#include <vector>

class ReportFiller;
class PagePainter;

// One run of a report: its pages, and what can be done with them. Pages are laid out one by one, so that the
// first can be shown before the last is ready.
class Report {
public:
    // Starts a run of a checked template. It shows the books as they are when the first page is laid out.
    Report(ReportTemplate report, std::shared_ptr<Connection> connection, Selection selection);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    // The title that the clerk knows; without one, the name.
    const QString& Title() const { return m_template.title.isEmpty() ? m_template.name : m_template.title; }

    // What the report is about, such as a member and a period; may be empty.
    const QString& Subject() const { return m_subject; }
    void SetSubject(const QString& subject) { m_subject = subject; }

    // Lays out one more page. Returns false at the end, when the number of pages is known.
    bool LayOutNext();

    // Lays out all remaining pages and stops reading the books.
    void Complete();
    bool IsComplete() const { return m_filler == nullptr; }

    // The pages laid out so far, counted from 0.
    std::size_t PageCount() const { return m_pages.size(); }
    const Page& PageAt(std::size_t page) const { return m_pages.at(page); }
    const FontTable& Fonts() const { return m_fonts; }

    // A page as an image; `scale` is pixels a point, so 1 shows it at 72 dpi.
    QImage Image(std::size_t page, double scale);

    // A search result; the rectangle is in points on the page.
    struct Found {
        std::size_t page = 0;
        QRectF rect;
    };

    // Finds a text in the pages so far, from top to bottom, ignoring upper and lower case.
    std::vector<Found> Search(const QString& text) const;

    // Saves the whole report as a PDF or as CSV for a spreadsheet, or prints it. Remaining pages are laid
    // out first.
    Outcome SavePdf(const QString& file);
    Outcome SaveCsv(const QString& file);
    Outcome Print(Printer& printer, const QString& printerName = {});

private:
    bool WritePdf(QIODevice& device);
    void FillInPageCounts();

    ReportTemplate m_template;
    QString m_subject;
    std::shared_ptr<Connection> m_connection;
    FontTable m_fonts;
    std::vector<Page> m_pages;
    std::vector<QStringList> m_records;
    std::unique_ptr<ReportFiller> m_filler;
    std::unique_ptr<PagePainter> m_painter;
};
