#include "reports/KapatSummary.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Words.h"

KapatSummary::KapatSummary()
{
    for (Recordset head(gCn, Sql(u"select * from UchalTypes where CompanyId=", gAppState.gCompanyId));
         !head.Eof(); head.MoveNext())
        m_heads.push_back({head[u"TypeId"].Number(), head[u"UchalType"].Text()});
}

// A head of type 0 is feed, whatever it is called.
void KapatSummary::Sums::Add(const Head& head, double amount)
{
    if (head.typeId == 0)
        khadya += amount;
    else if (head.typeId != 1)
        return;
    else if (head.name == Word::OtherUchal)
        other += amount;
    else if (head.name == Word::Uchal)
        uchal += amount;
    else if (head.name == Word::Kirana)
        kirana += amount;
}

void KapatSummary::Stage(double memberNo, const QDate& from, const QDate& to) const
{
    Sums sums;
    for (Recordset detail(gCn,
             Sql(u"select * from MilkPaymentsDetails where CompanyId=", gAppState.gCompanyId,
                 u" and MemberNo=", memberNo, u" and TranDate>=", SqlDay(from), u" And TranDate<=",
                 SqlDay(to)));
         !detail.Eof(); detail.MoveNext()) {
        const QString type = detail[u"AdvanceType"].Text().trimmed();
        for (const Head& head : m_heads)
            if (head.name == type)
                sums.Add(head, detail[u"Amount"].Number());
    }
    gCn.Execute(Sql(u"insert into KapatSummary(CompanyId,MemberNo,Other,Uchal,Khadya,Kirana) values(",
        Values(gAppState.gCompanyId, memberNo, sums.other, sums.uchal, sums.khadya, sums.kirana), u")"));
}
