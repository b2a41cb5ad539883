#include "collection/Deliveries.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"

#include <array>

namespace {

constexpr std::array<QStringView, 2> BooksThenCopy = {u"MilkCollections", u"MilkCollectionsTemp"};

// `day` is the column of the date as a statement words it.
std::int16_t NextNumber(QStringView table, QStringView day, const Shift& shift)
{
    const Recordset highest(gCn,
        Sql(u"SELECT max(CollectionNo) as MaxTrId FROM ", table, u" WHERE ", day, u"=", shift.Day(),
            u" and CollectionTime=", Quoted(shift.time)));
    return highest.Eof() ? std::int16_t{1} : ToInt16(highest[u"MaxTrId"].Number() + 1);
}

// The row that a number of a shift stands for.
SqlText TheRow(const Shift& shift, double number)
{
    return Sql(u" where CollectionDate=", shift.Day(), u" and CollectionTime=", Quoted(shift.time),
        u" and CollectionNo=", number);
}

}

QString Shift::Day() const
{
    return SqlDay(date);
}

void OpenShift(const Shift& shift)
{
    Transaction opening(gCn);
    gCn.Execute(u"delete * from MilkCollectionsTemp");
    gCn.Execute(
        Sql(u"insert into MilkCollectionsTemp select * from MilkCollections where cstr(CollectionDate)=",
            shift.Day(), u" and CollectionTime=", Quoted(shift.time)));
    TidyFilledCopy();
    opening.Commit();
}

void EmptyShiftCopy()
{
    Transaction emptying(gCn);
    for (int twice = 0; twice < 2; ++twice) // as the system has always done it; the second finds nothing
        gCn.Execute(u"delete * from MilkCollectionsTemp");
    emptying.Commit();
}

void TidyShiftCopy()
{
    gCn.Execute(u"delete * from MilkCollectionsTemp where CollectionNo=0");
}

void TidyFilledCopy()
{
    TidyShiftCopy();
    gCn.Execute(u"Delete * from MilkCollectionsTemp Where CompanyId=0");
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

SqlText RowsOfMember(const Shift& shift, double memberNo)
{
    return Sql(u"SELECT * FROM MilkCollectionsTemp where CollectionDate=", shift.Day(),
        u" and CollectionTime=", Quoted(shift.time), u" AND MemberNo=", memberNo);
}

void InsertDelivery(const Delivery& d)
{
    for (QStringView table : BooksThenCopy)
        gCn.Execute(Sql(u"insert into ", table,
            u"(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
            u"Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(",
            Values(gAppState.gCompanyId, d.shift.date, d.shift.time, d.number, d.memberNo, d.memberName,
                d.animal, d.liters, d.fat, d.rate, d.amount, 0),
            u", ", Quoted(d.actualTime), u")"));
}

void UpdateDelivery(const Delivery& d)
{
    for (QStringView table : BooksThenCopy)
        gCn.Execute(Sql(u"update ", table, u" set CompanyId=", gAppState.gCompanyId, u",MemberNo=",
            d.memberNo, u",MemberName=", Quoted(d.memberName), u",Animal=", Quoted(d.animal), u",Liters=",
            d.liters, u",Fat=", d.fat, u",Rate=", d.rate, u",Amount=", d.amount, u", ActualCollectionTime=",
            Quoted(d.actualTime), TheRow(d.shift, d.number)));
}

void DeleteDelivery(const Shift& shift, double number)
{
    for (QStringView table : BooksThenCopy)
        gCn.Execute(Sql(u"delete * from ", table, TheRow(shift, number)));
}
