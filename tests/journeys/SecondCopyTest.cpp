#include "AppFolder.h"
#include "Processes.h"
#include "ProgramTest.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileSystemWatcher>
#include <QTimer>

namespace {

// The program as it is delivered, in a process of its own, and other copies beside it.
class SecondCopyTest : public ProgramTest {
protected:
    void SetUp() override
    {
        gCn.Close();
        // The delivered program finds its drives below the user's data.
        const QString drives = m_data.filePath(QStringLiteral("vetrolan"));
        ASSERT_TRUE(QDir().rename(Drives(), drives));
        SetDrivesRoot(drives);
    }

    // Starts the delivered program and returns when it has the books open, which is after it has the lock.
    std::unique_ptr<QProcess> StartTheProgram()
    {
        QFileSystemWatcher watcher({LocalPath(AppFolder)});
        auto program = Processes::Start(
            QStringLiteral("vetrolan"), {}, {QStringLiteral("XDG_DATA_HOME=") + m_data.path()});
        QEventLoop waiting;
        const auto isReady = [this] { return QFile::exists(FolderFile(QStringLiteral("Morvelta.mdb-shm"))); };
        QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &waiting, [&] {
            if (isReady())
                waiting.quit();
        });
        QObject::connect(program.get(), &QProcess::finished, &waiting, &QEventLoop::quit);
        QTimer::singleShot(30000, &waiting, &QEventLoop::quit);
        if (!isReady() && program->state() == QProcess::Running)
            waiting.exec();
        EXPECT_TRUE(isReady());
        EXPECT_EQ(program->state(), QProcess::Running) << program->readAllStandardError().toStdString();
        return program;
    }

    // Starts a copy that says what it shows, and returns that; `exitCode` is the one that it ended with.
    QString OtherCopy(int& exitCode)
    {
        const auto other = Processes::Start(QStringLiteral("other_process"), {Drives()});
        EXPECT_TRUE(Processes::WaitForEnd(*other));
        EXPECT_EQ(other->exitStatus(), QProcess::NormalExit);
        exitCode = other->exitCode();
        return QString::fromUtf8(other->readAllStandardOutput());
    }

    static void Kill(QProcess& process)
    {
        process.kill();
        EXPECT_TRUE(Processes::WaitForEnd(process));
    }

private:
    QTemporaryDir m_data;
};

}

TEST_F(SecondCopyTest, WhileTheProgramRunsAnotherCopySaysThatTheBooksAreOpenAndEnds)
{
    const auto program = StartTheProgram();
    int exitCode = -1;
    const QString said = OtherCopy(exitCode);
    EXPECT_EQ(exitCode, 1);
    EXPECT_TRUE(said.contains(QStringLiteral("हिशेबाची वही आधीच उघडी आहे."))) << said.toStdString();
    EXPECT_FALSE(said.contains(QStringLiteral("screen frm"))) << said.toStdString();
    EXPECT_EQ(program->state(), QProcess::Running) << "the first copy goes on";
    Kill(*program);
}

TEST_F(SecondCopyTest, AKilledProgramKeepsNobodyOut)
{
    const auto program = StartTheProgram();
    Kill(*program);
    int exitCode = -1;
    const QString said = OtherCopy(exitCode);
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(said.trimmed(), QStringLiteral("screen frmAbout"));
}

TEST_F(SecondCopyTest, CopiesOneAfterTheOtherAreNoHindrance)
{
    for (int copy = 0; copy < 2; ++copy) {
        int exitCode = -1;
        EXPECT_EQ(OtherCopy(exitCode).trimmed(), QStringLiteral("screen frmAbout"));
        EXPECT_EQ(exitCode, 0);
    }
}
