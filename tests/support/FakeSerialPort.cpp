#include "tests/support/FakeSerialPort.h"

#include <algorithm>
#include <utility>

using std::chrono::microseconds;

class FakeSerialPorts::Port final : public SerialPort {
public:
    explicit Port(FakeSerialPorts& ports) : m_ports(ports) { }
    ~Port() override { Port::Close(); }

    bool Open(int number, const QString& settings) override
    {
        m_ports.Log.append(QStringLiteral("open %1 %2").arg(number).arg(settings));
        if (Fails(Step::Open) || number < 1 || number > m_ports.Ports)
            return false;
        m_isOpen = true;
        m_ports.MostOpen = std::max(m_ports.MostOpen, ++m_ports.OpenNow);
        Send(m_ports.Replies.value(QByteArray()));
        return true;
    }

    bool SetDtr(bool on) override
    {
        m_ports.Log.append(on ? QStringLiteral("dtr") : QStringLiteral("dtr off"));
        return !Fails(Step::Dtr);
    }

    bool Write(const QByteArray& bytes) override
    {
        m_ports.Log.append(QStringLiteral("write ") + QString::fromLatin1(bytes));
        if (Fails(Step::Write))
            return false;
        Send(m_ports.Replies.value(bytes));
        return true;
    }

    Line WaitForInput(microseconds atMost) override
    {
        if (Fails(Step::Wait))
            return Line::Broken;
        if (m_coming.empty() && m_ports.Endless)
            Send({*m_ports.Endless});
        if (m_coming.empty() && m_ports.UnplugsAfterReply)
            return Line::Broken;
        const microseconds until = m_ports.Time + atMost;
        if (m_coming.empty() || m_coming.front().after > until) {
            m_ports.Time = until;
            return Line::Quiet;
        }
        m_ports.Time = std::max(m_ports.Time, m_coming.front().after);
        return Line::Input;
    }

    std::optional<QByteArray> ReadInput() override
    {
        if (Fails(Step::Read))
            return {};
        QByteArray buffer;
        while (!m_coming.empty() && m_coming.front().after <= m_ports.Time) {
            buffer += m_coming.front().bytes;
            m_coming.pop_front();
        }
        return buffer;
    }

    void Close() override
    {
        if (!std::exchange(m_isOpen, false))
            return;
        m_ports.Log.append(QStringLiteral("close"));
        --m_ports.OpenNow;
    }

private:
    bool Fails(Step step) const { return m_ports.Fails == step; }

    // Puts pieces on their way; from here on `after` is the time at which one arrives.
    void Send(const Pieces& pieces)
    {
        microseconds at = m_coming.empty() ? m_ports.Time : m_coming.back().after;
        for (const Piece& piece : pieces) {
            at += piece.after;
            m_coming.push_back({piece.bytes, at});
        }
    }

    FakeSerialPorts& m_ports;
    std::deque<Piece> m_coming;
    bool m_isOpen = false;
};

FakeSerialPorts::FakeSerialPorts()
{
    Replace(this);
}

FakeSerialPorts::~FakeSerialPorts()
{
    Replace(nullptr);
}

std::unique_ptr<SerialPort> FakeSerialPorts::Make()
{
    return std::make_unique<Port>(*this);
}

QStringList FakeSerialPorts::TakeLog()
{
    return std::exchange(Log, {});
}
