#include "platform/shell/FreshKeys.h"
#include "platform/shell/World.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPaintEvent>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace {

QMessageBox* Box()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

// Sends a key to the box that is up, if there is one.
void Strike(Qt::Key key, bool repeated = false)
{
    QMessageBox* box = Box();
    if (!box)
        return;
    QWidget* focus = box->focusWidget() ? box->focusWidget() : box;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
    QApplication::sendEvent(focus, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(), repeated);
    QApplication::sendEvent(focus, &release);
}

// Puts a key behind all that waits in the application's queue.
void StrikeLater(Qt::Key key)
{
    QMetaObject::invokeMethod(
        qApp, [key] { Strike(key); }, Qt::QueuedConnection);
}

// Does something once the box takes keys.
void WhenItListens(const std::function<void()>& action)
{
    QTimer::singleShot(0, qApp, [action] {
        if (FreshKeys::Awaited())
            WhenItListens(action);
        else
            action();
    });
}

// Shows the box, lets `look` see it while it stands, and closes it with `key`. Returns whether it was shown.
bool ShowBox(const QString& text, Qt::Key key, const std::function<void(QMessageBox&)>& look,
    const QString& title = {})
{
    bool shown = false;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            WhenItListens([&] {
                shown = Box() != nullptr;
                if (!shown)
                    return;
                look(*Box());
                Strike(key);
            });
        },
        Qt::QueuedConnection);
    World::Real().messageBox->Show(text, title);
    return shown;
}

void LookAtNothing(QMessageBox&) { }

TEST(MessageBoxTest, ShowsTheTextAsItStandsAboveOneButton)
{
    const QString text = QStringLiteral("a < b & <b>c</b>\nsecond line");
    EXPECT_TRUE(ShowBox(text, Qt::Key_Return, [&](QMessageBox& box) {
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Vetrolan"));
        EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
        ASSERT_EQ(box.buttons().size(), 1);
        EXPECT_EQ(box.buttons().first()->text(), QStringLiteral("OK"));
    }));
}

TEST(MessageBoxTest, TheWindowBearsTheTitleOrElseTheNameOfTheProgram)
{
    EXPECT_TRUE(ShowBox(
        QStringLiteral("Records Not Available"), Qt::Key_Return,
        [](QMessageBox& box) { EXPECT_EQ(box.windowTitle(), QStringLiteral("Advance Records")); },
        QStringLiteral("Advance Records")));
}

TEST(MessageBoxTest, TheTitleStandsAsItIsAskedForBlanksAndAll)
{
    EXPECT_TRUE(ShowBox(
        QStringLiteral("Records Not Available"), Qt::Key_Return,
        [](QMessageBox& box) { EXPECT_EQ(box.windowTitle(), QStringLiteral(" Cash Book")); },
        QStringLiteral(" Cash Book")));
}

TEST(MessageBoxTest, KeysThatWereTypedAheadOfItAreThrownAway)
{
    for (int i = 0; i < 5; ++i)
        StrikeLater(Qt::Key_Return);
    EXPECT_TRUE(ShowBox(QStringLiteral("Duplicate Record"), Qt::Key_Return, LookAtNothing))
        << "it stands until a key is pressed that came after it";
}

TEST(MessageBoxTest, KeysThatWaitedWhileItWasPaintedAreThrownAwayToo)
{
    QMetaObject::invokeMethod(
        qApp,
        [] {
            QPaintEvent painted(Box()->rect());
            QCoreApplication::sendEvent(Box(), &painted);
        },
        Qt::QueuedConnection);
    StrikeLater(Qt::Key_Return);
    EXPECT_TRUE(ShowBox(QStringLiteral("Duplicate Record"), Qt::Key_Return, LookAtNothing));
}

TEST(MessageBoxTest, AKeyThatIsHeldDownDoesNotCloseIt)
{
    bool stood = false;
    EXPECT_TRUE(ShowBox(QStringLiteral("Duplicate Record"), Qt::Key_Return, [&](QMessageBox& box) {
        for (int i = 0; i < 5; ++i)
            Strike(Qt::Key_Return, true);
        stood = box.isVisible();
    }));
    EXPECT_TRUE(stood);
}

TEST(MessageBoxTest, EnterOnEitherPadAndEscCloseIt)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        EXPECT_TRUE(ShowBox(QStringLiteral("Access Granted"), key, LookAtNothing));
}

TEST(MessageBoxTest, ItsLettersCanBeReadAcrossTheCounter)
{
    EXPECT_TRUE(ShowBox(QStringLiteral("Access Granted"), Qt::Key_Return,
        [](QMessageBox& box) { EXPECT_GE(box.fontInfo().pointSize(), 14); }));
}

TEST(MessageBoxTest, ItStandsOverTheActiveWindow)
{
    QWidget window;
    window.show();
    window.activateWindow();
    QApplication::setActiveWindow(&window);
    ASSERT_EQ(QApplication::activeWindow(), &window);
    EXPECT_TRUE(ShowBox(QStringLiteral("Access Granted"), Qt::Key_Return,
        [&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); }));
}

TEST(MessageBoxTest, ALongTextWithoutBlanksStaysOnTheScreenWithItsButton)
{
    const QString name(1000, u'x');
    EXPECT_TRUE(ShowBox(name, Qt::Key_Return, [&](QMessageBox& box) {
        const QRect screen = box.screen()->availableGeometry();
        EXPECT_LE(box.width(), screen.width());
        EXPECT_LE(box.height(), screen.height());
        EXPECT_TRUE(box.text().remove(QChar(0x200B)) == name);
    }));
}

TEST(MessageBoxTest, TheEndOfAVeryLongTextIsLeftOutAndTheBoxSaysSo)
{
    const QString statement = QStringLiteral("insert ").repeated(100000);
    EXPECT_TRUE(ShowBox(statement, Qt::Key_Return, [&](QMessageBox& box) {
        EXPECT_TRUE(box.text().endsWith(QChar(0x2026)));
        EXPECT_TRUE(statement.startsWith(box.text().chopped(1)));
        EXPECT_GT(box.text().size(), 300);
        EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
    }));
}

}
