#include "core/start/BooksOpening.h"

#include "core/messages/Messages.h"
#include "core/start/CheckingLine.h"
#include "core/state/AppState.h"
#include "platform/database/CheckedNote.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"

#include <QDir>

#include <optional>
#include <utility>

namespace {

bool g_checksNext = false;

QDate Today()
{
    return World::Current().clock->Now().date();
}

}

void OpenBooks()
{
    const QString folder = LocalPath(Paths::AppFolder);
    std::optional<CheckingLine> line;
    OpeningPlan plan;
    plan.checksPages = std::exchange(g_checksNext, false) || CheckedNote::IsDue(folder, Today());
    plan.checking = [&] { line.emplace(); };
    plan.newestBackup = NewestBackup();
    QStringList notes;
    try {
        notes = gCn.Open(Logon(), plan);
    } catch (const RunTimeError&) {
        if (line)
            CheckedNote::WriteDue(folder);
        throw;
    }
    if (line)
        CheckedNote::Write(folder, Today());
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
