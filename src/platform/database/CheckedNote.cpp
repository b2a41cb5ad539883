#include "platform/database/CheckedNote.h"

#include <QFile>

namespace {

constexpr int DaysBetweenChecks = 7;

QString NameIn(const QString& folder)
{
    return folder + QStringLiteral("/Checked.txt");
}

void WriteLine(const QString& folder, const QString& line)
{
    QFile file(NameIn(folder));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(line.toLatin1());
}

}

void CheckedNote::Write(const QString& folder, QDate day)
{
    WriteLine(folder, day.toString(Qt::ISODate));
}

// No day, so the next opening reads every page whatever has become of the lock and the log until then.
void CheckedNote::WriteDue(const QString& folder)
{
    WriteLine(folder, QStringLiteral("due"));
}

bool CheckedNote::IsDue(const QString& folder, QDate today)
{
    QFile file(NameIn(folder));
    constexpr qint64 lengthOfADate = 10;
    const QString line =
        file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.read(lengthOfADate)) : QString();
    const QDate last = QDate::fromString(line, Qt::ISODate);
    return !last.isValid() || last > today || last.daysTo(today) >= DaysBetweenChecks;
}
