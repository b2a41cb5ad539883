#include "bench/BenchSociety.h"

#include "bench/PaidPeriods.h"
#include "bench/SoldMilk.h"
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

#include <cstdio>

namespace {

void AddCharts()
{
    const QString table = Recordset(gCn, QStringLiteral("select * from FatDates"))[u"FatFileName"].Text();
    for (int month = 1; month < 12; ++month)
        gCn.Execute(Sql(u"insert into FatDates(FromDate,FatFileName) values('",
            DateText(YearBegins.addMonths(month)), u"','", table, u"')"));
}

}

BenchSociety::BenchSociety(int years)
    : m_drives(QCoreApplication::applicationDirPath() + QStringLiteral("/society-XXXXXX"))
{
    SetDrivesRoot(Drives());
    const QString folder = LocalPath(Paths::AppFolder);
    QDir().mkpath(folder);
    SocietyPlan plan;
    plan.name = QStringLiteral("श्री गणेश दूध संस्था");
    const QDate from(YearBegins.addYears(1 - years));
    plan.year = QStringLiteral("%1-%2").arg(from.year()).arg(from.year() + 1);
    plan.federation = QStringLiteral("जिल्हा दूध संघ");
    plan.password = QStringLiteral("Doodh#26");
    MakeLargeSociety(folder, plan, SocietyMembers, static_cast<int>(from.daysTo(YearBegins.addYears(1))));
    const BooksOfSociety books(Drives());
    gCn.Execute(
        QStringLiteral("update AutoSettings set RepeatCollection='naahI',PurchaseEntry='Collection'"));
    gCn.Execute(Sql(u"update CompanySelected set FromDate='", DateText(YearBegins), u"',ToDate='",
        DateText(YearBegins.addYears(1).addDays(-1)), u"'"));
    AddCharts();
    FillPayments(from);
    FillSales(from);
}

const BenchSociety& TenYears()
{
    static const BenchSociety society = [] {
        std::printf("Making the society of ten years: 3,652,000 deliveries.\n");
        std::fflush(stdout);
        return BenchSociety(10);
    }();
    return society;
}

BooksOfSociety::BooksOfSociety(const QString& drives)
{
    SetDrivesRoot(drives);
    RegisterPlaces();
    LoadAppState();
}

BooksOfSociety::~BooksOfSociety()
{
    gCn.Close();
    gAppState = AppState();
}
