#include "platform/text/Numbers.h"
#include "tools/setup/DemoMoney.h"
#include "tools/setup/DemoPeople.h"
#include "tools/setup/DemoSales.h"
#include "tools/setup/Dice.h"
#include "tools/setup/Filling.h"
#include "tools/setup/Society.h"
#include "tools/setup/SocietyRows.h"

#include <QStringList>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

constexpr QStringView Cow = u"gaaya";
constexpr QStringView Buffalo = u"mhOsa";
constexpr QStringView Bank = u"जिल्हा मध्यवर्ती सहकारी बँक";

// The usual yield of a member's animals: litres and fat.
struct Yield {
    int millilitres = 0;
    int tenths = 0;
};

struct Member {
    int number = 0;
    const DemoMember* person = nullptr;
    Yield cow;
    Yield buffalo;
    qint64 cowMillilitres = 0;
    qint64 buffaloMillilitres = 0;
    DemoMilk paid;
};

std::vector<Member> Members(Dice& dice)
{
    std::vector<Member> members;
    for (const DemoMember& person : DemoMembers) {
        Member member;
        member.number = static_cast<int>(members.size()) + 1;
        member.person = &person;
        member.cow = {dice.Between(4000, 14000), dice.Between(34, 44)};
        member.buffalo = {dice.Between(2500, 9000), dice.Between(58, 82)};
        members.push_back(member);
    }
    return members;
}

// One "insert ... values" for a table, with all rows in a long list.
QString Insert(QStringView table, const QStringList& rows)
{
    return QStringLiteral("insert into ") % table % QStringLiteral(" values ") % rows.join(u',') % u';';
}

// Makes the rows of the deliveries, and has the milk of each shift sold.
class Deliveries {
public:
    Deliveries(
        const QDate& from, const DemoMoney& money, Dice& dice, std::vector<Member>& members, DemoSales& sales)
        : m_from(from)
        , m_money(money)
        , m_dice(dice)
        , m_members(members)
        , m_sales(sales)
        , m_chart(ReadFirstChart())
    {
    }

    QString Script()
    {
        const QDate last(m_from.year(), 5, 31);
        for (QDate day = m_from; day <= last; day = day.addDays(1)) {
            AddShift(day, u"sakaL");
            AddShift(day, u"saMQyaakaL");
        }
        return m_script;
    }

private:
    // The members come in random order, and most of them every time. A member with both animals brings two
    // cans.
    void AddShift(const QDate& day, QStringView shift)
    {
        m_rows.clear();
        m_shift = {day, shift, {}, {}};
        m_number = 0;
        m_minute = 5 + m_dice.Between(0, 10);
        std::vector<std::size_t> queue(m_members.size());
        std::iota(queue.begin(), queue.end(), std::size_t{0});
        for (int last = static_cast<int>(queue.size()) - 1; last > 0; --last)
            std::swap(queue[static_cast<std::size_t>(last)],
                queue[static_cast<std::size_t>(m_dice.Between(0, last))]);
        for (const std::size_t who : queue) {
            Member& member = m_members[who];
            if (m_dice.Between(1, 100) > 93)
                continue;
            if (member.person->animal != Buffalo)
                AddCan(day, shift, member, Cow);
            if (member.person->animal != Cow)
                AddCan(day, shift, member, Buffalo);
        }
        m_script += Insert(u"MilkCollections", m_rows);
        m_sales.Sell(m_shift);
    }

