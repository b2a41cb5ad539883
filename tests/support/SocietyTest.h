#pragma once

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/KeptFailure.h"
#include "tools/clerk/Clerk.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>

// A clock that stands where the test has set it.
class FakeClock final : public Clock {
public:
    QDateTime Time{QDate(2026, 4, 15), QTime(6, 5, 0)};
    QDateTime Now() const override { return Time; }
};

class FakeCalculator final : public Calculator {
public:
    QStringList Started;
    bool There = true;
    bool Start(const QString& program, bool maximised) override;
};

// Keeps the texts and the titles of the plain boxes; none of them waits.
class FakeMessageBox final : public MessageBox {
public:
    QStringList Shown;
    QStringList Titles;
    void Show(const QString& text, const QString& title) override
    {
        Shown.append(text);
        Titles.append(title);
    }
};

// Answers each prompt with the next of the answers put in, and keeps what it was asked; without one it is
// left.
class FakeInputBox final : public InputBox {
public:
    QStringList Answers;
    QStringList Asked; // the prompt and what was proposed: "Enter Folder Name|Backup"
    QString Ask(const QString& prompt, const QString& proposed, const QString&) override;
};

// A society made fresh for each test, its books open and its state loaded, with one clerk at the keyboard.
// Its drives are a folder of its own, and the file system is the real one on them.
// The delivered society has no member and no delivery; its first chart holds from the first of the year.
class SocietyTest : public ::testing::Test {
protected:
    SocietyTest();
    ~SocietyTest() override;

    // Opens a screen of its own and plays on it; a run-time error that ends it is kept in `Failure`.
    template <class S> void On(const std::function<void(Clerk&)>& script)
    {
        Failure = TheClerk.Play(
            [] {
                S screen;
                screen.ShowModal();
            },
            script);
    }

    // What the clerk does and sees on the screen on top; keys, names and what is compared are plain literals.
    static void Type(Clerk& clerk, const char* keys) { clerk.Type(QString::fromUtf8(keys)); }
    static void Press(Clerk& clerk, const char* control) { clerk.Press(QString::fromUtf8(control)); }
    static std::string OnTop(const Clerk& clerk) { return clerk.ScreenName().toStdString(); }
    static std::string Focus(const Clerk& clerk) { return clerk.Focus().toStdString(); }
    static std::string Reads(const Clerk& clerk, const char* control)
    {
        return clerk.Reads(QString::fromUtf8(control)).toStdString();
    }
    static bool CanEnter(const Clerk& clerk, const char* control)
    {
        return clerk.CanEnter(QString::fromUtf8(control));
    }
    static std::string Label(const Clerk& clerk, const char* label);

    // A member with sensible values elsewhere; animal and names as the system spells them.
    void AddMember(int number, const QString& name, const QString& animal = QStringLiteral("daonhI"));

    // Runs a statement of the system.
    void Run(const QString& statement) { gCn.Execute(statement); }

    // The first value of the first row as text; empty if there is no row.
    QString One(const QString& query);

    // All rows, a line each, the fields separated by '|'.
    QStringList Rows(const QString& query);

    // The path of a file of AppFolder on this machine.
    QString FolderFile(const QString& name) const;

    Clerk TheClerk;
    FakeClock TheClock;
    FakeCalculator TheCalculator;
    FakeMessageBox TheBox;
    FakeInputBox TheInputBox;
    KeptFailure Failure;

private:
    QTemporaryDir m_drives;
};

// Reads a text of the system as the eye does.
QString Seen(const QString& stored);
