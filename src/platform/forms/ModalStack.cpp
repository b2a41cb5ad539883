#include "platform/forms/ModalStack.h"

#include "platform/database/KeyAnswer.h"
#include "platform/forms/Screen.h"

#include <optional>

ModalStack& ModalStack::Current()
{
    static ModalStack stack;
    return stack;
}

Screen* ModalStack::Top() const
{
    return m_open.empty() ? nullptr : m_open.back();
}

void ModalStack::Send(const QString& keys)
{
    if (Screen* screen = Top())
        screen->TypeLater(ParseKeys(keys));
}

void ModalStack::Press(QKeyEvent& key)
{
    if (Screen* screen = Top())
        screen->Press(key);
}

void ModalStack::ForgetTypedAhead()
{
    m_ahead.clear();
}

void ModalStack::Fail(const RunTimeError& error)
{
    if (!m_failure)
        m_failure = error;
    for (Screen* screen : m_open)
        screen->Close();
}

void ModalStack::Reset()
{
    m_failure.reset();
    m_ahead.clear();
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    std::optional<KeyAnswer> answer;
    if (event->isInputEvent())
        answer.emplace();
    try {
        return QApplication::notify(receiver, event);
    } catch (const RunTimeError& error) {
        ModalStack::Current().Fail(error);
        return true;
    }
}
