// The walks over the payments and the list of installments beside them.

#include "payments/frmInstallment.h"
#include "payments/frmNewMilkPayment.h"
#include "tests/journeys/ScreenWalks.h"
#include "tests/payments/PaymentTrail.h"

#include <utility>

namespace {

// The tables that payments and installments write.
const QStringList Paid{
    "MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt", "MembersMaster", "InstallmentTable"};

constexpr int InstallmentsInTurn = 3; // each so many openings
constexpr int OpeningsOfATrail = 20; // what is rounded away in single precision doesn't add up over more

}

// Three members with milk in two periods, who owe and have given back, and none of it paid for.
void ScreenWalks::FillUnpaidBooks()
{
    ForgetPayments();
    Run("update AutoSettings set ThevKapatCow=0.10,ThevKapatBuff=0.20,FixedKapat=5,DecimalPayment='AddThev'");
    for (const char* values : {"'02/04/2026','sakaL',1,1,'rama','gaaya',60,4.5,35,1500",
             "'09/04/2026','sakaL',1,1,'rama','mhOsa',50.5,7.1,47.65,1800.5",
             "'05/04/2026','sakaL',1,2,'saIta','mhOsa',40,7.1,47.65,2000.25",
             "'03/04/2026','saMQyaakaL',1,3,'gaNaoSa','gaaya',2,4.5,35,70.35",
             "'14/04/2026','saMQyaakaL',1,3,'gaNaoSa','gaaya',20,4.5,35,700.55"})
        Run(QString("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,"
                    "MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount) values(1,")
            + values + ')');
    for (const char* values : {"'25/03/2026',7,1,']cala',500", "'02/04/2026',7,1,']cala',200",
             "'03/04/2026',7,1,'KaV',123.45", "'14/04/2026',7,2,']cala',300"})
        Run(QString("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                    "values(1,")
            + values + ')');
    Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
        "values(1,'16/04/2026',8,2,'Uchal Receipt',120.5)");
}

void ScreenWalks::ForgetPayments()
{
    Run("delete * from MilkPayments");
    Run("delete * from MilkPaymentsDetails");
    Run("delete * from AdvanceReceipt where AdvanceType='Uchal Kapat'");
    Run("update MembersMaster set ClosingUchal=0,ClosingBalance=0,CowClosingThev=0,BuffClosingThev=0");
}

void ScreenWalks::OverThePayments(int walks)
{
    FillUnpaidBooks();
    const auto forgetExtraRate = [this] { Run("update AutoSettings set CanLimitCow='40.000'"); };
    forgetExtraRate();
    const std::string kept = Kept(Paid);
    const auto beside = [this] {
        return Rows("select MemberNo,MemberName,Animal,OpeningUchal,CowClosingLits,BuffClosingLits from "
                    "MembersMaster")
            + Rows("select * from AdvanceReceipt where AdvanceType='Uchal Receipt'");
    };
    const QStringList besideBefore = beside();
    int opened = 0;
    int saved = 0;
    int takenBack = 0;
    int paidInRuns = 0;
    int installments = 0;
    int extraRates = 0;
    QStringList listed;
    PaymentTrail trail;
    const auto keepCount = [&] {
        saved += std::exchange(trail.Saved, 0);
        takenBack += std::exchange(trail.TakenBack, 0);
    };
    Walk({"frmNewMilkPayment and frmInstallment",
             [&opened] {
                 if (++opened % InstallmentsInTurn == 0)
                     Show<frmInstallment>();
                 else
                     Show<frmNewMilkPayment>();
             },
             // A save that still waits for its answer is declined first, so that no throw saves twice.
             {"{DOWN}{ENTER}{ENTER}", "{DOWN}{ENTER}{ENTER}", "{DOWN}{ENTER}{ENTER}",
                 "%n+{TAB} {TAB}{DOWN}{ENTER}{ENTER}%n01042026{ENTER}{ENTER}1{ENTER}%s%h",
                 "%n{DOWN}{ENTER}{ENTER}%n11042026{ENTER}{ENTER}3{ENTER}%s%h",
                 "{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}1{ENTER}3{ENTER}{ENTER}",
                 "+{TAB} {TAB}{DOWN}{DOWN}{ENTER}11042026{ENTER}{ENTER}1{ENTER}2{ENTER}{ENTER}",
                 "%r%n01042026{ENTER}{ENTER}2{ENTER}%s%h", "%r%n11042026{ENTER}{ENTER}1{ENTER}%s%h",
                 "%r%n11042026{ENTER}{ENTER}2{ENTER}", "%r%n01042026{ENTER}20042026{ENTER}3{ENTER}",
                 "{ENTER}{ENTER}{ENTER}100{ENTER}", "%s%h", "%s%n", "%r%k01042026{ENTER}1{ENTER}",
                 "%r%k01042026{ENTER}1{ENTER}{ENTER}", "%r%k01042026{ENTER}2{ENTER}{ENTER}",
                 "%r%k11042026{ENTER}1{ENTER}{ENTER}", "%r%k11042026{ENTER}2{ENTER}{ENTER}",
                 "%r%k11042026{ENTER}3{ENTER}{ENTER}", "{F5}2.5{F5}", "{END}{DOWN}1{ENTER}{ENTER}50{ENTER}",
                 "{END}{DOWN}2{ENTER}{ENTER}75.5{ENTER}", "{END}{DOWN}3{ENTER}{ENTER}20.25{ENTER}"},
             [&] {
                 trail.ExpectBalances();
                 trail.ExpectBooks();
                 extraRates += One("select CanLimitCow from AutoSettings") == "40.000" ? 0 : 1;
                 forgetExtraRate();
                 EXPECT_TRUE(Kept(Paid) == kept);
                 EXPECT_EQ(beside(), besideBefore);
                 Run("delete * from InstallmentTable where MemberNo>3");
                 const QStringList now = Rows("select MemberNo,Kapat from InstallmentTable");
                 installments += now == listed ? 0 : 1;
                 listed = now;
                 keepCount();
                 if (opened % OpeningsOfATrail == 0) {
                     ForgetPayments();
                     trail = {};
                 }
             },
             [&] {
                 const int come = trail.Follow();
                 paidInRuns += come > 1 ? come : 0;
             }},
        walks);
    EXPECT_GT(saved, walks / 50);
    EXPECT_GT(takenBack, walks / 100);
    EXPECT_GT(paidInRuns, walks / 250);
    EXPECT_GT(installments, walks / 250);
    EXPECT_GT(extraRates, walks / 250);
}
