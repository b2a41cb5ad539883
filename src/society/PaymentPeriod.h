#pragma once

#include <QDate>
#include <QStringView>

// How long the society's payment periods are (gAppState.gPaymentDuration), and where one ends.
namespace PaymentPeriod {

inline constexpr QStringView Day = u"1 idvasa"; // 1 दिवस
inline constexpr QStringView Week = u"7 idvasa"; // 7 दिवस
inline constexpr QStringView TenDays = u"10 idvasa"; // 10 दिवस
inline constexpr QStringView HalfMonth = u"15 idvasa"; // 15 दिवस
inline constexpr QStringView Month = u"1 maihnaa"; // 1 महिना

// The last day of the period of this duration that begins on a day; an invalid date if none begins then, or
// if the duration is unknown.
QDate EndOf(const QDate& from, QStringView duration);

}
