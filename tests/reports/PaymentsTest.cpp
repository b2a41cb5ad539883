#include "tests/reports/PaymentsTest.h"

#include "platform/database/Sql.h"

namespace {

QString Text(const char* words)
{
    return QString::fromUtf8(words);
}

}

void PaymentsTest::Pay(const Payment& p)
{
    Run(Sql(u"insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
            u"Animal,Liters,Amount,Kapat,NetAmount,PreviousBalance,CurrentBalance,TotalUchal,ThevKapatCow,"
            u"ThevKapatBuff,LitersCow,LitersBuff,CowAmount,BuffAmount,FixedKapat,PreviousAdvance) values(",
        Values(p.company, Text(p.from), Text(p.to), Text(p.date), p.tranId, p.member, Text(p.name),
            Text(p.animal), p.litersCow + p.litersBuff, p.cowAmount + p.buffAmount,
            p.thevCow + p.thevBuff + p.uchal, p.netAmount, p.previousBalance, p.currentBalance, p.uchal,
            p.thevCow, p.thevBuff, p.litersCow, p.litersBuff, p.cowAmount, p.buffAmount, p.fixedKapat,
            p.previousAdvance),
        u")"));
}

void PaymentsTest::AddHead(
    const char* table, const char* date, int member, const char* type, double amount, int company, int tranId)
{
    Run(Sql(u"insert into ", Text(table), u"(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
        Values(company, Text(date), tranId, member, Text(type), amount), u")"));
}

QStringList Lines(std::initializer_list<const char*> lines)
{
    QStringList texts;
    for (const char* line : lines)
        texts.append(QString::fromUtf8(line));
    return texts;
}
