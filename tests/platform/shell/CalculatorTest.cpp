#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A machine whose only programs are the ones that a test puts on it. A program that is started says its
// name into a pipe that the test reads.
class CalculatorTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        ASSERT_TRUE(QDir().mkpath(m_folder.filePath("bin")));
        SetDrivesRoot(m_folder.path());
        ASSERT_TRUE(QDir().mkpath(LocalPath(Paths::AppFolder)));
        qputenv("PATH", QFile::encodeName(m_folder.filePath("bin")));
        const QByteArray pipe = QFile::encodeName(Pipe());
        ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
        m_pipe = open(pipe.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        ASSERT_GE(m_pipe, 0);
    }
    void TearDown() override
    {
        close(m_pipe);
        qputenv("PATH", m_path);
        SetDrivesRoot(QString());
    }

    static QString Own() { return Paths::AppFolder.toString() + QStringLiteral("calc.EXE"); }
    QString Bin(const char* name) const
    {
        return m_folder.filePath(QStringLiteral("bin/") + QLatin1String(name));
    }

    void Put(const QString& path, const QByteArray& content, bool executable = true)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
        file.close();
        const QFileDevice::Permissions run = executable ? QFileDevice::ExeOwner : QFileDevice::Permissions();
        ASSERT_TRUE(file.setPermissions(file.permissions() | run));
    }

    QByteArray Saying(const char* name) const
    {
        return QByteArray("#!/bin/sh\necho ") + name + " > '" + QFile::encodeName(Pipe()) + "'\n";
    }

    // The name that the started program says, or nothing if none has said anything after ten seconds.
    QByteArray Started()
    {
        pollfd wait{m_pipe, POLLIN, 0};
        if (poll(&wait, 1, 10000) != 1)
            return {};
        char said[64] = {};
        const ssize_t length = read(m_pipe, said, sizeof said);
        return QByteArray(said, static_cast<qsizetype>(length)).trimmed();
    }

    static bool Start() { return World::Real().calculator->Start(Own(), true); }

private:
    QString Pipe() const { return m_folder.filePath("said"); }

    QTemporaryDir m_folder;
    QByteArray m_path = qgetenv("PATH");
    int m_pipe = -1;
};

TEST_F(CalculatorTest, TheOneInAppFolderIsStartedBeforeTheDesktopsOwn)
{
    Put(LocalPath(Own()), Saying("own"));
    Put(Bin("gnome-calculator"), Saying("gnome"));
    EXPECT_TRUE(Start());
    EXPECT_EQ(Started(), "own");
}

TEST_F(CalculatorTest, TheDesktopsOwnIsStartedWhereAppFolderHoldsNone)
{
    Put(Bin("xcalc"), Saying("xcalc"));
    EXPECT_TRUE(Start());
    EXPECT_EQ(Started(), "xcalc");
}

TEST_F(CalculatorTest, AFileInAppFolderThatCannotBeRunIsPassedOver)
{
    Put(LocalPath(Own()), "not a program", false);
    Put(Bin("galculator"), Saying("galculator"));
    EXPECT_TRUE(Start());
    EXPECT_EQ(Started(), "galculator");
}

TEST_F(CalculatorTest, AProgramThatFailsToStartGivesWayToTheNext)
{
    Put(LocalPath(Own()), QByteArray("#!/no/such/shell\n"));
    Put(Bin("kcalc"), Saying("kcalc"));
    EXPECT_TRUE(Start());
    EXPECT_EQ(Started(), "kcalc");
}

// Each package of the list gives a program of its own name; none of them but the calculator is started.
TEST_F(CalculatorTest, ThePackagesBringOneThatIsStarted)
{
    QFile packages(QStringLiteral(PACKAGES));
    ASSERT_TRUE(packages.open(QIODevice::ReadOnly));
    while (!packages.atEnd()) {
        const QByteArray line = packages.readLine().trimmed();
        if (!line.isEmpty() && !line.startsWith('#'))
            Put(Bin(line.constData()), Saying(line.constData()));
    }
    EXPECT_TRUE(Start());
    EXPECT_EQ(Started(), "galculator");
}

TEST_F(CalculatorTest, NoCalculatorAtAllIsSaid)
{
    EXPECT_FALSE(Start());
}

}
#endif
