#include "tests/journeys/DeliveredProgram.h"

#include "platform/shell/AppFolder.h"

#include <QDir>
#include <QFile>

namespace {

// The delivered program, and other copies beside it.
class SecondCopyTest : public DeliveredProgram {
protected:
    // Starts a copy that says what it shows, and returns that; `exitCode` is the one that it ended with.
    QString OtherCopy(int& exitCode)
    {
        const auto other = Processes::Start("other_process", {Drives()});
        EXPECT_TRUE(Processes::WaitForEnd(*other));
        EXPECT_EQ(other->exitStatus(), QProcess::NormalExit);
        exitCode = other->exitCode();
        return QString::fromUtf8(other->readAllStandardOutput());
    }

    void ExpectAnotherCopyKeptOut()
    {
        int exitCode = -1;
        const QString said = OtherCopy(exitCode);
        EXPECT_EQ(exitCode, 1);
        EXPECT_TRUE(said.contains("हिशेबाची वही आधीच उघडी आहे.")) << said.toStdString();
        EXPECT_FALSE(said.contains("screen frm")) << said.toStdString();
    }

    void ExpectTheInstallerKeptOut()
    {
        const auto setup = Processes::Start("vetrolan-setup",
            {"--society", "नवी संस्था", "--year", "2026-2027", "--password", "other", "--replace"},
            Environment());
        EXPECT_TRUE(Processes::WaitForEnd(*setup));
        EXPECT_EQ(setup->exitCode(), 1);
        EXPECT_TRUE(setup->readAllStandardError().contains("open in the program"));
        EXPECT_EQ(QDir(LocalPath(Paths::AppFolder)).entryList({"Morvelta*.mdb"}).size(), 1);
    }

    void RemoveTheLockFile() { ASSERT_TRUE(QFile::remove(FolderFile("Vetrolan.lock"))); }
};

}

TEST_F(SecondCopyTest, WhileTheProgramRunsAnotherCopySaysThatTheBooksAreOpenAndEnds)
{
    const auto program = StartTheProgram();
    ExpectAnotherCopyKeptOut();
    EXPECT_EQ(program->state(), QProcess::Running) << "the first copy goes on";
    Kill(*program);
}

TEST_F(SecondCopyTest, WithItsLockFileRemovedTheRunningProgramKeepsAnotherCopyAndTheInstallerOut)
{
    const auto program = StartTheProgram();
    RemoveTheLockFile();
    ExpectAnotherCopyKeptOut();
    ExpectTheInstallerKeptOut();
    EXPECT_EQ(program->state(), QProcess::Running);
    Kill(*program);
}

TEST_F(SecondCopyTest, WithItsBooksReplacedTheRunningProgramKeepsAnotherCopyAndTheInstallerOut)
{
    const auto program = StartTheProgram();
    const QString books = FolderFile("Morvelta.mdb");
    ASSERT_TRUE(QFile::copy(books, books + ".copy"));
    ASSERT_TRUE(QFile::remove(books));
    ASSERT_TRUE(QFile::rename(books + ".copy", books));
    RemoveTheLockFile();
    ExpectAnotherCopyKeptOut();
    ExpectTheInstallerKeptOut();
    Kill(*program);
}

TEST_F(SecondCopyTest, AKilledProgramKeepsNobodyOut)
{
    const auto program = StartTheProgram();
    Kill(*program);
    int exitCode = -1;
    const QString said = OtherCopy(exitCode);
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(said.trimmed(), "screen frmAbout");
}

TEST_F(SecondCopyTest, CopiesOneAfterTheOtherAreNoHindrance)
{
    for (int copy = 0; copy < 2; ++copy) {
        int exitCode = -1;
        EXPECT_EQ(OtherCopy(exitCode).trimmed(), "screen frmAbout");
        EXPECT_EQ(exitCode, 0);
    }
}
