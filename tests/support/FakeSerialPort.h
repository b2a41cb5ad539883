#pragma once

#include "platform/serial/SerialPort.h"

#include <QMap>
#include <QStringList>

#include <deque>
#include <vector>

// Ports with a scripted device behind them, and a time that passes only by waiting. Stands in place of the
// machine's ports while it lives.
class FakeSerialPorts final : public SerialPorts {
public:
    // What the device sends, so long after what it sent before.
    struct Piece {
        QByteArray bytes;
        std::chrono::microseconds after{0};
    };
    using Pieces = std::vector<Piece>;

    enum class Step { Open, Dtr, Write, Wait, Read };

    FakeSerialPorts();
    ~FakeSerialPorts() override;

    std::unique_ptr<SerialPort> Make() override;
    std::chrono::microseconds Now() override { return Time; }

    // The answers, by what was sent. An empty key is what the device sends by itself once the port is open.
    QMap<QByteArray, Pieces> Replies;
    std::optional<Piece> Endless; // sent again and again once the port is open
    bool UnplugsAfterReply = false; // the line breaks when all has been read
    std::optional<Step> Fails; // the step that goes wrong
    int Ports = 99; // the highest number there is

    QStringList Log; // "open 1 2400,n,8,1", "dtr", "write W", "close": what was done, in order
    int OpenNow = 0;
    int MostOpen = 0;
    std::chrono::microseconds Time{1'000'000};

    // What was done since the last call of this.
    QStringList TakeLog();

private:
    class Port;
};
