#include "core/messages/Progress.h"

#include "platform/forms/Look.h"
#include "platform/forms/Painting.h"
#include "platform/forms/Screen.h"

#include <QLabel>

#include <algorithm>
#include <cstdint>

namespace {

void Fill(QLabel& label, QRgb colour)
{
    label.setAutoFillBackground(true);
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, QColor(colour));
    label.setPalette(palette);
}

}

Progress::Progress(Screen* screen)
    : lblBack(screen, "lblBack")
    , lblProgress(screen, "lblProgress")
    , lblPercent(screen, "lblPercent")
{
    constexpr int height = 32;
    QLabel& back = *lblBack.Widget();
    back.setFixedHeight(height);
    back.setMinimumWidth(10 * height);
    back.setFrameShape(QFrame::Box);
    Fill(back, Look::Quiet);
    Fill(*lblProgress.Widget(), Look::PlainColour);
    lblPercent.Widget()->setAlignment(Qt::AlignCenter);
    for (Label* part : {&lblProgress, &lblPercent})
        part->Widget()->setParent(&back); // the figure lies over the filled part
    QSizePolicy place = back.sizePolicy();
    place.setRetainSizeWhenHidden(true);
    back.setSizePolicy(place);
    End();
}

void Progress::Begin(int rows)
{
    m_rows = rows;
    m_done = 0;
    m_percent = 0;
    if (rows <= 0)
        return;
    for (Label* part : {&lblBack, &lblProgress, &lblPercent})
        part->SetVisible(true);
    Show();
    Painting::LetIn();
}

// Painted no more often than the eye can follow: a run of ten thousand rows must not wait for as many
// paintings.
void Progress::StepTo(int rows)
{
    m_done = rows;
    const auto percent = static_cast<int>(std::int64_t{m_done} * 100 / std::max(m_rows, 1));
    if (m_rows <= 0)
        return;
    if (percent != m_percent && (Painting::IsDue() || m_done >= m_rows)) {
        m_percent = percent;
        Show();
    }
    Painting::KeepUp();
}

void Progress::Show()
{
    const QRect inside = lblBack.Widget()->contentsRect();
    const auto filled = static_cast<int>(std::int64_t{inside.width()} * std::min(m_done, m_rows) / m_rows);
    lblProgress.Widget()->setGeometry(inside.x(), inside.y(), std::max(filled, 1), inside.height());
    lblPercent.Widget()->setGeometry(inside);
    lblPercent.SetFigure(QStringLiteral("%1 %").arg(m_percent));
}

void Progress::End()
{
    for (Label* part : {&lblBack, &lblProgress, &lblPercent})
        part->SetVisible(false);
}
