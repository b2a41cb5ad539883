// The form by account, behind the button of the report.

#include "tests/bonus/BonusPaymentsTest.h"

namespace {

class BonusByAccountTest : public BonusPaymentsTest {
protected:
    BonusByAccountTest() { AddDelivery("16/04/2026", 5, "gaaya", 0.333); }

    // "SerialNo|AcNo|AccountName|Animal|TotalMilk|BonusCharges".
    QStringList Accounts()
    {
        return Rows("select SerialNo,AcNo,AccountName,Animal,TotalMilk,BonusCharges from BonusPayments");
    }

    // Leaves the button of the report after another member is asked for as the last.
    static void LeaveTheReport(Clerk& clerk, const char* to)
    {
        clerk.Do([&] {
            clerk.Top().Find(u"cmdReport")->SetFocus();
            dynamic_cast<Field&>(*clerk.Top().Find(u"txtToAcNo")).SetText(QString::fromLatin1(to));
        });
        ASSERT_EQ(Focus(clerk), "cmdReport");
        Type(clerk, "{TAB}");
    }
};

TEST_F(BonusByAccountTest, LeavingTheReportWithTheParametersOfTheRunBuildsNothing)
{
    AfterTheRun([this](Clerk& clerk) {
        const QStringList before = Rows("select * from BonusPayments");
        LeaveTheReport(clerk, "30");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Rows("select * from BonusPayments"), before);
        EXPECT_EQ(Rows("select * from BonusPaymentsTemp"), QStringList());
    });
}

TEST_F(BonusByAccountTest, WithSomethingEmptyItStopsToo)
{
    AfterTheRun([this](Clerk& clerk) {
        const QStringList before = Rows("select * from BonusPayments");
        for (const char* field : {"maskFromDate", "maskToDate", "txtFromAcNo", "txtToAcNo", "cmbMilkType",
                 "txtCowBonusRate", "txtBuffBonusRate"}) {
            QString text;
            auto& emptied = dynamic_cast<Field&>(*clerk.Top().Find(QString::fromLatin1(field)));
            clerk.Do([&] {
                clerk.Top().Find(u"cmdReport")->SetFocus();
                text = emptied.Text();
                emptied.Clear();
            });
            Type(clerk, "{TAB}");
            EXPECT_EQ(Rows("select * from BonusPayments"), before) << field;
            clerk.Do([&] { emptied.SetText(text); });
        }
    });
}

TEST_F(BonusByAccountTest, PastTheGuardEachAccountAndAnimalHasARowAndAllBearTheTotals)
{
    AfterTheRun([this](Clerk& clerk) {
        LeaveTheReport(clerk, "12");
        EXPECT_EQ(Accounts(),
            (QStringList{
                "1|5|rama|gaaya|100.333|50.1665", "2|5|rama|mhOsa|200|150", "3|12|saIta|mhOsa|8|6"}));
        EXPECT_EQ(Rows("select distinct CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,CowBonusRate,"
                       "BuffBonusRate,CurrentCowLiters,CurrentBuffLiters,TotalCowBonus,TotalBuffBonus,"
                       "TotalBonus,MemberNo from BonusPayments"),
            QStringList(
                "1|01/04/2026|30/04/2026|5|12|daonhI|0.5|0.75|100.333|208|50.1665|156|206.1665|NULL"));
        EXPECT_EQ(Rows("select * from BonusPaymentsTemp"), Rows("select * from BonusPayments"));
        const QStringList built = Rows("select * from BonusPayments");
        Run("delete * from MilkCollections");
        LeaveTheReport(clerk, "12");
        EXPECT_EQ(Rows("select * from BonusPayments"), built) << "the parameters are remembered";
    });
}

TEST_F(BonusByAccountTest, HereTheTypeOfMilkCounts)
{
    AfterTheRun([this](Clerk& clerk) {
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"cmbMilkType")).SetText("gaaya"); });
        LeaveTheReport(clerk, "30");
        EXPECT_EQ(Accounts(), QStringList("1|5|rama|gaaya|100.333|50.1665"));
        EXPECT_EQ(Rows("select distinct CurrentCowLiters,CurrentBuffLiters from BonusPayments"),
            QStringList("100.333|208"))
            << "but not for the totals";
    });
}

TEST_F(BonusByAccountTest, WithoutMilkItIsEmpty)
{
    Run("delete * from MilkCollections");
    AfterTheRun([this](Clerk& clerk) {
        LeaveTheReport(clerk, "12");
        EXPECT_EQ(Rows("select * from BonusPayments"), QStringList());
    });
}

}
