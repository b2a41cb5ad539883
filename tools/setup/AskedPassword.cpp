#include "tools/setup/AskedPassword.h"

#include "platform/text/RunTimeError.h"

#include <QByteArray>

#ifdef Q_OS_UNIX
#include <array>
#include <cerrno>
#include <csignal>
#include <functional>

#include <poll.h>
#include <termios.h>
#include <unistd.h>
#else
#include <QFile>
#endif

namespace {

[[noreturn]] void Fail(const QString& why)
{
    throw RunTimeError(RunTimeError::FileAccess, why);
}

}

#ifdef Q_OS_UNIX

namespace {

volatile std::sig_atomic_t brokenOff = 0;

void BreakOff(int)
{
    brokenOff = 1;
}

// While this object exists, the terminal shows nothing of what is typed but line ends. A signal that would
// end the program ends only the typing, so that the terminal can be restored. The signal is let through only
// during the wait for input, so none can arrive between a check and the wait.
class UnseenTyping {
public:
    UnseenTyping()
    {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : Signals)
            sigaddset(&held, signal);
        sigprocmask(SIG_BLOCK, &held, &m_heard);
        struct sigaction breaking { };
        breaking.sa_handler = BreakOff;
        for (std::size_t i = 0; i < Signals.size(); ++i)
            sigaction(Signals[i], &breaking, &m_handled[i]);
        if (tcgetattr(STDIN_FILENO, &m_seen) != 0)
            Fail(QStringLiteral("The terminal can't be asked."));
        termios unseen = m_seen;
        unseen.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        unseen.c_lflag |= ECHONL;
        if (tcsetattr(STDIN_FILENO, TCSAFLUSH, &unseen) != 0)
            Fail(QStringLiteral("The terminal can't hide what is typed."));
    }
    ~UnseenTyping()
    {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_seen);
        for (std::size_t i = 0; i < Signals.size(); ++i)
            sigaction(Signals[i], &m_handled[i], nullptr);
        sigprocmask(SIG_SETMASK, &m_heard, nullptr);
    }
    Q_DISABLE_COPY_MOVE(UnseenTyping)

    void WaitForInput() const
    {
        pollfd input{STDIN_FILENO, POLLIN, 0};
        while (ppoll(&input, 1, nullptr, &m_heard) < 0 && errno == EINTR)
            if (brokenOff)
                Fail(QStringLiteral("The password was broken off."));
    }

private:
    static constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};
    sigset_t m_heard{};
    std::array<struct sigaction, Signals.size()> m_handled{};
    termios m_seen{};
};

// Reads one line, without its end. A line that is far too long for a password is not read to its end.
QString Line(const std::function<void()>& waitForInput = [] {})
{
    constexpr qsizetype farTooLong = 1000;
    QByteArray line;
    char c = 0;
    while (line.size() < farTooLong) {
        waitForInput();
        const ssize_t got = read(STDIN_FILENO, &c, 1);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0 || c == '\n')
            break;
        line += c;
    }
    if (line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line);
}

void Prompt(const char* text)
{
    // If the terminal fails here, it will fail while reading, too.
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text, qstrlen(text));
}

}

QString AskedPassword::Read()
{
    if (!isatty(STDIN_FILENO))
        return Line();
    const UnseenTyping unseen;
    const auto wait = [&] { unseen.WaitForInput(); };
    Prompt("Password of the books (it isn't shown): ");
    QString password = Line(wait);
    Prompt("The same once more: ");
    if (Line(wait) != password)
        Fail(QStringLiteral("The two passwords differ."));
    return password;
}

QString AskedLine(const QString& prompt)
{
    if (!isatty(STDIN_FILENO))
        return {};
    Prompt(prompt.toUtf8().constData());
    return Line();
}

#else

QString AskedLine(const QString&)
{
    return {};
}

QString AskedPassword::Read()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        Fail(QStringLiteral("The standard input can't be read."));
    return QString::fromUtf8(input.readLine()).trimmed();
}

#endif
