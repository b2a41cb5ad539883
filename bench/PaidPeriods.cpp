#include "bench/PaidPeriods.h"

#include "core/state/AppState.h"
#include "platform/database/Transaction.h"

namespace {

// The engine makes the rows itself. A period lasts ten days, the third of a month until its end.
constexpr const char* Rows = R"sql(
create temp table FillingPeriods as
    with recursive Periods(FromDay) as (select '%1' union all
        select case strftime('%d', FromDay) when '21' then date(FromDay, 'start of month', '+1 month')
            else date(FromDay, '+10 day') end
        from Periods where FromDay<'2027-02-21')
    select FromDay, case strftime('%d', FromDay)
        when '21' then date(FromDay, 'start of month', '+1 month', '-1 day')
        else date(FromDay, '+9 day') end as ToDay
    from Periods;
create temp table FillingMonths as
    with recursive Months(FromDay) as (select '%1' union all
        select date(FromDay, '+1 month') from Months where FromDay<'2027-03-01')
    select FromDay from Months;
create temp table FillingAdvances(Type, Amount);
insert into FillingAdvances values (']cala',600), ('KaV',123.45), ('ikraNaa maalaÀroSana',80);
create temp table FillingHeads(Type, Amount);
insert into FillingHeads values (']cala',200), ('KaV',41), ('[tr',5), ('maagaIla baakI',10), ('zova',47);

insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount,BillNo)
    select 1, date(FromDay, '+' || (MemberNo % 9) || ' day'), MemberNo, 'pomaonT', MemberName, 'raoK',
        case MemberNo % 3 when 0 then 803.45 else 723.45 end, ']cala'
    from FillingMonths cross join MembersMaster;
insert into TransactionsDetails
    select 1, date(FromDay, '+' || (MemberNo % 9) || ' day'), MemberNo, MemberNo, Type, FillingAdvances.Amount
    from FillingMonths cross join MembersMaster cross join FillingAdvances
    where MemberNo % 3 = 0 or Type<>'ikraNaa maalaÀroSana';
insert into AdvanceReceipt
    select 1, date(FromDay, '+5 day'), MemberNo, MemberNo, 'Uchal Receipt', 20
    from FillingMonths cross join MembersMaster where MemberNo % 4 = 1;

insert into AdvanceReceipt
    select 1, ToDay, MemberNo + 1, MemberNo, 'Uchal Kapat',
        case MemberNo % 3 when 0 then 267.5 when 1 then 230 else 241 end
    from FillingPeriods cross join MembersMaster;
insert into MilkPayments
    select 1, FromDay, ToDay, ToDay, MemberNo, MemberNo, MemberName, Animal, 94, 3300.5, 293, 3007.5, 500, 259,
        246, case Animal when 'gaaya' then 47 else 0 end, case Animal when 'gaaya' then 0 else 47 end,
        case Animal when 'gaaya' then 94 else 0 end, case Animal when 'gaaya' then 0 else 94 end,
        case Animal when 'gaaya' then 3300.5 else 0 end, case Animal when 'gaaya' then 0 else 3300.5 end, 5, 500
    from FillingPeriods cross join MembersMaster;
insert into MilkPaymentsDetails
    select 1, ToDay, 0, MemberNo,
        case Type when 'zova' then case Animal when 'gaaya' then 'gaaya zova' else 'mhOsa zova' end else Type end,
        FillingHeads.Amount
    from FillingPeriods cross join MembersMaster cross join FillingHeads
    where MemberNo % 3 = 0 or Type<>'maagaIla baakI';

drop table FillingPeriods;
drop table FillingMonths;
drop table FillingAdvances;
drop table FillingHeads;
update AutoSettings set DecimalPayment='AddThev',FixedKapat=5;
)sql";

}

void FillPayments(const QDate& firstDay)
{
    Transaction filling(gCn);
    gCn.RunScript(QString::fromUtf8(Rows).arg(firstDay.toString(Qt::ISODate)));
    filling.Commit();
}
