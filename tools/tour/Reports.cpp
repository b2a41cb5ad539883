#include "platform/text/Shivaji01.h"
#include "tools/tour/Tour.h"

namespace {

void ListADaysDeliveries(Tour& tour)
{
    tour.Step(QStringLiteral("report-collections"), QStringLiteral("{HOME}") + Enter);
    tour.Type(QStringLiteral("01062026") + Enter);
    tour.Type(Enter + ShowReport);
    tour.CheckRows(QStringLiteral("deliveries of the report"),
        QStringLiteral("select count(*),min(CollectionNo),max(CollectionNo) from MilkCollectionsTemp"),
        {QStringLiteral("9|1|10")});
    tour.KeepReport(QStringLiteral("collections"), QStringLiteral("433.00"), 1);
    tour.Type(Escape);
}

void ListPayments(Tour& tour)
{
    tour.Step(QStringLiteral("report-payments"), QStringLiteral("{DOWN}{DOWN}{DOWN}") + Enter);
    tour.Type(QStringLiteral("30042026") + Enter + ShowReport);
    tour.KeepReport(QStringLiteral("payments-in-cash"), Shivaji01::FromUnicode(u"लक्ष्मी बाळू मोरे"), 1);
    tour.Type(QStringLiteral("+{TAB}{DOWN}") + ShowReport);
    tour.KeepReport(QStringLiteral("payments-by-bank"), Shivaji01::FromUnicode(u"रामचंद्र विठ्ठल पाटील"), 1);
    tour.Type(Escape);
}

void StateAMembersMonth(Tour& tour)
{
    tour.Step(QStringLiteral("report-statement"),
        QStringLiteral("{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}") + Enter);
    tour.Type(QStringLiteral("01052026") + Enter + QStringLiteral("31052026") + Enter + Enter);
    tour.Type(KeysOf(u"सुनीता गणपत जाधव") + ShowReport);
    tour.KeepReport(QStringLiteral("statement"), QStringLiteral("31/05/2026"), 2);
    tour.Type(Escape);
}

void ListMembers(Tour& tour)
{
    tour.Step(QStringLiteral("report-members"), QStringLiteral("{DOWN}") + Enter);
    tour.Type(ShowReport);
    tour.CheckRows(QStringLiteral("members of the report"),
        QStringLiteral("select Crieteria,count(*),max(MemberNo) from MembersListReport group by Crieteria"),
        {QStringLiteral("Complete|41|41")});
    tour.KeepReport(QStringLiteral("members-list"), Shivaji01::FromUnicode(u"आशा रमेश सावंत"), 1);
    tour.Type(Escape);
}

}

void PlayReports(Tour& tour)
{
    ListADaysDeliveries(tour);
    ListPayments(tour);
    StateAMembersMonth(tour);
    ListMembers(tour);
}
