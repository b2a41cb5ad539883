#include "World.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace {

// Shows the box, lets `look` see it while it stands, and closes it with `key`. Returns whether it was shown.
bool ShowBox(const QString& text, Qt::Key key, const std::function<void(QMessageBox&)>& look)
{
    bool shown = false;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        shown = true;
        look(*box);
        QWidget* focus = box->focusWidget() ? box->focusWidget() : box;
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(focus, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(focus, &release);
    });
    World::Real().messageBox->Show(text);
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
