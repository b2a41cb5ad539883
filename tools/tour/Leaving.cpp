#include "platform/shell/AppFolder.h"
#include "tools/tour/Tour.h"

#include <QFile>

namespace {

const QString Folder = QStringLiteral("C:\\Tarvel01\\Vetrolan\\Backup\\");
const QString FirstSale = QStringLiteral(
    "select Liters from MilkSales where SalesDate=#06/01/2026# and SalesTime='sakaL' and SalesNo=1");

// Opens the first of the tools.
void OpenTheBackup(Tour& tour)
{
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}{DOWN}{DOWN}{DOWN}") + Enter);
    tour.OpenEntry({}, 0);
}

// A copy under the name that a restore looks for.
void KeepTheYear(Tour& tour)
{
    OpenTheBackup(tour);
    tour.Type(QStringLiteral("2") + Enter + KeysOf(QString(Folder + QStringLiteral("Y2026-2027C1.mdb"))));
    tour.Check(QStringLiteral("the year's name"), tour.TheClerk().Reads(QStringLiteral("Text1")),
        Folder + QStringLiteral("Y2026-2027C1.mdb"));
    tour.Step(QStringLiteral("backup-of-the-year-taken"), Enter + Enter + Enter + Enter + Enter);
    tour.Type(Escape);
}

// A sale is deleted by mistake, and the books of before are brought back.
void BringTheYearBack(Tour& tour)
{
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}") + Enter);
    tour.OpenEntry({}, 6);
    tour.Type(Enter + QStringLiteral("1") + Enter + QStringLiteral("1") + Enter + QStringLiteral("{F10}"));
    tour.CheckRows(QStringLiteral("the sale that was deleted"), FirstSale, {});
    tour.Type(Escape);
    OpenTheBackup(tour);
    tour.Step(QStringLiteral("restored"), QStringLiteral("{TAB}{TAB}{TAB}{TAB}{TAB}{TAB}") + Enter);
    tour.CheckRows(QStringLiteral("the sale is back"), FirstSale, {QStringLiteral("4.5")});
    tour.Type(Escape);
}

}

void PlayBackup(Tour& tour)
{
    KeepTheYear(tour);
    BringTheYearBack(tour);
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}{DOWN}") + Enter);
}

void PlayLeaving(Tour& tour)
{
    tour.Step(QStringLiteral("keyboard-tutor"), QStringLiteral("{F12}gaaya"));
    tour.Type(QStringLiteral("{ESC}{ESC}{ESC}"));
    tour.Step(QStringLiteral("backup"), QStringLiteral("{ESC}"));
    tour.Step(QStringLiteral("backup-taken"), QStringLiteral("2{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}"));
    const QString taken = Folder + QStringLiteral("Morvelta On 01 June 2026.mdb");
    tour.Check(QStringLiteral("the backup lies in its folder"),
        QString::number(QFile::exists(LocalPath(taken))), QStringLiteral("1"));
    tour.Step(QStringLiteral("leave"), QStringLiteral("{ESC}"));
    tour.Type(QStringLiteral("%h"));
    tour.Check(QStringLiteral("every screen is closed"), tour.TheClerk().ScreenName(), {});
}
