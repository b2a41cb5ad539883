#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/text/Shivaji01.h"
#include "tools/tour/Tour.h"

namespace {

// Goes through the three tabs, and then by Enter to the button of the layouts; chooses slips on the screen.
void ChooseSlipsOnScreen(Tour& tour)
{
    tour.Step(QStringLiteral("settings-collection"), Escape + QStringLiteral("{F7}"));
    tour.Step(QStringLiteral("settings-payment"), QStringLiteral("^{PGDN}"));
    tour.Step(QStringLiteral("settings-milk-sale"), QStringLiteral("^{PGDN}"));
    tour.Type(QStringLiteral("^{PGDN}") + Enter + Enter);
    tour.Check(
        QStringLiteral("the slips' setting"), tour.TheClerk().Focus(), QStringLiteral("ComboPrintStatus"));
    tour.Step(QStringLiteral("settings-slips-on-screen"), QStringLiteral("2"));
    for (int field = 0; field < 11; ++field)
        tour.Type(Enter);
    tour.Check(QStringLiteral("the end of the way"), tour.TheClerk().Focus(), QStringLiteral("CmdSave"));
    tour.Type(QStringLiteral("{TAB}{TAB}{TAB}") + Enter);
    tour.KeepReport(QStringLiteral("sample-receipt"), QStringLiteral("183.75"), 1);
    tour.Step(QStringLiteral("settings-saved"), QStringLiteral("%s"));
    tour.CheckRows(QStringLiteral("settings"),
        QStringLiteral("select AutoLiters,AutoFat,PrintStatus,CanLimitCow,ReceiptType,RepeatCollection,"
                       "PaymentDuration,ThevKapatCow,SalesRateMix,WeighScale from AutoSettings"),
        {QStringLiteral("naahI|naahI|f@t sËIna|40.000|Tašp 1|naahI|10 idvasa|0.5|52.00|ELECTRO")});
    tour.Type(Escape);
}

void TakeADelivery(Tour& tour)
{
    tour.Type(Enter + Enter + QStringLiteral("1") + Enter);
    tour.Type(DeliveryKeys("5", "6.2", "7"));
    tour.CheckRows(QStringLiteral("slip"),
        QStringLiteral("select CollectionNo,MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount,"
                       "ActualCollectionTime from MilkReceipt"),
        {u"9|5|" + Shivaji01::FromUnicode(u"दत्तात्रय नारायण कदम") + u"|mhOsa|6.2|7|47.5|294.5|6.05"});
    tour.KeepReport(QStringLiteral("receipt"), QStringLiteral("294.50"), 1);
    tour.Step(QStringLiteral("shift-grid"), {});
    tour.CheckReads(QStringLiteral("txtCollectionNo"), QStringLiteral("10"));
    tour.CheckReads(QStringLiteral("lblTotalCowLiters"), QStringLiteral("38.750"));
    tour.CheckReads(QStringLiteral("lblTotalBuffLiters"), QStringLiteral("25.875"));
    tour.CheckColumn(QStringLiteral("DataGridInwards"), u"CollectionNo", QStringLiteral("9 8 7 6 4 3 2 1"));
}

// The sum of a column over the member's ten days, from the database.
QString SumOfTheFirstMember(QStringView column)
{
    double sum = 0;
    for (Recordset row(gCn,
             Sql(u"select ", column,
                 u" from MilkCollections where MemberNo=1 and CollectionDate>=#05/01/2026# "
                 u"and CollectionDate<=#05/10/2026#"));
         !row.Eof(); row.MoveNext())
        sum += row.At(0).Number();
    return QString::number(sum, 'f', 3);
}

void LookAtAMember(Tour& tour)
{
    tour.Step(QStringLiteral("member-frame"), Enter + QStringLiteral("{F7}"));
    tour.Type(QStringLiteral("01052026") + Enter + QStringLiteral("10052026") + Enter + QStringLiteral("1")
        + Enter);
    tour.Step(QStringLiteral("member-frame-name"), {});
    tour.Step(QStringLiteral("member-ten-days"), Enter + Enter);
    tour.CheckReads(QStringLiteral("lblCowTotalLiters"), SumOfTheFirstMember(u"Liters"));
    tour.CheckReads(QStringLiteral("lblCowTotal"), SumOfTheFirstMember(u"Amount"));
    tour.CheckReads(QStringLiteral("lblBuffTotal"), QStringLiteral("0.000"));
    tour.Type(QStringLiteral("%i"));
    tour.KeepReport(QStringLiteral("member-statement"), QStringLiteral("01/05/2026"), 2);
    tour.Step(QStringLiteral("shift-again"), Escape);
    tour.CheckRows(QStringLiteral("rows of the shift in its copy"),
        QStringLiteral("select count(*) from MilkCollectionsTemp where CollectionTime='sakaL'"),
        {QStringLiteral("8")});
    tour.Type(Escape);
}

}

void PlayPaper(Tour& tour)
{
    ChooseSlipsOnScreen(tour);
    TakeADelivery(tour);
    LookAtAMember(tour);
}
