#include "tests/journeys/BookWalks.h"

#include "backups/BooksCopies.h"
#include "core/start/BooksOpening.h"
#include "core/start/MdlAccounts.h"
#include "platform/shell/AppFolder.h"
#include "reports/frmReportCashBook.h"
#include "reports/frmReportPurchaseSales.h"
#include "reports/frmVadhTootReport.h"
#include "utilities/frmBackup.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <cmath>
#include <utility>

namespace {

// Opens a screen in another of its modes each time.
template <class S> std::function<void()> ShowInTurn(const std::vector<const char*>& modes)
{
    return [modes, opened = std::size_t(0)]() mutable {
        gAppState.gReportMode = QString::fromLatin1(modes[opened++ % modes.size()]);
        Show<S>();
    };
}

// A balance below nought is on the debit side.
double Signed(const Recordset& row, QStringView balance, QStringView side)
{
    return row[side].Text() == u"D" ? -row[balance].Number() : row[balance].Number();
}

constexpr const char* YearFile = "Y2026-2027C1.mdb";

}

void BookWalks::OverTheGainAndLoss(int walks)
{
    const std::string kept = Kept();
    std::size_t printed = 0;
    Walk({"frmVadhTootReport", Show<frmVadhTootReport>,
             {"14042026{ENTER}15042026{ENTER}{ENTER}{ENTER}", "14042026{ENTER}", "16042026{ENTER}",
                 "01010202{ENTER}31129202{ENTER}{DOWN}{ENTER}{ENTER}", "{ENTER}{ENTER}{ENTER}", "%b",
                 "+{TAB}+{TAB}+{TAB}01042026{ENTER}30042026{ENTER}{DOWN}{ENTER}{ENTER}"},
             [&] {
                 printed += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
                 for (Recordset row(gCn, "select * from VadhTootReport"); !row.Eof(); row.MoveNext()) {
                     EXPECT_TRUE(row[u"LitersIn"].Number() > 0 || row[u"LitersOut"].Number() > 0);
                     EXPECT_NEAR(row[u"LitersLocal"].Number() + row[u"LitersSangh"].Number(),
                         row[u"LitersOut"].Number(), 0.0001);
                 }
             }},
        walks);
    EXPECT_GT(printed, 10U);
}

void BookWalks::OverPurchasesAndSales(int walks)
{
    Run("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,Amount) "
        "values(1,'12/04/2026',90,'raoK ivaËI',12.5)");
    const std::string kept = Kept();
    std::map<QString, std::size_t> printed;
    Walk({"frmReportPurchaseSales", ShowInTurn<frmReportPurchaseSales>({"PS", "MP", "MS"}),
             {"12042026{ENTER}", "12042026{ENTER}14042026{ENTER}%i", "15042026{ENTER}", "%i", "%b",
                 "+{TAB}+{TAB}01042026{ENTER}30042026{ENTER}%i", "30042026{ENTER}01042026{ENTER}%i"},
             [&] {
                 printed[gAppState.gReportMode] += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
                 const QStringList days = Rows("select TranDate from LedgersMaster");
                 EXPECT_EQ(QSet<QString>(days.begin(), days.end()).size(), days.size()) << "a day twice";
             }},
        walks);
    for (const char* mode : {"PS", "MP", "MS"})
        EXPECT_GT(printed[mode], 3U) << mode;
}

// Each row goes on from the one before it.
void BookWalks::ExpectSoundLedger()
{
    double balance = 0;
    bool isFirst = true;
    for (Recordset row(gCn, "select * from LedgersMaster"); !row.Eof(); row.MoveNext()) {
        if (row[u"ClosingDorC"].IsNull())
            continue; // the balance alone
        const double opening = Signed(row, u"OpeningBalance", u"OpeningDorC");
        EXPECT_TRUE(std::exchange(isFirst, false) || std::abs(opening - balance) < 0.001);
        balance = Signed(row, u"ClosingBalance", u"ClosingDorC");
        EXPECT_NEAR(opening - row[u"DAmount"].Number() + row[u"CAmount"].Number(), balance, 0.001);
    }
}

void BookWalks::OverTheLedgers(int walks)
{
    Run("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount) "
        "select 1,'13/04/2026',1,'irsaIT',AccountName,'raoK',75.25 from AccountsMaster where "
        "GroupCode='Bank'");
    const std::string kept = Kept();
    std::map<QString, std::size_t> printed;
    Walk({"frmReportCashBook", ShowInTurn<frmReportCashBook>({"C", "B", "V"}),
             {"12042026{ENTER}", "13042026{ENTER}15042026{ENTER}{DOWN}{ENTER}%i", "%{DOWN}{DOWN}{ENTER}%i",
                 "%i", "%b", "+{TAB}+{TAB}+{TAB}01042026{ENTER}30042026{ENTER}{DOWN}{ENTER}%i",
                 "30042026{ENTER}01042026{ENTER}%i", "{ESC}"},
             [&] {
                 printed[gAppState.gReportMode] += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
                 ExpectSoundLedger();
             }},
        walks);
    for (const char* mode : {"C", "B", "V"})
        EXPECT_GT(printed[mode], 3U) << mode;
}

// The copies that were made are whole books with all members; they are cleared away but for the year's.
void BookWalks::ExpectSoundCopies()
{
    for (const char* folder : {"C:\\Tarvel01\\Vetrolan\\Backup", "D:\\"}) {
        QDir copies(LocalPath(QString::fromUtf8(folder)));
        EXPECT_EQ(copies.entryList({"*.part"}, QDir::Files), QStringList());
        for (const QString& name : copies.entryList({"*.mdb"}, QDir::Files)) {
            EXPECT_EQ(BooksCopies::Check(copies.filePath(name), gAppState.gDbPassword).members, 3)
                << name.toStdString();
            if (name != QLatin1String(YearFile))
                copies.remove(name);
        }
    }
}

// A name that can't be written ends the program; the books stay.
void BookWalks::OverTheBackup(int walks)
{
    QDir().mkpath(LocalPath(u"D:\\"));
    const std::string kept = Kept();
    gCn.Close();
    ASSERT_TRUE(QFile::copy(FolderFile("Morvelta.mdb"), FolderFile(QString("Backup/") + YearFile)));
    LoadAppState();
    std::size_t ended = 0;
    std::map<QString, int> made;
    Walk({"frmBackup", Show<frmBackup>,
             {"{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "2{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}",
                 "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{TAB}{ENTER}", "{ENTER}{ENTER}{DOWN}{ENTER}{ENTER}",
                 "{UP}{ENTER}", "{TAB}{TAB}{TAB}", "+{TAB}", "%b"},
             [&] {
                 ended += Failure ? 1 : 0;
                 for (const QString& name : QDir(FolderFile("Backup")).entryList(QDir::Files))
                     ++made[name.left(10)];
                 ReopenBooks();
                 EXPECT_TRUE(Kept() == kept);
                 ExpectSoundCopies();
             },
             {}, true},
        walks);
    EXPECT_GT(made["Morvelta.m"], 0) << "regular";
    EXPECT_GT(made["Morvelta O"], 0) << "history";
    EXPECT_GT(made["Morvelta B"], 0) << "restored";
    EXPECT_LT(ended, static_cast<std::size_t>(walks) / 10);
}
