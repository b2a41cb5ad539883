#include "tests/bonus/BonusPaymentsTest.h"

#include "platform/database/Sql.h"

BonusPaymentsTest::BonusPaymentsTest()
{
    TemplateReport::Engine() = [this](const TemplateReport::Run& run) { Printed.push_back(run); };
    AddMember(30, "gaNaoSa");
    AddMember(5, "rama");
    AddMember(12, "saIta");
    Run("update AutoSettings set CowBonusRate=0.5,BuffBonusRate=0.75");
    AddDelivery("01/04/2026", 5, "gaaya", 60);
    AddDelivery("30/04/2026", 5, "gaaya", 40);
    AddDelivery("15/04/2026", 5, "mhOsa", 200);
    AddDelivery("15/04/2026", 12, "mhOsa", 8);
    AddDelivery("31/03/2026", 5, "gaaya", 1000);
    AddDelivery("01/05/2026", 5, "mhOsa", 1000);
}

void BonusPaymentsTest::Ask(Clerk& clerk)
{
    Type(clerk, "01042026{ENTER}30042026{ENTER}5{ENTER}30{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}");
    ASSERT_EQ(Focus(clerk), "cmdGo");
}

void BonusPaymentsTest::AfterTheRun(const std::function<void(Clerk&)>& script)
{
    Play([&](Clerk& clerk) {
        Ask(clerk);
        Type(clerk, "{ENTER}");
        ASSERT_EQ(Focus(clerk), "txtMemberNo");
        script(clerk);
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

void BonusPaymentsTest::AddDelivery(
    const char* date, int member, const char* animal, double liters, int company)
{
    static int number = 0;
    Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            u"MemberName,Animal,Liters,Fat,Rate,Amount) values(",
        Values(company, QString::fromLatin1(date), u"sakaL", ++number, member,
            One(Sql(u"select MemberName from MembersMaster where MemberNo=", member)),
            QString::fromLatin1(animal), liters, 4.5, 30, liters * 30),
        u")"));
}

void BonusPaymentsTest::AddVoucher(
    const char* date, int number, const QString& member, double amount, const char* narration)
{
    Run(Sql(u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,"
            u"Amount,BillNo,Narration) values(1,",
        Values(QString::fromLatin1(date), number, u"pomaonT", member, u"raoK", amount, u"]cala",
            QString::fromUtf8(narration)),
        u")"));
}

void BonusPaymentsTest::AddReceipt(const char* date, int member, double amount)
{
    Run(Sql(u"insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(1,",
        Values(QString::fromLatin1(date), 1, member, u"Uchal Receipt", amount), u")"));
}

QStringList BonusPaymentsTest::Built()
{
    return Rows("select SerialNo,MemberNo,MemberName,CurrentCowLiters,CurrentBuffLiters,TotalCowLiters,"
                "TotalBuffLiters,TotalCowBonus,TotalBuffBonus,TotalBonus,Advance from BonusPayments");
}

std::string BonusPaymentsTest::Corrected(int member)
{
    return Rows(Sql(u"select PreviousCowLiters,PreviousBuffLiters,TotalCowLiters,TotalBuffLiters,"
                    u"TotalCowBonus,TotalBuffBonus,TotalBonus,Advance,RemainingBonus,PreviousThev from "
                    u"BonusPayments where MemberNo=",
                    member))
        .join(u';')
        .toStdString();
}
