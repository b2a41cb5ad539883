#include "rates/LookupFatRate.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/text/Numbers.h"
#include "society/Words.h"

namespace {

// The table of the chart for a date; empty if there is none.
QString ChartFor(const QDate& date)
{
    QString table;
    for (Recordset charts(gCn, u"select * from FatDates order by FromDate"); !charts.Eof();
         charts.MoveNext()) {
        table = charts[u"FatFileName"].Text();
        if (charts[u"FromDate"].Date() == date)
            break;
    }
    return table;
}

// The form in which a chart holds its fats: 4 for 4.0, 4.5 for 4.46.
QString KeyOf(double fat)
{
    return ShortestDecimal(Val(Format(fat, u"#########0.0")));
}

}

FatRate LookupFatRate(const QDate& date, double fat, QStringView animal)
{
    const QString table = ChartFor(date);
    if (table.isEmpty())
        return {FatRate::Outcome::NoChart, 0};

    const Recordset row(gCn, Sql(u"select * from ", table, u" where Fat=", Quoted(KeyOf(fat))));
    if (row.Eof())
        return {FatRate::Outcome::Priced, 0};
    if (animal == Word::Cow)
        return {FatRate::Outcome::Priced, row[u"CowRate"].Number()};
    if (animal == Word::Buffalo)
        return {FatRate::Outcome::Priced, row[u"BuffRate"].Number()};
    return {FatRate::Outcome::Unchanged, 0};
}
