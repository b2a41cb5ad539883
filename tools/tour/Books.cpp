#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"
#include "tools/tour/RawMilk.h"
#include "tools/tour/Tour.h"

#include <algorithm>
#include <map>

namespace {

const QString Morning = QStringLiteral("sakaL");
const QString Evening = QStringLiteral("saMQyaakaL");
const QString Cow = QStringLiteral("gaaya");
const QString Buffalo = QStringLiteral("mhOsa");

const QString Week = QString(QStringLiteral("26052026") + Enter + QStringLiteral("01062026") + Enter);

bool IsInWeek(const QDate& day)
{
    return day >= QDate(2026, 5, 26) && day <= QDate(2026, 6, 1);
}

// All milk in the books; nothing of this part of the tour changes it.
struct AllMilk {
    RawMilkRows deliveries = RawDeliveries();
    RawMilkRows sales = RawSales();
};

// What came in and went out of one milk in one shift.
struct InAndOut {
    Exact in;
    Exact federation;
    Exact out;
    Exact ours;
};

InAndOut Of(Exact RawMilk::*figure, const RawMilk& like, const AllMilk& milk, const QStringList& federations)
{
    const RawMilkTest same = [&like](const RawMilk& one) {
        return one.day == like.day && one.shift == like.shift && one.animal == like.animal;
    };
    const RawMilkTest toThem = [&](const RawMilk& sale) {
        return same(sale) && federations.contains(sale.name);
    };
    return {SumOf(milk.deliveries, figure, same), SumOf(milk.sales, figure, toThem),
        SumOf(milk.sales, figure, same), SumOf(milk.sales, &RawMilk::ourLitres, same)};
}

// The milks of the week in the order of the statement.
RawMilkRows MilksOfTheWeek()
{
    RawMilkRows milks;
    for (QDate day(2026, 5, 26); IsInWeek(day); day = day.addDays(1))
        for (const QString& shift : {Morning, Evening})
            for (const QString& animal : {Cow, Buffalo}) {
                RawMilk milk;
                milk.day = day;
                milk.shift = shift;
                milk.animal = animal;
                milks.push_back(milk);
            }
    return milks;
}

// The rows that the statement of the week has to have. In rupees nothing is told of the own measure.
QStringList GainAndLoss(Exact RawMilk::*figure, const AllMilk& milk, const QStringList& federations)
{
    QStringList lines;
    for (const RawMilk& like : MilksOfTheWeek()) {
        const InAndOut sums = Of(figure, like, milk, federations);
        if (sums.in == Exact() && sums.out == Exact())
            continue;
        lines.append(QStringList{like.day.toString(QStringLiteral("dd/MM/yyyy")), like.shift, like.animal,
            sums.in.Text(), (sums.out - sums.federation).Text(), sums.federation.Text(), sums.out.Text(),
            figure == &RawMilk::litres ? (-sums.ours).Text() : QString()}
                         .join(u'|'));
    }
    return lines;
}

const QString StagedGain = QStringLiteral(
    "select CollectionDate,CollectionTime,Animal,LitersIn,round(LitersLocal,5),LitersSangh,LitersOut,"
    "OurLiters from VadhTootReport order by CollectionDate,CollectionTime desc,Animal");

void StateGainAndLoss(Tour& tour, const AllMilk& milk)
{
    const QString other = Shivaji01::FromUnicode(u"कोयना दूध संघ");
    tour.OpenEntry(QStringLiteral("report-gain"), 8);
    tour.Type(Week);
    tour.Type(Enter + Enter);
    tour.CheckRows(QStringLiteral("gain and loss in litres"), StagedGain,
        GainAndLoss(&RawMilk::litres, milk, {Federation(), other}));
    tour.KeepReport(QStringLiteral("gain-in-litres"), QStringLiteral("01/06/2026"), 3);
    tour.Type(Escape);
    tour.OpenEntry({}, 8);
    tour.Type(Week + QStringLiteral("{DOWN}") + Enter + Enter);
    tour.CheckRows(QStringLiteral("gain and loss in rupees"), StagedGain,
        GainAndLoss(&RawMilk::amount, milk, {Federation()}));
    tour.KeepReport(QStringLiteral("gain-in-rupees"), QStringLiteral("01/06/2026"), 3);
    tour.Type(Escape);
}

// The sum that stands at the end of a list, as it is printed.
QString SumOfDays(const RawMilkRows& rows, const QDate& from, const QDate& to)
{
    const Exact sum =
        SumOf(rows, &RawMilk::amount, [&](const RawMilk& one) { return one.day >= from && one.day <= to; });
    return WithDecimals(sum.ToThePaisa(), 2);
}

void ListPurchasesAndSales(Tour& tour, const AllMilk& milk)
{
    tour.OpenEntry(QStringLiteral("report-purchases"), 9);
    tour.Type(QStringLiteral("01062026") + Enter + QStringLiteral("01062026") + Enter + ShowReport);
    tour.KeepReport(
        QStringLiteral("purchases"), SumOfDays(milk.deliveries, QDate(2026, 6, 1), QDate(2026, 6, 1)), 2);
    tour.Type(Escape);
    tour.OpenEntry({}, 10);
    tour.Type(Week + ShowReport);
    tour.KeepReport(
        QStringLiteral("sales-list"), SumOfDays(milk.sales, QDate(2026, 5, 26), QDate(2026, 6, 1)), 2);
    tour.Type(Escape);
}

void CompareTheMeasures(Tour& tour, const AllMilk& milk)
{
    tour.OpenEntry({}, 11);
    tour.Step(QStringLiteral("report-comparison-accounts"), Week);
    tour.Type(KeysOf(Federation()) + ShowReport);
    const RawMilkTest ofTheWeek = [](const RawMilk& sale) {
        return IsInWeek(sale.day) && sale.name == Federation();
    };
    const Exact ours = SumOf(milk.sales, &RawMilk::ourLitres, ofTheWeek);
    tour.KeepReport(QStringLiteral("comparison"), WithDecimals(ours, 3), 2);
    tour.Type(Escape);
}

// An entry of the vouchers, seen from one account.
struct Entry {
    QDate day;
    int number = 0;
    Exact received;
    Exact paid;
};

std::vector<Entry> EntriesOf(const QString& account)
{
    std::vector<Entry> entries;
    for (Recordset row(gCn, QStringLiteral("select * from TransactionsMaster")); !row.Eof(); row.MoveNext()) {
        const Exact amount = Exact::Of(row[u"Amount"].Number());
        const bool isReceived = row[u"DAccountName"].Text() == account;
        if (isReceived || row[u"CAccountName"].Text() == account)
            entries.push_back({row[u"TranDate"].Date(), static_cast<int>(row[u"TranId"].Number()),
                isReceived ? amount : Exact(), isReceived ? Exact() : amount});
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& one, const Entry& other) {
        return std::pair(one.day, one.number) < std::pair(other.day, other.number);
    });
    return entries;
}

