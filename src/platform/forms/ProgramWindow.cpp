#include "platform/forms/ProgramWindow.h"

#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/Scaling.h"
#include "platform/forms/Screen.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>

#include <algorithm>
#include <memory>

namespace {

std::unique_ptr<ProgramWindow>& Window()
{
    static std::unique_ptr<ProgramWindow> window;
    return window;
}

QRect& Place()
{
    static QRect place;
    return place;
}

}

ProgramWindow& ProgramWindow::Current()
{
    if (!Window())
        Window().reset(new ProgramWindow);
    return *Window();
}

void ProgramWindow::Leave()
{
    Window().reset();
}

void ProgramWindow::SetPlace(const QRect& place)
{
    Place() = place;
}

ProgramWindow::ProgramWindow()
{
    setObjectName(QStringLiteral("Vetrolan"));
    setWindowTitle(objectName());
    setFocusPolicy(Qt::StrongFocus);
    QPalette ground = palette();
    ground.setColor(QPalette::Window, QColor(Look::Ground));
    setPalette(ground);
    m_shade.setAutoFillBackground(true);
    QPalette dim = m_shade.palette();
    dim.setColor(QPalette::Window, QColor::fromRgba(Look::Shade));
    m_shade.setPalette(dim);
    m_shade.hide();
    const QScreen* screen = QGuiApplication::primaryScreen();
    setGeometry(Place().isValid() || !screen ? Place() : screen->availableGeometry());
    Look::SetFactor(Scaling::FactorFor(size()));
}

// Screens belong to whoever made them, and may be opened again in the next window.
ProgramWindow::~ProgramWindow()
{
    for (QObject* child : QObjectList(children()))
        if (auto* screen = dynamic_cast<Screen*>(child))
            screen->setParent(nullptr);
}

void ProgramWindow::Arrange()
{
    const std::vector<Screen*>& open = ModalStack::Current().Open();
    for (Screen* screen : open) {
        screen->FitType();
        screen->setGeometry(screen->IsCard() ? CardPlace(*screen) : rect());
        screen->raise();
    }
    Screen* top = ModalStack::Current().Top();
    m_shade.setVisible(top && top->IsCard() && open.size() > 1);
    m_shade.setGeometry(rect());
    if (!top)
        return;
    m_shade.raise();
    top->raise();
    setWindowTitle(top->windowTitle());
}

QRect ProgramWindow::CardPlace(const Screen& card) const
{
    const int margin = Look::Pixels(16);
    const QSize room(width() - 2 * margin, height() - 2 * margin);
    QSize size = card.sizeHint().expandedTo(card.minimumSize()).boundedTo(room);
    if (card.hasHeightForWidth())
        size.setHeight(std::min(room.height(), std::max(size.height(), card.heightForWidth(size.width()))));
    QRect place(QPoint(), size);
    place.moveCenter(rect().center());
    return place;
}

// Without a window manager nothing is maximised; the window has the size of the work area already.
void ProgramWindow::Appear()
{
    if (isVisible())
        return;
    if (Place().isValid())
        show();
    else
        showMaximized();
}

void ProgramWindow::ToggleFullScreen()
{
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void ProgramWindow::resizeEvent(QResizeEvent*)
{
    Look::SetFactor(Scaling::FactorFor(size()));
    Arrange();
}

void ProgramWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (Screen* top = ModalStack::Current().Top())
        top->close();
}

// A key that reaches no control goes to the screen: while screens change, no widget has the focus.
void ProgramWindow::keyPressEvent(QKeyEvent* event)
{
    ModalStack::Current().Press(*event);
}
