#include "tools/setup/DemoPeople.h"
#include "tools/setup/Filling.h"
#include "tools/setup/Society.h"
#include "tools/setup/SocietyRows.h"

#include <QStringList>

namespace {

// The rate chart by tenths of fat, in paise; a temporary table for the filling.
QString RateScript()
{
    const FirstChart chart = ReadFirstChart();
    QStringList rows;
    for (std::size_t tenths = 0; tenths < FirstChart::Rows; ++tenths) {
        if (chart.cow.at(tenths) > 0)
            rows.append(u'(' % QString::number(tenths) % u',' % QString::number(chart.cow.at(tenths)) % u','
                % QString::number(chart.buffalo.at(tenths)) % u')');
    }
    return QStringLiteral("create temp table FillingRates (Tenths integer primary key, Cow, Buffalo);"
                          "insert into FillingRates values ")
        % rows.join(u',') % u';';
}

QString MemberScript(int members)
{
    QStringList rows;
    for (int number = 1; number <= members; ++number) {
        const DemoMember& person = DemoMembers.at(static_cast<std::size_t>(number - 1) % DemoMembers.size());
        const QString name = person.name % u' ' % QString::number(number);
        rows.append(u"(1," % QString::number(number) % u',' % Quoted(name) % u",0,'',"
            % Quoted(DemoVillages.front()) % (number % 2 == 0 ? u",'mhOsa'" : u",'gaaya'")
            % u",'raoK','','',0,'C',0,'C',0,0,0,0,0,0,0,0,0,0)");
    }
    return Spelled(QStringLiteral("insert into MembersMaster values ") % rows.join(u',') % u';');
}

// The database engine makes the deliveries itself, by day, shift and member. The multipliers only spread the
// litres and fats.
QString DeliveryScript(const QDate& from, int days)
{
    return QStringLiteral(
        "insert into MilkCollections "
        "with recursive FillingDays(Day, Date) as (select 0, '%1' "
        "  union all select Day + 1, date(Date, '+1 day') from FillingDays where Day + 1 < %2), "
        "FillingShifts(Shift, Word) as (values (0, 'sakaL'), (1, 'saMQyaakaL')), "
        "Cans(Date, Word, No, Name, Animal, Ml, Tenths) as ("
        "  select Date, Word, MemberNo, MemberName, Animal,"
        "    2500 + (Day * 7919 + Shift * 104729 + MemberNo * 31337) % 900 * 10,"
        "    case Animal when 'gaaya' then 35 else 60 end + (Day * 13 + Shift * 5 + MemberNo * 7) % 10"
        "  from FillingDays cross join FillingShifts cross join MembersMaster), "
        "Priced as (select *, case Animal when 'gaaya' then Cow else Buffalo end as Paise "
        "  from Cans cross join FillingRates using (Tenths)) "
        "select 1, Date, Word, No, No, Name, Animal, Ml / 1000.0, Tenths / 10.0, Paise / 100.0,"
        "  (Ml * Paise + 500) / 1000 / 100.0, 0, '6.45', null from Priced;")
        .arg(from.toString(Qt::ISODate), QString::number(days));
}

}

Filling LargeFilling(const SocietyPlan& plan, int members, int days)
{
    const QString closing =
        QStringLiteral("update MembersMaster set "
                       "CowClosingLits=(select round(total(Liters), 3) from MilkCollections c"
                       "  where c.MemberNo=MembersMaster.MemberNo and c.Animal='gaaya'),"
                       "BuffClosingLits=(select round(total(Liters), 3) from MilkCollections c"
                       "  where c.MemberNo=MembersMaster.MemberNo and c.Animal='mhOsa');");
    return {RateScript() % MemberScript(members) % DeliveryScript(FirstDay(plan.year), days), closing};
}
