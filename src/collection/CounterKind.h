#pragma once

#include "platform/forms/Look.h"

#include <QStringView>

// How a counter writes litres, as Format patterns.
struct LitersFormats {
    QStringView field; // txtLiters
    QStringView grid;
    QStringView total; // the labels of the shift
    QStringView combinedDevice; // what "MCS" has weighed
};

inline constexpr LitersFormats LitersInThousandths{
    u"########0.000", u"####0.000", u"#######0.000", u"#00.000"};
inline constexpr LitersFormats LitersInHundredths{u"########0.00", u"####0.00", u"#######0.00", u"#00.00"};

// All that one counter of the society has otherwise than another; what only one of them has is in its own
// class.
struct CounterKind {
    QStringView title; // as the system spells it
    const char* company = nullptr; // the name of the label that shows the society
    const LitersFormats& liters;
    QStringView gridFatFormat;
    QRgb fieldColour = 0; // of a field without the focus
    bool hasMemberFrame = false; // F7 shows a member's own collection
};

// The first counter, with the member's frame.
inline constexpr CounterKind MainCounter{
    u"dUQa saMklana 1", "lblCompanyTitle", LitersInThousandths, u"#####0.00", Look::DateColour, true};

// The counter at the gate, with sorting and search.
inline constexpr CounterKind GateCounter{
    u"dUQa saMklana 2", "lblCompanyName", LitersInHundredths, u"#####0.0", Look::BandText, false};

// The devices of a counter, as their switches are marked.
inline constexpr QStringView ScaleName = u"वजन काटा";
inline constexpr QStringView TesterName = u"फॅट मशीन";
