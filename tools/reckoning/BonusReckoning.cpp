#include "tools/reckoning/BonusReckoning.h"

#include "platform/text/Numbers.h"

#include <algorithm>

namespace {

const QString Null = QStringLiteral("NULL");

float Bonus(Exact litres, Exact rate)
{
    const Exact single = Exact::Of(Val(ShortestDecimal(litres.Single())));
    InsistOn(single == litres, QStringLiteral("single precision rounds a year's litres"));
    return static_cast<float>(static_cast<double>(litres.Single()) * Val(rate.Text()));
}

}

// A receipt of the first day doesn't count, an advance does.
BonusReckoning::BonusReckoning(const Asked& asked, const std::vector<int>& members, const MilkReckoning& milk,
    const PaymentReckoning& money)
    : m_asked(asked)
{
    for (const int member : members)
        m_rows.push_back(
            {member, money.Vouchers.NameOf(member), milk.LitresOf(member, true, asked.from, asked.to),
                milk.LitresOf(member, false, asked.from, asked.to),
                money.Given(member, asked.from, asked.to)
                    - money.CameBack(member, asked.from.addDays(1), asked.to),
                {}});
}

void BonusReckoning::Correct(int member, const Keyed& keyed)
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [member](const Row& one) { return one.member == member; });
    InsistOn(row != m_rows.end(), QStringLiteral("there is no bonus to correct"));
    row->keyed = keyed;
}

QStringList BonusReckoning::AsRun(const Row& row) const
{
    const float cow = Bonus(row.cow, m_asked.cowRate);
    const float buff = Bonus(row.buff, m_asked.buffRate);
    return {Null, Null, row.cow.Text(), row.buff.Text(), ShortestDecimal(cow), ShortestDecimal(buff),
        ShortestDecimal(cow + buff), ShortestDecimal(row.advance.Single()), Null, Null};
}

QStringList BonusReckoning::AsCorrected(const Row& row) const
{
    const Keyed& keyed = *row.keyed;
    const Exact cowLitres = keyed.cowLitres + row.cow;
    const Exact buffLitres = (keyed.buffLitres + row.buff).ToThePaisa();
    const Exact cow = cowLitres.Times(m_asked.cowRate);
    const Exact buff = buffLitres.Times(m_asked.buffRate);
    return {keyed.cowLitres.Text(), keyed.buffLitres.Text(), cowLitres.Text(), buffLitres.Text(), cow.Text(),
        buff.Text(), (cow + buff).Text(), row.advance.Text(),
        (cow + buff - row.advance + keyed.deposit).Text(), keyed.deposit.Text()};
}

Compared BonusReckoning::Comparison() const
{
    QStringList lines;
    int serial = 0;
    for (const Row& row : m_rows)
        lines.append((QStringList{QStringLiteral("1"), DayText(m_asked.from), DayText(m_asked.to),
                          QStringLiteral("1"), QString::number(m_asked.last), QStringLiteral("daonhI"),
                          m_asked.cowRate.Text(), m_asked.buffRate.Text(), QString::number(++serial),
                          QString::number(row.member), row.name, row.cow.Text(), row.buff.Text()}
            + (row.keyed ? AsCorrected(row) : AsRun(row)))
                         .join(u'|'));
    return Compared::With(QStringLiteral("bonus"), lines,
        QStringLiteral("select CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,CowBonusRate,"
                       "BuffBonusRate,SerialNo,MemberNo,MemberName,CurrentCowLiters,CurrentBuffLiters,"
                       "PreviousCowLiters,PreviousBuffLiters,TotalCowLiters,TotalBuffLiters,TotalCowBonus,"
                       "TotalBuffBonus,TotalBonus,Advance,RemainingBonus,PreviousThev from BonusPayments"));
}
