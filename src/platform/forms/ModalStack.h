#pragma once

#include "platform/forms/SendKeys.h"
#include "platform/text/RunTimeError.h"

#include <QApplication>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

class QKeyEvent;
class Screen;

// The open screens, each opened by the one below it.
class ModalStack {
public:
    static ModalStack& Current();

    // The screen that the clerk works on; null if none is open.
    Screen* Top() const;
    const std::vector<Screen*>& Open() const { return m_open; }

    // See SendKeys. Without a screen there is nobody to type to.
    void Send(const QString& keys);

    // Throws away what was typed ahead, as a box does when it comes up.
    void ForgetTypedAhead();

    // A key that reached no screen: the one on top answers it.
    void Press(QKeyEvent& key);

    // A failure ends the program: every open screen is left at once, and nothing after its opening runs.
    void Fail(const RunTimeError& error);
    const std::optional<RunTimeError>& Failure() const { return m_failure; }

    // `left` is called whenever a screen has been left, before the one beneath it goes on.
    void SetLeft(std::function<void(const Screen&)> left) { m_left = std::move(left); }

    // Forgets a failure that was met, so that screens can be opened again.
    void Reset();

private:
    friend class Screen;

    std::vector<Screen*> m_open;
    std::function<void(const Screen&)> m_left;
    std::optional<RunTimeError> m_failure;
    std::deque<KeyStroke> m_ahead; // typed while a screen was closing, for the one that is on top next
};

// An application whose slots may fail, too: a run-time error outside a screen's events ends the program
// through the modal stack.
class Application : public QApplication {
public:
    // The program ends when its last screen returns, not when a window goes.
    Application(int& argc, char** argv) : QApplication(argc, argv) { setQuitOnLastWindowClosed(false); }

    bool notify(QObject* receiver, QEvent* event) override;
};
