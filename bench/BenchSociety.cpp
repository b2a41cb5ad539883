#include "bench/BenchSociety.h"

#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/Dates.h"
#include "tools/setup/Society.h"

#include <QCoreApplication>
#include <QDir>

namespace {

void AddCharts()
{
    const QString table = Recordset(gCn, QStringLiteral("select * from FatDates"))[u"FatFileName"].Text();
    for (int month = 1; month < 12; ++month)
        gCn.Execute(Sql(u"insert into FatDates(FromDate,FatFileName) values('",
            DateText(QDate(2026, 4, 1).addMonths(month)), u"','", table, u"')"));
}

}

BenchSociety::BenchSociety()
    : m_drives(QCoreApplication::applicationDirPath() + QStringLiteral("/society-XXXXXX"))
{
    SetDrivesRoot(Drives());
    const QString folder = LocalPath(Paths::AppFolder);
    QDir().mkpath(folder);
    SocietyPlan plan;
    plan.name = QStringLiteral("श्री गणेश दूध संस्था");
    plan.year = QStringLiteral("2026-2027");
    plan.password = QStringLiteral("Doodh#26");
    MakeLargeSociety(folder, plan, SocietyMembers);
    const OpenBooks books(Drives());
    gCn.Execute(
        QStringLiteral("update AutoSettings set RepeatCollection='naahI',PurchaseEntry='Collection'"));
    AddCharts();
}

OpenBooks::OpenBooks(const QString& drives)
{
    SetDrivesRoot(drives);
    RegisterPlaces();
    LoadAppState();
}

OpenBooks::~OpenBooks()
{
    gCn.Close();
    gAppState = AppState();
}
