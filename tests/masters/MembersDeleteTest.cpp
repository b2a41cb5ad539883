#include "tests/masters/MembersTest.h"

#include "platform/database/Sql.h"

namespace {

class MembersDeleteTest : public MembersTest {
protected:
    MembersDeleteTest()
    {
        AddMember(1, "rama");
        AddMember(2, "Xyaama");
        for (int number : {1, 2}) {
            const QString name = number == 1 ? QStringLiteral("rama") : QStringLiteral("Xyaama");
            AddCollection(number, name, 10);
            AddPayment(number, name, 10);
            AddUchal(number, 10);
            AddReceipt(number, "Uchal Receipt", 10);
            AddDeduction(number, "gaaya zova", 10);
            AddVoucher(name, "raoK");
            AddVoucher("raoK", name);
        }
    }

    // How many rows each of the seven tables holds.
    QStringList RowCounts()
    {
        QStringList counts;
        for (const char* table : {"MembersMaster", "MilkCollections", "MilkPayments", "TransactionsMaster",
                 "TransactionsDetails", "AdvanceReceipt", "MilkPaymentsDetails"})
            counts.append(One(QStringLiteral("select count(*) from ") + QLatin1String(table)));
        return counts;
    }
};

const QString DeleteQuestion = "maombarcaI sava- maaihtI KaoDlaI jaa[-la¸ roka^D- na@kI KaoDayacao ka Æ";

}

TEST_F(MembersDeleteTest, AFoundNumberShowsTheMemberAndWaitsOnTheDeleteButton)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k2{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "Xyaama");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        EXPECT_FALSE(CanEnter(clerk, "txtCowOpeningLits"));
    });
}

TEST_F(MembersDeleteTest, AFoundNameDoesTheSame)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k{ENTER}Xyaama{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
    });
}

TEST_F(MembersDeleteTest, OfTwoMembersOfOneNameTheOneWhoseNumberWasTypedIsTheOne)
{
    AddMember(12, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%k12{ENTER}+{TAB}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12");
    });
}

TEST_F(MembersDeleteTest, AnUnknownNumberIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k3{ENTER}");
        GoOn(clerk, "yaa maombar naMbarcao roka^D- ]plabQa naahI");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(MembersDeleteTest, AnUnknownNameWithoutANumberHoldsTheFocus)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k{ENTER}gaNaoXa{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(clerk.Message(), QString());
    });
}

TEST_F(MembersDeleteTest, WithoutANumberThePressGoesBackToIt)
{
    const QStringList before = RowCounts();
    Play([](Clerk& clerk) {
        Type(clerk, "%k%k");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
    });
    EXPECT_EQ(RowCounts(), before);
}

TEST_F(MembersDeleteTest, AnEnterTooManyDeletesNothing)
{
    const QStringList before = RowCounts();
    Play([](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}{ENTER}");
        EXPECT_EQ(clerk.Message(), DeleteQuestion);
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
    });
    EXPECT_EQ(RowCounts(), before);
}

TEST_F(MembersDeleteTest, YesTakesTheMemberOutOfAllSevenTables)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}{ENTER}");
        EXPECT_EQ(clerk.Message(), DeleteQuestion);
        Type(clerk, "%h");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
    });
    EXPECT_EQ(RowCounts().join(u' '), "1 1 1 2 1 1 1");
    for (const char* table : {"MembersMaster", "MilkCollections", "MilkPayments", "TransactionsDetails",
             "AdvanceReceipt", "MilkPaymentsDetails"})
        EXPECT_EQ(One(QStringLiteral("select MemberNo from ") + QLatin1String(table)), "2") << table;
}

TEST_F(MembersDeleteTest, VouchersOfTheNameGoWhateverTheirOtherSide)
{
    AddVoucher("rama", "Xyaama");
    AddVoucher("Xyaama", "rama");
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    EXPECT_EQ(Rows("select DAccountName,CAccountName from TransactionsMaster").join(u' '),
        "Xyaama|raoK raoK|Xyaama");
}

TEST_F(MembersDeleteTest, RowsOfAnotherCompanyStay)
{
    AddCollection(1, "rama", 10, 2);
    AddVoucher("rama", "raoK", 2);
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    EXPECT_EQ(RowCounts().join(u' '), "1 2 1 3 1 1 1");
}

TEST_F(MembersDeleteTest, NoKeepsTheRecord)
{
    const QStringList before = RowCounts();
    Play([](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}{ENTER}%n");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
    EXPECT_EQ(RowCounts(), before);
}

TEST_F(MembersDeleteTest, AFailureInTheLastTableKeepsTheRowsOfAllOthers)
{
    gCn.RunScript("drop table MilkPaymentsDetails");
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Statement(), "Delete * From MilkPaymentsDetails Where CompanyId=1 And MemberNo=1");
    for (const char* table :
        {"MembersMaster", "MilkCollections", "MilkPayments", "TransactionsDetails", "AdvanceReceipt"})
        EXPECT_EQ(One(QStringLiteral("select count(*) from ") + QLatin1String(table)), "2") << table;
    EXPECT_EQ(One("select count(*) from TransactionsMaster"), "4");
}

TEST_F(MembersDeleteTest, AfterTheLastMemberOnlyNewIsLeftAndHasTheFocus)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}{ENTER}%h");
        Type(clerk, "{ENTER}2{ENTER}{ENTER}%h");
        EXPECT_FALSE(CanEnter(clerk, "cmdModify"));
        EXPECT_FALSE(CanEnter(clerk, "cmdDelete"));
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
    EXPECT_EQ(RowCounts().join(u' '), "0 0 0 0 0 0 0");
}
