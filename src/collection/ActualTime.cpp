#include "collection/ActualTime.h"

#include "platform/shell/World.h"
#include "platform/text/Dates.h"

QString ActualTime(QStringView clockText)
{
    const QStringView time = clockText.trimmed();
    QStringView hour;
    QStringView minute;
    if (time.size() == 10) {
        hour = time.left(1);
        minute = time.mid(2, 2);
    } else if (time.size() == 11) {
        hour = time.left(2);
        minute = time.mid(3, 2);
    }
    return hour.toString() + u'.' + minute;
}

QString ActualTimeNow()
{
    return ActualTime(ClockText(World::Current().clock->Now().time()));
}
