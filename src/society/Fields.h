#pragma once

#include "platform/forms/Field.h"
#include "society/Words.h"

// Fields for the figures of the trade, each with its pattern.
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

// The patterns of columns in a grid: litres, and all other figures.
namespace GridPattern {

inline constexpr QStringView Litres = u"####0.000";
inline constexpr QStringView Figure = u"#####0.00";

}

// A field with the pattern of its kind, or with a pattern of its own.
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

// The choices 1, 2, 3… for these words.
std::vector<ChoiceField::Choice> ChoicesOf(std::initializer_list<QStringView> words);

// Morning or evening. No key empties it.
class ShiftField final : public ChoiceField {
public:
    ShiftField(Screen* screen, const char* name, const Handler& lostFocus = {});

    bool HoldsShift() const { return IsShift(Text()); }

    // The field's own guide, for another field that takes the same figures.
    static Caption UsualGuide();
};

// Cow or buffalo. No key empties it.
class AnimalField final : public ChoiceField {
public:
    AnimalField(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The field's own guide, for a screen that has to put it back.
    static Caption UsualGuide();
};
