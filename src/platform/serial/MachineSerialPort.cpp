#include "platform/serial/MachineSerialPort.h"

#include "platform/serial/LineSettings.h"
#include "platform/serial/PortDevice.h"

#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <limits>

#ifndef Q_OS_WIN
#include <sys/ioctl.h>
#include <termios.h>
#endif

namespace {

QSerialPort::Parity ParityOf(LineSettings::Parity parity)
{
    switch (parity) {
    case LineSettings::Parity::Even:
        return QSerialPort::EvenParity;
    case LineSettings::Parity::Odd:
        return QSerialPort::OddParity;
    case LineSettings::Parity::Mark:
        return QSerialPort::MarkParity;
    case LineSettings::Parity::Space:
        return QSerialPort::SpaceParity;
    case LineSettings::Parity::None:
        break;
    }
    return QSerialPort::NoParity;
}

QSerialPort::StopBits StopBitsOf(LineSettings::StopBits stopBits)
{
    switch (stopBits) {
    case LineSettings::StopBits::OneAndHalf:
        return QSerialPort::OneAndHalfStop;
    case LineSettings::StopBits::Two:
        return QSerialPort::TwoStop;
    case LineSettings::StopBits::One:
        break;
    }
    return QSerialPort::OneStop;
}

}

MachineSerialPort::~MachineSerialPort()
{
    Close();
}

bool MachineSerialPort::Open(int number, const QString& settings)
{
    Close();
    const QString device = PortDevice(number);
    const std::optional<LineSettings> line = ParseLineSettings(settings);
    if (device.isEmpty() || !line)
        return false;
    m_port.setPortName(device);
    m_port.setBaudRate(line->baud);
    m_port.setParity(ParityOf(line->parity));
    m_port.setDataBits(static_cast<QSerialPort::DataBits>(line->dataBits));
    m_port.setStopBits(StopBitsOf(line->stopBits));
    m_port.setFlowControl(QSerialPort::NoFlowControl);
    return m_port.open(QIODevice::ReadWrite);
}

bool MachineSerialPort::SetDtr(bool on)
{
    return m_port.isOpen() && m_port.setDataTerminalReady(on);
}

bool MachineSerialPort::Write(const QByteArray& bytes)
{
    if (!m_port.isOpen() || m_port.write(bytes) != bytes.size())
        return false;
    m_isAnswerOverdue = false;
    m_port.flush(); // the rest is sent while we wait for the answer
    return !IsBroken();
}

SerialPort::Line MachineSerialPort::WaitForInput(std::chrono::microseconds atMost)
{
    if (!m_port.isOpen())
        return Line::Broken;
    if (m_port.bytesAvailable() > 0)
        return Line::Input;
    const auto whole = std::chrono::ceil<std::chrono::milliseconds>(atMost).count();
    constexpr decltype(whole) longest = std::numeric_limits<int>::max();
    m_port.clearError();
    if (m_port.waitForReadyRead(static_cast<int>(std::clamp<decltype(whole)>(whole, 0, longest))))
        return Line::Input;
    m_isAnswerOverdue = true;
    return IsBroken() ? Line::Broken : Line::Quiet;
}

std::optional<QByteArray> MachineSerialPort::ReadInput()
{
    if (!m_port.isOpen())
        return {};
    return m_port.readAll();
}

void MachineSerialPort::Close()
{
    if (!m_port.isOpen())
        return;
    if (m_isAnswerOverdue)
        m_port.clear(QSerialPort::Output); // drops what could not be sent in time
    else
        SendOut();
    m_port.close();
}

// Waits until everything has been sent: closing restores the old settings of the line and would garble what
// is still on its way. If the line takes nothing, the rest is dropped, so that it can't hold up the program.
void MachineSerialPort::SendOut()
{
    constexpr std::chrono::milliseconds longest{200};
    const QDeadlineTimer limit(longest);
    while (m_port.bytesToWrite() > 0 && m_port.waitForBytesWritten(static_cast<int>(limit.remainingTime()))) {
    }
#ifndef Q_OS_WIN
    int queued = 0;
    while (ioctl(m_port.handle(), TIOCOUTQ, &queued) == 0 && queued > 0 && !limit.hasExpired())
        QThread::msleep(1);
    if (queued == 0) {
        tcdrain(m_port.handle()); // waits for the bytes that are still in the adapter
        return;
    }
#endif
    m_port.clear(QSerialPort::Output);
}

// A line that lacks a signal or was too slow is not broken.
bool MachineSerialPort::IsBroken() const
{
    switch (m_port.error()) {
    case QSerialPort::ResourceError:
    case QSerialPort::ReadError:
    case QSerialPort::WriteError:
    case QSerialPort::NotOpenError:
        return true;
    default:
        return false;
    }
}