// What is in hand, and on which side it stands. What is owed would stand on the other.
QString Balance(Exact inHand)
{
    return inHand < Exact() ? (-inHand).Text() + QStringLiteral("|C") : inHand.Text() + QStringLiteral("|D");
}

// The rows of the cash book of May, with the balance before and after each.
QStringList CashOfMay(Exact inHand)
{
    QStringList lines;
    for (const Entry& entry : EntriesOf(QStringLiteral("raoK"))) {
        const Exact before = inHand;
        inHand += entry.received - entry.paid;
        if (entry.day >= QDate(2026, 5, 1) && entry.day <= QDate(2026, 5, 31))
            lines.append(
                QStringList{entry.day.toString(QStringLiteral("dd/MM/yyyy")), QString::number(entry.number),
                    entry.received.Text(), entry.paid.Text(), Balance(before), Balance(inHand)}
                    .join(u'|'));
    }
    return lines;
}

void ReadTheBooks(Tour& tour)
{
    const QString may = QStringLiteral("01052026") + Enter + QStringLiteral("31052026") + Enter;
    tour.OpenEntry(QStringLiteral("report-cash-book"), 14);
    tour.Type(may + ShowReport);
    const Recordset cash(gCn, QStringLiteral("select * from AccountsMaster where AccountName='raoK'"));
    tour.CheckRows(QStringLiteral("cash book"),
        QStringLiteral("select TranDate,TranId,DAmount,CAmount,OpeningBalance,OpeningDorC,ClosingBalance,"
                       "ClosingDorC from LedgersMaster"),
        CashOfMay(-Exact::Of(cash[u"OpeningBalance"].Number())));
    tour.KeepReport(QStringLiteral("cash-book"), QStringLiteral("24368.75"), 2);
    tour.Type(Escape);
    tour.OpenEntry({}, 15);
    tour.Step(QStringLiteral("report-bank-book-accounts"), may);
    tour.Type(QStringLiteral("{DOWN}") + Enter + ShowReport);
    tour.KeepReport(QStringLiteral("bank-book"), QStringLiteral("184500.00"), 2);
    tour.Type(Escape);
}

