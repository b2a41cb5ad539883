#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

// What a device says: answers to commands, or a line that it sends by itself, again and again.
struct DevicePlay {
    struct Answer {
        QByteArray command;
        QByteArray reply;
    };
    std::vector<Answer> answers;
    QByteArray frame; // empty for a device that waits to be asked

    // What stands on the device.
    struct Measure {
        double liters = 12.5;
        double fat = 4.2;
        QByteArray receiverCommand = "W"; // the question that "UDFREAD" answers
    };

    // The device of a name; nothing for a name that is none.
    static std::optional<DevicePlay> Of(const QString& kind, const Measure& measure);

    // The scales by their names in the settings, "NO" for a tester that is asked, "PERCENT" for one that
    // sends by itself.
    static QStringList Kinds();
};
