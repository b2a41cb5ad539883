#include "platform/text/Shivaji01.h"
#include "tests/tools/SetupRun.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <array>
#include <csignal>
#include <vector>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utmp.h>

namespace {

QStringList WithoutPassword(const QString& folder)
{
    QStringList arguments = Arguments(folder);
    arguments.remove(arguments.indexOf("--password"), 2);
    return arguments << "--federation"
                     << "जिल्हा दूध संघ";
}

bool OpensWith(const QString& folder, const char* password)
{
    return Shell(folder, QString::fromLatin1(password), "select count(*) from CityMaster;").value(0).toInt()
        > 0;
}

// vetrolan-setup at a terminal, and the hands that type into it.
class Terminal {
public:
    explicit Terminal(const QStringList& arguments)
    {
        QList<QByteArray> texts{SETUP_PROGRAM};
        for (const QString& argument : arguments)
            texts.append(argument.toUtf8());
        std::vector<char*> raw;
        for (QByteArray& text : texts)
            raw.push_back(text.data());
        raw.push_back(nullptr);
        if (openpty(&m_master, &m_slave, nullptr, nullptr, nullptr) != 0)
            return;
        m_process = fork();
        if (m_process == 0) {
            if (login_tty(m_slave) == 0)
                execv(SETUP_PROGRAM, raw.data());
            _exit(127);
        }
    }
    ~Terminal()
    {
        if (m_process > 0)
            kill(m_process, SIGKILL);
        Ended();
        close(m_master);
        close(m_slave);
    }
    Q_DISABLE_COPY_MOVE(Terminal)

    // Waits until the program has said a text after what was waited for last; false if it doesn't.
    bool Says(const char* text)
    {
        qsizetype at = -1;
        while ((at = m_said.indexOf(text, m_from)) < 0)
            if (!Listen())
                return false;
        m_from = at + qstrlen(text);
        return true;
    }

    void Type(const char* keys) const
    {
        EXPECT_EQ(write(m_master, keys, qstrlen(keys)), static_cast<ssize_t>(qstrlen(keys)));
    }

    bool ShowsKeys() const
    {
        termios now{};
        EXPECT_EQ(tcgetattr(m_slave, &now), 0);
        return now.c_lflag & ECHO;
    }

    // What the system lets the program do, a line each.
    QByteArray Limits() const { return FileContent(QStringLiteral("/proc/%1/limits").arg(m_process)); }

    // The exit code, when it has ended.
    int Ended()
    {
        if (m_process > 0) {
            int status = 0;
            waitpid(m_process, &status, 0);
            m_exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            m_process = 0;
        }
        return m_exitCode;
    }

    const QByteArray& Said() const { return m_said; }

private:
    bool Listen()
    {
        constexpr int halfMinute = 30000;
        pollfd wait{m_master, POLLIN, 0};
        std::array<char, 256> part{};
        if (poll(&wait, 1, halfMinute) != 1)
            return false;
        const ssize_t got = read(m_master, part.data(), part.size());
        if (got <= 0)
            return false;
        m_said.append(part.data(), got);
        return true;
    }

