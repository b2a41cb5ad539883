#include "Printer.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <thread>

namespace {

// A print service that takes every connection and never answers.
class SilentService {
public:
    explicit SilentService(const QByteArray& path) : m_socket(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        EXPECT_EQ(bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        EXPECT_EQ(listen(m_socket, 50), 0);
    }
    ~SilentService() { close(m_socket); }
    SilentService(const SilentService&) = delete;
    SilentService& operator=(const SilentService&) = delete;

private:
    int m_socket;
};

// Runs on a thread of its own, which looks for the service anew.
template <typename Work> void WithService(const QByteArray& path, Work work)
{
    qputenv("CUPS_SERVER", path);
    std::thread(work).join();
    qunsetenv("CUPS_SERVER");
}

}

TEST(SystemPrinter, APrintServiceThatDoesntAnswerIsGivenUpAndTold)
{
    constexpr std::chrono::milliseconds Patience(200);
    constexpr qint64 AtMost = 5000;
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("s")).toLocal8Bit();
    const SilentService service(path);
    WithService(path, [&] {
        const std::unique_ptr<Printer> printer = MakeSystemPrinter(Patience);
        for (const char* name : {"", "lp"}) {
            QElapsedTimer clock;
            clock.start();
            const Outcome outcome = printer->Print(
                {QStringLiteral("/dev/null"), {}, QString::fromLatin1(name), QSizeF(100, 100)});
            EXPECT_TRUE(outcome.fault.endsWith(QStringLiteral("\nThe print service doesn't answer.")))
                << outcome.fault.toStdString();
            EXPECT_LT(clock.elapsed(), AtMost) << name;
        }
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(printer->Names(), QStringList());
        EXPECT_LT(clock.elapsed(), AtMost);
    });
}
