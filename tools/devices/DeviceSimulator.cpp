#include "tools/devices/DeviceSimulator.h"

#include <QMap>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

using std::chrono::milliseconds;

namespace {

const QMap<QString, DeviceSimulator::Manner>& MannerNames()
{
    using Manner = DeviceSimulator::Manner;
    static const QMap<QString, Manner> names{
        {QStringLiteral("prompt"), Manner::Prompt},
        {QStringLiteral("slow"), Manner::Slow},
        {QStringLiteral("pieces"), Manner::Pieces},
        {QStringLiteral("noisy"), Manner::Noisy},
        {QStringLiteral("silent"), Manner::Silent},
        {QStringLiteral("unplugged"), Manner::Unplugged},
    };
    return names;
}

QByteArray WithNoise(QByteArray bytes)
{
    for (qsizetype at = 2; at < bytes.size(); at += 3)
        bytes[at] = static_cast<char>(static_cast<unsigned char>(bytes[at]) | 0x80U);
    return bytes;
}

}

std::optional<DeviceSimulator::Manner> DeviceSimulator::MannerOf(const QString& name)
{
    const auto manner = MannerNames().constFind(name);
    if (manner == MannerNames().constEnd())
        return {};
    return *manner;
}

QStringList DeviceSimulator::Manners()
{
    return MannerNames().keys();
}

DeviceSimulator::DeviceSimulator(DevicePlay play, Manner manner, milliseconds pause)
    : m_play(std::move(play))
    , m_manner(manner)
    , m_pause(pause)
{
    OpenTerminal();
    if (!m_device.isEmpty() && pipe(m_stop) == 0)
        m_thread = std::thread([this] { Run(); });
}

DeviceSimulator::~DeviceSimulator()
{
    if (m_thread.joinable()) {
        close(std::exchange(m_stop[1], -1));
        m_thread.join();
        close(m_stop[0]);
    }
    Unplug();
}

// Opens and closes the other end once: only after that does the terminal tell whether somebody has it open.
void DeviceSimulator::OpenTerminal()
{
    m_master = posix_openpt(O_RDWR | O_NOCTTY);
    std::array<char, 64> name{};
    if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0
        || ptsname_r(m_master, name.data(), name.size()) != 0)
        return;
    const int line = open(name.data(), O_RDWR | O_NOCTTY);
    termios settings{};
    if (line < 0 || tcgetattr(line, &settings) != 0)
        return;
    cfmakeraw(&settings);
    if (tcsetattr(line, TCSANOW, &settings) == 0)
        m_device = QString::fromLatin1(name.data());
    close(line);
}

QByteArray DeviceSimulator::Received() const
{
    const std::scoped_lock lock(m_lock);
    return m_received;
}

bool DeviceSimulator::WaitUntilReceived(const QByteArray& bytes, milliseconds atMost)
{
    std::unique_lock lock(m_lock);
    return m_came.wait_for(lock, atMost, [&] { return m_received.contains(bytes); });
}

void DeviceSimulator::Run()
{
    constexpr milliseconds listening{2};
    milliseconds sinceFrame = m_pause;
    while (m_master >= 0 && Rest(listening)) {
        // Reads what was sent just before the port was closed.
        Take();
        sinceFrame += listening;
        if (!m_play.frame.isEmpty() && sinceFrame >= m_pause && IsListenedTo()) {
            Send(m_play.frame);
            sinceFrame = milliseconds(0);
        }
    }
}

// Waits; returns false when the simulator is to end.
bool DeviceSimulator::Rest(milliseconds length) const
{
    pollfd stop{m_stop[0], POLLIN, 0};
    return poll(&stop, 1, static_cast<int>(length.count())) == 0;
}

bool DeviceSimulator::IsListenedTo() const
{
    pollfd line{m_master, POLLOUT, 0};
    return poll(&line, 1, 0) > 0 && (line.revents & POLLHUP) == 0;
}

void DeviceSimulator::Take()
{
    pollfd line{m_master, POLLIN, 0};
    std::array<char, 256> buffer{};
    while (m_master >= 0 && poll(&line, 1, 0) > 0 && (line.revents & POLLIN) != 0) {
        const ssize_t count = read(m_master, buffer.data(), buffer.size());
        if (count <= 0)
            return;
        const QByteArray bytes(buffer.data(), count);
        {
            const std::scoped_lock lock(m_lock);
            m_received += bytes;
        }
        m_came.notify_all();
        m_asked += bytes;
        for (const DevicePlay::Answer& answer : m_play.answers) {
            if (!m_asked.endsWith(answer.command))
                continue;
            m_asked.clear();
            Send(answer.reply);
            break;
        }
    }
}

void DeviceSimulator::Send(const QByteArray& reply)
{
    constexpr int lateness = 20;
    switch (m_manner) {
    case Manner::Prompt:
        Put(reply);
        break;
    case Manner::Slow:
        if (Rest(m_pause * lateness))
            SendPieces(reply, 1);
        break;
    case Manner::Pieces:
        SendPieces(reply, 3);
        break;
    case Manner::Noisy:
        Put(WithNoise(reply));
        break;
    case Manner::Silent:
        break;
    case Manner::Unplugged:
        Put(reply.left(reply.size() / 3));
        if (Rest(m_pause))
            Unplug();
        break;
    }
}

void DeviceSimulator::SendPieces(const QByteArray& reply, qsizetype size)
{
    for (qsizetype at = 0; at < reply.size(); at += size) {
        Put(reply.mid(at, size));
        if (!Rest(m_pause))
            return;
    }
}

// Bytes that the line doesn't take are lost, as on a real wire.
void DeviceSimulator::Put(const QByteArray& bytes) const
{
    pollfd line{m_master, POLLOUT, 0};
    if (poll(&line, 1, 0) > 0 && (line.revents & POLLOUT) != 0
        && write(m_master, bytes.constData(), static_cast<size_t>(bytes.size())) < 0)
        return;
}

void DeviceSimulator::Unplug()
{
    if (m_master >= 0)
        close(std::exchange(m_master, -1));
}
