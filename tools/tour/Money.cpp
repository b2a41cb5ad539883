#include "platform/text/Shivaji01.h"
#include "tools/reckoning/PaymentReckoning.h"
#include "tools/tour/Tour.h"

namespace {

const QString Yes = QStringLiteral("%h");
const QString No = QStringLiteral("%n");

const PaymentReckoning::Period LastOfApril{QDate(2026, 4, 21), QDate(2026, 4, 30), QDate(2026, 4, 30)};
const PaymentReckoning::Period FirstOfMay{QDate(2026, 5, 1), QDate(2026, 5, 10), QDate(2026, 5, 10)};

QString Day(const QDate& day)
{
    return day.toString(QStringLiteral("ddMMyyyy"));
}

// From the list of reports: cow milk of fat 4.0 to 4.4 costs more from the 6th on, and what was taken in
// since then is priced anew.
void RaiseTheRates(Tour& tour)
{
    tour.Step(QStringLiteral("rates"),
        Escape + QStringLiteral("{HOME}") + Enter + QStringLiteral("{DOWN}{DOWN}") + Enter);
    tour.Step(QStringLiteral("rates-date"), QStringLiteral("%d06052026") + Enter);
    tour.Step(QStringLiteral("rates-row"),
        QStringLiteral("4") + Enter + Enter + QStringLiteral("35") + Enter + QStringLiteral("0.15") + Enter
            + QStringLiteral("0.15") + Enter + Enter);
    for (int row = 1; row < 5; ++row)
        tour.Type(Enter + Enter + Enter + Enter + Enter);
    tour.Step(QStringLiteral("rates-raised"), {});
    tour.Step(QStringLiteral("rates-question"), QStringLiteral("%s"));
    tour.Step(QStringLiteral("rates-saved"), Yes);
    tour.CheckRows(QStringLiteral("the new chart"),
        QStringLiteral(
            "select Fat,CowRate,BuffRate from Fat060526 where Fat>='3.9' and Fat<='4.5' order by Fat"),
        {QStringLiteral("3.9|34.28|42.85"), QStringLiteral("4|35|43"), QStringLiteral("4.1|35.15|43.15"),
            QStringLiteral("4.2|35.3|43.3"), QStringLiteral("4.3|35.45|43.45"),
            QStringLiteral("4.4|35.6|43.6"), QStringLiteral("4.5|35|43.75")});
    tour.CheckRows(QStringLiteral("deliveries before the 6th at another rate"),
        QStringLiteral("select count(*) from MilkCollections where CollectionDate<#05/06/2026# and "
                       "Animal='gaaya' and Fat=4.2 and Rate<>34.64"),
        {QStringLiteral("0")});
    tour.CheckRows(QStringLiteral("deliveries from the 6th on that aren't priced anew"),
        QStringLiteral("select count(*) from MilkCollections where CollectionDate>=#05/06/2026# and "
                       "Animal='gaaya' and Fat=4.2 and (Rate<>35.3 or Amount<>Liters*Rate)"),
        {QStringLiteral("0")});
    tour.Type(Escape + Escape);
}

struct Advance {
    const char* day = nullptr;
    int member = 0;
    std::initializer_list<std::pair<QString, QString>> heads; // and rupees
};

void KeyAnAdvance(Tour& tour, const Advance& advance)
{
    tour.Type(QStringLiteral("%n") + QLatin1String(advance.day) + Enter + Enter
        + QString::number(advance.member) + Enter + Enter);
    for (const auto& [head, rupees] : advance.heads)
        tour.Type(KeysOf(head) + Enter + rupees + Enter + Enter);
}

// Three advances of four heads; the first is printed.
void GiveAdvances(Tour& tour)
{
    const QString advance = QStringLiteral("]cala");
    tour.Step(QStringLiteral("advances"), QStringLiteral("{F4}"));
    KeyAnAdvance(tour,
        {"02052026", 3,
            {{advance, QStringLiteral("1500")}, {QStringLiteral("KaV"), QStringLiteral("642.5")}}});
    tour.Step(QStringLiteral("advance-keyed"), {});
    tour.Step(QStringLiteral("advance-question"), QStringLiteral("{F4}") + Enter);
    tour.Step(QStringLiteral("advance-narration"), Yes);
    tour.Type(KeysOf(u"महादेव शंकर शिंदे") + Enter + Enter);
    tour.KeepReport(QStringLiteral("advance-voucher"), QStringLiteral("642.50"), 1);
    KeyAnAdvance(
        tour, {"04052026", 10, {{QStringLiteral("ikraNaa maalaÀroSana"), QStringLiteral("385.25")}}});
    tour.Type(QStringLiteral("{F4}") + Enter + No);
    KeyAnAdvance(tour,
        {"07052026", 16, {{advance, QStringLiteral("700")}, {QStringLiteral("[tr"), QStringLiteral("45")}}});
    tour.Type(QStringLiteral("{F4}") + Enter + No);
    tour.CheckRows(QStringLiteral("advances of May"),
        QStringLiteral("select TranDate,TranId,MemberNo,AdvanceType,Amount from TransactionsDetails where "
                       "TranDate>=#05/01/2026# and TranDate<=#05/10/2026# order by TranDate,AdvanceType"),
        {QStringLiteral("02/05/2026|1|3|KaV|642.5"), QStringLiteral("02/05/2026|1|3|]cala|1500"),
            QStringLiteral("04/05/2026|1|10|ikraNaa maalaÀroSana|385.25"),
            QStringLiteral("07/05/2026|1|16|[tr|45"), QStringLiteral("07/05/2026|1|16|]cala|700")});
    tour.Type(Escape);
}

void TakeMoneyBack(Tour& tour)
{
    tour.Step(QStringLiteral("receipts"), QStringLiteral("{F4}{DOWN}"));
    tour.Step(QStringLiteral("receipt-of-money"),
        QStringLiteral("%n08052026") + Enter + Enter + QStringLiteral("3") + Enter + Enter
            + QStringLiteral("300") + Enter);
    tour.Type(Enter + Yes + KeysOf(u"महादेव शंकर शिंदे") + Enter + Enter);
    tour.KeepReport(QStringLiteral("receipt-voucher"), QStringLiteral("300.00"), 1);
    tour.CheckRows(QStringLiteral("money that came back in May"),
        QStringLiteral("select TranDate,TranId,MemberNo,AdvanceType,Amount from AdvanceReceipt where "
                       "TranDate>=#05/01/2026# and TranDate<=#05/10/2026#"),
        {QStringLiteral("08/05/2026|1|3|Uchal Receipt|300")});
    tour.Type(Escape);
}

// From the menu; ends on the list of transactions.
void SetInstallments(Tour& tour)
{
    tour.Step(QStringLiteral("installments"),
        QStringLiteral("{HOME}{DOWN}") + Enter + QStringLiteral("{DOWN}{DOWN}{DOWN}{DOWN}") + Enter);
    tour.Type(QStringLiteral("38") + Enter + Enter + QStringLiteral("2500") + Enter);
    tour.Step(QStringLiteral("installments-set"),
        QStringLiteral("16") + Enter + Enter + QStringLiteral("300") + Enter);
    tour.CheckRows(QStringLiteral("installments"),
        QStringLiteral("select MemberNo,Kapat from InstallmentTable order by MemberNo"),
        {QStringLiteral("16|300"), QStringLiteral("38|2500")});
    tour.Type(Escape);
}

// The screen's box of installments is cleared each time it opens.
const QString TickInstallments = QStringLiteral("+{TAB} {TAB}");

void PayOneMember(Tour& tour, PaymentReckoning& reckoning)
{
    tour.Step(QStringLiteral("payment"), QStringLiteral("{DOWN}") + Enter);
    reckoning.OpenScreen();
    tour.Type(TickInstallments + QStringLiteral("{DOWN}") + Enter + Enter);
    tour.Step(QStringLiteral("payment-period"), QStringLiteral("%n") + Day(FirstOfMay.from) + Enter);
    tour.Step(QStringLiteral("payment-worked-out"), Enter + QStringLiteral("3") + Enter);
    tour.Step(QStringLiteral("payment-question"), QStringLiteral("%s"));
    tour.Step(QStringLiteral("payment-saved"), Yes);
    reckoning.Pay(3, FirstOfMay);
    tour.Step(QStringLiteral("payment-to-take-back"),
        QStringLiteral("%k") + Day(FirstOfMay.from) + Enter + QStringLiteral("3") + Enter);
    tour.Type(Enter);
    reckoning.TakeBack(3, FirstOfMay.from);
    tour.CheckRows(QStringLiteral("payments after one was taken back"),
        QStringLiteral("select count(*) from MilkPayments where FromDate=#05/01/2026#"),
        {QStringLiteral("0")});
    tour.Type(QStringLiteral("%n") + Day(FirstOfMay.from) + Enter + Enter + QStringLiteral("3") + Enter
        + Enter + Enter + Enter);
    tour.Step(QStringLiteral("payment-less-deducted"), QStringLiteral("1000") + Enter);
    tour.Type(QStringLiteral("%s") + Yes);
    reckoning.Pay(3, FirstOfMay, {.cowDeposit = {}, .uchal = Exact::Of(1000)});
    tour.Type(Escape);
}

void PayTheRest(Tour& tour, PaymentReckoning& reckoning)
{
    tour.Type(Enter + TickInstallments);
    reckoning.OpenScreen();
    tour.Step(QStringLiteral("payments-of-all"),
        QStringLiteral("{DOWN}{DOWN}") + Enter + Day(FirstOfMay.from) + Enter + Enter + QStringLiteral("1")
            + Enter + Enter);
    tour.Step(QStringLiteral("payments-paid-already"), Enter);
    tour.Step(QStringLiteral("payments-done"), Enter);
    reckoning.PayMany(1, 41, FirstOfMay);
    tour.CheckRows(QStringLiteral("members without milk"),
        QStringLiteral("select MemberNo from ShortMemberList"), {QStringLiteral("41")});
    tour.Type(Escape + Escape); // the list of the two choices, and the screen
}

// Notes each row beside what was reckoned from the raw rows.
void CheckAllPayments(Tour& tour, const PaymentReckoning& reckoning)
{
    for (const Compared& rows : reckoning.Comparison()) {
        tour.Check(rows.what + QStringLiteral(", rows"), QString::number(rows.stored.size()),
            QString::number(rows.reckoned.size()));
        for (qsizetype at = 0; at < std::max(rows.stored.size(), rows.reckoned.size()); ++at)
            tour.Check(rows.what, rows.stored.value(at), rows.reckoned.value(at));
    }
}

}

void PlayMoney(Tour& tour)
{
    RaiseTheRates(tour);
    GiveAdvances(tour);
    TakeMoneyBack(tour);
    SetInstallments(tour);
    PaymentReckoning reckoning;
    reckoning.ReadSettings(false);
    reckoning.ReadOpening();
    reckoning.ReadMilk(LastOfApril);
    reckoning.PayMany(1, 40, LastOfApril);
    reckoning.ReadSettings(true);
    reckoning.ReadMilk(FirstOfMay);
    PayOneMember(tour, reckoning);
    PayTheRest(tour, reckoning);
    CheckAllPayments(tour, reckoning);
}
