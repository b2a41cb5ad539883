#pragma once

#include "collection/MilkDevicesCombined.h"

#include <QString>
#include <chrono>

#include <memory>
#include <optional>

// The weighing scale and the fat tester of a counter. A reading opens its port, asks, and closes it again; it
// returns as soon as the reply holds what is looked for, at the latest after the device's wait, and blocks
// the program meanwhile. No failure of a device is told: a text that is nothing means that the field stays as
// it is.
class MilkDevices {
public:
    // What a reading writes into the fields of the counter.
    struct Fields {
        std::optional<QString> liters;
        std::optional<QString> fat;
    };

    MilkDevices();
    explicit MilkDevices(std::unique_ptr<CombinedReading> combined);

    // Reads the row of PortTable and holds it. False if there is none: "Check port setting" is then to be
    // shown, and only the devices that need the row can't be read.
    bool ReadPortTable();

    // The text for txtLiters from the device that gAppState names. Litres of a combined reading are written
    // by `mcsFormat`; from any other device as the device gives them.
    std::optional<QString> ReadLiters(QStringView mcsFormat);

    // The texts on entering txtFat. A device may write the litres a second time, or instead of the fat.
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
    std::chrono::microseconds m_restUntil{0}; // so long the rest of a reply that was taken early may come
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
