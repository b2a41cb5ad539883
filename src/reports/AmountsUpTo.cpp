#include "reports/AmountsUpTo.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "society/Words.h"

AmountsUpTo::AmountsUpTo(QStringView table, const QDate& day, const SqlText& members, Heads heads)
{
    const bool isAll = heads == Heads::All;
    const QDate yearBegins(day.year(), 1, 1);
    const SqlText ofMembers = Sql(u" CompanyId=", gAppState.gCompanyId, u" and MemberNo in (", members, u")");
    Add(Sql(u"select MemberNo,sum(Amount) as Total from YearSums where Entries=", Quoted(table), u" and",
        ofMembers, u" and Year<", Quoted(day.toString(u"yyyy")), isAll ? SqlText() : Sql(u" and Deposit=0"),
        u" group by MemberNo"));
    Add(Sql(u"select MemberNo,sum(Amount) as Total from ", table, u" where", ofMembers, u" and TranDate>=",
        SqlDay(yearBegins), u" and TranDate<=", SqlDay(day), isAll ? SqlText() : ButDeposits(),
        u" group by MemberNo"));
}

double AmountsUpTo::Of(double memberNo) const
{
    const auto amount = m_amounts.find(memberNo);
    return amount == m_amounts.end() ? 0 : amount->second;
}

SqlText AmountsUpTo::ButDeposits()
{
    return Sql(u" and trim(AdvanceType)<>", Quoted(Word::CowThev), u" and trim(AdvanceType)<>",
        Quoted(Word::BuffThev));
}

void AmountsUpTo::Add(const SqlText& sums)
{
    for (Recordset row(gCn, sums); !row.Eof(); row.MoveNext())
        m_amounts[row[u"MemberNo"].Number()] += row[u"Total"].Number();
}
