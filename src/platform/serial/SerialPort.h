#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

// A serial port by its number. Nothing here throws: a device that is missing, busy or broken shows in the
// returned values, and the next step may be tried all the same.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    // Opens port `number` (from 1) with settings as baud, parity, data bits, stop bits: "2400,n,8,1".
    // Returns false if there is no such port, if it is busy, or if the settings can't be read.
    virtual bool Open(int number, const QString& settings) = 0;

    // Tells the device that somebody listens. Returns false where the line has no such signal.
    virtual bool SetDtr(bool on) = 0;

    // Sends the bytes as they are. Returns false if they can't be sent.
    virtual bool Write(const QByteArray& bytes) = 0;

    enum class Line { Input, Quiet, Broken };

    // Waits until bytes have arrived, at most so long. Broken is a device that has gone; it is told at once.
    virtual Line WaitForInput(std::chrono::microseconds atMost) = 0;

    // The whole input buffer, which is empty afterwards; nothing if it can't be read.
    virtual std::optional<QByteArray> ReadInput() = 0;

    // Closing a closed port does nothing.
    virtual void Close() = 0;
};

// The serial ports of this machine, and the time that waiting for them takes.
class SerialPorts {
public:
    virtual ~SerialPorts() = default;

    // A closed port.
    virtual std::unique_ptr<SerialPort> Make() = 0;

    // A time that only goes forward.
    virtual std::chrono::microseconds Now() = 0;

    // Those of this process: the machine's own unless a test put others in their place.
    static SerialPorts& Current();

    // Puts other ports in place; whoever does it owns them. None puts the machine's own back.
    static void Replace(SerialPorts* ports);
};
