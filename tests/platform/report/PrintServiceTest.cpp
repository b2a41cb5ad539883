#include "platform/report/SystemPrinter.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <string_view>
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

protected:
    int Socket() const { return m_socket; }

private:
    int m_socket;
};

// One that answers every question with a refusal.
class RefusingService : public SilentService {
public:
    explicit RefusingService(const QByteArray& path) : SilentService(path), m_thread([this] { Serve(); }) { }
    ~RefusingService()
    {
        shutdown(Socket(), SHUT_RDWR);
        m_thread.join();
    }

private:
    void Serve() const
    {
        constexpr std::string_view Refusal = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
        for (int client = accept(Socket(), nullptr, nullptr); client >= 0;
             client = accept(Socket(), nullptr, nullptr)) {
            std::string asked;
            char piece[4096];
            for (ssize_t got = read(client, piece, sizeof(piece)); got > 0;
                 got = read(client, piece, sizeof(piece))) {
                asked.append(piece, static_cast<std::size_t>(got));
                if (asked.find("\r\n\r\n") == std::string::npos)
                    continue;
                asked.clear();
                send(client, Refusal.data(), Refusal.size(), MSG_NOSIGNAL);
            }
            close(client);
        }
    }

    std::thread m_thread;
};

// Runs on a thread of its own, which looks for the service anew.
template <typename Work> void WithService(const QByteArray& path, Work work)
{
    qputenv("CUPS_SERVER", path);
    std::thread(work).join();
    qunsetenv("CUPS_SERVER");
}

}

TEST(SystemPrinterTest, APrintServiceThatDoesntAnswerIsGivenUpAndTold)
{
    constexpr std::chrono::milliseconds Patience(200);
    constexpr qint64 AtMost = 5000;
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath("s").toLocal8Bit();
    const SilentService service(path);
    WithService(path, [&] {
        const std::unique_ptr<Printer> printer = MakeSystemPrinter(Patience);
        for (const char* name : {"", "lp"}) {
            QElapsedTimer clock;
            clock.start();
            const Outcome outcome =
                printer->Print({"/dev/null", {}, QString::fromLatin1(name), QSizeF(100, 100)});
            EXPECT_TRUE(outcome.fault.endsWith("\nThe print service doesn't answer."))
                << outcome.fault.toStdString();
            EXPECT_LT(clock.elapsed(), AtMost) << name;
        }
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(printer->Names(), QStringList());
        EXPECT_LT(clock.elapsed(), AtMost);
    });
}

TEST(SystemPrinterTest, APrinterThatRefusesAJobIsToldWithItsReason)
{
    constexpr std::chrono::milliseconds Patience(5000);
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath("s").toLocal8Bit();
    const RefusingService service(path);
    WithService(path, [&] {
        const std::unique_ptr<Printer> printer = MakeSystemPrinter(Patience);
        const Outcome outcome = printer->Print({"/dev/null", {}, "lp", QSizeF(100, 100)});
        const QString told = "प्रिंटरने काम घेतले नाही. छपाई झाली नाही; नोंदी सुरक्षित आहेत.\n"
                             "The printer lp refused: ";
        EXPECT_TRUE(outcome.fault.startsWith(told)) << outcome.fault.toStdString();
        EXPECT_GT(outcome.fault.size(), told.size()) << "the service's own word is told";
    });
}
