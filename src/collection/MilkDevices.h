#pragma once

#include "collection/MilkDevicesCombined.h"

#include <QString>
#include <chrono>

#include <memory>
#include <optional>

// The weighing scale and the fat tester of a counter. A reading opens its port, asks, and closes it again. It
// blocks the program until the reply holds what is looked for, at most for the wait that the device is given.
// A device that fails is not reported: the reading returns nothing, and the field keeps what it has.
class MilkDevices {
public:
    // What a reading writes into the fields of the counter.
    struct Fields {
        std::optional<QString> liters;
        std::optional<QString> fat;
    };

    MilkDevices();
    explicit MilkDevices(std::unique_ptr<CombinedReading> combined);

    // Reads the row of PortTable. False if there is none: the counter then shows "Check port setting", and
    // only the devices that need the row can't be read.
    bool ReadPortTable();

    // The text for txtLiters from the device that gAppState names. The litres of a combined reading are
    // written in `mcsFormat`, all others as the device sends them.
    std::optional<QString> ReadLiters(QStringView mcsFormat);

    // The texts on entering txtFat. Some devices send the litres again, and one sends them in place of the
    // fat.
    Fields ReadFat();

    // The text for txtFat when the clerk leaves it without a fat: the same exchange for every device.
    std::optional<QString> RepeatFat();

    // Sets the scale to zero. txtLiters is to be set to "0" by the counter.
    void SendTareToScale();

private:
    struct Port {
        int number;
        QString settings;
    };
    struct PortRow {
        int LComPortNo = 0;
        QString LSetting;
        QString LReceiverCommand;
        QString LTareCommand;
        int LCounter = 0;
        int FComPortNo = 0;
        QString FSetting;
    };

    std::optional<QString> ReadScaleCommand(const QString& command, int start, int length, int waitCount);
    std::optional<QString> ReadFromPortTable(int start, int length);
    std::optional<QString> ReadAceCorp();
    std::optional<QString> ReadFatPercent();
    std::optional<double> ReadFrame(char mark);

    std::unique_ptr<CombinedReading> m_combined;
    PortRow m_row;
    std::chrono::microseconds m_restUntil{0}; // till then the rest of a reply that was taken early may come
    Port MSComm1;
    Port MSComm2;
};

// The switches of the counter, for this run of the program only.
namespace DeviceSwitch {

// Whether a setting (gAutoLiters, gAutoFat) is on.
bool IsOn(QStringView setting);

// The stored caption of a switch by its setting.
QString Caption(QStringView setting);

// The setting after a click on a switch with this stored caption.
QString SettingAfterClick(QStringView caption);

}
