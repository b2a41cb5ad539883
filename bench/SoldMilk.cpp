#include "bench/SoldMilk.h"

#include "core/state/AppState.h"
#include "platform/database/Transaction.h"

namespace {

// The engine makes the rows itself. Litres and measures go up and down with the days.
constexpr const char* Rows = R"sql(
insert into CustomersMaster
    select 1, 1, AccountName, 'daonhI', 'saMGa ivaËI', 0, 0, 0, 0 from AccountsMaster where Category='saMGa';
insert into CustomersMaster
    with recursive Numbers(No) as (select 2 union all select No + 1 from Numbers where No<%2)
    select 1, No, 'dukana' || char(97 + No / 10, 97 + No % 10), 'daonhI', 'sqaainak ivaËI', 0, 0, 0, 0 from Numbers;
create temp table FillingShifts(Time);
insert into FillingShifts values ('sakaL'), ('saMQyaakaL');
create temp table FillingSales(No, CustomerNo, Animal, Liters, Fat, Rate);
insert into FillingSales values (1, 1, 'gaaya', 690, 4.1, 34), (2, 1, 'mhOsa', 700, 6.5, 47),
    (3, 0, 'gaaya', 21.5, 4, 48), (4, 0, 'mhOsa', 30.25, 6.4, 58), (5, 2, 'gaaya', 40, 4, 48),
    (6, 3, 'mhOsa', 12.5, 6.4, 58), (7, 4, 'gaaya', 5.75, 4, 48), (8, 5, 'mhOsa', 8, 6.4, 58);

insert into MilkSales
    with recursive Days(Day) as (select '%1' union all select date(Day, '+1 day') from Days
        where Day<'2027-03-31'),
    Sold as (select Day, Time, No, FillingSales.CustomerNo as BuyerNo,
            ifnull(CustomerName, 'raoK') as Buyer, ifnull(CustomerType, 'raoK') as Type, FillingSales.Animal as Milk,
            Liters + strftime('%d', Day) * 0.25 as Litres, Fat, Rate
        from Days cross join FillingShifts cross join FillingSales
            left join CustomersMaster on CustomersMaster.CustomerNo=FillingSales.CustomerNo)
    select 1, Day, Time, Type, No, BuyerNo, Buyer, Milk, Litres, Fat, Rate, round(Litres * Rate, 2),
        Litres + 1.5, 8.5, Fat, Rate, round((Litres + 1.5) * Rate, 2)
    from Sold;

drop table FillingShifts;
drop table FillingSales;
update AutoSettings set CowBonusRate=0.5,BuffBonusRate=0.75;
)sql";

}

void FillSales(const QDate& firstDay)
{
    Transaction filling(gCn);
    gCn.RunScript(
        QString::fromUtf8(Rows).arg(firstDay.toString(Qt::ISODate), QString::number(Customers + 1)));
    filling.Commit();
}
