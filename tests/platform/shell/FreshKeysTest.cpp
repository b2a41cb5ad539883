#include "platform/shell/FreshKeys.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

// A box that counts the keys and keeps the texts of an input method that reach it.
class CountingBox final : public QWidget {
public:
    int Keys = 0;
    QStringList Composed;

    void Strike(bool repeated = false)
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), repeated);
        QCoreApplication::sendEvent(this, &press);
    }

    // An input method is at a word, or with a commit has done with it.
    void Compose(const char* preedit, const char* commit = "")
    {
        QInputMethodEvent event(QString::fromUtf8(preedit), {});
        event.setCommitString(QString::fromUtf8(commit));
        QCoreApplication::sendEvent(this, &event);
    }

    // Puts something behind all that waits in the application's queue.
    void Later(const std::function<void()>& action)
    {
        QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
    }
    void StrikeLater()
    {
        Later([this] { Strike(); });
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
    void inputMethodEvent(QInputMethodEvent* event) override
    {
        Composed.append(event->preeditString() + u'|' + event->commitString());
    }

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

TEST(FreshKeysTest, WhatAnInputMethodWroteAheadOfABoxIsThrownAway)
{
    CountingBox box;
    box.Later([&] { box.Compose("क"); });
    box.Later([&] { box.Compose("", "कराड"); });
    box.ShowAndWait();
    EXPECT_EQ(box.Composed, QStringList());
    box.Compose("", "मसूर");
    EXPECT_EQ(box.Composed, QStringList("|मसूर"));
}

TEST(FreshKeysTest, AWordThatAnInputMethodBeganAheadOfABoxIsThrownAwayWhole)
{
    CountingBox box;
    box.Later([&] { box.Compose("क"); });
    box.ShowAndWait();
    box.Compose("करा");
    box.Compose("", "कराड");
    EXPECT_EQ(box.Composed, QStringList());
    box.Compose("म");
    box.Compose("", "मसूर");
    EXPECT_EQ(box.Composed, QStringList({"म|", "|मसूर"}));
}

TEST(FreshKeysTest, AWordThatIsLeftBehindWithItsBoxIsNoneOfTheNextScreens)
{
    CountingBox box;
    CountingBox next;
    box.Later([&] { box.Compose("क"); });
    box.ShowAndWait();
    box.hide();
    next.Compose("", "मसूर");
    EXPECT_EQ(next.Composed, QStringList("|मसूर"));
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
