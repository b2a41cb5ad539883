#pragma once

#include <QStringView>

// The two shifts of a day as the books hold them, in the system's encoding. The other words of the trade are
// in society/Words.h, which includes these; they are here because the menu needs them, too, and core can't
// look into society.
namespace Word {

inline constexpr QStringView Morning = u"sakaL"; // सकाळ
inline constexpr QStringView Evening = u"saMQyaakaL"; // संध्याकाळ

}
