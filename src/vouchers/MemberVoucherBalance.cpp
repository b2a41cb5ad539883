#include "vouchers/MemberVoucherBalance.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"

void MoveMemberVoucherBalance(double memberNo, double amount, VoucherMove move, double oldAmount)
{
    const Recordset member(gCn,
        Sql(u"Select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal From MembersMaster where "
            u"CompanyId=",
            gAppState.gCompanyId, u" And MemberNo=", memberNo));
    if (member.Eof())
        return;
    double balance = member[u"ClosingBalance"].Number();
    double uchal = member[u"ClosingUchal"].Number();
    switch (move) {
    case VoucherMove::Add:
        balance = balance - amount;
        uchal = uchal + amount;
        break;
    case VoucherMove::Mod:
        balance = balance - amount + oldAmount;
        uchal = uchal + amount - oldAmount;
        break;
    case VoucherMove::Del:
        balance = balance + amount;
        uchal = uchal - amount;
        break;
    }
    gCn.Execute(Sql(u"Update MembersMaster Set ClosingBalance=", balance, u", ClosingUchal=", uchal,
        u" where CompanyId=", gAppState.gCompanyId, u" And MemberNo=", memberNo));
}
