#pragma once

#include "platform/forms/Caption.h"

#include <QColor>
#include <QLabel>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QKeyEvent;
class Screen;

// What a screen does when something happens to a control; empty for nothing.
using Event = std::function<void()>;

// The member function of a screen that answers the usual event of a control: leaving a field, pressing a
// button, changing a box. It is named where the control is declared:
// Button cmdNew{this, "cmdNew", Shivaji(u"&navaIna"), &frmMembers::cmdNew_Click};
// Where a part of a screen has controls of its own, the function may be that part's:
// {this, &DeviceSwitches::cmdAutoFat_Click}.
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

    // Calls the function; there must be one.
    void Run(Screen& screen) const { m_run(screen); }

    // The event that calls it on this screen; empty if no function was named.
    Event On(Screen& screen) const;

private:
    std::function<void(Screen&)> m_run;
};

// Something on a screen that can hold the focus. Controls are members of their screen; the order in which
// they are declared is the tab order.
class Control {
public:
    // `name` is the name that the clerk's guide uses, such as "txtFat".
    Control(Screen* screen, const char* name, QWidget* widget);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Event GotFocus;
    Event LostFocus;

    // Sees each key before the control does; returns true if it has handled it.
    std::function<bool(const QKeyEvent&)> KeyDown;

    QString Name() const { return m_widget->objectName(); }

    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled);
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);

    // Without a tab stop, Tab passes the control over, but SetFocus and the mouse still reach it.
    bool TabStop() const { return m_tabStop; }
    void SetTabStop(bool stop) { m_tabStop = stop; }

    // Whether it is enabled and visible.
    bool CanTakeFocus() const { return m_enabled && m_visible; }
    bool HasFocus() const;

    // Moves the screen's focus here; does nothing if it can't take it.
    void SetFocus();

    // The same. The guide label shows `wanted` in place of the guide until the control is left.
    void SetFocus(const Caption& wanted);

    // The text that the screen's guide label shows while this control has the focus.
    const Caption& Guide() const { return m_guide; }
    void SetGuide(const Caption& guide);

    // A key of the strip that this control answers itself, such as "1 2": the strip shows it lit only where
    // such a control has the focus.
    void AddOwnKey(const QString& key) { m_ownKeys.append(key); }
    bool HasOwnKey(const QString& key) const { return m_ownKeys.contains(key); }

    // The name that a screen reader says.
    void SetAccessibleName(const Caption& name);

    // Gives it other colours than those of the screen.
    void SetColours(QColor focus, QColor plain);

    QWidget* Widget() const { return m_widget.get(); }
    Screen& Owner() const { return *m_screen; }

    // The control's value as it is stored.
    virtual QString Text() const = 0;

protected:
    friend class Screen;
    friend class DataGrid; // hands keys on to the field of the cell that is being edited
    friend class Panel;
    friend class PopupMenu;

    // A key that the screen doesn't handle. Returns true if it is used up, false if the widget is to get it.
    virtual bool KeyPress(const QKeyEvent& key) = 0;

    // Text from an input method or the clipboard.
    virtual void Insert(const QString& text) { Q_UNUSED(text); }

    // The text that an input method is still composing; empty when it is done.
    virtual void ShowComposition(const QString& text) { Q_UNUSED(text); }

    // The focus has arrived or left; called before GotFocus and LostFocus.
    virtual void ShowFocus(bool held);

    // Called before the screen sees a key, for keys that mean something else here at the moment, such as Esc
    // while a list is open. Returns true if it is used up, false if the screen is to handle it as usual.
    virtual bool KeyBeforeScreen(const QKeyEvent& key);

    // The mouse was pressed here; `entering` says that this press brought the focus. Returns true if the
    // widget is not to see the mouse until it is released.
    virtual bool KeepsPress(bool entering);

    // The mouse was released; it may have moved the caret or the selection.
    virtual void MouseDone() { }

    // The letter or digit that, with Alt, calls AnswerMnemonic; the control has the focus by then. A null
    // character if there is none.
    virtual QChar Mnemonic() const { return {}; }
    virtual void AnswerMnemonic() { }

    // The panel on which it stands was hidden, or is about to be shown.
    virtual void SetUnseen(bool unseen) { Q_UNUSED(unseen) }

    // Runs an event that the mouse or a timer has caused on this control.
    void RunEvent(const Event& event);

private:
    Screen* m_screen;
    std::unique_ptr<QWidget> m_widget;
    Caption m_guide;
    QStringList m_ownKeys;
    std::optional<std::pair<QColor, QColor>> m_colours;
    bool m_enabled = true;
    bool m_visible = true;
    bool m_tabStop = true;
};

// A text on a screen that can't be edited.
class Label {
public:
    explicit Label(Screen* screen, const char* name, const Caption& caption = {});

    const Caption& Shown() const { return m_caption; }
    void SetCaption(const Caption& caption);

    // Shows a text of the database, or a figure, as its caption.
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
