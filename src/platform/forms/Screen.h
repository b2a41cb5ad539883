#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/SendKeys.h"

#include <QEventLoop>

#include <deque>
#include <vector>

class Button;
class QInputMethodEvent;

// A screen: its fields in the window of the program, answering the clerk. It decides itself who holds the
// focus, runs the handlers, and moves the window system's focus afterwards; so it works the same in an
// inactive window.
//
// A move from A to B runs A's LostFocus, then B's GotFocus. SetFocus inside A's LostFocus replaces the
// destination, and B sees neither event; if the destination is A itself, its GotFocus runs and its
// LostFocus doesn't run again. SetFocus inside B's GotFocus is a move of its own. Opening another screen
// is no move.
class Screen : public QWidget {
public:
    // A full screen fills the window, a card is as large as it needs to be.
    enum class Shape { Full, Card };

    // `name` is the screen's name in the system, such as "frmMembers".
    explicit Screen(const char* name, Shape shape = Shape::Full);
    ~Screen() override;

    // Opens the screen over the one before it and returns when it has closed.
    void ShowModal();

    // Closes the screen; the handler that asks for it runs to its end.
    void Close();

    QString Name() const { return objectName(); }
    bool IsCard() const { return m_shape == Shape::Card; }

    // The control that holds the focus; null if none can.
    Control* FocusHolder() const { return m_holder; }

    // Moves the focus by the rules above; a control that is disabled or hidden is left alone.
    void SetFocus(Control& control);

    // The same, with what the control wants: until it is left, the guide label says it in place of its guide.
    void SetFocus(Control& control, const Caption& wanted);

    // For a LostFocus that sends the clerk on: whether he is stepping back with Shift+Tab instead.
    bool IsSteppingBack() const { return m_leaving && m_step < 0; }

    // For the same: the control that he goes straight to, by its letter, another key or the mouse; null if he
    // steps on or back.
    const Control* GoingTo() const { return m_leaving && m_step == 0 ? m_straightTo : nullptr; }

    // The controls in tab order.
    const std::vector<Control*>& Controls() const { return m_controls; }

    // The control of a name in any spelling; null if there is none.
    Control* Find(QStringView name) const;

    // The background of a control with and without the focus.
    std::pair<QColor, QColor> Colours() const { return {m_focusColour, m_plainColour}; }

    // The title of the window and of the title label, if there is one.
    void SetTitle(const Caption& title);
    const Caption& Title() const { return m_title; }

    // Gives type and fields the size that the window has now.
    void FitType();

    // Where the window system sends keys for this screen.
    QWidget* KeyTarget() const;

protected:
    // The screen is about to be shown: fill it.
    virtual void Load() { }

    // The screen stands before the clerk, with the focus on its first control.
    virtual void Shown() { }

    // A key before any control sees it; true if it is answered.
    virtual bool KeyDown(const QKeyEvent& key);

    // Esc: clear the fields and close.
    virtual void Escape() { Close(); }

    // The window's close box.
    virtual void CloseBox() { Close(); }

    // Enter on a control that isn't a button: on to the next.
    virtual void Enter() { MoveNext(); }

    // Tab: on to the next.
    virtual void Tab() { MoveNext(); }

    void MoveNext();
    void MovePrevious();

    // Empties every field, as a screen that is left with Esc does.
    void EmptyFields();

    void SetColours(QColor focus, QColor plain);

    // The label that shows the title.
    void SetTitleLabel(Label& label);

    // The label that shows the guide of the control in focus.
    void SetGuideLabel(Label& label);

    // Puts a handler of this screen behind an event.
    template <class S> void When(Event& event, void (S::*handler)())
    {
        event = [screen = static_cast<S*>(this), handler] { (screen->*handler)(); };
    }

    // Runs a handler after a time on the event loop; only while the screen is open, and never before the
    // running event has ended, whatever dialog it waits for.
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

    // Runs what a key, a press or a timer sets off, and then what has waited for its end. A run-time error
    // in it ends the program.
    void Run(const Event& event);
    void RunWaiting();
    void TypeLater(const std::vector<KeyStroke>& keys);

    void Press(QKeyEvent& key);
    void Take(QKeyEvent& key);
    bool Answer(const QKeyEvent& key);
    bool AnswerMnemonic(const QKeyEvent& key);
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
    std::pair<Control*, Caption> m_wanted; // what it is to say there
    int m_step = 0; // of the move that is running: 1 on, -1 back, 0 straight to a control
    Control* m_straightTo = nullptr; // that control
    bool m_leaving = false; // a LostFocus is running
    bool m_mouseIsKept = false; // from the widget that was pressed, until it is released
    Label* m_guideLabel = nullptr;
    Label* m_titleLabel = nullptr;
    Caption m_title;
    QColor m_focusColour;
    QColor m_plainColour;
    std::deque<KeyStroke> m_keys; // sent, and not yet typed
    std::deque<Event> m_due; // timers that have waited for the running event
    int m_running = 0; // events that are running, one inside the other
    QEventLoop m_loop;
    Shape m_shape;
    double m_factor = 1; // that type and fields are scaled by
    bool m_open = false;
};
