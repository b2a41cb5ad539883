#include "AskedPassword.h"

#include "RunTimeError.h"

#include <QByteArray>

#ifdef Q_OS_UNIX
#include <array>
#include <cerrno>
#include <csignal>

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

// While it lives the terminal shows the ends of lines only. A signal that would end the program ends the
// typing instead: the terminal must not be left so.
class UnseenTyping {
public:
    UnseenTyping()
    {
        struct sigaction breaking { };
        breaking.sa_handler = BreakOff; // without SA_RESTART: the reading ends
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
    }
    Q_DISABLE_COPY_MOVE(UnseenTyping)

private:
    static constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};
    std::array<struct sigaction, Signals.size()> m_handled{};
    termios m_seen{};
};

// One line without its end; no more than that is taken. What is far too long for a password isn't read out.
QString Line()
{
    constexpr qsizetype farTooLong = 1000;
    QByteArray line;
    char c = 0;
    while (line.size() < farTooLong) {
        const ssize_t got = read(STDIN_FILENO, &c, 1);
        if (brokenOff)
            Fail(QStringLiteral("The password was broken off."));
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
    // Nothing can be done where the terminal doesn't take it: the typing shows it.
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text, qstrlen(text));
}

}

QString AskedPassword::Read()
{
    if (!isatty(STDIN_FILENO))
        return Line();
    const UnseenTyping unseen;
    Prompt("Password of the books (it isn't shown): ");
    const QString password = Line();
    Prompt("The same once more: ");
    if (Line() != password)
        Fail(QStringLiteral("The two passwords differ."));
    return password;
}

#else

QString AskedPassword::Read()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        Fail(QStringLiteral("The standard input can't be read."));
    return QString::fromUtf8(input.readLine()).trimmed();
}

#endif
