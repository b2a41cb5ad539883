#pragma once

#include "platform/report/Page.h"

#include <QIODevice>
#include <QImage>

#include <functional>
#include <memory>

// Paints pages, on the screen exactly as on paper.
class PagePainter {
public:
    // `fonts` are those of the pages and must outlive the painter.
    explicit PagePainter(const FontTable& fonts);
    ~PagePainter();
    PagePainter(const PagePainter&) = delete;
    PagePainter& operator=(const PagePainter&) = delete;

    // The page as an image on white; `scale` is pixels a point.
    QImage Image(const Page& page, double scale);

    // Writes pages as a PDF with its fonts embedded. Returns false if the device didn't take everything.
    bool WritePdf(QIODevice& device, const QString& title, std::size_t pages,
        const std::function<const Page&(std::size_t)>& page);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
