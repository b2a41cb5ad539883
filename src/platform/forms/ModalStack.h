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

    // The screen on top, which gets the keys; null if none is open.
    Screen* Top() const;
    const std::vector<Screen*>& Open() const { return m_open; }

    // Types keys into the screen on top, see SendKeys. Does nothing if no screen is open.
    void Send(const QString& keys);

    // Drops the keys that were typed ahead; a box does this when it opens.
    void ForgetTypedAhead();

    // A key that reached no screen: the one on top handles it.
    void Press(QKeyEvent& key);

    // Ends the program after a failure: closes all open screens at once, and nothing that follows their
    // opening runs.
    void Fail(const RunTimeError& error);
    const std::optional<RunTimeError>& Failure() const { return m_failure; }

    // `left` is called whenever a screen has closed, before the one below it continues.
    void SetLeft(std::function<void(const Screen&)> left) { m_left = std::move(left); }

    // Clears a failure, so that screens can be opened again.
    void Reset();

private:
    friend class Screen;

    std::vector<Screen*> m_open;
    std::function<void(const Screen&)> m_left;
    std::optional<RunTimeError> m_failure;
    std::deque<KeyStroke> m_ahead; // typed while a screen was closing; the next one on top gets them
};

// An application that also catches run-time errors outside the events of a screen, and ends the program
// through the modal stack.
class Application : public QApplication {
public:
    // Closing a window doesn't end the program; it ends when its last screen returns.
    Application(int& argc, char** argv) : QApplication(argc, argv) { setQuitOnLastWindowClosed(false); }

    bool notify(QObject* receiver, QEvent* event) override;
};
