#pragma once

#include "tools/devices/DevicePlay.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

// Plays a device on a pseudo-terminal, on a thread of its own, until it is destroyed.
class DeviceSimulator {
public:
    // Slow answers late and byte by byte. Noisy inverts bits in every third byte. Unplugged disappears after
    // a third of its first reply.
    enum class Manner { Prompt, Slow, Pieces, Noisy, Silent, Unplugged };

    // The manner with a name such as "prompt"; no value for an unknown name.
    static std::optional<Manner> MannerOf(const QString& name);

    // The names of all manners.
    static QStringList Manners();

    // `pause` is the time between two pieces and between two frames; a slow answer waits a multiple of it.
    DeviceSimulator(DevicePlay play, Manner manner, std::chrono::milliseconds pause);
    ~DeviceSimulator();
    DeviceSimulator(const DeviceSimulator&) = delete;
    DeviceSimulator& operator=(const DeviceSimulator&) = delete;

    // The path of the terminal, such as /dev/pts/3; empty if it couldn't be opened.
    QString Device() const { return m_device; }

    // Everything that was sent to the device so far.
    QByteArray Received() const;

    // Waits until these bytes have been sent to it; returns false after `atMost`.
    bool WaitUntilReceived(const QByteArray& bytes, std::chrono::milliseconds atMost);

private:
    void OpenTerminal();
    void Run();
    bool Rest(std::chrono::milliseconds length) const;
    bool IsListenedTo() const;
    void Take();
    void Send(const QByteArray& reply);
    void SendPieces(const QByteArray& reply, qsizetype size);
    void Put(const QByteArray& bytes) const;
    void Unplug();

    DevicePlay m_play;
    Manner m_manner;
    std::chrono::milliseconds m_pause;
    QString m_device;
    int m_master = -1;
    int m_stop[2] = {-1, -1};
    QByteArray m_asked; // received since the last answer
    mutable std::mutex m_lock;
    std::condition_variable m_came;
    QByteArray m_received;
    std::thread m_thread;
};
