#pragma once

#include "Look.h"

#include <QStringView>

// All that one counter of the society has otherwise than another; what only one of them has is in its own
// class.
struct CounterKind {
    const char* screen;
    QStringView title;
    QStringView litersFormat; // of txtLiters
    QStringView gridLitersFormat;
    QStringView gridFatFormat;
    QStringView totalLitersFormat;
    QStringView mcsLitersFormat; // litres of a combined device
    QRgb fieldColour; // of a field without the focus
    bool hasMemberFrame; // F7 shows a member's own collection
};

// The devices of a counter, as their switches are marked.
inline constexpr QStringView ScaleName = u"वजन काटा";
inline constexpr QStringView TesterName = u"फॅट मशीन";

inline constexpr CounterKind MainCounter{
    .screen = "frmMilkCollections",
    .title = u"dUQa saMklana 1",
    .litersFormat = u"########0.000",
    .gridLitersFormat = u"####0.000",
    .gridFatFormat = u"#####0.00",
    .totalLitersFormat = u"#######0.000",
    .mcsLitersFormat = u"#00.000",
    .fieldColour = Look::DateColour,
    .hasMemberFrame = true,
};

inline constexpr CounterKind GateCounter{
    .screen = "frmCollectionGate",
    .title = u"dUQa saMklana 2",
    .litersFormat = u"########0.00",
    .gridLitersFormat = u"####0.00",
    .gridFatFormat = u"#####0.0",
    .totalLitersFormat = u"#######0.00",
    .mcsLitersFormat = u"#00.00",
    .fieldColour = Look::BandText,
    .hasMemberFrame = false,
};
