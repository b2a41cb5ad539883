// What a save and a deletion write, with openings that differ from their closings and a second company whose
// members have the same numbers and names.

#include "tests/masters/MembersTest.h"

#include "platform/database/Sql.h"

namespace {

constexpr const char* Tables[] = {"MembersMaster", "MilkCollections", "MilkPayments", "TransactionsMaster",
    "TransactionsDetails", "AdvanceReceipt", "MilkPaymentsDetails"};

class MembersRecordTest : public MembersTest {
protected:
    // No script of these is broken off, unless its test says so.
    void TearDown() override { EXPECT_FALSE(Failure); }

    // A member of the second company, with a row in every table.
    void AddNamesake(int number, const QString& name)
    {
        Run(Sql(u"insert into MembersMaster(CompanyId,MemberNo,MemberName,Address,ClosingBalance) values(2,",
            number, u",'", name, u"','vaaDa',7)"));
        AddCollection(number, name, 10, 2);
        AddPayment(number, name, 10, 2);
        AddVoucher(name, "raoK", 2);
        AddUchal(number, 10, 2);
        AddReceipt(number, "Uchal Receipt", 10, 2);
        AddDeduction(number, "gaaya zova", 10, 2);
    }

    QStringList OfTheOtherCompany()
    {
        QStringList rows;
        for (const char* table : Tables)
            for (const QString& row :
                Rows(Sql(u"select * from ", QString::fromLatin1(table), u" where CompanyId=2")))
                rows.append(QString::fromLatin1(table) + u' ' + row);
        return rows;
    }

    QString Record(int number)
    {
        return Rows(Sql(u"select * from MembersMaster where CompanyId=1 and MemberNo=", number)).join(u' ');
    }

    static bool ShowsBank(Clerk& clerk)
    {
        return clerk.Top().Find(u"ComboBankName")->Visible()
            || clerk.Top().Find(u"txtBankAccountNo")->Visible();
    }
};

}

// Openings and closings

TEST_F(MembersRecordTest, ANewMembersOpeningsAndClosingsStandInTheirOwnColumnsAndTheTextsAreTrimmed)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'Kod')");
    Run("insert into BankMaster(CompanyId,BankName) values(1,'sTuT')");
    AddCollection(12, "ramaa", 1000);
    AddUchal(12, 40);
    AddDeduction(12, "gaaya zova", 3);
    AddDeduction(12, "mhOsa zova", 5);
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        TypeEach(clerk,
            {"12", " ramaa ", " vaaDa ", " Kod ", "3", "2", " sTuT ", " 4711 ", "150.5", "2", "10.25", "20.5",
                "300", "40.4", "50.05"});
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Record(12),
        "1|12|ramaa|0|vaaDa|Kod|daonhI|ba^nk|sTuT|4711|150.5|D|801.5|C|40.4|43.4|50.05|55.05|"
        "300|340|10.25|10.25|20.5|20.5");
}

TEST_F(MembersRecordTest, AChangedMembersOpeningsAndClosingsStandInTheirOwnColumnsAndTheTextsAreTrimmed)
{
    AddMember(2, "Xyaama");
    Run("update MembersMaster set Address=' vaaDa ',City=' Kod ',PaymentType='ba^nk',BankName=' sTuT ',"
        "BankAccountNo=' 47 ',OpeningBalance=1.5,OpeningDorC='D',CowOpeningThev=3,CowClosingThev=4,"
        "BuffOpeningThev=5,BuffClosingThev=6,OpeningUchal=7,ClosingUchal=8,CowOpeningLits=9,"
        "CowClosingLits=10,BuffOpeningLits=11,BuffClosingLits=12");
    AddCollection(2, "Xyaama", 100);
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Record(2), "1|2|Xyaama|0|vaaDa|Kod|daonhI|ba^nk|sTuT|47|1.5|D|98.5|C|3|4|5|6|7|8|9|10|11|12");
}

