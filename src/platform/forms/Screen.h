#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/SendKeys.h"

#include <QEventLoop>

#include <deque>
#include <vector>

class Button;
class QInputMethodEvent;

// A screen: fields in the window of the program, with the handlers that answer the clerk. It decides itself
// who has the focus, runs the handlers, and only then moves the focus of the window system, so it works the
// same in an inactive window.
//
// A move from A to B runs A's LostFocus, then B's GotFocus. SetFocus inside A's LostFocus replaces the
// destination, and B gets neither event; if the destination is A itself, its GotFocus runs, but its LostFocus
// doesn't run again. SetFocus inside B's GotFocus is a move of its own. Opening another screen is not a move.
class Screen : public QWidget {
public:
    // A full screen fills the window; a card has the size that it needs.
    enum class Shape { Full, Card };

    // `name` is the name that the clerk's guide uses, such as "frmMembers".
    explicit Screen(const char* name, Shape shape = Shape::Full);
    ~Screen() override;

    // Opens the screen on top of the others and returns when it has closed.
    void ShowModal();

    // Closes the screen. The handler that calls this still runs to its end.
    void Close();

    QString Name() const { return objectName(); }
    bool IsCard() const { return m_shape == Shape::Card; }

    // The control that has the focus; null if no control can take it.
    Control* FocusHolder() const { return m_holder; }

    // Moves the focus by the rules above; does nothing if the control is disabled or hidden.
    void SetFocus(Control& control);

    // The same. Until the control is left, the guide label shows `wanted` in place of its guide.
    void SetFocus(Control& control, const Caption& wanted);

    // For a LostFocus handler that moves the clerk to another field: whether Shift+Tab is taking him back, so
    // that it shouldn't.
    bool IsSteppingBack() const { return m_leaving && m_step < 0; }

    // Also for a LostFocus handler: the control that the clerk goes to directly, by its Alt key, another key
    // or the mouse; null if Enter, Tab or Shift+Tab moves him.
    const Control* GoingTo() const { return m_leaving && m_step == 0 ? m_straightTo : nullptr; }

    // The controls in tab order.
    const std::vector<Control*>& Controls() const { return m_controls; }

    // Whether Alt with this letter or digit does something now.
    bool AnswersLetter(QChar letter) const { return OfLetter(letter) != nullptr; }

    // Runs when an event, and whatever it led to, has ended: what shows the state of the screen is to show it
    // anew.
    Event Settled;

    // The control with this name, in upper or lower case; null if there is none.
    Control* Find(QStringView name) const;

    // The background of a control with and without the focus.
    std::pair<QColor, QColor> Colours() const { return {m_focusColour, m_plainColour}; }

    // Sets the title of the window and of the title label, if there is one.
    void SetTitle(const Caption& title);
    const Caption& Title() const { return m_title; }

    // Scales the screen to the present size of the window.
    void FitType();

    // The widget to which the window system sends the keys of this screen.
    QWidget* KeyTarget() const;

protected:
    // Called before the screen is shown, to fill it.
    virtual void Load() { }

    // Called when the screen has been shown, with the focus on its first control.
    virtual void Shown() { }

    // Sees each key before the controls do; returns true if it has handled it.
    virtual bool KeyDown(const QKeyEvent& key);

    // Esc. Closes the screen unless it is overridden.
    virtual void Escape() { Close(); }

    // The close box of the window was pressed.
    virtual void CloseBox() { Close(); }

    // Enter on a control that isn't a button; moves on to the next.
    virtual void Enter() { MoveNext(); }

    // Tab; moves on to the next control.
    virtual void Tab() { MoveNext(); }

    void MoveNext();
    void MovePrevious();

    // Empties all fields, as Esc does on many screens.
    void EmptyFields();

    void SetColours(QColor focus, QColor plain);

    // The label that shows the title.
    void SetTitleLabel(Label& label);

    // The label that shows the guide of the control in focus.
    void SetGuideLabel(Label& label);

    // Makes a member function of this screen the handler of an event.
    template <class S> void When(Event& event, void (S::*handler)())
    {
        event = [screen = static_cast<S*>(this), handler] { (screen->*handler)(); };
    }

    // Runs a handler after some milliseconds, if the screen is still open, and never before the running event
    // has ended, even while that waits for a dialog.
    void After(int milliseconds, const Event& handler);

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    friend class Control;
    friend class ModalStack;

    void Add(Control& control);
    void Remove(Control& control);

    // Runs an event that a key, the mouse or a timer has caused, and then what had to wait for its end. A
    // run-time error in it ends the program.
    void Run(const Event& event);
    void RunWaiting();
    void TypeLater(const std::vector<KeyStroke>& keys);

    void Press(QKeyEvent& key);
    void Take(QKeyEvent& key);
    bool Answer(const QKeyEvent& key);
    bool AnswerMnemonic(const QKeyEvent& key);
    Control* OfLetter(QChar letter) const;
    bool PressedByMouse(Control& control);
    void Compose(const QInputMethodEvent& event);
    Control* OfWidget(const QObject* widget) const;

    Control* Neighbour(Control* from, int step) const;
    void MoveTo(Control* to, bool validate = true);
    void MoveBy(int step);
    void Move(const std::function<Control*()>& destination, bool validate);
    void RunLostFocus(Control& from);
    void Take(Control& control);
    void LetGo(Control& control);
    void ShowGuide(const Caption& guide);
    void MendFocus();
    void GiveWidgetFocus();

    std::vector<Control*> m_controls;
    Control* m_holder = nullptr;
    Control* m_asked = nullptr; // where LostFocus wants the focus instead
    std::pair<Control*, Caption> m_wanted; // what the guide label is to show there
    int m_step = 0; // of the move that is running: 1 on, -1 back, 0 straight to a control
    Control* m_straightTo = nullptr; // the control that m_step 0 leads to
    bool m_leaving = false; // a LostFocus is running
    bool m_mouseIsKept = false; // the pressed widget doesn't see the mouse until it is released
    Label* m_guideLabel = nullptr;
    Label* m_titleLabel = nullptr;
    Caption m_title;
    QColor m_focusColour;
    QColor m_plainColour;
    std::deque<KeyStroke> m_keys; // sent but not yet typed
    std::deque<Event> m_due; // timers that wait for the end of the running event
    int m_running = 0; // running events, nested
    QEventLoop m_loop;
    Shape m_shape;
    double m_factor = 1; // by which type and fields are scaled
    bool m_open = false;
};
