#include "platform/forms/Painting.h"

#include "platform/forms/ModalStack.h"
#include "platform/forms/Screen.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <memory>
#include <vector>

namespace {

int g_underWay = 0; // open gates, and kept keys that are still to be typed

using Clock = std::chrono::steady_clock;
Clock::time_point g_painted; // when the windows were painted last

// Types a key event into the screen on top, after everything that waits in the queue of the application.
void TypeLater(const std::shared_ptr<QEvent>& event)
{
    ++g_underWay;
    QMetaObject::invokeMethod(
        qApp,
        [event] {
            --g_underWay;
            if (const Screen* screen = ModalStack::Current().Top())
                QCoreApplication::sendEvent(screen->KeyTarget(), event.get());
        },
        Qt::QueuedConnection);
}

// Filters the events of all windows while they are painted. The window system holds most input back by
// itself; this catches the rest, such as that of an input method.
class Gate final : public QObject {
public:
    Gate()
    {
        ++g_underWay;
        qApp->installEventFilter(this);
    }

    ~Gate() override
    {
        --g_underWay;
        for (const std::shared_ptr<QEvent>& event : m_kept)
            TypeLater(event);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!watched->isWidgetType())
            return false;
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::InputMethod:
            m_kept.emplace_back(event->clone());
            return true;
        case QEvent::Close:
            event->ignore();
            return true;
        case QEvent::ShortcutOverride:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::Wheel:
            return true;
        default:
            return false;
        }
    }

private:
    std::vector<std::shared_ptr<QEvent>> m_kept;
};

}

void Painting::LetIn()
{
    const Gate gate;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    g_painted = Clock::now();
}

std::chrono::milliseconds& Painting::Interval()
{
    static std::chrono::milliseconds interval{50};
    return interval;
}

bool Painting::IsDue()
{
    return Clock::now() - g_painted >= Interval();
}

void Painting::KeepUp()
{
    if (IsDue())
        LetIn();
}

void Painting::RepaintInTime()
{
    if (!IsDue())
        return;
    if (Screen* screen = ModalStack::Current().Top()) {
        for (QWidget* part : screen->findChildren<QWidget*>())
            part->update(); // what is opaque isn't painted with the screen that it covers
        screen->repaint();
    }
    g_painted = Clock::now();
}

bool Painting::IsUnderWay()
{
    return g_underWay > 0;
}
