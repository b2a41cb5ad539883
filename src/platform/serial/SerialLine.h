#pragma once

#include "platform/serial/SerialPort.h"

#include <functional>

// How long somebody waits; it begins when it is made.
class Wait {
public:
    explicit Wait(std::chrono::microseconds length);

    // What is left of it, never below zero.
    std::chrono::microseconds Left() const;
    bool IsOver() const { return Left().count() == 0; }

private:
    std::chrono::microseconds m_end;
};

// A port that is open while this lives, with the DTR signal on. Failures are passed over: on a port that
// couldn't be opened nothing is sent and nothing comes.
class SerialLine {
public:
    SerialLine(int port, const QString& settings);
    ~SerialLine();
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;

    // Sends the bytes if it can.
    void Write(const QByteArray& bytes);

    // What comes next, waited for at most so long: empty if nothing came, nothing if the line is broken.
    std::optional<QByteArray> Next(std::chrono::microseconds atMost);

    // All that comes until `isWhole` says that it is enough or the wait is over; nothing if the line breaks.
    std::optional<QByteArray> Collect(
        const Wait& wait, const std::function<bool(const QByteArray&)>& isWhole);

    // Throws away what is still coming, until the line has been quiet for so long or the wait is over.
    void Drain(const Wait& wait, std::chrono::microseconds quiet);

private:
    std::unique_ptr<SerialPort> m_port;
    bool m_isOpen;
};
