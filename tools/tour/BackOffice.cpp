#include "collection/frmSearchCollections.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/text/Shivaji01.h"
#include "tools/tour/Tour.h"

#include <QDeadlineTimer>

namespace {

// Lists the absent members; the button of the gate for this comes before the first field.
void LookForAbsentMembers(Tour& tour)
{
    tour.Step(QStringLiteral("gate"), QStringLiteral("{F8}"));
    tour.Type(QStringLiteral("+{TAB}+{TAB}+{TAB}"));
    tour.Check(QStringLiteral("the gate's button"), tour.TheClerk().Focus(), QStringLiteral("Command3"));
    tour.Step(QStringLiteral("absent-members"), Enter);
    tour.Step(QStringLiteral("absent-members-listed"),
        QStringLiteral("01062026") + Enter + QStringLiteral("1") + Enter + Enter);
    const Recordset absent(gCn,
        QStringLiteral(
            "select count(*) from MilkCollections where CollectionDate=#05/31/2026# and "
            "CollectionTime='sakaL' and MemberNo not in (select MemberNo from MilkCollections where "
            "CollectionDate=#06/01/2026# and CollectionTime='sakaL')"));
    tour.CheckRows(QStringLiteral("absent members"), QStringLiteral("select count(*) from ShortMemberList"),
        {absent.At(0).Text()});
    tour.Type(Escape + Escape);
}

void SortAndSearchAtTheGate(Tour& tour)
{
    tour.Type(QStringLiteral("{F8}") + Enter + QStringLiteral("1") + Enter);
    tour.Step(QStringLiteral("gate-shift"), {});
    tour.Type(DeliveryKeys("9", "10.4", "4"));
    tour.KeepReport(QStringLiteral("gate-receipt"), QStringLiteral("357.76"), 1);
    tour.TheClerk().Press(QStringLiteral("cmdAmtOrder"));
    tour.Step(QStringLiteral("gate-by-amount"), {});
    tour.CheckColumn(
        QStringLiteral("DataGridInwards"), u"CollectionNo", QStringLiteral("1 2 8 10 4 7 9 6 3"));
    tour.TheClerk().Press(QStringLiteral("chkSerachMode"));
    tour.TheClerk().Press(QStringLiteral("txtCollectionNo"));
    tour.Step(QStringLiteral("gate-search"), Enter + QStringLiteral("3"));
    tour.CheckColumn(QStringLiteral("DataGridInwards"), u"CollectionNo", QStringLiteral("6"));
    tour.Type(Escape);
}

// Changes a row that was entered for the wrong number, and then deletes it by its number.
void MendTheRegister(Tour& tour)
{
    tour.Type(QStringLiteral("15+{TAB}+{TAB}99") + Enter + Enter + Enter);
    tour.Type(QStringLiteral("6.8") + Enter + Enter + QStringLiteral("%r"));
    const QString wrong = QStringLiteral("10") + Enter + Enter + QStringLiteral("05062026") + Enter
        + QStringLiteral("1") + Enter + QStringLiteral("99") + Enter;
    const QString figures = QStringLiteral(
        "select Liters,Fat,Rate,Amount from MilkCollections where MemberNo=10 and CollectionNo=99");
    tour.CheckRows(QStringLiteral("wrong row"), figures, {QStringLiteral("15|6.8|47.2|708")});
    tour.Type(QStringLiteral("%d") + wrong + Enter);
    tour.Step(QStringLiteral("register-change"), QStringLiteral("5.1") + Enter + Enter);
    tour.Type(Enter + Enter);
    tour.CheckRows(QStringLiteral("row changed"), figures, {QStringLiteral("5.1|6.8|47.2|240.72")});
    tour.Step(QStringLiteral("register-delete"), QStringLiteral("%k") + wrong);
    tour.CheckReads(QStringLiteral("lblGuide"), QStringLiteral("हा क्रमांक या वेळेच्या सर्व दिवसांतून खोडला जाईल"));
    tour.Type(Enter);
    tour.CheckRows(QStringLiteral("row deleted"), figures, {});
}

// Enters three mornings of a member from a paper register.
void KeyTheRegister(Tour& tour)
{
    tour.Step(QStringLiteral("register"), QStringLiteral("{DOWN}{DOWN}") + Enter);
    tour.Type(QStringLiteral("%n10") + Enter + Enter + QStringLiteral("02062026") + Enter);
    tour.Type(QStringLiteral("1") + Enter + Enter + Enter);
    tour.Step(
        QStringLiteral("register-first-day"), QStringLiteral("4.5") + Enter + QStringLiteral("6.9") + Enter);
    tour.Step(QStringLiteral("register-next-day"), Enter);
    tour.Type(QStringLiteral("4.75") + Enter + QStringLiteral("7") + Enter + Enter);
    tour.Type(QStringLiteral("5") + Enter + QStringLiteral("6.8") + Enter + Enter);
    const QString name = Shivaji01::FromUnicode(u"कृष्णा बाबूराव थोरात");
    tour.CheckRows(QStringLiteral("register"),
        QStringLiteral("select CollectionDate,CollectionTime,CollectionNo,MemberName,Animal,Liters,Fat,Rate,"
                       "Amount from MilkCollections where MemberNo=10 and CollectionDate>#06/01/2026# "
                       "order by CollectionDate"),
        {u"02/06/2026|sakaL|1|" + name + u"|mhOsa|4.5|6.9|47.35|213.08",
            u"03/06/2026|sakaL|1|" + name + u"|mhOsa|4.75|7|47.5|225.63",
            u"04/06/2026|sakaL|1|" + name + u"|mhOsa|5|6.8|47.2|236"});
    MendTheRegister(tour);
    tour.Step(QStringLiteral("register-list"), Escape + Enter + QStringLiteral("%n10{F5}"));
    tour.Check(QStringLiteral("the list is open"), tour.TheClerk().Focus(), QStringLiteral("DataGrid1"));
    tour.Type(Escape);
}

// Waits for the timer that the screen starts when it opens.
void AwaitSearchScreen(Tour& tour)
{
    const QDeadlineTimer limit(10000);
    const auto& screen = tour.TheClerk().On<frmSearchCollections>();
    while (screen.TimerStart && !limit.hasExpired())
        tour.TheClerk().Do([] {});
    tour.Check(QStringLiteral("the search is open"), tour.TheClerk().Focus(), QStringLiteral("maskDate"));
}

void PrintASlipAgain(Tour& tour)
{
    tour.Type(Escape + Enter + QStringLiteral("{DOWN}") + Enter);
    AwaitSearchScreen(tour);
    tour.Step(QStringLiteral("search"), {});
    tour.Step(QStringLiteral("search-found"),
        Enter + QStringLiteral("1") + Enter + QStringLiteral("3") + Enter + Enter);
    tour.CheckColumn(QStringLiteral("DataGridInwards"), u"CollectionNo", QStringLiteral("6"));
    tour.Type(Enter + Enter);
    tour.CheckRows(QStringLiteral("slip printed again"),
        QStringLiteral("select CollectionNo,MemberNo,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime "
                       "from MilkReceipt"),
        {QStringLiteral("6|3|mhOsa|4.3|6.8|47.2|202.96|")});
    tour.KeepReport(QStringLiteral("receipt-again"), QStringLiteral("202.96"), 1);
    tour.Type(Escape);
}

}

void PlayBackOffice(Tour& tour)
{
    LookForAbsentMembers(tour);
    SortAndSearchAtTheGate(tour);
    KeyTheRegister(tour);
    PrintASlipAgain(tour);
}
