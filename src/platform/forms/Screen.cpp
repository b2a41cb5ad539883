#include "platform/forms/Screen.h"

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/ProgramWindow.h"
#include "platform/forms/Scaling.h"

#include <QApplication>
#include <QCloseEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

bool IsCancel(const Control& control)
{
    const auto* button = dynamic_cast<const Button*>(&control);
    return button && button->Cancels();
}

}

Screen::Screen(const char* name, Shape shape)
    : QWidget(&ProgramWindow::Current())
    , m_focusColour(Look::FocusColour)
    , m_plainColour(Look::PlainColour)
    , m_shape(shape)
{
    setVisible(false);
    setObjectName(QLatin1String(name));
    setPalette(QApplication::palette()); // not the palette of the window behind it
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
}

Screen::~Screen() = default;

void Screen::Add(Control& control)
{
    m_controls.push_back(&control);
    control.ShowFocus(false);
}

void Screen::Remove(Control& control)
{
    std::erase(m_controls, &control);
    if (m_holder == &control)
        m_holder = nullptr;
}

void Screen::ShowModal()
{
    ModalStack& stack = ModalStack::Current();
    struct Level {
        std::vector<Screen*>& open;
        Screen& screen;
        Level(std::vector<Screen*>& screens, Screen& self) : open(screens), screen(self)
        {
            open.push_back(&self);
        }
        ~Level()
        {
            screen.m_open = false;
            screen.hide();
            std::erase(open, &screen);
            ProgramWindow::Current().Arrange();
            if (ModalStack::Current().m_left)
                ModalStack::Current().m_left(screen);
            if (open.empty())
                return;
            open.back()->TypeLater({screen.m_keys.begin(), screen.m_keys.end()});
            open.back()->GiveWidgetFocus();
        }
    } level(stack.m_open, *this);

    m_open = true;
    if (parentWidget() != &ProgramWindow::Current())
        setParent(&ProgramWindow::Current());
    if (m_holder)
        LetGo(*m_holder);
    m_holder = nullptr;
    m_keys.clear();
    m_due.clear();
    Run([this] {
        Load();
        if (!m_open)
            return;
        ProgramWindow::Current().Arrange();
        show();
        ProgramWindow::Current().Appear();
        if (m_holder)
            GiveWidgetFocus();
        else
            MoveNext();
        Shown();
    });
    if (m_open)
        m_loop.exec();
    if (stack.Failure())
        throw RunTimeError(*stack.Failure());
}

void Screen::Close()
{
    m_open = false;
    m_loop.quit();
}

// Failures are caught here, so that they never pass through the window system. An outer event gets it again
// when ShowModal of this screen throws it.
void Screen::Run(const Event& event)
{
    struct Running {
        int& count;
        explicit Running(int& events) : count(events) { ++count; }
        ~Running() { --count; }
    } running(m_running);
    try {
        event();
        MendFocus();
        if (m_running == 1)
            RunWaiting();
        if (m_running == 1 && Settled)
            Settled();
    } catch (const RunTimeError& error) {
        ModalStack::Current().Fail(error);
    }
}

