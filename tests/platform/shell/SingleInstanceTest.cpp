#include "SingleInstance.h"

#include "RunTimeError.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifndef Q_OS_WIN
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

    QString Folder() const { return m_folder.path(); }
    QString LockFile() const { return m_folder.filePath(QStringLiteral("Vetrolan.lock")); }

private:
    QTemporaryDir m_folder;
};

TEST_F(SingleInstanceTest, TheFirstCopyHoldsTheLockAndTheSecondDoesNot)
{
    const SingleInstance first(Folder());
    const SingleInstance second(Folder());
    EXPECT_TRUE(first.Taken());
    EXPECT_FALSE(second.Taken());
}

TEST_F(SingleInstanceTest, AThirdCopyIsKeptOutAfterARefusedSecondHasEnded)
{
    const SingleInstance first(Folder());
    {
        const SingleInstance second(Folder());
        ASSERT_FALSE(second.Taken());
    }
    EXPECT_FALSE(SingleInstance(Folder()).Taken());
}

TEST_F(SingleInstanceTest, TheLockIsFreeAndItsFileGoneWhenTheHolderHasEnded)
{
    {
        const SingleInstance first(Folder());
        ASSERT_TRUE(first.Taken());
        EXPECT_TRUE(QFile::exists(LockFile()));
    }
    EXPECT_FALSE(QFile::exists(LockFile()));
    EXPECT_TRUE(SingleInstance(Folder()).Taken());
}

TEST_F(SingleInstanceTest, AFileLeftBehindLocksNobodyOut)
{
    QFile left(LockFile());
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    EXPECT_TRUE(SingleInstance(Folder()).Taken());
}

TEST_F(SingleInstanceTest, TwoFoldersAreTwoBooks)
{
    const QTemporaryDir other;
    const SingleInstance here(Folder());
    const SingleInstance there(other.path());
    EXPECT_TRUE(here.Taken());
    EXPECT_TRUE(there.Taken());
}

TEST_F(SingleInstanceTest, AFolderThatIsNotThereIsARunTimeErrorThatNamesIt)
{
    const QString missing = Folder() + QStringLiteral("/none");
    try {
        const SingleInstance lock(missing);
        FAIL() << "the lock of a missing folder was given";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), RunTimeError::FileAccess);
        EXPECT_TRUE(error.Happened().contains(missing)) << error.what();
    }
    EXPECT_FALSE(QFile::exists(missing));
}

#ifndef Q_OS_WIN
// A second process that takes the lock, says whether it has it, and then waits to be killed.
class OtherCopy {
public:
    explicit OtherCopy(const QString& folder)
    {
        int ends[2] = {};
        if (pipe(ends) != 0)
            return;
        m_process = fork();
        if (m_process == 0)
            HoldLock(folder, ends[1]);
        close(ends[1]);
        char answer = 0;
        m_holds = read(ends[0], &answer, 1) == 1 && answer == 'y';
        close(ends[0]);
    }
    ~OtherCopy() { Kill(); }
    Q_DISABLE_COPY_MOVE(OtherCopy)

    bool Holds() const { return m_holds; }

    void Kill()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
        m_process = 0;
    }

private:
    [[noreturn]] static void HoldLock(const QString& folder, int end)
    {
        const SingleInstance lock(folder);
        const char answer = lock.Taken() ? 'y' : 'n';
        if (write(end, &answer, 1) != 1)
            _exit(1);
        for (;;)
            pause();
    }

    pid_t m_process = 0;
    bool m_holds = false;
};

TEST_F(SingleInstanceTest, ALivingProcessKeepsItsLock)
{
    const OtherCopy other(Folder());
    ASSERT_TRUE(other.Holds());
    EXPECT_FALSE(SingleInstance(Folder()).Taken());
}

TEST_F(SingleInstanceTest, AKilledProcessLeavesNoLockBehind)
{
    OtherCopy other(Folder());
    ASSERT_TRUE(other.Holds());
    other.Kill();
    EXPECT_TRUE(QFile::exists(LockFile()));
    EXPECT_TRUE(SingleInstance(Folder()).Taken());
}
#endif

}
