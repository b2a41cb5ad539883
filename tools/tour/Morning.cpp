#include "platform/text/Shivaji01.h"
#include "tools/tour/Tour.h"

namespace {

void OpenTheProgram(Tour& tour)
{
    tour.Step(QStringLiteral("title"), {});
    tour.Step(QStringLiteral("caution"), Enter);
    tour.Step(QStringLiteral("working-day"), Enter);
    tour.Step(QStringLiteral("menu"), QStringLiteral("01062026") + Enter + Enter);
    tour.Step(QStringLiteral("menu-reports"), QStringLiteral("{DOWN}{DOWN}") + Enter);
    tour.Step(QStringLiteral("menu-tools"), QStringLiteral("{ESC}") + Enter);
    tour.Type(QStringLiteral("{ESC}{HOME}"));
}

void AddMember(Tour& tour)
{
    tour.Step(QStringLiteral("menu-masters"), Enter);
    tour.Step(QStringLiteral("members"), Enter);
    tour.Step(QStringLiteral("members-new"), QStringLiteral("%n"));
    tour.Step(QStringLiteral("members-new-name"),
        Enter + KeysOf(u"आशा रमेश सावंत") + Enter + KeysOf(u"माळ वस्ती") + Enter);
    tour.Type(Enter); // no village
    tour.Step(QStringLiteral("members-new-animal"), QStringLiteral("1"));
    tour.Type(Enter + QStringLiteral("1") + Enter);
    tour.Step(QStringLiteral("members-new-opening"), QStringLiteral("250") + Enter + QStringLiteral("1"));
    tour.Type(QStringLiteral("%s"));
    tour.Step(QStringLiteral("members-saved"), {});
    tour.CheckRows(QStringLiteral("new member"),
        QStringLiteral(
            "select MemberNo,MemberName,Animal,PaymentType,OpeningBalance,ClosingBalance,ClosingDorC "
            "from MembersMaster where MemberNo=41"),
        {QStringLiteral("41|%1|gaaya|raoK|250|250|C").arg(Shivaji01::FromUnicode(u"आशा रमेश सावंत"))});
    tour.Type(QStringLiteral("{ESC}{ESC}"));
}

void OpenTheCounter(Tour& tour)
{
    tour.Step(QStringLiteral("menu-transactions"), QStringLiteral("{DOWN}") + Enter);
    tour.Step(QStringLiteral("counter"), Enter);
    tour.Step(QStringLiteral("counter-shift"), Enter);
    tour.Step(QStringLiteral("counter-number"), QStringLiteral("1") + Enter);
}

void TakeDeliveries(Tour& tour)
{
    tour.Step(QStringLiteral("delivery-member"), Enter + QStringLiteral("1"));
    tour.Step(QStringLiteral("delivery-liters"), Enter + QStringLiteral("12.5"));
    tour.Step(QStringLiteral("delivery-fat"), Enter + QStringLiteral("4.2"));
    tour.Step(QStringLiteral("delivery-amount"), Enter + Enter);
    tour.Step(QStringLiteral("delivery-saved"), Enter);
    tour.Type(DeliveryKeys("2", "8.25", "7.1"));
    tour.Type(DeliveryKeys("4", "5", "3.8"));
    tour.Type(DeliveryKeys("41", "9.75", "4"));

    tour.Step(QStringLiteral("member-of-both-animals"), Enter + QStringLiteral("3") + Enter);
    tour.Type(QStringLiteral("1") + Enter + QStringLiteral("6.4") + Enter + QStringLiteral("4.1") + Enter
        + Enter + Enter);
    tour.Type(Enter + QStringLiteral("3") + Enter + QStringLiteral("2") + Enter + QStringLiteral("4.3")
        + Enter + QStringLiteral("6.8") + Enter + Enter + Enter);

    tour.Step(QStringLiteral("member-by-name"), Enter + Enter + KeysOf(u"शोभा"));
    tour.Step(QStringLiteral("member-by-name-picked"), QStringLiteral("{DOWN}") + Enter);
    tour.Type(Enter + QStringLiteral("7.125") + Enter + QStringLiteral("6.5") + Enter + Enter + Enter);

    tour.Type(Enter + QStringLiteral("6") + Enter + QStringLiteral("11") + Enter);
    tour.Step(QStringLiteral("fat-refused"), QStringLiteral("42") + Enter);
    tour.Check(
        QStringLiteral("a fat of 42 holds the focus"), tour.TheClerk().Focus(), QStringLiteral("txtFat"));
    tour.Check(QStringLiteral("a fat of 42 is there to be mended"),
        tour.TheClerk().Reads(QStringLiteral("txtFat")), QStringLiteral("42.0"));
    tour.Type(QStringLiteral("4.4") + Enter + Enter + Enter);
}

void MendTheShift(Tour& tour)
{
    tour.Step(QStringLiteral("duplicate"), DeliveryKeys("1", "3", "4.2"));
    tour.Type(Enter);

    tour.Step(QStringLiteral("change-row-3"), QStringLiteral("3") + Enter + Enter);
    tour.Type(QStringLiteral("5.5") + Enter + Enter + Enter + Enter);
    tour.Type(QStringLiteral("5") + Enter);
    tour.Step(QStringLiteral("delete-row-5"), {});
    tour.Step(QStringLiteral("deleted"), QStringLiteral("{F10}"));
}

void CheckTheShift(Tour& tour)
{
    const auto row = [](const char* number, const char16_t* name, const char* rest) -> QString {
        return QLatin1String(number) + Shivaji01::FromUnicode(name) + QLatin1String(rest);
    };
    tour.CheckRows(QStringLiteral("delivery"),
        QStringLiteral(
            "select CollectionNo,MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime "
            "from MilkCollections where CollectionDate=#06/01/2026# and CollectionTime='sakaL' "
            "order by CollectionNo"),
        {row("1|1|", u"रामचंद्र विठ्ठल पाटील", "|gaaya|12.5|4.2|34.64|433|6.05"),
            row("2|2|", u"सुनीता गणपत जाधव", "|mhOsa|8.25|7.1|47.65|393.11|6.05"),
            row("3|4|", u"लक्ष्मी बाळू मोरे", "|gaaya|5.5|3.8|34.16|187.88|6.05"),
            row("4|41|", u"आशा रमेश सावंत", "|gaaya|9.75|4|34.4|335.4|6.05"),
            row("6|3|", u"महादेव शंकर शिंदे", "|mhOsa|4.3|6.8|47.2|202.96|6.05"),
            row("7|8|", u"शोभा हणमंत साळुंखे", "|mhOsa|7.125|6.5|46.75|333.09|6.05"),
            row("8|6|", u"अनिल मारुती पवार", "|gaaya|11|4.4|34.88|383.68|6.05")});
    tour.CheckRows(QStringLiteral("closing litres of the new member"),
        QStringLiteral(
            "select CowClosingLits,BuffClosingLits,ClosingBalance from MembersMaster where MemberNo=41"),
        {QStringLiteral("9.75|0|250")});
}

}

void PlayMorning(Tour& tour)
{
    OpenTheProgram(tour);
    AddMember(tour);
    OpenTheCounter(tour);
    TakeDeliveries(tour);
    MendTheShift(tour);
    CheckTheShift(tour);
}
