#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/text/Shivaji01.h"
#include "tools/tour/RawMilk.h"
#include "tools/tour/Tour.h"

namespace {

QString NewBuyer()
{
    return Shivaji01::FromUnicode(u"जानाई आईस्क्रीम पार्लर");
}

QString Renamed()
{
    return Shivaji01::FromUnicode(u"आनंद मिठाई भांडार, वडगाव");
}

const QString Cash = QStringLiteral("raoK");

// From the list of reports to the customers: a new one, and a new name for an old one.
void KeepTheCustomers(Tour& tour)
{
    tour.Type(Escape + QStringLiteral("{HOME}") + Enter);
    tour.OpenEntry(QStringLiteral("customers"), 1);
    tour.Type(QStringLiteral("%n") + Enter + KeysOf(NewBuyer()) + Enter + QStringLiteral("3") + Enter
        + QStringLiteral("1") + Enter);
    tour.Step(QStringLiteral("customers-new"), QStringLiteral("20") + Enter + QStringLiteral("80.5") + Enter);
    tour.Type(QStringLiteral("%s"));
    tour.CheckRows(QStringLiteral("new customer"),
        QStringLiteral("select * from CustomersMaster where CustomerNo=7"),
        {u"1|7|" + NewBuyer() + u"|daonhI|sqaainak ivaËI|20|20|80.5|80.5"});

    tour.Step(QStringLiteral("customers-change"), QStringLiteral("%d3") + Enter + KeysOf(Renamed()) + Enter);
    tour.Type(QStringLiteral("%s"));
    tour.Type(Enter);
    const RawMilkRows sales = RawSales();
    int of = 0;
    int renamed = 0;
    for (const RawMilk& sale : sales) {
        of += sale.number == 3 ? 1 : 0;
        renamed += sale.name == Renamed() ? 1 : 0;
    }
    tour.Check(QStringLiteral("sales under the new name"), QString::number(renamed), QString::number(of));
    tour.Check(QStringLiteral("he has bought before"), of > 50 ? QStringLiteral("yes") : QStringLiteral("no"),
        QStringLiteral("yes"));
    tour.Type(Escape + Escape);
}

// The receipt of a sale is to be shown.
void LetReceiptsBeShown(Tour& tour)
{
    tour.Step(QStringLiteral("settings-receipt-of-sales"),
        QStringLiteral("{F7}^{PGDN}^{PGDN}{DOWN}") + QStringLiteral("2"));
    tour.Type(QStringLiteral("%s"));
    tour.CheckRows(QStringLiteral("setting of the receipt"),
        QStringLiteral("select MSRPrintStatus from AutoSettings"), {QStringLiteral("saovh va sËIna")});
    tour.Type(Escape);
}

// From the number: buyer, milk, litres.
QString Buys(const QString& name, const char* animal, const char* litres)
{
    return Enter + KeysOf(name) + Enter + QLatin1String(animal) + Enter + QLatin1String(litres);
}

// From the litres past the button. Without a rate the one of the settings stands.
QString For(const char* fat, const char* rate = "")
{
    return Enter + QLatin1String(fat) + Enter + QLatin1String(rate) + Enter + Enter + Enter;
}

// Two sales in the village, of which the first shows its receipt.
void SellInTheVillage(Tour& tour)
{
    tour.Type(QStringLiteral("{HOME}{DOWN}") + Enter);
    tour.OpenEntry({}, 6);
    tour.Step(QStringLiteral("sales-shift"), Enter + QStringLiteral("1") + Enter);
    tour.Step(QStringLiteral("sales-buyers"), Enter);
    tour.Type(KeysOf(Cash) + Enter + QStringLiteral("1") + Enter + QStringLiteral("4.5"));
    tour.Type(Enter + QStringLiteral("4.1") + Enter);
    tour.Step(QStringLiteral("sales-rate"), {});
    tour.Type(Enter + Enter + Enter);
    tour.KeepReport(QStringLiteral("sales-receipt"), QStringLiteral("216.00"), 2);
    tour.Type(Buys(NewBuyer(), "2", "6.5") + For("6.8") + Escape);
}

// The cow's milk goes to the federation with what the members brought beside it, the buffalo's with what
// stood on the society's own scale.
void SellToTheFederation(Tour& tour)
{
    tour.Step(QStringLiteral("sales-our-measure"), Buys(Federation(), "1", "44.2") + QStringLiteral("{F9}"));
    tour.Step(QStringLiteral("sales-our-measure-worked-out"), Enter + QStringLiteral(" "));
    const RawMilkTest thisCowMilk = [](const RawMilk& milk) {
        return milk.day == QDate(2026, 6, 1) && milk.shift == u"sakaL" && milk.animal == u"gaaya";
    };
    const RawMilkRows deliveries = RawDeliveries();
    tour.Check(QStringLiteral("litres that the members brought"),
        tour.TheClerk().Reads(QStringLiteral("txtOurLiters")),
        WithDecimals(SumOf(deliveries, &RawMilk::litres, thisCowMilk), 3));
    tour.Check(QStringLiteral("their average fat"), tour.TheClerk().Reads(QStringLiteral("txtOurFat")),
        QString::number(AverageTenths(deliveries, thisCowMilk) / 10.0, 'f', 1));
    tour.Type(Enter + Enter + QStringLiteral("8.5") + Enter + For("4.2", "38.25") + Escape);
    tour.Type(Buys(Federation(), "2", "18.5") + QStringLiteral("{F9}18.6") + Enter + Enter
        + QStringLiteral("6.8") + Enter + QStringLiteral("47.2") + Enter + QStringLiteral("9") + Enter
        + For("6.9", "51.5") + Escape);
    tour.Step(QStringLiteral("sales-of-the-shift"), {});
}

// A sale is changed, and one that was none is deleted.
void MendTheSales(Tour& tour)
{
    tour.Type(Buys(Cash, "1", "2") + For("4.1") + Escape);
    tour.Step(QStringLiteral("sales-to-delete"), QStringLiteral("{UP}") + Enter);
    tour.Type(QStringLiteral("{F10}"));
    tour.Step(QStringLiteral("sales-to-change"), QStringLiteral("2") + Enter + Enter + Enter);
    tour.Type(QStringLiteral("7.25") + For("6.8") + Escape);
    const QString day = QStringLiteral(
        "select SalesNo,SalesType,CustomerNo,CustomerName,Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,"
        "OurRate,OurAmount from MilkSales where SalesDate=#06/01/2026# order by SalesNo");
    tour.CheckRows(QStringLiteral("sales of the morning"), day,
        {QStringLiteral("1|raoK|0|raoK|gaaya|4.5|4.1|48|216|4.5|0|0|0|0"),
            u"2|sqaainak ivaËI|7|" + NewBuyer() + u"|mhOsa|7.25|6.8|58|420.5|7.25|0|0|0|0",
            u"3|saMGa ivaËI|1|" + Federation() + u"|gaaya|44.2|4.2|38.25|1690.65|49.15|8.5|4.1|35.15|1727.62",
            u"4|saMGa ivaËI|1|" + Federation() + u"|mhOsa|18.5|6.9|51.5|952.75|18.6|9|6.8|47.2|877.92"});
}

// What each customer has taken, from the raw sales.
void CheckClosingLitres(Tour& tour)
{
    const RawMilkRows sales = RawSales();
    const auto taken = [&sales](const QString& name, QStringView animal) {
        return SumOf(sales, &RawMilk::litres,
            [&](const RawMilk& sale) { return sale.name == name && sale.animal == animal; });
    };
    QStringList expected;
    for (Recordset row(gCn, QStringLiteral("select * from CustomersMaster order by CustomerNo")); !row.Eof();
         row.MoveNext()) {
        const QString name = row[u"CustomerName"].Text();
        const Exact cow = Exact::Of(row[u"CowOpeningLits"].Number()) + taken(name, u"gaaya");
        const Exact buffalo = Exact::Of(row[u"BuffOpeningLits"].Number()) + taken(name, u"mhOsa");
        expected.append(QStringList{row[u"CustomerNo"].Text(), cow.Text(), buffalo.Text()}.join(u'|'));
    }
    tour.CheckRows(QStringLiteral("closing litres of a customer"),
        QStringLiteral("select CustomerNo,CowClosingLits,BuffClosingLits from CustomersMaster order by "
                       "CustomerNo"),
        expected);
}

// In the evening nobody has brought milk yet, so there is nothing to work out.
void AskForMilkThatIsNotThere(Tour& tour)
{
    tour.Type(QStringLiteral("+{TAB}2") + Enter + Buys(Cash, "1", "3") + QStringLiteral("{F9}") + Enter);
    tour.Step(QStringLiteral("sales-no-milk"), QStringLiteral(" "));
    tour.Type(Enter + Escape);
    tour.CheckRows(QStringLiteral("sales of the evening"),
        QStringLiteral("select count(*) from MilkSales where SalesDate=#06/01/2026# and "
                       "SalesTime='saMQyaakaL'"),
        {QStringLiteral("0")});
}

}

void PlaySales(Tour& tour)
{
    KeepTheCustomers(tour);
    LetReceiptsBeShown(tour);
    SellInTheVillage(tour);
    SellToTheFederation(tour);
    MendTheSales(tour);
    CheckClosingLitres(tour);
    AskForMilkThatIsNotThere(tour);
}
