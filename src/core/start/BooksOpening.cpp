#include "core/start/BooksOpening.h"

#include "core/messages/Messages.h"
#include "core/start/CheckingLine.h"
#include "core/state/AppState.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"

#include <QDir>
#include <QFile>

#include <optional>
#include <utility>

namespace {

constexpr int DaysBetweenChecks = 7;

bool g_checksNext = false;

QDate Today()
{
    return World::Current().clock->Now().date();
}

// Holds one line: the day on which every page was last read.
QString CheckedFile()
{
    return LocalAppFile(u"Checked.txt");
}

void WriteChecked(const QString& line)
{
    QFile file(CheckedFile());
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(line.toLatin1());
}

void NoteCheck()
{
    WriteChecked(Today().toString(Qt::ISODate));
}

// Without a day the next opening reads every page, whatever lock and log look like by then.
void NoteThatCheckIsDue()
{
    WriteChecked(QStringLiteral("due"));
}

// Books that were never checked are new: their week begins now. A day in the future means that the clock was
// put back.
bool IsCheckDue()
{
    QFile file(CheckedFile());
    if (!file.open(QIODevice::ReadOnly)) {
        NoteCheck();
        return false;
    }
    constexpr qint64 lengthOfADate = 10;
    const QDate last = QDate::fromString(QString::fromLatin1(file.read(lengthOfADate)), Qt::ISODate);
    return !last.isValid() || last > Today() || last.daysTo(Today()) >= DaysBetweenChecks;
}

}

void OpenBooks()
{
    std::optional<CheckingLine> line;
    OpeningPlan plan;
    plan.checksPages = std::exchange(g_checksNext, false) || IsCheckDue();
    plan.checking = [&] { line.emplace(); };
    plan.newestBackup = NewestBackup();
    QStringList notes;
    try {
        notes = gCn.Open(Logon(), plan);
    } catch (const RunTimeError&) {
        if (line)
            NoteThatCheckIsDue();
        throw;
    }
    if (line)
        NoteCheck();
    line.reset();
    for (const QString& note : notes)
        ShowPlain(note);
}

void CheckNextOpening()
{
    g_checksNext = true;
}

QString NewestBackup()
{
    const QDir folder(LocalAppFile(u"Backup"));
    const QStringList copies = folder.entryList({QStringLiteral("*.mdb")}, QDir::Files, QDir::Time);
    return copies.isEmpty() ? QString() : folder.filePath(copies.first());
}
