#pragma once

#include "platform/forms/Screen.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class RunTimeError;

// Plays the clerk, for the tests and the tour: types on the real windows, one key at a time, and after each
// waits until the program has nothing left to do. A key that opens a dialog returns with the dialog open, and
// the next key goes to it.
class Clerk {
public:
    Clerk();
    ~Clerk();

    // Runs `program`, which opens screens and returns when they have closed, while `script` types. Screens
    // that are still open at the end of the script are abandoned, as in a power cut. Returns the run-time
    // error that ended the program, if there was one.
    [[nodiscard]] std::optional<RunTimeError> Play(
        const std::function<void()>& program, const std::function<void(Clerk&)>& script);

    // The functions below are for the script.

    // Types keys in the form that SendKeys takes.
    void Type(const QString& keys);

    // Types ahead: all keys are put into the application's queue before the first is handled, and each goes
    // to the screen that is on top by then. Returns when the program is at rest.
    void TypeAhead(const QString& keys);

    // From the menu to the question whether to leave the program, past the backup that is offered.
    void AskToLeave();

    // Clicks a control of the screen on top; in a list its current row.
    void Press(const QString& control);

    // Presses the close box of the window.
    void CloseBox();

    // Runs `action` on the thread of the program and waits until the program is at rest again.
    void Do(const std::function<void()>& action);

    // The screen on top. If none is open, the script fails.
    Screen& Top() const;
    template <class S> S& On() const { return dynamic_cast<S&>(Top()); }

    // The name of the screen on top; empty if none is open.
    QString ScreenName() const;

    // The name of the control with the focus on the screen on top.
    QString Focus() const;

    // The text of a control of the screen on top, as it is stored.
    QString Reads(const QString& control) const;

    // Whether a control of the screen on top can take the focus.
    bool CanEnter(const QString& control) const;

    // The text of the message box on top, as it is stored; empty if there is none.
    QString Message() const;

    // Saves a picture of the window.
    void Picture(const QString& file);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