TEST_F(MembersRecordTest, ANewMembersBalanceIsComputedAtTheSaveThoughItsFieldsWereNeverEntered)
{
    AddCollection(1, "rama", 80);
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        TypeEach(clerk, {QString(), "rama", QString(), QString(), "1"});
        Type(clerk, "1%s");
    });
    EXPECT_EQ(Rows("select ClosingBalance,ClosingDorC from MembersMaster"), QStringList{"80|C"});
}

TEST_F(MembersRecordTest, AnOpeningPayableToTheMemberCountsWithoutItsSign)
{
    AddMember(1, "rama");
    Run("update MembersMaster set OpeningBalance=-50");
    AddCollection(1, "rama", 20);
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows("select ClosingBalance,ClosingDorC from MembersMaster"), QStringList{"70|C"});
}

// The second company

TEST_F(MembersRecordTest, AChangeLeavesTheMemberOfThatNumberInTheOtherCompany)
{
    AddMember(1, "rama");
    AddNamesake(1, "gaNaoXa");
    const QStringList before = OfTheOtherCompany();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "{ENTER}Kod{ENTER}%s%h");
    });
    EXPECT_EQ(One("select Address from MembersMaster where CompanyId=1"), "Kod");
    EXPECT_EQ(OfTheOtherCompany(), before);
}

TEST_F(MembersRecordTest, ADeletionLeavesEveryRowOfTheNamesakeInTheOtherCompany)
{
    const QString rama = "rama";
    AddMember(1, rama);
    AddCollection(1, rama, 10);
    AddPayment(1, rama, 10);
    AddVoucher(rama, "raoK");
    AddUchal(1, 10);
    AddReceipt(1, "Uchal Receipt", 10);
    AddDeduction(1, "gaaya zova", 10);
    AddNamesake(1, rama);
    const QStringList before = OfTheOtherCompany();
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    EXPECT_EQ(OfTheOtherCompany(), before);
    for (const char* table : Tables)
        EXPECT_EQ(One(Sql(u"select count(*) from ", QString::fromLatin1(table), u" where CompanyId=1")), "0")
            << table;
}

// The fields

TEST_F(MembersRecordTest, TheBankFieldsAreShownForABankAndForNothingElse)
{
    AddMember(1, "rama");
    AddMember(2, "Xyaama");
    Run("insert into BankMaster(CompanyId,BankName) values(1,'sTuT')");
    Run("update MembersMaster set BankName='sTuT',BankAccountNo='47'");
    Run("update MembersMaster set PaymentType='ba^nk' where MemberNo=2");
    Play([](Clerk& clerk) {
        EXPECT_FALSE(ShowsBank(clerk));
        CallUp(clerk, 1);
        EXPECT_FALSE(ShowsBank(clerk)) << "paid in cash, whatever bank is on record";
        GoTo(clerk, "txtPaymentType");
        Type(clerk, "2{ENTER}");
        EXPECT_TRUE(ShowsBank(clerk));
        GoTo(clerk, "txtPaymentType");
        Type(clerk, "1{ENTER}");
        EXPECT_FALSE(ShowsBank(clerk));
        Press(clerk, "cmdCancel");
        CallUp(clerk, 2);
        EXPECT_TRUE(ShowsBank(clerk));
        Press(clerk, "cmdCancel");
        EXPECT_FALSE(ShowsBank(clerk));
    });
}

TEST_F(MembersRecordTest, AnEmptyNameIsToldInEveryMode)
{
    AddMember(1, "rama");
    for (const char* keys : {"%n{ENTER}{ENTER}", "%d{ENTER}{ENTER}", "%k{ENTER}{ENTER}"}) {
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            GoOn(clerk, "maombarcao naaMva vyavaisqat Ta[-p kra");
            EXPECT_EQ(Focus(clerk), "ComboMemberName") << keys;
        });
    }
}
