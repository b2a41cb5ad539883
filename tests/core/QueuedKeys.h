#pragma once

#include "platform/forms/ModalStack.h"
#include "platform/forms/Screen.h"
#include "platform/forms/SendKeys.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

// Lets keys, in the form that SendKeys takes, wait in the application's queue: each reaches the screen that
// is on top when its turn comes.
inline void QueueKeys(const QString& keys)
{
    for (const KeyStroke& stroke : ParseKeys(keys))
        QMetaObject::invokeMethod(
            qApp,
            [stroke] {
                QKeyEvent press(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
                if (const Screen* screen = ModalStack::Current().Top())
                    QCoreApplication::sendEvent(screen->KeyTarget(), &press);
            },
            Qt::QueuedConnection);
}

// Lets a word wait there that an input method has done with.
inline void QueueComposed(const QString& word)
{
    QMetaObject::invokeMethod(
        qApp,
        [word] {
            QInputMethodEvent done;
            done.setCommitString(word);
            if (const Screen* screen = ModalStack::Current().Top())
                QCoreApplication::sendEvent(screen->KeyTarget(), &done);
        },
        Qt::QueuedConnection);
}
