#include "core/start/BooksKeeper.h"

#include "core/messages/BoxScreen.h"
#include "core/state/AppState.h"
#include "platform/forms/ModalStack.h"

namespace {

constexpr int RestMilliseconds = 2000;

// A long run of saves without a rest is folded in between.
constexpr qint64 LongestLog = 8LL * 1024 * 1024;

}

BooksKeeper::BooksKeeper()
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMilliseconds);
    QObject::connect(&m_rest, &QTimer::timeout, &m_rest, [this] {
        if (!gCn.Fold() && gCn.LogSize() > 0)
            m_rest.start();
    });
    // A box interrupts the work of a screen that may still be writing.
    ModalStack::Current().SetLeft([](const Screen& screen) {
        if (!dynamic_cast<const BoxScreen*>(&screen))
            gCn.Fold();
    });
    gCn.SetWritten([this] { BooksWritten(); });
}

BooksKeeper::~BooksKeeper()
{
    ModalStack::Current().SetLeft({});
    gCn.SetWritten({});
}

void BooksKeeper::BooksWritten()
{
    if (gCn.LogSize() > LongestLog)
        gCn.Fold();
    m_rest.start();
}
