#include "vouchers/Voucher.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "society/Names.h"

namespace {

SqlText OfDate(const QString& tranDate)
{
    return Sql(u"SELECT * FROM TransactionsMaster WHERE CompanyId=", gAppState.gCompanyId,
        u" and cstr(TranDate)=", Quoted(tranDate));
}

}

double Voucher::NextNo(const QString& tranDate)
{
    const Recordset last(gCn,
        Sql(u"SELECT max(TranId) as MaxTrId FROM TransactionsMaster WHERE CompanyId=", gAppState.gCompanyId,
            u" and cstr(TranDate)=", Quoted(tranDate)));
    return last[u"MaxTrId"].Number() + 1; // without a voucher there is no maximum, which reads as 0
}

bool Voucher::IsThere(const QString& tranDate, double tranId)
{
    return !Recordset(gCn, Sql(OfDate(tranDate), u" and TranId=", tranId)).Eof();
}

// Both kinds share the numbers of a date. Only those of the kind that is asked for may be changed as such.
std::optional<Voucher> Voucher::Find(
    const VoucherKind& kind, const QString& tranDate, std::optional<double> tranId)
{
    const SqlText query =
        tranId ? Sql(OfDate(tranDate), u" and TranId=", *tranId) : Sql(OfDate(tranDate), u"");
    for (Recordset row(gCn, query); !row.Eof(); row.MoveNext()) {
        if (row[u"TranType"].Text() != kind.type || row[u"BillNo"].Text().trimmed() != kind.billNo)
            continue;
        Voucher voucher{&kind, tranDate, row[u"TranId"].Number(), 0, {}, row[u"Amount"].Number()};
        voucher.memberName = row[voucher.IsReceipt() ? u"CAccountName" : u"DAccountName"].Text();
        voucher.FindMember();
        return voucher;
    }
    return {};
}

// The details know the member by number; a voucher without details knows only the name.
void Voucher::FindMember()
{
    const QStringView table = IsReceipt() ? u"AdvanceReceipt" : u"TransactionsDetails";
    for (Recordset detail(gCn, Sql(u"SELECT * FROM ", table, OfItself())); !detail.Eof(); detail.MoveNext())
        if (!IsReceipt() || detail[u"AdvanceType"].Text() == Word::UchalReceipt)
            memberNo = detail[u"MemberNo"].Number();
    if (memberNo != 0)
        return;
    if (const Recordset member = MemberOfName(memberName); !member.Eof())
        memberNo = member[u"MemberNo"].Number();
}

SqlText Voucher::OfItself() const
{
    return Sql(u" where CompanyId=", gAppState.gCompanyId, u" and cstr(TranDate)=", Quoted(tranDate),
        u" and TranId=", tranId);
}

void Voucher::Insert() const
{
    const QString cash = Word::Cash.toString();
    gCn.Execute(Sql(u"Insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
                    u"CAccountName,Amount,BillNo,Narration) values(",
        Values(gAppState.gCompanyId, tranDate, tranId, kind->type, IsReceipt() ? cash : memberName,
            IsReceipt() ? memberName : cash, amount, kind->billNo, kind->narration),
        u")"));
    InsertDetails();
}

void Voucher::Update() const
{
    if (IsReceipt())
        gCn.Execute(Sql(u"update TransactionsMaster set CAccountName=", Quoted(memberName), u",Amount=",
            amount, OfItself()));
    else
        gCn.Execute(Sql(u"update TransactionsMaster set DAccountName=", Quoted(memberName), u",Amount=",
            amount, OfItself()));
    DeleteDetails();
    InsertDetails();
}

void Voucher::Delete() const
{
    gCn.Execute(Sql(u"delete * from TransactionsMaster", OfItself()));
    DeleteDetails();
}

// The heads may have been entered before the clerk mended member, date or number.
void Voucher::InsertDetails() const
{
    if (IsReceipt()) {
        gCn.Execute(
            Sql(u"insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
                Values(gAppState.gCompanyId, tranDate, tranId, memberNo, Word::UchalReceipt, amount), u")"));
        return;
    }
    gCn.Execute(Sql(u"update TransactionsDetailsTemp set MemberNo=", memberNo, u",TranDate=",
        Quoted(tranDate), u",TranId=", tranId));
    gCn.Execute(QStringLiteral("insert into TransactionsDetails select * from TransactionsDetailsTemp"));
}

// What a payment has taken back on the date may bear the same number as a receipt, and stays.
void Voucher::DeleteDetails() const
{
    if (IsReceipt())
        gCn.Execute(Sql(
            u"Delete * From AdvanceReceipt", OfItself(), u" and AdvanceType=", Quoted(Word::UchalReceipt)));
    else
        gCn.Execute(Sql(u"delete * from TransactionsDetails", OfItself()));
}
