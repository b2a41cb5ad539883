#pragma once

#include "platform/forms/Field.h"
#include "society/Words.h"

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

// Words under the figures 1, 2, 3.
std::vector<ChoiceField::Choice> ChoicesOf(std::initializer_list<QStringView> words);

// A half of the day. No key empties it.
class ShiftField final : public ChoiceField {
public:
    ShiftField(Screen* screen, const char* name, const Handler& lostFocus = {});

    bool HoldsShift() const { return IsShift(Text()); }
};

// Whose milk it is. No key empties it.
class AnimalField final : public ChoiceField {
public:
    AnimalField(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The guide of the field, for a screen that says something else meanwhile.
    static Caption UsualGuide();
};
