#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

// A serial port. Nothing here throws: if a device is missing, busy or broken, the returned values say so, and
// the next call is allowed all the same.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    // Opens port `number` (from 1). The settings are baud, parity, data bits and stop bits: "2400,n,8,1".
    // Returns false if there is no such port, if it is busy, or if the settings can't be read.
    virtual bool Open(int number, const QString& settings) = 0;

    // Switches the DTR signal, which tells the device that the computer is ready. Returns false if the line
    // has no such signal.
    virtual bool SetDtr(bool on) = 0;

    // Sends the bytes unchanged. Returns false if they can't be sent.
    virtual bool Write(const QByteArray& bytes) = 0;

    enum class Line { Input, Quiet, Broken };

    // Waits at most so long until bytes arrive. Returns Broken at once if the device has gone.
    virtual Line WaitForInput(std::chrono::microseconds atMost) = 0;

    // Takes everything out of the input buffer; no value if it can't be read.
    virtual std::optional<QByteArray> ReadInput() = 0;

    // Closing a closed port does nothing.
    virtual void Close() = 0;
};

// Makes serial ports, and measures the time that is spent waiting for them. Tests replace it.
class SerialPorts {
public:
    virtual ~SerialPorts() = default;

    // A new port, not yet open.
    virtual std::unique_ptr<SerialPort> Make() = 0;

    // The time since some fixed moment; it never goes back.
    virtual std::chrono::microseconds Now() = 0;

    // The ones that this process uses: the machine's own, unless a test has replaced them.
    static SerialPorts& Current();

    // Replaces them; the caller keeps owning `ports`. A null pointer restores the machine's own.
    static void Replace(SerialPorts* ports);
};
