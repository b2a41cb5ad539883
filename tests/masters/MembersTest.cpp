#include "tests/masters/MembersTest.h"

#include "platform/database/Sql.h"

void MembersTest::AddCollection(int number, const QString& name, double amount, int company)
{
    Run(Sql(u"insert into "
            u"MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
            u"Animal,Liters,Fat,Rate,Amount,TranId) values(",
        company, u",'10/04/2026','sakaL',1,", number, u",'", name, u"','gaaya',1,4,30,", amount, u",0)"));
}

void MembersTest::AddPayment(int number, const QString& name, double netAmount, int company)
{
    Run(Sql(u"insert into MilkPayments(CompanyId,TranId,MemberNo,MemberName,NetAmount) values(", company,
        u",1,", number, u",'", name, u"',", netAmount, u")"));
}

void MembersTest::AddUchal(int number, double amount, int company)
{
    Run(Sql(u"insert into TransactionsDetails(CompanyId,TranId,MemberNo,AdvanceType,Amount) values(", company,
        u",1,", number, u",']cala',", amount, u")"));
}

void MembersTest::AddReceipt(int number, const QString& type, double amount, int company)
{
    Run(Sql(u"insert into AdvanceReceipt(CompanyId,TranId,MemberNo,AdvanceType,Amount) values(", company,
        u",1,", number, u",'", type, u"',", amount, u")"));
}

void MembersTest::AddDeduction(int number, const QString& type, double amount, int company)
{
    Run(Sql(u"insert into MilkPaymentsDetails(CompanyId,TranId,MemberNo,AdvanceType,Amount) values(", company,
        u",1,", number, u",'", type, u"',", amount, u")"));
}

void MembersTest::AddVoucher(const QString& debit, const QString& credit, int company)
{
    Run(Sql(u"insert into TransactionsMaster(CompanyId,TranId,DAccountName,CAccountName,Amount) values(",
        company, u",1,'", debit, u"','", credit, u"',100)"));
}

void FillNewMember(Clerk& clerk, const QString& name, const QString& animalKey)
{
    const QString asItIs;
    clerk.Type("{ENTER}");
    TypeEach(clerk, {asItIs, Typed(name), asItIs, asItIs, animalKey, "1"});
    for (int field = 0; field < 7 && clerk.Focus() != "cmdNew"; ++field)
        clerk.Type("{ENTER}");
}
