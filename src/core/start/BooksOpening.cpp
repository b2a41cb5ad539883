#include "core/start/BooksOpening.h"

#include "backups/BooksCopies.h"
#include "core/messages/Messages.h"
#include "core/start/CheckingLine.h"
#include "core/state/AppState.h"
#include "platform/database/CheckedNote.h"
#include "platform/forms/Painting.h"
#include "platform/report/ReportControl.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"

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
    gCn.SetWorking(Painting::RepaintInTime);
    for (const QString& note : notes)
        ShowPlain(note);
}

void ReopenBooks()
{
    const QStringList notes = gCn.Open(Logon());
    gCn.SetWorking(Painting::RepaintInTime);
    for (const QString& note : notes)
        ShowPlain(note);
}

void CloseBooks()
{
    ReportControl::CloseConnections();
    gCn.Close();
}

void CheckNextOpening()
{
    g_checksNext = true;
}

QString NewestBackup()
{
    return BooksCopies::Newest(LocalPath(Paths::AppFolder));
}