    void AddCan(const QDate& day, QStringView shift, Member& member, QStringView animal)
    {
        const bool cow = animal == Cow;
        const Yield& usual = cow ? member.cow : member.buffalo;
        const int millilitres = usual.millilitres * m_dice.Between(85, 115) / 100 / 10 * 10;
        const int tenths = usual.tenths + m_dice.Between(-2, 2);
        const int rate = (cow ? m_chart.cow : m_chart.buffalo).at(static_cast<std::size_t>(tenths));
        const qint64 amount = AmountInPaise(millilitres, rate);
        (cow ? member.cowMillilitres : member.buffaloMillilitres) += millilitres;
        DemoCans& cans = cow ? m_shift.cow : m_shift.buffalo;
        cans.millilitres += millilitres;
        cans.fat += static_cast<qint64>(millilitres) * tenths;
        if (m_money.IsPaid(day)) {
            (cow ? member.paid.cowMillilitres : member.paid.buffaloMillilitres) += millilitres;
            (cow ? member.paid.cowPaise : member.paid.buffaloPaise) += amount;
        }
        m_minute += m_dice.Between(1, 2);
        const QStringList values{QStringLiteral("1"), Quoted(day.toString(Qt::ISODate)), Quoted(shift),
            QString::number(++m_number), QString::number(member.number), Quoted(member.person->name),
            Quoted(animal), Decimal(millilitres, 3), Decimal(tenths, 1), Decimal(rate, 2), Decimal(amount, 2),
            QStringLiteral("0"), Quoted(Clock()), QStringLiteral("null")};
        m_rows.append(u'(' % values.join(u',') % u')');
    }

    // Both shifts begin at six, and the counter writes times on a twelve-hour clock.
    QString Clock() const
    {
        const int hour = 6 + m_minute / 60;
        return QString::number(hour) % u'.' % QString::number(m_minute % 60).rightJustified(2, u'0');
    }

    QDate m_from;
    const DemoMoney& m_money;
    Dice& m_dice;
    std::vector<Member>& m_members;
    DemoSales& m_sales;
    FirstChart m_chart;
    DemoShift m_shift;
    QString m_script;
    QStringList m_rows;
    int m_number = 0;
    int m_minute = 0;
};

// A member's closing litres as the counter computes them: the sum in single precision.
QString ClosingLitres(qint64 millilitres)
{
    return ShortestDecimal(static_cast<float>(static_cast<double>(millilitres) / 1000));
}

QString MemberRow(const Member& member, Dice& dice)
{
    const DemoMember& person = *member.person;
    const bool hasBalance = dice.Between(1, 4) == 1;
    const QString balance = QString::number(hasBalance ? dice.Between(2, 40) * 25 : 0);
    const QString side = Quoted(hasBalance && dice.Between(1, 3) == 1 ? u"D" : u"C");
    const QString advance = QString::number(dice.Between(1, 3) == 1 ? dice.Between(1, 10) * 500 : 0);
    const QString cowThev = QString::number(person.animal == Buffalo ? 0 : dice.Between(100, 900));
    const QString buffaloThev = QString::number(person.animal == Cow ? 0 : dice.Between(100, 900));
    const QString account = person.byBank ? QString::number(6204100100 + member.number) : QString();
    const QStringList values{QStringLiteral("1"), QString::number(member.number), Quoted(person.name),
        QStringLiteral("0"), Quoted(u""), Quoted(DemoVillages.at(static_cast<std::size_t>(person.village))),
        Quoted(person.animal), Quoted(person.byBank ? u"ba^nk" : u"raoK"), Quoted(person.byBank ? Bank : u""),
        Quoted(account), balance, side, balance, side, cowThev, cowThev, buffaloThev, buffaloThev, advance,
        advance, QStringLiteral("0"), ClosingLitres(member.cowMillilitres), QStringLiteral("0"),
        ClosingLitres(member.buffaloMillilitres)};
    return u'(' % values.join(u',') % u')';
}

// The villages that aren't among the delivered rows.
QString VillageScript()
{
    QString script;
    for (const QStringView village : DemoVillages)
        script += QStringLiteral("insert into CityMaster select 1,") % Quoted(village)
            % QStringLiteral(" where not exists (select 1 from CityMaster where CityName=") % Quoted(village)
            % QStringLiteral(");");
    return script;
}

}

Filling DemoFilling(const SocietyPlan& plan)
{
    Dice dice(20260401);
    std::vector<Member> members = Members(dice);
    const DemoMoney money(FirstDay(plan.year));
    DemoSales sales(plan.federation);
    const QString deliveries = Deliveries(FirstDay(plan.year), money, dice, members, sales).Script();
    QStringList rows;
    std::vector<DemoMilk> paid;
    for (const Member& member : members) {
        rows.append(MemberRow(member, dice));
        paid.push_back(member.paid);
    }
    return {Spelled(VillageScript() % Insert(u"MembersMaster", rows) % sales.Script() % deliveries
                % money.Script(paid)),
        {}};
}
