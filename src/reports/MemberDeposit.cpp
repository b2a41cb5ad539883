#include "reports/MemberDeposit.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Words.h"

namespace {

double SumOfKapat(double memberNo, const SqlText& dates)
{
    const Recordset sum(gCn,
        Sql(u"select sum(Amount) as TKapat from MilkPaymentsDetails where CompanyId=", gAppState.gCompanyId,
            u" and MemberNo=", memberNo, dates, u" and (trim(AdvanceType)=", Quoted(Word::CowThev),
            u" or trim(AdvanceType)=", Quoted(Word::BuffThev), u")"));
    return sum[u"TKapat"].Number();
}

}

double MemberDeposit::Before(double memberNo, const QDate& paymentDate)
{
    return SumOfKapat(memberNo,
        Sql(u" and TranDate>=", SqlDay(gAppState.gFromDate), u" AND TranDate<", SqlDay(paymentDate)));
}

double MemberDeposit::On(double memberNo, const QDate& paymentDate)
{
    return SumOfKapat(memberNo, Sql(u" and TranDate=", SqlDay(paymentDate)));
}
