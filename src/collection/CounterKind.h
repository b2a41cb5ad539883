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

// All that differs between the two counters, but for what only one of them has: that is in its own class.
struct CounterKind {
    QStringView title; // as the system spells it
    const char* company = nullptr; // the name of the label that shows the society
    LitersFormats liters;
    QStringView gridFatFormat;
    QRgb fieldColour = 0; // of a field without the focus
    bool hasMemberFrame = false; // F7 shows a member's own collection
};

namespace CounterKinds {

inline constexpr CounterKind Main{u"dUQa saMklana 1", "lblCompanyTitle",
    {u"########0.000", u"####0.000", u"#######0.000", u"#00.000"}, u"#####0.00", Look::DateColour, true};

inline constexpr CounterKind Gate{u"dUQa saMklana 2", "lblCompanyName",
    {u"########0.00", u"####0.00", u"#######0.00", u"#00.00"}, u"#####0.0", Look::BandText, false};

}
