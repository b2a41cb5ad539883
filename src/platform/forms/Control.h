#pragma once

#include "platform/forms/Caption.h"

#include <QColor>
#include <QLabel>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QKeyEvent;
class Screen;

// What a screen answers to; empty is "nothing to do".
using Event = std::function<void()>;

// A member function of a screen that answers the usual event of a control: leaving a field, pressing a
// button, turning a box. It is named where the control is declared: Button cmdNew{this, "cmdNew",
// Shivaji(u"&navaIna"), &frmMembers::cmdNew_Click}; where a part of a screen has controls of its own, the
// function may be that part's: {this, &DeviceSwitches::cmdAutoFat_Click}.
class Handler {
public:
    Handler() = default;
    template <class S>
    Handler(void (S::*function)())
        : m_run([function](Screen& screen) { (static_cast<S&>(screen).*function)(); })
    {
    }
    template <class Part>
    Handler(Part* part, void (Part::*function)()) : m_run([=](Screen&) { (part->*function)(); })
    {
    }

    explicit operator bool() const { return static_cast<bool>(m_run); }

    // Runs the function that was named.
    void Run(Screen& screen) const { m_run(screen); }

    // The event for a control of this screen; empty if no function was named.
    Event On(Screen& screen) const;

private:
    std::function<void(Screen&)> m_run;
};

// Something on a screen that can hold the focus. Controls are members of their screen; the order in which
// they are declared is the tab order.
class Control {
public:
    // `name` is the control's name in the system, such as "txtFat".
    Control(Screen* screen, const char* name, QWidget* widget);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Event GotFocus;
    Event LostFocus;

    // Keys that this control takes before its own handling; returns true for a key that it has answered.
    std::function<bool(const QKeyEvent&)> KeyDown;

    QString Name() const { return m_widget->objectName(); }

    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled);
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);

    // A control that is no stop for Tab still takes the focus when it is given it.
    bool TabStop() const { return m_tabStop; }
    void SetTabStop(bool stop) { m_tabStop = stop; }

    // Whether it is enabled and visible.
    bool CanTakeFocus() const { return m_enabled && m_visible; }
    bool HasFocus() const;

    // Moves the screen's focus here; does nothing if it can't take it.
    void SetFocus();

    // The same, with what is wanted here: the guide label says it until the control is left.
    void SetFocus(const Caption& wanted);

    // The line that the screen's guide label shows while this control holds the focus.
    const Caption& Guide() const { return m_guide; }
    void SetGuide(const Caption& guide);

    // What a screen reader calls the control.
    void SetAccessibleName(const Caption& name);

    // Colours of its own in place of the screen's.
    void SetColours(QColor focus, QColor plain);

    QWidget* Widget() const { return m_widget.get(); }
    Screen& Owner() const { return *m_screen; }

    // What the control reads, as the system spells it.
    virtual QString Text() const = 0;

protected:
    friend class Screen;
    friend class DataGrid; // hands keys on to the field of the cell that is being edited
    friend class PopupMenu;

    // A key that the screen has no use for. Returns true if it is used up; false leaves it to the widget.
    virtual bool KeyPress(const QKeyEvent& key) = 0;

    // Text from an input method or the clipboard.
    virtual void Insert(const QString& text) { Q_UNUSED(text); }

    // What an input method is still putting together; empty when it has done.
    virtual void ShowComposition(const QString& text) { Q_UNUSED(text); }

    // The focus has come or gone; the handlers run after this.
    virtual void ShowFocus(bool held);

    // A key that for now means something else here than on the screen at large, such as Esc while a list is
    // open. Returns true if it is used up; false lets the screen answer it as ever.
    virtual bool KeyBeforeScreen(const QKeyEvent& key);

    // The mouse is pressed here; `entering` if the focus has come with it. Returns true if the widget is to
    // see nothing of the mouse until it is released.
    virtual bool KeepsPress(bool entering);

    // The mouse is released: it may have moved caret or selection.
    virtual void MouseDone() { }

    // The letter or figure that reaches the control with Alt; a null character if there is none. The control
    // holds the focus when AnswerMnemonic is called.
    virtual QChar Mnemonic() const { return {}; }
    virtual void AnswerMnemonic() { }

    // Runs what the mouse or a timer has set off on this control.
    void RunEvent(const Event& event);

private:
    Screen* m_screen;
    std::unique_ptr<QWidget> m_widget;
    Caption m_guide;
    std::optional<std::pair<QColor, QColor>> m_colours;
    bool m_enabled = true;
    bool m_visible = true;
    bool m_tabStop = true;
};

// A text of a screen that can't be entered. It holds its caption as the system spells it.
class Label {
public:
    explicit Label(Screen* screen, const char* name, const Caption& caption = {});

    const Caption& Shown() const { return m_caption; }
    void SetCaption(const Caption& caption);

    // A stored text, or a figure, in place of the caption.
    void SetText(const QString& stored) { SetCaption(Words(stored)); }
    void SetFigure(const QString& figure) { SetCaption(Plain(figure)); }

    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);

    QString Name() const;
    QLabel* Widget() const { return m_widget.get(); }

private:
    std::unique_ptr<QLabel> m_widget;
    Caption m_caption;
    bool m_visible = true;
};
