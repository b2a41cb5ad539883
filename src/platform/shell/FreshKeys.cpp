#include "platform/shell/FreshKeys.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

namespace {

int g_awaited = 0; // open boxes that take no keys yet

}

FreshKeys::FreshKeys(QWidget& box) : m_box(box)
{
    qApp->installEventFilter(this);
}

FreshKeys::~FreshKeys()
{
    Turn(State::Open);
}

bool FreshKeys::Awaited()
{
    return g_awaited > 0;
}

bool FreshKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (watched == &m_box)
            Turn(State::Unseen);
        return false;
    case QEvent::Hide:
        if (watched == &m_box) {
            Turn(State::Open);
            m_composesAhead = false; // what comes now is the next screen's
        }
        return false;
    case QEvent::Paint:
        if (watched == &m_box && m_state == State::Unseen)
            Turn(State::Painted);
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return m_state != State::Open
            || (m_box.isVisible() && static_cast<QKeyEvent*>(event)->isAutoRepeat());
    case QEvent::InputMethod:
        return IsComposedAhead(*static_cast<QInputMethodEvent*>(event));
    default:
        return false;
    }
}

// If an input method began a word before the box took keys, the box doesn't get the finished word either.
bool FreshKeys::IsComposedAhead(const QInputMethodEvent& event)
{
    const bool isAhead = m_state != State::Open || m_composesAhead;
    m_composesAhead = isAhead && !event.preeditString().isEmpty();
    return isAhead;
}

// When a box has been painted, keys that were pressed earlier may still be in the queue of the window system.
// So it takes keys only after the event loop has twice had nothing left to deliver; the first of these rounds
// may have begun before the painting.
void FreshKeys::Turn(State state)
{
    g_awaited += (state == State::Open ? 0 : 1) - (m_state == State::Open ? 0 : 1);
    m_state = state;
    if (state != State::Painted)
        return;
    QTimer::singleShot(0, this, [this] {
        QTimer::singleShot(0, this, [this] {
            if (m_state == State::Painted)
                Turn(State::Open);
        });
    });
}
