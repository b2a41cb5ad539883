#include "collection/Deliveries.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/Dates.h"

#include <array>

namespace {

constexpr std::array<QStringView, 2> BooksThenCopy = {u"MilkCollections", u"MilkCollectionsTemp"};

// `day` is the column of the date as a statement words it.
std::int16_t NextNumber(QStringView table, QStringView day, const Shift& shift)
{
    const Recordset highest(gCn,
        Sql(u"SELECT max(CollectionNo) as MaxTrId FROM ", table, u" WHERE ", day, u"=", shift.Day(),
            u" and CollectionTime='", shift.time, u"'"));
    return highest.Eof() ? std::int16_t{1} : ToInt16(highest[u"MaxTrId"].Number() + 1);
}

// The row that a number of a shift stands for.
SqlText TheRow(const Shift& shift, double number)
{
    return Sql(u" where CollectionDate=", shift.Day(), u" and CollectionTime='", shift.time,
        u"' and CollectionNo=", number);
}

}

QString Shift::Day() const
{
    return SqlDay(date);
}

void OpenShift(const Shift& shift)
{
    Transaction opening(gCn);
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    gCn.Execute(
        Sql(u"insert into MilkCollectionsTemp select * from MilkCollections where cstr(CollectionDate)=",
            shift.Day(), u" and CollectionTime='", shift.time, u"'"));
    TidyFilledCopy();
    opening.Commit();
}

void EmptyShiftCopy()
{
    Transaction emptying(gCn);
    for (int twice = 0; twice < 2; ++twice) // as the system has always done it; the second finds nothing
        gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    emptying.Commit();
}

void TidyShiftCopy()
{
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp where CollectionNo=0"));
}

void TidyFilledCopy()
{
    TidyShiftCopy();
    gCn.Execute(QStringLiteral("Delete * from MilkCollectionsTemp Where CompanyId=0"));
}

std::int16_t NextNumberInBooks(const Shift& shift)
{
    return NextNumber(u"MilkCollections", u"cstr(CollectionDate)", shift);
}

std::int16_t NextNumberInCopy(const Shift& shift)
{
    return NextNumber(u"MilkCollectionsTemp", u"cstr(CollectionDate)", shift);
}

std::int16_t NextNumberAfterDelete(const Shift& shift)
{
    return NextNumber(u"MilkCollectionsTemp", u"CollectionDate", shift);
}

void InsertDelivery(const Delivery& d)
{
    for (QStringView table : BooksThenCopy)
        gCn.Execute(Sql(u"insert into ", table,
            u"(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
            u"Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(",
            gAppState.gCompanyId, u",'", DateText(d.shift.date), u"','", d.shift.time, u"',", d.number, u",",
            d.memberNo, u",'", d.memberName, u"','", d.animal, u"',", d.liters, u",", d.fat, u",", d.rate,
            u",", d.amount, u",0, '", d.actualTime, u"')"));
}

void UpdateDelivery(const Delivery& d)
{
    for (QStringView table : BooksThenCopy)
        gCn.Execute(Sql(u"update ", table, u" set CompanyId=", gAppState.gCompanyId, u",MemberNo=",
            d.memberNo, u",MemberName='", d.memberName, u"',Animal='", d.animal, u"',Liters=", d.liters,
            u",Fat=", d.fat, u",Rate=", d.rate, u",Amount=", d.amount, u", ActualCollectionTime='",
            d.actualTime, u"'", TheRow(d.shift, d.number)));
}

void DeleteDelivery(const Shift& shift, double number)
{
    for (QStringView table : BooksThenCopy)
        gCn.Execute(Sql(u"delete * from ", table, TheRow(shift, number)));
}
