#include "platform/shell/FreshKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

// A box that counts the keys that reach it.
class CountingBox final : public QWidget {
public:
    int Keys = 0;

    void Strike(bool repeated = false)
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), repeated);
        QCoreApplication::sendEvent(this, &press);
    }

    // Puts a key behind all that waits in the application's queue.
    void StrikeLater()
    {
        QMetaObject::invokeMethod(
            this, [this] { Strike(); }, Qt::QueuedConnection);
    }

    // Returns when it takes keys.
    void ShowAndWait()
    {
        show();
        EXPECT_TRUE(FreshKeys::Awaited());
        while (FreshKeys::Awaited())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

protected:
    void keyPressEvent(QKeyEvent*) override { ++Keys; }

private:
    FreshKeys m_keys{*this};
};

}

TEST(FreshKeysTest, KeysThatWereTypedAheadOfABoxAreThrownAway)
{
    CountingBox box;
    for (int i = 0; i < 5; ++i)
        box.StrikeLater();
    box.ShowAndWait();
    EXPECT_EQ(box.Keys, 0);
    box.Strike();
    EXPECT_EQ(box.Keys, 1);
}

TEST(FreshKeysTest, KeysThatWaitedWhileItWasPaintedAreThrownAwayToo)
{
    CountingBox box;
    QMetaObject::invokeMethod(
        &box,
        [&box] {
            QPaintEvent painted(box.rect());
            QCoreApplication::sendEvent(&box, &painted);
        },
        Qt::QueuedConnection);
    box.StrikeLater();
    box.ShowAndWait();
    EXPECT_EQ(box.Keys, 0);
}

TEST(FreshKeysTest, AKeyThatIsHeldDownIsNoneForABox)
{
    CountingBox box;
    box.ShowAndWait();
    for (int i = 0; i < 5; ++i)
        box.Strike(true);
    EXPECT_EQ(box.Keys, 0);
}

TEST(FreshKeysTest, ABoxThatIsShownAgainListensAnew)
{
    CountingBox box;
    box.ShowAndWait();
    box.hide();
    box.StrikeLater();
    box.ShowAndWait();
    EXPECT_EQ(box.Keys, 0);
}
