#pragma once

#include "core/state/ShiftWords.h"

// The words of the trade as the books hold them, in the system's encoding; the comments give their reading.
// Word::Morning and Word::Evening come from core.
namespace Word {

inline constexpr QStringView Cow = u"gaaya"; // गाय
inline constexpr QStringView Buffalo = u"mhOsa"; // म्हैस
inline constexpr QStringView Both = u"daonhI"; // दोन्ही
inline constexpr QStringView Cash = u"raoK"; // रोख
inline constexpr QStringView Bank = u"ba^nk"; // बॅन्क
inline constexpr QStringView LocalSale = u"sqaainak ivaËI"; // स्थानिक विक्री
inline constexpr QStringView FederationSale = u"saMGa ivaËI"; // संघ विक्री
inline constexpr QStringView Yes = u"haoya"; // होय
inline constexpr QStringView No = u"naahI"; // नाही

}

// Whether a text is one of the two shifts of a day.
inline bool IsShift(QStringView time)
{
    return time == Word::Morning || time == Word::Evening;
}

// Whether a text is one of the two kinds of milk.
inline bool IsAnimal(QStringView animal)
{
    return animal == Word::Cow || animal == Word::Buffalo;
}
