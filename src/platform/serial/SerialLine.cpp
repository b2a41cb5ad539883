#include "platform/serial/SerialLine.h"

#include <algorithm>

using std::chrono::microseconds;

Wait::Wait(microseconds length) : m_end(SerialPorts::Current().Now() + length) { }

microseconds Wait::Left() const
{
    return std::max(m_end - SerialPorts::Current().Now(), microseconds(0));
}

SerialLine::SerialLine(int port, const QString& settings)
    : m_port(SerialPorts::Current().Make())
    , m_isOpen(m_port->Open(port, settings))
{
    if (m_isOpen)
        m_port->SetDtr(true);
}

SerialLine::~SerialLine()
{
    m_port->Close();
}

void SerialLine::Write(const QByteArray& bytes)
{
    if (m_isOpen)
        m_port->Write(bytes);
}

std::optional<QByteArray> SerialLine::Next(microseconds atMost)
{
    if (!m_isOpen)
        return {};
    switch (m_port->WaitForInput(atMost)) {
    case SerialPort::Line::Input:
        return m_port->ReadInput();
    case SerialPort::Line::Quiet:
        return QByteArray();
    case SerialPort::Line::Broken:
        break;
    }
    return {};
}

std::optional<QByteArray> SerialLine::Collect(
    const Wait& wait, const std::function<bool(const QByteArray&)>& isWhole)
{
    QByteArray reply;
    do {
        const std::optional<QByteArray> next = Next(wait.Left());
        if (!next)
            return {};
        reply += *next;
    } while (!isWhole(reply) && !wait.IsOver());
    return reply;
}

void SerialLine::Drain(const Wait& wait, microseconds quiet)
{
    while (!wait.IsOver()) {
        const std::optional<QByteArray> next = Next(std::min(quiet, wait.Left()));
        if (!next || next->isEmpty())
            return;
    }
}