// The bonus of each member: litres of both animals, what they come to at 0.50 and 0.75, and what he was given
// and hasn't given back.
QStringList Bonuses(const AllMilk& milk)
{
    std::map<int, Exact> owed;
    for (Recordset row(gCn, QStringLiteral("select * from TransactionsDetails")); !row.Eof(); row.MoveNext())
        owed[static_cast<int>(row[u"MemberNo"].Number())] += Exact::Of(row[u"Amount"].Number());
    for (Recordset row(gCn, QStringLiteral("select * from AdvanceReceipt")); !row.Eof(); row.MoveNext())
        owed[static_cast<int>(row[u"MemberNo"].Number())] += -Exact::Of(row[u"Amount"].Number());
    QStringList lines;
    for (Recordset member(gCn, QStringLiteral("select * from MembersMaster order by MemberNo"));
         !member.Eof(); member.MoveNext()) {
        const int number = static_cast<int>(member[u"MemberNo"].Number());
        const auto litres = [&](const QString& animal) {
            return SumOf(milk.deliveries, &RawMilk::litres,
                [&](const RawMilk& can) { return can.number == number && can.animal == animal; });
        };
        const Exact cow = litres(Cow);
        const Exact buffalo = litres(Buffalo);
        const Exact bonus = (cow + cow + buffalo + buffalo + buffalo).Times(Exact::OfPaise(25));
        lines.append(QStringList{QString::number(number), WithDecimals(cow, 3), WithDecimals(buffalo, 3),
            WithDecimals(bonus, 2), WithDecimals(owed[number], 2)}
                         .join(u'|'));
    }
    return lines;
}

QStringList StoredBonuses()
{
    QStringList lines;
    for (Recordset row(gCn, QStringLiteral("select * from BonusPayments order by SerialNo")); !row.Eof();
         row.MoveNext())
        lines.append(QStringList{row[u"MemberNo"].Text(), Format(row[u"CurrentCowLiters"].Number(), u"0.000"),
            Format(row[u"CurrentBuffLiters"].Number(), u"0.000"),
            Format(row[u"TotalBonus"].Number(), u"0.00"), Format(row[u"Advance"].Number(), u"0.00")}
                         .join(u'|'));
    return lines;
}

// From the list of reports: the bonus of the year, one member of which is corrected, and its statement.
void ShareTheBonusOut(Tour& tour, const AllMilk& milk)
{
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}{DOWN}{DOWN}{DOWN}") + Enter);
    tour.OpenEntry({}, 2);
    tour.Type(QStringLiteral("01042026") + Enter + QStringLiteral("31032027") + Enter + QStringLiteral("1")
        + Enter + Enter + QStringLiteral("3") + Enter + QStringLiteral("0.5") + Enter + QStringLiteral("0.75")
        + Enter);
    tour.Step(QStringLiteral("bonus-questions"), QStringLiteral(" "));
    tour.Step(QStringLiteral("bonus-members"), Enter + Enter);
    const QStringList stored = StoredBonuses();
    const QStringList expected = Bonuses(milk);
    tour.Check(
        QStringLiteral("bonus, rows"), QString::number(stored.size()), QString::number(expected.size()));
    for (qsizetype at = 0; at < std::max(stored.size(), expected.size()); ++at)
        tour.Check(QStringLiteral("bonus"), stored.value(at), expected.value(at));
    tour.Step(QStringLiteral("bonus-corrected"),
        QStringLiteral("3") + Enter + Enter + QStringLiteral("120.5") + Enter);
    tour.Type(ShowReport);
    tour.KeepReport(QStringLiteral("bonus-statement"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape);
}

}

void PlayBooks(Tour& tour)
{
    const AllMilk milk;
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}{DOWN}") + Enter);
    StateGainAndLoss(tour, milk);
    ListPurchasesAndSales(tour, milk);
    CompareTheMeasures(tour, milk);
    ReadTheBooks(tour);
    ShareTheBonusOut(tour, milk);
}
