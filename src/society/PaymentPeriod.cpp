#include "society/PaymentPeriod.h"

namespace {

QDate EndOfMonth(const QDate& day)
{
    return {day.year(), day.month(), day.daysInMonth()};
}

}

QDate PaymentPeriod::EndOf(const QDate& from, QStringView duration)
{
    const int day = from.day();
    if (duration == Day)
        return from;
    if (duration == Week)
        return from.addDays(6);
    if (duration == TenDays && (day == 1 || day == 11))
        return from.addDays(9);
    if (duration == HalfMonth && day == 1)
        return from.addDays(14);
    if ((duration == TenDays && day == 21) || (duration == HalfMonth && day == 16)
        || (duration == Month && day == 1))
        return EndOfMonth(from);
    return {};
}
