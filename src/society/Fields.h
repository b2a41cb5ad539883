#pragma once

#include "platform/forms/Field.h"

// The figures of the trade, as fields that know how they are written.
enum class FigureKind { Litres, Fat, Rate, Money };

constexpr QStringView PatternOf(FigureKind figure)
{
    switch (figure) {
    case FigureKind::Litres:
        return u"########0.000";
    case FigureKind::Fat:
        return u"#########0.0";
    case FigureKind::Rate: // rupees a litre
    case FigureKind::Money: // rupees
        break;
    }
    return u"#########0.00";
}

// A figure in the pattern of its kind, or in one of its own.
template <FigureKind figure> class FigureField final : public NumberField {
public:
    FigureField(Screen* screen, const char* name, const Handler& lostFocus = {})
        : NumberField(screen, name, PatternOf(figure), lostFocus)
    {
    }
    FigureField(Screen* screen, const char* name, QStringView pattern, const Handler& lostFocus = {})
        : NumberField(screen, name, pattern, lostFocus)
    {
    }
};

using LitresField = FigureField<FigureKind::Litres>;
using FatField = FigureField<FigureKind::Fat>;
using RateField = FigureField<FigureKind::Rate>;
using MoneyField = FigureField<FigureKind::Money>;
