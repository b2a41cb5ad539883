#include "core/preview/ReportSubject.h"

#include "platform/shell/World.h"
#include "platform/text/Shivaji01.h"

QString ReportSubject(const QStringList& words, const QDate& from, const QDate& to)
{
    constexpr qsizetype longest = 40; // a file system takes no name of any length
    const auto written = [](const QDate& day) { return day.toString(QStringLiteral("dd-MM-yyyy")); };
    QStringList parts;
    for (const QString& word : words)
        parts.append(Shivaji01::ToUnicode(word).trimmed().left(longest));
    parts.append(written(from.isValid() ? from : World::Current().clock->Now().date()));
    if (to.isValid() && to != from)
        parts.append(QStringLiteral("ते ") + written(to));
    parts.removeAll(QString());
    return parts.join(u' ');
}
