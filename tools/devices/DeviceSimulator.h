#pragma once

#include "tools/devices/DevicePlay.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

// Plays a device on a pseudo-terminal, on a thread of its own, until it goes out of scope.
class DeviceSimulator {
public:
    // Slow answers late and byte by byte; Noisy turns bits of every third byte; Unplugged goes away after a
    // third of its first reply.
    enum class Manner { Prompt, Slow, Pieces, Noisy, Silent, Unplugged };

    // The manner of a name such as "prompt"; nothing for a name that is none.
    static std::optional<Manner> MannerOf(const QString& name);

    // The names of all manners.
    static QStringList Manners();

    // `pause` lies between two pieces and between two frames; before a slow answer it passes many times.
    DeviceSimulator(DevicePlay play, Manner manner, std::chrono::milliseconds pause);
    ~DeviceSimulator();
    DeviceSimulator(const DeviceSimulator&) = delete;
    DeviceSimulator& operator=(const DeviceSimulator&) = delete;

    // The terminal's path, such as /dev/pts/3; empty if the system gave none.
    QString Device() const { return m_device; }

    // All that was sent to the device.
    QByteArray Received() const;

    // Waits until so much has been sent to it; false if it doesn't come.
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
    QByteArray m_asked; // since the last answer
    mutable std::mutex m_lock;
    std::condition_variable m_came;
    QByteArray m_received;
    std::thread m_thread;
};
