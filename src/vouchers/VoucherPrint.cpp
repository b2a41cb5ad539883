#include "vouchers/VoucherPrint.h"

#include "core/messages/Messages.h"
#include "core/messages/Narrations.h"
#include "core/preview/ReportSubject.h"
#include "core/preview/TemplateReport.h"
#include "core/state/AppState.h"
#include "platform/database/Transaction.h"
#include "platform/text/Dates.h"
#include "society/Fields.h"
#include "vouchers/AmountInWords.h"
#include "vouchers/Voucher.h"

namespace {

void Stage(const Voucher& voucher, const QString& printName)
{
    const QString words = AmountInWords(Format(voucher.amount, PatternOf(FigureKind::Money)));
    const SqlText ofItself = Sql(u" where (CompanyId=", gAppState.gCompanyId, u") and (cstr(TranDate)=",
        Quoted(voucher.tranDate), u") and (TranId=", voucher.tranId, u")");
    Transaction staging(gCn);
    gCn.Execute(Sql(u"update TransactionsMaster set RsInWords=", Quoted(words), u", Printname=",
        Quoted(printName), ofItself));
    gCn.Execute(QStringLiteral("delete * from TransactionsMasterTemp"));
    gCn.Execute(Sql(u"insert into TransactionsMasterTemp select * from TransactionsMaster", ofItself));
    staging.Commit();
}

void Print(const Voucher& voucher, QStringView templateName)
{
    if (!Ask(Shivaji(u"vha}car ip`MT krayacao ka Æ")))
        return;
    frmNarrations prompt(Shivaji(u"pavatI ilahUna doNaar "));
    prompt.ShowModal();
    Stage(voucher, prompt.Narration);
    TemplateReport report(templateName);
    report.SetSubject(
        ReportSubject({voucher.memberName, voucher.kind->billNo.toString()}, ToDate(voucher.tranDate)));
    report.Print();
    gCn.Execute(QStringLiteral("delete * from TransactionsMasterTemp where companyId=0 "));
}

}

void PrintVoucher(const Voucher& advance)
{
    Print(advance, u"PaymentVoucher.rpt");
}

void PrintReceipt(const Voucher& receipt)
{
    Print(receipt, u"ReceiptVoucher.rpt");
}