void Screen::RunWaiting()
{
    std::deque<KeyStroke>& ahead = ModalStack::Current().m_ahead;
    while (m_open) {
        if (std::deque<KeyStroke>& keys = m_keys.empty() ? ahead : m_keys; !keys.empty()) {
            const KeyStroke stroke = keys.front();
            keys.pop_front();
            QKeyEvent press(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
            Take(press);
        } else if (!m_due.empty()) {
            const Event handler = m_due.front();
            m_due.pop_front();
            Run(handler);
        } else {
            return;
        }
    }
}

void Screen::TypeLater(const std::vector<KeyStroke>& keys)
{
    m_keys.insert(m_keys.end(), keys.begin(), keys.end());
    if (m_running == 0 && !keys.empty())
        QTimer::singleShot(0, this, [this] { Run([] {}); });
}

void Screen::After(int milliseconds, const Event& handler)
{
    QTimer::singleShot(milliseconds, this, [this, handler] {
        if (!m_open)
            return;
        m_due.push_back(handler);
        Run([] {});
    });
}

Control* Screen::Find(QStringView name) const
{
    const auto at = std::find_if(m_controls.begin(), m_controls.end(),
        [name](const Control* control) { return control->Name().compare(name, Qt::CaseInsensitive) == 0; });
    return at == m_controls.end() ? nullptr : *at;
}

void Screen::FitType()
{
    if (m_factor == Look::Factor())
        return;
    m_factor = Look::Factor();
    Scaling::Apply(*this, m_factor);
}

QWidget* Screen::KeyTarget() const
{
    return m_holder ? m_holder->Widget() : const_cast<Screen*>(this);
}

void Screen::SetColours(QColor focus, QColor plain)
{
    m_focusColour = focus;
    m_plainColour = plain;
    for (Control* control : m_controls)
        control->ShowFocus(control == m_holder);
}

void Screen::SetTitle(const Caption& title)
{
    m_title = title;
    setWindowTitle(title.Seen().trimmed());
    if (m_titleLabel)
        m_titleLabel->SetCaption(title);
    if (m_open)
        ProgramWindow::Current().Arrange();
}

void Screen::SetTitleLabel(Label& label)
{
    m_titleLabel = &label;
    label.SetCaption(m_title);
}

void Screen::EmptyFields()
{
    for (Control* control : m_controls)
        if (auto* field = dynamic_cast<Field*>(control))
            field->Clear();
}

// Focus

void Screen::SetFocus(Control& control)
{
    if (!control.CanTakeFocus())
        return;
    if (m_leaving)
        m_asked = &control;
    else
        MoveTo(&control);
}

void Screen::SetFocus(Control& control, const Caption& wanted)
{
    if (!control.CanTakeFocus())
        return;
    if (&control == m_holder && !m_leaving) {
        ShowGuide(wanted.IsEmpty() ? control.Guide() : wanted);
        return;
    }
    m_wanted = {&control, wanted};
    SetFocus(control);
}

void Screen::MoveNext()
{
    MoveBy(1);
}

void Screen::MovePrevious()
{
    MoveBy(-1);
}

// The destination is found after LostFocus, which may have enabled or disabled the next field.
void Screen::MoveBy(int step)
{
    if (Neighbour(m_holder, step) == m_holder)
        return;
    m_step = step;
    Move([this, step] { return Neighbour(m_holder, step); }, true);
}

Control* Screen::Neighbour(Control* from, int step) const
{
    const auto count = static_cast<std::ptrdiff_t>(m_controls.size());
    const auto start = std::find(m_controls.begin(), m_controls.end(), from);
    std::ptrdiff_t at = start == m_controls.end() ? (step > 0 ? -1 : count) : start - m_controls.begin();
    for (std::ptrdiff_t tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (m_controls[at]->CanTakeFocus() && m_controls[at]->TabStop())
            return m_controls[at];
    }
    return nullptr;
}

void Screen::MoveTo(Control* to, bool validate)
{
    if (!to || to == m_holder)
        return;
    m_step = 0;
    m_straightTo = to;
    Move([this, to] { return to->CanTakeFocus() ? to : Neighbour(to, 1); }, validate);
}

void Screen::Move(const std::function<Control*()>& destination, bool validate)
{
    if (!m_open || m_leaving)
        return;
    m_asked = nullptr;
    if (m_holder) {
        LetGo(*m_holder);
        if (validate && m_holder->LostFocus)
            RunLostFocus(*m_holder);
        if (!m_open)
            return;
    }
    if (m_asked && !m_asked->CanTakeFocus())
        m_asked = Neighbour(m_asked, 1);
    if (Control* to = m_asked ? m_asked : destination())
        Take(*to);
}

void Screen::RunLostFocus(Control& from)
{
    struct Leaving {
        bool& leaving;
        explicit Leaving(bool& flag) : leaving(flag) { leaving = true; }
        ~Leaving() { leaving = false; }
    } leaving(m_leaving);
    from.LostFocus();
}

void Screen::Take(Control& control)
{
    m_holder = &control;
    control.ShowFocus(true);
    const auto [wanting, wanted] = std::exchange(m_wanted, {});
    ShowGuide(wanting == &control && !wanted.IsEmpty() ? wanted : control.Guide());
    GiveWidgetFocus();
    if (control.GotFocus)
        control.GotFocus();
}

void Screen::LetGo(Control& control)
{
    control.ShowFocus(false);
    ShowGuide({});
}

void Screen::SetGuideLabel(Label& label)
{
    m_guideLabel = &label;
    ShowGuide({});
}

void Screen::ShowGuide(const Caption& guide)
{
    // An empty label keeps its place: hiding it would lay out the whole screen again at every key.
    if (m_guideLabel)
        m_guideLabel->SetCaption(guide);
}

// If the running event disabled or hid the control with the focus, the focus moves on without LostFocus: the
// clerk couldn't correct anything there.
void Screen::MendFocus()
{
    if (!m_open || m_leaving || (m_holder && m_holder->CanTakeFocus()))
        return;
    if (Control* next = Neighbour(m_holder, 1)) {
        MoveTo(next, false);
    } else if (m_holder) {
        LetGo(*m_holder);
        m_holder = nullptr;
        GiveWidgetFocus();
    }
}

void Screen::GiveWidgetFocus()
{
    if (!isVisible())
        return;
    if (ModalStack::Current().Top() != this)
        return;
    if (!isActiveWindow())
        activateWindow();
    KeyTarget()->setFocus(Qt::OtherFocusReason);
}

// Keys and the mouse

bool Screen::eventFilter(QObject* watched, QEvent* event)
{
    Control* control = OfWidget(watched);
    if (!control)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        Press(*static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::InputMethod:
        Compose(*static_cast<QInputMethodEvent*>(event));
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return true;
        m_mouseIsKept = !PressedByMouse(*control);
        return m_mouseIsKept;
    case QEvent::MouseMove:
        return m_mouseIsKept;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return true;
        if (control == m_holder)
            Run([this] { m_holder->MouseDone(); });
        return std::exchange(m_mouseIsKept, false);
    default:
        return false;
    }
}

// A card that shows or hides something changes its size.
bool Screen::event(QEvent* event)
{
    const bool answered = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && IsCard() && m_open)
        ProgramWindow::Current().Arrange();
    return answered;
}

