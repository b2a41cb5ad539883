#pragma once

#include "platform/serial/SerialPort.h"

#include <functional>

// A time limit that runs from its construction.
class Wait {
public:
    explicit Wait(std::chrono::microseconds length);

    // The time that is left, never below zero.
    std::chrono::microseconds Left() const;
    bool IsOver() const { return Left().count() == 0; }

private:
    std::chrono::microseconds m_end;
};

// A port that is open during the lifetime of this object, with the DTR signal on. Failures are ignored: if
// the port couldn't be opened, nothing is sent and nothing arrives.
class SerialLine {
public:
    SerialLine(int port, const QString& settings);
    ~SerialLine();
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;

    // Sends the bytes, if that is possible.
    void Write(const QByteArray& bytes);

    // Waits at most so long for the next bytes. They are empty if nothing came; no value if the line is
    // broken.
    std::optional<QByteArray> Next(std::chrono::microseconds atMost);

    // Collects bytes until `isWhole` returns true for all of them together or the wait is over. No value if
    // the line breaks.
    std::optional<QByteArray> Collect(
        const Wait& wait, const std::function<bool(const QByteArray&)>& isWhole);

    // Drops what still arrives, until the line has been quiet for so long or the wait is over.
    void Drain(const Wait& wait, std::chrono::microseconds quiet);

private:
    std::unique_ptr<SerialPort> m_port;
    bool m_isOpen;
};
