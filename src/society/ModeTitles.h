#pragma once

#include <QStringView>

// What a screen's title adds to its own words while one of its modes is open, as the system spells it.
namespace ModeTitles {

inline constexpr QStringView New = u" navaIna roka^D-";
inline constexpr QStringView Modify = u" roka^D-maQyao badla";
inline constexpr QStringView Delete = u" roka^D- KaoDNao";

}
