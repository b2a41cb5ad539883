#include "platform/text/Shivaji01.h"
#include "tools/tour/Tour.h"

namespace {

const QString PeriodBegins = QStringLiteral("01052026");
const QString PeriodEnds = QStringLiteral("10052026");
const QString AllMembers = QString(QStringLiteral("1") + Enter + Enter);

void PrintSlips(Tour& tour)
{
    tour.OpenEntry(QStringLiteral("report-slips"), 2);
    tour.Type(PeriodEnds + Enter + AllMembers + ShowReport);
    tour.KeepReport(QStringLiteral("slips"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape);
}

void PrintRegisters(Tour& tour)
{
    const QString period = PeriodBegins + Enter + Enter + AllMembers;
    tour.OpenEntry(QStringLiteral("report-payment-register"), 4);
    tour.Type(period + ShowReport);
    tour.KeepReport(QStringLiteral("payment-register"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.TheClerk().Press(QStringLiteral("OptionLS"));
    tour.Type(ShowReport);
    tour.KeepReport(QStringLiteral("payment-register-across"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape);
    tour.OpenEntry(QStringLiteral("report-deposit-register"), 5);
    tour.Type(period + ShowReport);
    tour.KeepReport(QStringLiteral("deposit-register"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape);
    tour.OpenEntry(QStringLiteral("report-advance-register"), 6);
    tour.Type(period + ShowReport);
    tour.KeepReport(QStringLiteral("advance-register"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape);
}

void StateAMembersAdvances(Tour& tour)
{
    tour.OpenEntry(QStringLiteral("report-advances-of-a-member"), 7);
    tour.Type(PeriodBegins + Enter + PeriodEnds + Enter + QStringLiteral("3") + Enter + ShowReport);
    tour.KeepReport(QStringLiteral("advances-of-a-member"), QStringLiteral("642.50"), 1);
    tour.Type(Escape);
}

// From the list of reports to that of the yearly ones.
void StateBalances(Tour& tour)
{
    const QString year = QStringLiteral("01042026") + Enter + PeriodEnds + Enter + AllMembers;
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}{DOWN}{DOWN}") + Enter);
    tour.Step(QStringLiteral("report-advance-balances"), QStringLiteral("{HOME}") + Enter);
    tour.Type(year + ShowReport);
    tour.KeepReport(QStringLiteral("advance-balances"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape);
    tour.Step(QStringLiteral("report-deposit-balances"), QStringLiteral("{HOME}{DOWN}") + Enter);
    tour.Type(year + ShowReport);
    tour.KeepReport(QStringLiteral("deposit-balances"), Shivaji01::FromUnicode(u"महादेव शंकर शिंदे"), 1);
    tour.Type(Escape + Escape);
}

}

void PlayMoneyPaper(Tour& tour)
{
    tour.Type(Escape + QStringLiteral("{HOME}{DOWN}{DOWN}") + Enter);
    PrintSlips(tour);
    PrintRegisters(tour);
    StateAMembersAdvances(tour);
    StateBalances(tour);
    tour.Type(QStringLiteral("{HOME}{DOWN}{DOWN}") + Enter);
}
