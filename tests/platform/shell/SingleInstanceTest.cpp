#include "platform/shell/SingleInstance.h"

#include "platform/text/RunTimeError.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifndef Q_OS_WIN
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

    QString Folder() const { return m_folder.path(); }
    QString LockFile() const { return m_folder.filePath("Vetrolan.lock"); }

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
    const QString missing = Folder() + "/none";
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

TEST_F(SingleInstanceTest, ALivingProcessKeepsItsLockWhenItsFileIsRemovedOrReplaced)
{
    const OtherCopy other(Folder());
    ASSERT_TRUE(other.Holds());
    ASSERT_TRUE(QFile::remove(LockFile()));
    EXPECT_FALSE(SingleInstance(Folder()).Taken());
    QFile another(LockFile());
    ASSERT_TRUE(another.open(QIODevice::WriteOnly));
    another.close();
    EXPECT_FALSE(SingleInstance(Folder()).Taken());
    EXPECT_FALSE(SingleInstance(Folder()).Taken()) << "the refused copies have taken nothing away";
}

TEST_F(SingleInstanceTest, AnOlderCopyThatHoldsTheFileOnlyKeepsOthersOut)
{
    const int file = open(QFile::encodeName(LockFile()).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    ASSERT_EQ(flock(file, LOCK_EX | LOCK_NB), 0);
    EXPECT_FALSE(SingleInstance(Folder()).Taken());
    close(file);
    EXPECT_TRUE(SingleInstance(Folder()).Taken());
}

TEST_F(SingleInstanceTest, AProgramThatWasStartedFromTheHolderKeepsNobodyOutAfterIt)
{
    QProcess calculator;
    {
        const SingleInstance first(Folder());
        ASSERT_TRUE(first.Taken());
        calculator.start("cat", {}); // runs until its input is closed
        ASSERT_TRUE(calculator.waitForStarted());
    }
    EXPECT_TRUE(SingleInstance(Folder()).Taken());
    EXPECT_EQ(calculator.state(), QProcess::Running);
    calculator.closeWriteChannel();
    EXPECT_TRUE(calculator.waitForFinished());
}

// What a clerk without any rights of root comes to, in a process of his own: "taken", "busy", or what the
// refusal says. Where the tests run as root, the folder is made that clerk's first.
class Clerk {
public:
    explicit Clerk(const QString& folder) : m_folder(folder)
    {
        if (geteuid() == 0) {
            constexpr uid_t nobody = 65534;
            EXPECT_EQ(chown(QFile::encodeName(folder).constData(), nobody, nobody), 0);
            m_user = nobody;
        }
    }

    std::string Starts() const
    {
        int ends[2] = {};
        EXPECT_EQ(pipe(ends), 0);
        const pid_t process = fork();
        if (process == 0)
            Say(ends[1]);
        close(ends[1]);
        std::string said;
        char part[256];
        for (ssize_t got = 0; (got = read(ends[0], part, sizeof part)) > 0;)
            said.append(part, static_cast<std::size_t>(got));
        close(ends[0]);
        waitpid(process, nullptr, 0);
        return said;
    }

private:
    [[noreturn]] void Say(int end) const
    {
        QByteArray said = "no such user";
        if (m_user == geteuid() || setuid(m_user) == 0) {
            try {
                said = SingleInstance(m_folder).Taken() ? "taken" : "busy";
            } catch (const RunTimeError& error) {
                said = error.what();
            }
        }
        _exit(write(end, said.constData(), static_cast<std::size_t>(said.size())) == said.size() ? 0 : 1);
    }

    QString m_folder;
    uid_t m_user = geteuid();
};

TEST_F(SingleInstanceTest, ALockFileThatAStartAsRootLeftShutsNobodyOut)
{
    const Clerk clerk(Folder());
    QFile left(LockFile());
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    ASSERT_EQ(chmod(QFile::encodeName(LockFile()).constData(), 0), 0); // to the clerk it is like root's
    EXPECT_EQ(clerk.Starts(), "taken");
}

TEST_F(SingleInstanceTest, AFolderOfSomebodyElseSaysWhatToDo)
{
    const Clerk clerk(Folder());
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0), 0); // to the clerk it is like root's
    const std::string refused = clerk.Starts();
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0700), 0);
    EXPECT_NE(refused.find("हिशेबाचे फोल्डर दुसऱ्या वापरकर्त्याच्या नावावर आहे"), std::string::npos) << refused;
    EXPECT_NE(refused.find("sudo chown -R "), std::string::npos) << refused;
    EXPECT_NE(refused.find(Folder().toStdString()), std::string::npos) << refused;
}

TEST_F(SingleInstanceTest, RootIsKeptOutOfAClerksBooksSoThatItsFilesDoNotShutTheClerkOut)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can play root";
    const Clerk clerk(Folder());
    try {
        const SingleInstance lock(Folder());
        FAIL() << "root was let in";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), RunTimeError::FileAccess);
        EXPECT_TRUE(error.Happened().contains("sudo न लावता")) << error.what();
        EXPECT_TRUE(error.Happened().contains("without sudo")) << error.what();
    }
    EXPECT_FALSE(QFile::exists(LockFile()));
    EXPECT_EQ(clerk.Starts(), "taken");
}
#endif

}
