#pragma once

#include "platform/serial/SerialPort.h"

#include <QSerialPort>

// A port of this machine.
class MachineSerialPort final : public SerialPort {
public:
    MachineSerialPort() = default;
    ~MachineSerialPort() override;

    bool Open(int number, const QString& settings) override;
    bool SetDtr(bool on) override;
    bool Write(const QByteArray& bytes) override;
    Line WaitForInput(std::chrono::microseconds atMost) override;
    std::optional<QByteArray> ReadInput() override;
    void Close() override;

private:
    void SendOut();
    bool IsBroken() const;

    QSerialPort m_port;
    bool m_isAnswerOverdue = false; // a wait for an answer has run out since the last write
};
