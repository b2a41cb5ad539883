#pragma once

#include <QString>

#include <optional>

// The settings of a serial line.
struct LineSettings {
    enum class Parity { None, Even, Odd, Mark, Space };
    enum class StopBits { One, OneAndHalf, Two };

    int baud = 9600; // bits a second
    Parity parity = Parity::None;
    int dataBits = 8; // 5 to 8
    StopBits stopBits = StopBits::One;
};

// Reads "2400,n,8,1": baud, parity by its first letter (n, e, o, m, s), data bits, stop bits (1, 1.5, 2).
// Blanks around a part are allowed. Returns nothing for any other text.
std::optional<LineSettings> ParseLineSettings(QStringView text);