void Screen::keyPressEvent(QKeyEvent* event)
{
    Press(*event);
}

// A key for a screen that is closing is kept for the screen that will be on top.
void Screen::Press(QKeyEvent& key)
{
    if (m_open)
        Take(key);
    else
        ModalStack::Current().m_ahead.push_back({key.key(), key.modifiers(), key.text()});
}

// Keys go to the control with the focus, whichever widget got them from the window system.
void Screen::Take(QKeyEvent& key)
{
    Run([&] {
        if (!Answer(key) && m_holder)
            static_cast<QObject*>(m_holder->Widget())->event(&key);
    });
}

void Screen::Compose(const QInputMethodEvent& event)
{
    if (!m_open || !m_holder || !m_holder->CanTakeFocus())
        return;
    Run([&] {
        if (!event.commitString().isEmpty())
            m_holder->Insert(event.commitString());
        m_holder->ShowComposition(event.preeditString());
    });
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (m_open)
        Run([this] { CloseBox(); });
}

// In a list it is the viewport that gets the mouse.
Control* Screen::OfWidget(const QObject* widget) const
{
    const auto at = std::find_if(m_controls.begin(), m_controls.end(), [widget](const Control* control) {
        return control->Widget() == widget || control->Widget() == widget->parent();
    });
    return at == m_controls.end() ? nullptr : *at;
}

bool Screen::KeyDown(const QKeyEvent&)
{
    return false;
}

bool Screen::Answer(const QKeyEvent& key)
{
    if (KeyDown(key))
        return true;
    Control* control = m_holder && m_holder->CanTakeFocus() ? m_holder : nullptr;
    if (control && control->KeyDown && control->KeyDown(key))
        return true;
    if (control && control->KeyBeforeScreen(key))
        return true;
    switch (key.key()) {
    case Qt::Key_Escape:
        Escape();
        return true;
    case Qt::Key_Tab:
        Tab();
        return true;
    case Qt::Key_Backtab:
        MovePrevious();
        return true;
    case Qt::Key_F11:
        ProgramWindow::Current().ToggleFullScreen();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = dynamic_cast<Button*>(control))
            button->Press();
        else
            Enter();
        return true;
    default:
        break;
    }
    if (key.modifiers().testFlag(Qt::AltModifier) && AnswerMnemonic(key))
        return true;
    return !control || control->KeyPress(key);
}

bool Screen::AnswerMnemonic(const QKeyEvent& key)
{
    Control* control = key.key() > 0xFFFF ? nullptr : OfLetter(QChar(key.key()));
    if (!control)
        return false;
    const QString meant = control->Widget()->accessibleName();
    MoveTo(control);
    // The LostFocus of the field runs before a Cancel button is pressed, but can't keep the clerk in the
    // field.
    if (m_holder != control && IsCancel(*control) && control->CanTakeFocus())
        MoveTo(control, false);
    // It may also have made another button of it, which the clerk hasn't seen yet.
    if (m_holder == control && control->Widget()->accessibleName() == meant)
        control->AnswerMnemonic();
    return true;
}

Control* Screen::OfLetter(QChar letter) const
{
    const auto found = std::find_if(m_controls.begin(), m_controls.end(), [&](const Control* control) {
        return control->CanTakeFocus() && !letter.isNull() && control->Mnemonic() == letter;
    });
    return found == m_controls.end() ? nullptr : *found;
}

// Returns whether the widget is to get the press: the control has the focus now, is the one that was pressed,
// and doesn't keep the press.
bool Screen::PressedByMouse(Control& control)
{
    if (!m_open || !control.CanTakeFocus())
        return false;
    const bool entering = m_holder != &control;
    const QString meant = control.Widget()->accessibleName();
    Run([&] { MoveTo(&control, !IsCancel(control)); });
    return m_holder == &control && control.Widget()->accessibleName() == meant
        && !control.KeepsPress(entering);
}
