#include "tools/clerk/Clerk.h"

#include "platform/forms/ModalStack.h"
#include "platform/forms/Painting.h"
#include "platform/forms/ProgramWindow.h"
#include "platform/forms/TextField.h"
#include "platform/shell/FreshKeys.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QRadioButton>
#include <QTimer>

#include <semaphore>
#include <stdexcept>
#include <thread>

namespace {

// The desktop size in VETROLAN_DESKTOP, such as "1366x768"; by default the smallest that a society's PC has.
QRect Desktop()
{
    const QStringList sides =
        qEnvironmentVariable("VETROLAN_DESKTOP", QStringLiteral("1024x768")).split(u'x');
    return {0, 0, sides.value(0).toInt(), sides.value(1).toInt()};
}

// The widget that gets the keys: that of the screen on top.
QWidget* KeyTarget()
{
    const Screen* screen = ModalStack::Current().Top();
    return screen ? screen->KeyTarget() : nullptr;
}

void Strike(const KeyStroke& stroke)
{
    QWidget* target = KeyTarget();
    if (!target)
        return;
    QKeyEvent press(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
    QCoreApplication::sendEvent(target, &press);
}

// Whether keys would be dropped or kept now: a new box takes no keys yet, or a handler is showing progress.
bool IsBusy()
{
    return FreshKeys::Awaited() || Painting::IsUnderWay();
}

}

// Program and script run on threads of their own, but never at the same time: the script runs only while the
// program waits for it between two events, so it can read everything safely.
class Clerk::Private {
public:
    std::binary_semaphore scriptsTurn{0};
    std::binary_semaphore programsTurn{0};
    std::function<void()> action; // what the script wants done; empty at its end
    bool ended = false;

    // Lets the script run until it wants something done, and does that. The next turn is scheduled first, so
    // that it also comes if the action opens a dialog.
    void Turn()
    {
        scriptsTurn.release();
        programsTurn.acquire();
        if (ended) {
            if (!ModalStack::Current().Open().empty())
                ModalStack::Current().Fail(RunTimeError(0, QStringLiteral("The script has ended.")));
            return;
        }
        TurnWhenAtRest();
        std::function<void()> wanted;
        wanted.swap(action);
        wanted();
    }

    // Goes round the event loop twice, so that work which the program has put off until its event ends is
    // done, too. If a box has opened, waits until it takes keys, as a clerk would. A round that a handler
    // lets in while it shows its progress doesn't count.
    void TurnWhenAtRest()
    {
        Round([this] { Round([this] { Turn(); }); });
    }

    void Round(const std::function<void()>& next)
    {
        QTimer::singleShot(0, qApp, [this, next] { IsBusy() ? TurnWhenAtRest() : next(); });
    }

    void Ask(std::function<void()> wanted)
    {
        action = std::move(wanted);
        programsTurn.release();
        scriptsTurn.acquire();
    }
};

Clerk::Clerk() : m_d(std::make_unique<Private>()) { }

Clerk::~Clerk() = default;

std::optional<RunTimeError> Clerk::Play(
    const std::function<void()>& program, const std::function<void(Clerk&)>& script)
{
    ModalStack::Current().Reset();
    TextField::BeginWithKeys();
    ProgramWindow::SetPlace(Desktop());
    std::optional<RunTimeError> failure;
    m_d->ended = false;
    std::thread hands([&] {
        m_d->scriptsTurn.acquire();
        try {
            script(*this);
        } catch (const std::exception& error) {
            failure = RunTimeError(-1, QString::fromUtf8(error.what()));
        }
        m_d->ended = true;
        m_d->programsTurn.release();
    });
    m_d->TurnWhenAtRest();
    try {
        program();
    } catch (const RunTimeError& error) {
        if (error.Number() != 0)
            failure = error;
    }
    while (!m_d->ended)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    hands.join();
    ModalStack::Current().Reset();
    ProgramWindow::Leave();
    return failure;
}

void Clerk::Do(const std::function<void()>& action)
{
    m_d->Ask(action);
}

void Clerk::Type(const QString& keys)
{
    for (const KeyStroke& stroke : ParseKeys(keys))
        Do([stroke] { Strike(stroke); });
}

void Clerk::TypeAhead(const QString& keys)
{
    Do([keys] {
        for (const KeyStroke& stroke : ParseKeys(keys))
            QMetaObject::invokeMethod(
                qApp, [stroke] { Strike(stroke); }, Qt::QueuedConnection);
    });
}

void Clerk::AskToLeave()
{
    while (ScreenName() == u"MainMenuFrm")
        Type(QStringLiteral("{ESC}"));
    if (ScreenName() == u"frmBackup")
        Type(QStringLiteral("{ESC}"));
}

void Clerk::Press(const QString& control)
{
    Do([this, control] {
        Control* found = Top().Find(control);
        if (!found)
            return;
        QWidget* widget = found->Widget();
        QPointF at = widget->rect().center();
        if (qobject_cast<QCheckBox*>(widget) || qobject_cast<QRadioButton*>(widget)) {
            at.setX(widget->height() / 2.0);
        } else if (auto* list = qobject_cast<QAbstractItemView*>(widget)) {
            at = list->visualRect(list->currentIndex()).center();
            widget = list->viewport();
        }
        const QPointF global = widget->mapToGlobal(at);
        for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, global, Qt::LeftButton,
                type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &event);
        }
    });
}

void Clerk::CloseBox()
{
    Do([] { ProgramWindow::Current().close(); });
}

Screen& Clerk::Top() const
{
    Screen* screen = ModalStack::Current().Top();
    if (!screen)
        throw std::logic_error("no screen is open");
    return *screen;
}

QString Clerk::ScreenName() const
{
    const Screen* screen = ModalStack::Current().Top();
    return screen ? screen->Name() : QString();
}

QString Clerk::Focus() const
{
    const Control* holder = Top().FocusHolder();
    return holder ? holder->Name() : QString();
}

QString Clerk::Reads(const QString& control) const
{
    const Control* found = Top().Find(control);
    if (!found)
        throw std::logic_error("no such control: " + control.toStdString());
    return found->Text();
}

bool Clerk::CanEnter(const QString& control) const
{
    const Control* found = Top().Find(control);
    return found && found->CanTakeFocus();
}

QString Clerk::Message() const
{
    return ScreenName() == u"frmMessages" ? Top().Title().Text() : QString();
}

void Clerk::Picture(const QString& file)
{
    constexpr int pressedLittle = 80; // hard pressing of many pictures takes longer than all the rest
    Do([file] { ProgramWindow::Current().grab().save(file, nullptr, pressedLittle); });
}
