#include "vouchers/VoucherHeads.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"

bool VoucherHeads::Any()
{
    return Finds(QStringLiteral("select * from TransactionsDetailsTemp"));
}

std::optional<double> VoucherHeads::AmountOf(const QString& head)
{
    const Recordset row(gCn, Sql(u"select * from TransactionsDetailsTemp where AdvanceType=", Quoted(head)));
    return row.Eof() ? std::optional<double>() : row[u"Amount"].Number();
}

double VoucherHeads::Total()
{
    return Recordset(gCn, QStringLiteral("select sum(Amount) as TotalAmount from TransactionsDetailsTemp"))
        .At(0)
        .Number();
}

void VoucherHeads::Put(const Voucher& voucher, const QString& head, double amount)
{
    Transaction entering(gCn);
    if (AmountOf(head))
        gCn.Execute(
            Sql(u"update TransactionsDetailsTemp set Amount=", amount, u" where AdvanceType=", Quoted(head)));
    else
        gCn.Execute(Sql(u"insert into TransactionsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,"
                        u"Amount) values(",
            Values(gAppState.gCompanyId, voucher.tranDate, voucher.tranId, voucher.memberNo, head, amount),
            u")"));
    gCn.Execute(QStringLiteral("delete * from TransactionsDetailsTemp where CompanyId=0"));
    entering.Commit();
}

void VoucherHeads::Load(const Voucher& voucher)
{
    Transaction loading(gCn);
    gCn.Execute(QStringLiteral("delete * from TransactionsDetailsTemp"));
    gCn.Execute(
        Sql(u"insert into TransactionsDetailsTemp select * from TransactionsDetails", voucher.OfItself()));
    loading.Commit();
}

void VoucherHeads::Clear()
{
    if (Any()) // emptying an empty table would cost a write to the disk
        gCn.Execute(QStringLiteral("delete * from TransactionsDetailsTemp"));
}
