#include "platform/report/PagePainter.h"

#include "platform/report/Evaluation.h"
#include "platform/report/LayoutPool.h"
#include "platform/report/WordPainter.h"

#include <pango/pangocairo.h>

#include <cairo-pdf.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Black = 255.0;
constexpr qsizetype FirstTry = 500; // characters

struct SurfaceDeleter {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct CairoDeleter {
    void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;
using Cairo = std::unique_ptr<cairo_t, CairoDeleter>;

cairo_status_t WriteTo(void* device, const unsigned char* data, unsigned int length)
{
    QIODevice& target = *static_cast<QIODevice*>(device);
    const qint64 written = target.write(reinterpret_cast<const char*>(data), length);
    return written == static_cast<qint64>(length) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

void SetText(PangoLayout* layout, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    pango_layout_set_text(layout, utf8.constData(), static_cast<int>(utf8.size()));
}

double WidthOf(PangoLayout* layout)
{
    int width = 0;
    pango_layout_get_size(layout, &width, nullptr);
    return static_cast<double>(width) / PANGO_SCALE;
}

}

class PagePainter::Private {
public:
    explicit Private(const FontTable& fontTable) : fonts(fontTable) { }

    void Draw(cairo_t* cairo, const Page& page);

    const FontTable& fonts;
    LayoutPool pool;
    WordPainter words;

private:
    void DrawText(cairo_t* cairo, const PlacedItem& item);
    void DrawWrapped(cairo_t* cairo, const PlacedItem& item, const QString& text);
    void DrawSingle(cairo_t* cairo, const PlacedItem& item, const QString& text);
    static void DrawStroke(cairo_t* cairo, const PlacedItem& item);
};

// The layouts aren't told of the scale that is drawn at: they would look for each font anew at every scale,
// which the clerk feels at the first slip and whenever he zooms.
void PagePainter::Private::Draw(cairo_t* cairo, const Page& page)
{
    cairo_set_source_rgb(cairo, 0, 0, 0);
    for (const PlacedItem& item : page.items) {
        if (item.kind == PlacedItem::Kind::Text)
            DrawText(cairo, item);
        else
            DrawStroke(cairo, item);
    }
}

void PagePainter::Private::DrawStroke(cairo_t* cairo, const PlacedItem& item)
{
    const double gray = item.gray / Black;
    cairo_set_source_rgb(cairo, gray, gray, gray);
    if (item.kind == PlacedItem::Kind::Box) {
        cairo_rectangle(cairo, item.x, item.y, item.width, item.height);
        cairo_fill(cairo);
    } else {
        cairo_set_line_width(cairo, item.weight);
        cairo_move_to(cairo, item.x, item.y);
        cairo_line_to(cairo, item.x + item.width, item.y + item.height);
        cairo_stroke(cairo);
    }
    cairo_set_source_rgb(cairo, 0, 0, 0);
}

void PagePainter::Private::DrawText(cairo_t* cairo, const PlacedItem& item)
{
    QString text = item.text;
    if (text.contains(Page::CountMark))
        text.replace(Page::CountMark, QChar(u'…'));
    if (item.fit == Fit::Wrap)
        DrawWrapped(cairo, item, text);
    else
        DrawSingle(cairo, item, text);
}

void PagePainter::Private::DrawWrapped(cairo_t* cairo, const PlacedItem& item, const QString& text)
{
    constexpr PangoAlignment aligns[] = {PANGO_ALIGN_LEFT, PANGO_ALIGN_CENTER, PANGO_ALIGN_RIGHT};
    PangoLayout* const layout = pool.Wrapping(fonts.At(item.font));
    pango_layout_set_width(layout, static_cast<int>(item.width * PANGO_SCALE));
    pango_layout_set_alignment(layout, aligns[static_cast<std::size_t>(item.align)]);
    SetText(layout, text);
    words.Show(cairo, layout, item.x, item.y + pool.Drop(fonts.At(item.font), layout));
}

void PagePainter::Private::DrawSingle(cairo_t* cairo, const PlacedItem& item, const QString& text)
{
    PangoLayout* const layout = pool.Single(fonts.At(item.font));
    double width = 0;
    // Of a text that is cut off, only as much is laid out as can be seen.
    for (qsizetype length = item.fit == Fit::Cut ? FirstTry : text.size();; length *= 2) {
        SetText(layout, text.left(length));
        width = WidthOf(layout);
        if (length >= text.size() || width > item.width)
            break;
    }
    const bool isTooWide = width > item.width;
    const double squeeze = isTooWide && item.fit == Fit::Shrink ? item.width / width : 1;
    if (isTooWide && item.fit == Fit::Cut) {
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
        pango_layout_set_width(layout, static_cast<int>(item.width * PANGO_SCALE));
        width = WidthOf(layout);
    }
    const double room = std::max(0.0, item.width - width * squeeze);
    const double shift = item.align == Align::Left ? 0 : item.align == Align::Right ? room : room / 2;
    const double x = item.x + shift;
    const double y = item.y + pool.Drop(fonts.At(item.font), layout);
    if (squeeze < 1) {
        cairo_save(cairo);
        cairo_translate(cairo, x, 0);
        cairo_scale(cairo, squeeze, 1);
        words.Show(cairo, layout, 0, y, true);
        cairo_restore(cairo);
    } else {
        words.Show(cairo, layout, x, y);
    }
    if (isTooWide && item.fit == Fit::Cut) {
        pango_layout_set_width(layout, -1);
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_NONE);
    }
}

PagePainter::PagePainter(const FontTable& fonts) : m_d(std::make_unique<Private>(fonts)) { }

PagePainter::~PagePainter() = default;

QImage PagePainter::Image(const Page& page, double scale)
{
    QImage image(std::max(1, static_cast<int>(std::ceil(page.width * scale))),
        std::max(1, static_cast<int>(std::ceil(page.height * scale))), QImage::Format_RGB32);
    image.fill(Qt::white);
    const Surface surface(cairo_image_surface_create_for_data(image.bits(), CAIRO_FORMAT_RGB24, image.width(),
        image.height(), static_cast<int>(image.bytesPerLine())));
    const Cairo cairo(cairo_create(surface.get()));
    cairo_scale(cairo.get(), scale, scale);
    m_d->Draw(cairo.get(), page);
    cairo_surface_flush(surface.get());
    return image;
}

bool PagePainter::WritePdf(QIODevice& device, const QString& title, std::size_t pages,
    const std::function<const Page&(std::size_t)>& page)
{
    const Surface surface(cairo_pdf_surface_create_for_stream(WriteTo, &device, 1, 1));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, title.toUtf8().constData());
    bool isDrawn = true;
    {
        const Cairo cairo(cairo_create(surface.get()));
        for (std::size_t i = 0; i < pages; ++i) {
            const Page& sheet = page(i);
            cairo_pdf_surface_set_size(surface.get(), sheet.width, sheet.height);
            m_d->Draw(cairo.get(), sheet);
            cairo_show_page(cairo.get());
        }
        isDrawn = cairo_status(cairo.get()) == CAIRO_STATUS_SUCCESS;
    }
    cairo_surface_finish(surface.get());
    return isDrawn && cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}
