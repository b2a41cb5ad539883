#include "core/start/CheckingLine.h"

#include "platform/forms/Look.h"
#include "platform/forms/Painting.h"
#include "platform/forms/ProgramWindow.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QPainter>
#include <QWindow>

CheckingLine::CheckingLine() : QWidget(&ProgramWindow::Current())
{
    setObjectName(QStringLiteral("CheckingLine"));
    QWidget& window = *parentWidget();
    window.installEventFilter(this);
    setGeometry(window.rect());
    show();
    ProgramWindow::Current().Appear();

    // Start-up goes on even on a desktop that never shows it.
    constexpr int longestWait = 500;
    QElapsedTimer waited;
    waited.start();
    do {
        Painting::LetIn();
    } while (!window.windowHandle()->isExposed() && waited.elapsed() < longestWait);
    repaint();
}

// The desktop may resize the window once more while it appears.
bool CheckingLine::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void CheckingLine::paintEvent(QPaintEvent*)
{
    const QString text = QStringLiteral("हिशेबाची वही तपासत आहे. थोडे थांबा …");
    const QFont font = Look::PaintedFont(Look::Size::Large, true);
    const int margin = Look::Pixels(40);
    QRect card = QFontMetrics(font).boundingRect(text).marginsAdded({margin, margin, margin, margin});
    card.moveCenter(rect().center());

    QPainter painter(this);
    painter.setFont(font);
    painter.setPen(QColor(Look::Ink));
    painter.setBrush(QColor(Look::Paper));
    painter.drawRect(card);
    painter.drawText(card, Qt::AlignCenter, text);
}