    int m_master = -1;
    int m_slave = -1;
    pid_t m_process = 0;
    int m_exitCode = -1;
    QByteArray m_said;
    qsizetype m_from = 0;
};

class AskedPasswordTest : public testing::Test {
protected:
    QString Folder() const { return m_dir.filePath("books"); }
    bool HasBooks() const { return QFile::exists(QDir(Folder()).filePath(DatabaseFileName.toString())); }

private:
    QTemporaryDir m_dir;
};

TEST_F(AskedPasswordTest, IsTheFirstLineOfTheStandardInputWhereNoneIsGiven)
{
    const Ran run = RunSetup(WithoutPassword(Folder()), {}, "first\nsecond\n");
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(OpensWith(Folder(), "first"));
}

TEST_F(AskedPasswordTest, IsReadFromTheStandardInputForADashAndNeedsNoEndOfLine)
{
    const Ran run =
        RunSetup(WithoutPassword(Folder()) << QStringLiteral("--password") << QStringLiteral("-"), {}, "-x-");
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(OpensWith(Folder(), "-x-"));
}

TEST_F(AskedPasswordTest, MayEndInTheLineEndOfAnotherSystem)
{
    EXPECT_EQ(RunSetup(WithoutPassword(Folder()), {}, "first\r\n").exitCode, 0);
    EXPECT_TRUE(OpensWith(Folder(), "first"));
}

TEST_F(AskedPasswordTest, OfTheStandardInputIsCheckedLikeAGivenOne)
{
    ExpectRefusal(RunSetup(WithoutPassword(Folder()), {}, ""), 2, u"password is empty");
    ExpectRefusal(RunSetup(WithoutPassword(Folder()), {}, "\nsecond\n"), 2, u"password is empty");
    ExpectRefusal(RunSetup(WithoutPassword(Folder()), {}, "two words\n"), 2, u"password may hold");
    ExpectRefusal(RunSetup(WithoutPassword(Folder()), {}, QByteArray(100000, 'x')), 2, u"longer than 64");
    EXPECT_FALSE(HasBooks());
}

TEST_F(AskedPasswordTest, IsTypedTwiceAtATerminalAndNeverShown)
{
    Terminal terminal(WithoutPassword(Folder()));
    ASSERT_TRUE(terminal.Says("isn't shown")) << terminal.Said().toStdString();
    EXPECT_FALSE(terminal.ShowsKeys());
    terminal.Type("hidden\n");
    ASSERT_TRUE(terminal.Says("once more")) << terminal.Said().toStdString();
    EXPECT_FALSE(HasBooks());
    terminal.Type("hidden\n");
    ASSERT_TRUE(terminal.Says("Morvelta.mdb")) << terminal.Said().toStdString();
    EXPECT_EQ(terminal.Ended(), 0);
    EXPECT_FALSE(terminal.Said().contains("hidden")) << terminal.Said().toStdString();
    EXPECT_TRUE(terminal.ShowsKeys());
    EXPECT_TRUE(OpensWith(Folder(), "hidden"));
}

// Before the password, and seen.
TEST_F(AskedPasswordTest, TheFederationIsAskedForAtATerminalAndEnterTakesTheUsualName)
{
    for (const auto& [typed, name] :
        {std::pair("\n", "जिल्हा दूध संघ"), std::pair("कोयना दूध संघ\n", "कोयना दूध संघ")}) {
        QStringList arguments = Arguments(Folder()) << "--replace";
        Terminal terminal(arguments);
        ASSERT_TRUE(terminal.Says("[जिल्हा दूध संघ]: "));
        EXPECT_TRUE(terminal.ShowsKeys());
        terminal.Type(typed);
        EXPECT_TRUE(terminal.Says("Morvelta.mdb"));
        EXPECT_EQ(terminal.Ended(), 0);
        const QStringList account =
            Shell(Folder(), "secret", "select AccountName from AccountsMaster where GroupCode='Debtors';");
        EXPECT_EQ(Shivaji01::ToUnicode(account.value(0)), QString::fromUtf8(name));
    }
}

TEST_F(AskedPasswordTest, TypedDifferentlyMakesNoBooks)
{
    Terminal terminal(WithoutPassword(Folder()));
    ASSERT_TRUE(terminal.Says("isn't shown"));
    terminal.Type("hidden\n");
    ASSERT_TRUE(terminal.Says("once more"));
    terminal.Type("hiden\n");
    EXPECT_TRUE(terminal.Says("The two passwords differ."));
    EXPECT_EQ(terminal.Ended(), 1);
    EXPECT_TRUE(terminal.ShowsKeys());
    EXPECT_FALSE(HasBooks());
}

TEST_F(AskedPasswordTest, IsLeftInNoCore)
{
    Terminal terminal(WithoutPassword(Folder()));
    ASSERT_TRUE(terminal.Says("isn't shown"));
    EXPECT_TRUE(terminal.Limits().simplified().contains("Max core file size 0 0 "));
    terminal.Type("\x03");
    EXPECT_EQ(terminal.Ended(), 1);
}

TEST_F(AskedPasswordTest, IsBrokenOffAtOnceHoweverSoonThatComesAfterTheQuestion)
{
    for (int time = 0; time < 100; ++time) {
        Terminal terminal(WithoutPassword(Folder()));
        ASSERT_TRUE(terminal.Says("P")) << time;
        terminal.Type("\x03");
        ASSERT_TRUE(terminal.Says("broken off")) << time;
        EXPECT_EQ(terminal.Ended(), 1);
    }
}

TEST_F(AskedPasswordTest, BrokenOffLeavesTheTerminalShowingWhatIsTyped)
{
    Terminal terminal(WithoutPassword(Folder()));
    ASSERT_TRUE(terminal.Says("isn't shown"));
    terminal.Type("hid\x03");
    EXPECT_TRUE(terminal.Says("broken off")) << terminal.Said().toStdString();
    EXPECT_EQ(terminal.Ended(), 1);
    EXPECT_TRUE(terminal.ShowsKeys());
    EXPECT_FALSE(HasBooks());
}

}
