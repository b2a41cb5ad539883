#include "bench/FloorReport.h"

#include "bench/CounterPlay.h"
#include "bench/ReportPlay.h"

#include <pango/pangocairo.h>

#include <cairo-pdf.h>

#include <QSaveFile>

namespace {

constexpr int FirstNumber = 4; // the first numeric column of the query

cairo_status_t WriteTo(void* device, const unsigned char* data, unsigned int length)
{
    const qint64 written =
        static_cast<QIODevice*>(device)->write(reinterpret_cast<const char*>(data), length);
    return written == static_cast<qint64>(length) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

void SetText(PangoLayout* layout, const std::string& utf8)
{
    pango_layout_set_text(layout, utf8.data(), static_cast<int>(utf8.size()));
}

double WidthOf(PangoLayout* layout)
{
    int width = 0;
    pango_layout_get_size(layout, &width, nullptr);
    return static_cast<double>(width) / PANGO_SCALE;
}

double ShiftOf(Align align, double room)
{
    return align == Align::Left ? 0 : align == Align::Right ? room : room / 2;
}

}

FloorReport::FloorReport(const Report& report)
{
    for (std::size_t i = 0; i < report.PageCount(); ++i) {
        const Page& page = report.PageAt(i);
        Sheet& sheet = m_sheets.emplace_back();
        sheet.width = page.width;
        sheet.height = page.height;
        for (const PlacedItem& item : page.items) {
            if (item.kind == PlacedItem::Kind::Text)
                sheet.texts.push_back({item.text.toStdString(),
                    m_layouts.Single(report.Fonts().At(item.font)), item.align, item.x, item.y, item.width});
            else
                sheet.lines.push_back(item);
        }
    }
}

int FloorReport::ReadAndLayOut()
{
    int rows = 0;
    std::size_t texts = 0;
    double numbers = 0;
    m_rows.Bind(FirstListedDay, LastListedDay);
    for (; m_rows.Step(); ++rows) {
        numbers += m_rows.NumberAt(0);
        for (int column = 1; column < FirstNumber; ++column)
            texts += m_rows.TextAt(column).size();
        for (int column = FirstNumber; column < FirstNumber + 4; ++column)
            numbers += m_rows.NumberAt(column);
    }
    m_rows.Reset();
    LayOut();
    Require(texts > 0 && numbers > 0, "The floor reads rows.");
    return rows;
}

void FloorReport::LayOut()
{
    double width = 0;
    for (const Sheet& sheet : m_sheets) {
        for (const Text& text : sheet.texts) {
            SetText(text.layout, text.utf8);
            width += WidthOf(text.layout);
        }
    }
    Require(width > 0, "The floor lays out texts.");
}

void FloorReport::SavePdf(const QString& file)
{
    QSaveFile target(file);
    Require(target.open(QIODevice::WriteOnly), "The floor's file opens.");
    cairo_surface_t* const surface = cairo_pdf_surface_create_for_stream(WriteTo, &target, 1, 1);
    cairo_t* const cairo = cairo_create(surface);
    for (const Sheet& sheet : m_sheets) {
        cairo_pdf_surface_set_size(surface, sheet.width, sheet.height);
        for (const Text& text : sheet.texts) {
            SetText(text.layout, text.utf8);
            const double shift =
                text.align == Align::Left ? 0 : ShiftOf(text.align, text.width - WidthOf(text.layout));
            cairo_move_to(cairo, text.x + shift, text.y);
            pango_cairo_show_layout(cairo, text.layout);
        }
        for (const PlacedItem& line : sheet.lines) {
            cairo_set_line_width(cairo, line.weight);
            cairo_move_to(cairo, line.x, line.y);
            cairo_line_to(cairo, line.x + line.width, line.y + line.height);
            cairo_stroke(cairo);
        }
        cairo_show_page(cairo);
    }
    cairo_destroy(cairo);
    cairo_surface_finish(surface);
    const bool isWritten = cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    Require(isWritten && target.commit(), "The floor writes its PDF.");
}
