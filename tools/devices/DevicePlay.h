#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

// What a device sends: replies to commands, or a frame that it repeats by itself.
struct DevicePlay {
    struct Answer {
        QByteArray command;
        QByteArray reply;
    };
    std::vector<Answer> answers;
    QByteArray frame; // empty if the device only replies

    // The quantities that are being measured.
    struct Measure {
        double liters = 12.5;
        double fat = 4.2;
        QByteArray receiverCommand = "W"; // the command that the device "UDFREAD" answers
    };

    // The device with this name; no value for an unknown name.
    static std::optional<DevicePlay> Of(const QString& kind, const Measure& measure);

    // All device names: the scales by their names in the settings, "NO" for a tester that is asked, "PERCENT"
    // for one that sends by itself.
    static QStringList Kinds();
};
