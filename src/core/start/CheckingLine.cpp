#include "core/start/CheckingLine.h"

#include "platform/forms/Look.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWindow>

CheckingLine::CheckingLine() : m_label(nullptr, Qt::SplashScreen)
{
    constexpr int margin = 40;
    m_label.setText(QStringLiteral("हिशेबाची वही तपासत आहे. थोडे थांबा …"));
    m_label.setFont(Look::Font(Look::Size::Large, true));
    m_label.setMargin(margin);
    m_label.setFrameShape(QFrame::Box);
    m_label.show();

    // A desktop that never shows it must not hold up the start.
    constexpr int longestWait = 500;
    QElapsedTimer waited;
    waited.start();
    do {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, longestWait);
    } while (!m_label.windowHandle()->isExposed() && waited.elapsed() < longestWait);
    m_label.repaint();
}
