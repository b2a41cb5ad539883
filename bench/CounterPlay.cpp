#include "bench/CounterPlay.h"

#include "collection/frmMilkCollections.h"
#include "core/state/AppState.h"
#include "platform/forms/ModalStack.h"
#include "platform/text/Numbers.h"
#include "tools/clerk/Clerk.h"

#include <QKeyEvent>

void PlayAtCounter(const QDate& day, const std::function<void()>& work)
{
    gAppState.gAppDate = day;
    Clerk clerk;
    const std::optional<RunTimeError> failure = clerk.Play(
        [] {
            frmMilkCollections counter;
            counter.ShowModal();
        },
        [&](Clerk&) { clerk.Do(work); });
    if (failure)
        throw RunTimeError(*failure);
}

void Type(const QString& keys)
{
    for (const KeyStroke& stroke : ParseKeys(keys)) {
        const Screen* screen = ModalStack::Current().Top();
        Require(screen != nullptr, "A screen must be open.");
        QKeyEvent press(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
        QCoreApplication::sendEvent(screen->KeyTarget(), &press);
    }
}

void Paint()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

double LitersOf(int member)
{
    return 2.5 + member % 90 * 0.05;
}

double FatOf(int member)
{
    return member % 2 == 0 ? 6.5 : 4.0;
}

QString DeliveryKeys(int member)
{
    return QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}{ENTER}")
        .arg(QString::number(member), ShortestDecimal(LitersOf(member)), ShortestDecimal(FatOf(member)));
}

void RequireFocus(QStringView control)
{
    const Screen* screen = ModalStack::Current().Top();
    const QString holder = screen && screen->FocusHolder() ? screen->FocusHolder()->Name() : QString();
    if (holder != control)
        throw RunTimeError(-1, u"The focus should be on " % control % u", and is on " % holder);
}

void Require(bool isSo, const char* what)
{
    if (!isSo)
        throw RunTimeError(-1, QString::fromUtf8(what));
}
