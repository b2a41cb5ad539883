#pragma once

#include "platform/report/Page.h"

#include <QIODevice>
#include <QImage>

#include <functional>
#include <memory>

// Paints pages: the same strokes for the screen and for the paper.
class PagePainter {
public:
    // The fonts of the pages; they must outlive it.
    explicit PagePainter(const FontTable& fonts);
    ~PagePainter();
    PagePainter(const PagePainter&) = delete;
    PagePainter& operator=(const PagePainter&) = delete;

    // The page as a picture on white; `scale` is dots a point.
    QImage Image(const Page& page, double scale);

    // Writes pages as a PDF with its fonts in it. Returns false if the device didn't take all of it.
    bool WritePdf(QIODevice& device, const QString& title, std::size_t pages,
        const std::function<const Page&(std::size_t)>& page);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
