#pragma once

#include "platform/forms/Screen.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class RunTimeError;

// The hands and eyes of a clerk, for the tests and the tour: types on the real windows, one key at a time,
// and waits after each until the program has nothing left to do. Keys that open a dialog return with the
// dialog open; the next key goes to it.
class Clerk {
public:
    Clerk();
    ~Clerk();

    // Runs `program`, which opens screens and returns when they have closed, while `script` plays on it.
    // Screens that are still open when the script ends are left as if the power had failed. Returns the
    // run-time error that ended the program, if one did.
    [[nodiscard]] std::optional<RunTimeError> Play(
        const std::function<void()>& program, const std::function<void(Clerk&)>& script);

    // The rest is for the script.

    // Types keys in the form that SendKeys takes.
    void Type(const QString& keys);

    // Types keys without looking up: all of them wait in the application's queue before the first is
    // answered, and each goes to whatever window is on top when its turn comes. Returns when the program is
    // at rest.
    void TypeAhead(const QString& keys);

    // Presses a control of the screen on top with the mouse; a list on its current row.
    void Press(const QString& control);

    // Closes the window on top by its close box.
    void CloseBox();

    // Does something on the program's own thread and waits until the program is at rest again.
    void Do(const std::function<void()>& action);

    // The screen on top; none open is a failure of the script.
    Screen& Top() const;
    template <class S> S& On() const { return dynamic_cast<S&>(Top()); }

    // The name of the screen on top; empty if none is open.
    QString ScreenName() const;

    // The name of the control that holds the focus on the screen on top.
    QString Focus() const;

    // The text of a control of the screen on top, as the system spells it.
    QString Reads(const QString& control) const;

    // Whether a control of the screen on top can take the focus.
    bool CanEnter(const QString& control) const;

    // The text of the message dialog on top, as the system spells it; empty if there is none.
    QString Message() const;

    // Saves a picture of the window.
    void Picture(const QString& file);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
