#include "tools/tour/RawMilk.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

#include <cmath>

namespace {

int Whole(const FieldValue& value)
{
    return static_cast<int>(value.Number());
}

// The columns that deliveries and sales call by other names.
struct Columns {
    QStringView day;
    QStringView shift;
    QStringView number;
    QStringView name;
};

constexpr Columns OfDeliveries{u"CollectionDate", u"CollectionTime", u"MemberNo", u"MemberName"};
constexpr Columns OfSales{u"SalesDate", u"SalesTime", u"CustomerNo", u"CustomerName"};

RawMilk MilkOf(const Recordset& row, const Columns& columns)
{
    RawMilk milk;
    milk.day = row[columns.day].Date();
    milk.shift = row[columns.shift].Text();
    milk.number = Whole(row[columns.number]);
    milk.name = row[columns.name].Text();
    milk.animal = row[u"Animal"].Text();
    milk.litres = Exact::Of(row[u"Liters"].Number());
    milk.amount = Exact::Of(row[u"Amount"].Number());
    milk.tenths = static_cast<int>(std::lround(row[u"Fat"].Number() * 10));
    return milk;
}

}

RawMilkRows RawDeliveries()
{
    RawMilkRows rows;
    for (Recordset row(gCn, QStringLiteral("select * from MilkCollections")); !row.Eof(); row.MoveNext())
        rows.push_back(MilkOf(row, OfDeliveries));
    return rows;
}

RawMilkRows RawSales()
{
    RawMilkRows rows;
    for (Recordset row(gCn, QStringLiteral("select * from MilkSales")); !row.Eof(); row.MoveNext()) {
        RawMilk milk = MilkOf(row, OfSales);
        milk.ourLitres = Exact::Of(row[u"OurLiters"].Number());
        rows.push_back(milk);
    }
    return rows;
}

Exact SumOf(const RawMilkRows& rows, Exact RawMilk::*figure, const RawMilkTest& counts)
{
    Exact sum;
    for (const RawMilk& milk : rows)
        if (counts(milk))
            sum += milk.*figure;
    return sum;
}

int AverageTenths(const RawMilkRows& rows, const RawMilkTest& counts)
{
    qint64 litres = 0; // in thousandths
    qint64 fat = 0;
    for (const RawMilk& milk : rows) {
        if (!counts(milk))
            continue;
        const qint64 millilitres = std::llround(milk.litres.Text().toDouble() * 1000);
        litres += millilitres;
        fat += millilitres * milk.tenths;
    }
    return litres == 0 ? 0 : static_cast<int>((fat + litres / 2) / litres);
}

QString WithDecimals(Exact figure, int decimals)
{
    QString text = figure.Text();
    const qsizetype point = text.indexOf(u'.');
    const qsizetype written = point < 0 ? 0 : text.size() - point - 1;
    if (point < 0)
        text += u'.';
    return text + QString(decimals - written, u'0');
}
