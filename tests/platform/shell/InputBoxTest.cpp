#include "platform/shell/FreshKeys.h"
#include "platform/shell/World.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace {

QDialog* Box()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

QLineEdit& Line()
{
    return *Box()->findChild<QLineEdit*>();
}

void Strike(Qt::Key key, const QString& text = {})
{
    if (!Box())
        return;
    QWidget* focus = Box()->focusWidget() ? Box()->focusWidget() : Box();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(focus, &press);
}

void WhenItListens(const std::function<void()>& action)
{
    QTimer::singleShot(0, qApp, [action] {
        if (!Box() || FreshKeys::Awaited())
            WhenItListens(action);
        else
            action();
    });
}

// What the box answers when `hands` have worked on it.
QString Answer(const std::function<void()>& hands, const QString& title = {})
{
    WhenItListens(hands);
    return World::Real().inputBox->Ask(QStringLiteral("Enter Folder Name"), QStringLiteral("Backup"), title);
}

TEST(InputBoxTest, EnterTakesWhatIsProposed)
{
    EXPECT_EQ(Answer([] {
        EXPECT_EQ(Box()->windowTitle(), QStringLiteral("Vetrolan"));
        EXPECT_EQ(Box()->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(Box()->findChild<QLabel*>()->text(), QStringLiteral("Enter Folder Name"));
        EXPECT_EQ(Line().selectedText(), QStringLiteral("Backup"));
        EXPECT_EQ(Line().accessibleName(), QStringLiteral("Enter Folder Name"));
        Strike(Qt::Key_Return);
    }),
        QStringLiteral("Backup"));
}

TEST(InputBoxTest, WhatIsTypedReplacesWhatIsProposed)
{
    EXPECT_EQ(Answer([] {
        Strike(Qt::Key_A, QStringLiteral("a"));
        Strike(Qt::Key_B, QStringLiteral("b"));
        Strike(Qt::Key_Space, QStringLiteral(" "));
        Strike(Qt::Key_Enter);
    }),
        QStringLiteral("ab"));
}

TEST(InputBoxTest, EscAndTheButtonBesideAnswerNothing)
{
    EXPECT_EQ(Answer([] { Strike(Qt::Key_Escape); }), QString());
    EXPECT_EQ(Answer([] {
        const QList<QPushButton*> buttons = Box()->findChildren<QPushButton*>();
        QStringList captions;
        for (QPushButton* button : buttons)
            captions.append(button->text());
        captions.sort();
        EXPECT_EQ(captions, QStringList({QStringLiteral("पुढे"), QStringLiteral("रद्द")}));
        for (QPushButton* button : buttons)
            if (button->text() == QStringLiteral("रद्द"))
                button->click();
    }),
        QString());
}

TEST(InputBoxTest, TheWindowBearsTheTitle)
{
    EXPECT_EQ(Answer(
                  [] {
                      EXPECT_EQ(Box()->windowTitle(), QStringLiteral("Backup"));
                      Strike(Qt::Key_Return);
                  },
                  QStringLiteral("Backup")),
        QStringLiteral("Backup"));
}

TEST(InputBoxTest, KeysThatWereTypedAheadOfItAreThrownAway)
{
    for (int i = 0; i < 5; ++i)
        QMetaObject::invokeMethod(
            qApp, [] { Strike(Qt::Key_Return); }, Qt::QueuedConnection);
    bool stood = false;
    Answer([&] {
        stood = true;
        Strike(Qt::Key_Return);
    });
    EXPECT_TRUE(stood);
}

TEST(InputBoxTest, ItsLettersCanBeReadAcrossTheCounter)
{
    Answer([] {
        EXPECT_GE(Line().fontInfo().pointSize(), 14);
        Strike(Qt::Key_Return);
    });
}

}
