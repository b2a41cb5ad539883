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

// One run of a report: its pages, and what can be done with them. The pages are laid out one by one, so that
// the first can be looked at before the last is there.
class Report {
public:
    // Starts a run of a checked template. The rows are those of the moment when the first page is laid out.
    Report(ReportTemplate report, std::shared_ptr<Connection> connection, Selection selection);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    // What the clerk knows the report by: its title, or its name if it has none.
    const QString& Title() const { return m_template.title.isEmpty() ? m_template.name : m_template.title; }

    // What it is about beyond its title, such as a member and a period; empty if nobody has said.
    const QString& Subject() const { return m_subject; }
    void SetSubject(const QString& subject) { m_subject = subject; }

    // Lays out one more page. Returns false if there is none any more; the number of pages is known then.
    bool LayOutNext();

    // Lays out all that is left, and lets go of the books.
    void Complete();
    bool IsComplete() const { return m_filler == nullptr; }

    // The pages that have been laid out so far, numbered from 0.
    std::size_t PageCount() const { return m_pages.size(); }
    const Page& PageAt(std::size_t page) const { return m_pages.at(page); }
    const FontTable& Fonts() const { return m_fonts; }

    // A page as a picture; `scale` is dots a point (1 shows it at 72 dots an inch).
    QImage Image(std::size_t page, double scale);

    // A place where a text was found; the rectangle is in points of the page.
    struct Found {
        std::size_t page;
        QRectF rect;
    };

    // All places of a text in the pages so far, from top to bottom; the case of letters doesn't matter.
    std::vector<Found> Search(const QString& text) const;

    // The whole report as a PDF, as a table for a spreadsheet, or on paper. What is left is laid out first.
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
