#include "tests/reports/BooksTest.h"

#include "platform/database/Sql.h"

void BooksTest::Post(const Voucher& voucher)
{
    Run(Sql(u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,"
            u"Amount,BillNo,Narration) values(",
        Values(voucher.company, QString::fromUtf8(voucher.date), voucher.tranId,
            QString::fromUtf8(voucher.type), QString::fromUtf8(voucher.debit),
            QString::fromUtf8(voucher.credit), voucher.amount, QString(),
            QString::fromUtf8(voucher.narration)),
        u")"));
}

void BooksTest::AddAccount(
    const char* name, const char* group, const char* category, double opening, const char* side, int company)
{
    Run(Sql(u"insert into AccountsMaster values(",
        Values(company, 9, QString::fromUtf8(name), QString::fromUtf8(group), QString::fromUtf8(category),
            opening, QString::fromUtf8(side), 0, QString("D")),
        u")"));
}

void BooksTest::Open(double balance, const char* side)
{
    Run(Sql(u"update AccountsMaster set OpeningBalance=", balance, u",OpeningDorC=",
        Quoted(QString::fromLatin1(side)), u" where AccountName='raoK'"));
}
