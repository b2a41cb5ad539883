#include "rates/WorkingChart.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"

namespace {

// Fat150307 for 15/03/2007.
QString TableOf(const QString& from)
{
    return QStringLiteral("Fat") + QStringView(from).mid(0, 2) + QStringView(from).mid(3, 2)
        + QStringView(from).mid(8, 2);
}

void DropFatZero()
{
    gCn.Execute(QStringLiteral("delete * from FatRates where Fat=0"));
}

}

WorkingChart::Rates WorkingChart::Of(double fat)
{
    const Recordset row(gCn, Sql(u"SELECT * FROM FatRates where Fat=", fat));
    return row.Eof() ? Rates() : Rates{true, row[u"CowRate"].Number(), row[u"BuffRate"].Number()};
}

void WorkingChart::Take(const QString& table)
{
    Transaction taking(gCn);
    gCn.Execute(QStringLiteral("delete * from FatRates"));
    gCn.Execute(Sql(u"insert into FatRates select * from ", table));
    DropFatZero();
    taking.Commit();
}

void WorkingChart::Put(double fat, const QString& cowRate, const QString& buffRate)
{
    Transaction putting(gCn);
    gCn.Execute(Sql(u"UPDATE FatRates SET CowRate=", cowRate, u", BuffRate=", buffRate, u" WHERE Fat=", fat));
    DropFatZero();
    putting.Commit();
}

void WorkingChart::MakeProportional(double basicCowRate, double basicBuffRate)
{
    Transaction making(gCn);
    for (Recordset row(gCn, u"Select * from FatRates"); !row.Eof(); row.MoveNext()) {
        const double fat = row[u"Fat"].Number();
        gCn.Execute(Sql(u"Update FatRates Set CowRate=", fat * basicCowRate, u",BuffRate=",
            fat * basicBuffRate, u" Where Fat=", fat));
    }
    DropFatZero();
    gCn.Execute(
        Sql(u"Update Autosettings Set BasicCowRate=", basicCowRate, u",BasicBuffRate=", basicBuffRate));
    making.Commit();
}

void WorkingChart::Empty()
{
    Transaction emptying(gCn);
    gCn.Execute(QStringLiteral("delete * from FatRates"));
    emptying.Commit();
}

void WorkingChart::SaveAsNew(const QString& from)
{
    const QString table = TableOf(from);
    Transaction saving(gCn);
    gCn.Execute(Sql(u"create table ", table, u"(Fat TEXT,CowRate TEXT,BuffRate TEXT)"));
    for (Recordset row(gCn, u"select * from FatRates"); !row.Eof(); row.MoveNext())
        gCn.Execute(Sql(u"insert into ", table, u"(Fat,CowRate,BuffRate) values(",
            Format(row[u"Fat"].Number(), u"####0.0"), u",", Format(row[u"CowRate"].Number(), u"####0.00"),
            u",", Format(row[u"BuffRate"].Number(), u"####0.00"), u")"));
    gCn.Execute(Sql(u"insert into FatDates(FromDate,FatFileName) values(", Values(from, table), u")"));
    saving.Commit();
}

void WorkingChart::SaveOver(const QString& table)
{
    Transaction saving(gCn);
    gCn.Execute(Sql(u"delete * from ", table));
    gCn.Execute(Sql(u"insert into ", table, u" select * from FatRates"));
    saving.Commit();
}
