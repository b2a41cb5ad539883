#pragma once

#include <QString>

// The clock of the counter as a delivery keeps it, from a clock text such as "9:05:00 AM": hour, point and
// minute, "9.05". A text that has neither 10 nor 11 characters gives ".".
QString ActualTime(QStringView clockText);

// The same of the time that it is now.
QString ActualTimeNow();
