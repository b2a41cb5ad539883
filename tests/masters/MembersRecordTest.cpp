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
        AddVoucher(name, QStringLiteral("raoK"), 2);
        AddUchal(number, 10, 2);
        AddReceipt(number, QStringLiteral("Uchal Receipt"), 10, 2);
        AddDeduction(number, QStringLiteral("gaaya zova"), 10, 2);
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
    Run(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'Kod')"));
    Run(QStringLiteral("insert into BankMaster(CompanyId,BankName) values(1,'sTuT')"));
    AddCollection(12, QStringLiteral("ramaa"), 1000);
    AddUchal(12, 40);
    AddDeduction(12, QStringLiteral("gaaya zova"), 3);
    AddDeduction(12, QStringLiteral("mhOsa zova"), 5);
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        TypeEach(clerk,
            {QStringLiteral("12"), QStringLiteral(" ramaa "), QStringLiteral(" vaaDa "),
                QStringLiteral(" Kod "), QStringLiteral("3"), QStringLiteral("2"), QStringLiteral(" sTuT "),
                QStringLiteral(" 4711 "), QStringLiteral("150.5"), QStringLiteral("2"),
                QStringLiteral("10.25"), QStringLiteral("20.5"), QStringLiteral("300"),
                QStringLiteral("40.4"), QStringLiteral("50.05")});
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Record(12),
        QStringLiteral("1|12|ramaa|0|vaaDa|Kod|daonhI|ba^nk|sTuT|4711|150.5|D|801.5|C|40.4|43.4|50.05|55.05|"
                       "300|340|10.25|10.25|20.5|20.5"));
}

TEST_F(MembersRecordTest, AChangedMembersOpeningsAndClosingsStandInTheirOwnColumnsAndTheTextsAreTrimmed)
{
    AddMember(2, QStringLiteral("Xyaama"));
    Run(QStringLiteral(
        "update MembersMaster set Address=' vaaDa ',City=' Kod ',PaymentType='ba^nk',BankName=' sTuT ',"
        "BankAccountNo=' 47 ',OpeningBalance=1.5,OpeningDorC='D',CowOpeningThev=3,CowClosingThev=4,"
        "BuffOpeningThev=5,BuffClosingThev=6,OpeningUchal=7,ClosingUchal=8,CowOpeningLits=9,"
        "CowClosingLits=10,BuffOpeningLits=11,BuffClosingLits=12"));
    AddCollection(2, QStringLiteral("Xyaama"), 100);
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Record(2),
        QStringLiteral("1|2|Xyaama|0|vaaDa|Kod|daonhI|ba^nk|sTuT|47|1.5|D|98.5|C|3|4|5|6|7|8|9|10|11|12"));
}

TEST_F(MembersRecordTest, ANewMembersBalanceIsComputedAtTheSaveThoughItsFieldsWereNeverEntered)
{
    AddCollection(1, QStringLiteral("rama"), 80);
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        TypeEach(clerk, {QString(), QStringLiteral("rama"), QString(), QString(), QStringLiteral("1")});
        Type(clerk, "1%s");
    });
    EXPECT_EQ(Rows(QStringLiteral("select ClosingBalance,ClosingDorC from MembersMaster")),
        QStringList{QStringLiteral("80|C")});
}

TEST_F(MembersRecordTest, AnOpeningPayableToTheMemberCountsWithoutItsSign)
{
    AddMember(1, QStringLiteral("rama"));
    Run(QStringLiteral("update MembersMaster set OpeningBalance=-50"));
    AddCollection(1, QStringLiteral("rama"), 20);
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows(QStringLiteral("select ClosingBalance,ClosingDorC from MembersMaster")),
        QStringList{QStringLiteral("70|C")});
}

// The second company

TEST_F(MembersRecordTest, AChangeLeavesTheMemberOfThatNumberInTheOtherCompany)
{
    AddMember(1, QStringLiteral("rama"));
    AddNamesake(1, QStringLiteral("gaNaoXa"));
    const QStringList before = OfTheOtherCompany();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "{ENTER}Kod{ENTER}%s%h");
    });
    EXPECT_EQ(
        One(QStringLiteral("select Address from MembersMaster where CompanyId=1")), QStringLiteral("Kod"));
    EXPECT_EQ(OfTheOtherCompany(), before);
}

TEST_F(MembersRecordTest, ADeletionLeavesEveryRowOfTheNamesakeInTheOtherCompany)
{
    const QString rama = QStringLiteral("rama");
    AddMember(1, rama);
    AddCollection(1, rama, 10);
    AddPayment(1, rama, 10);
    AddVoucher(rama, QStringLiteral("raoK"));
    AddUchal(1, 10);
    AddReceipt(1, QStringLiteral("Uchal Receipt"), 10);
    AddDeduction(1, QStringLiteral("gaaya zova"), 10);
    AddNamesake(1, rama);
    const QStringList before = OfTheOtherCompany();
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    EXPECT_EQ(OfTheOtherCompany(), before);
    for (const char* table : Tables)
        EXPECT_EQ(One(Sql(u"select count(*) from ", QString::fromLatin1(table), u" where CompanyId=1")),
            QStringLiteral("0"))
            << table;
}

// The fields

TEST_F(MembersRecordTest, TheBankFieldsAreShownForABankAndForNothingElse)
{
    AddMember(1, QStringLiteral("rama"));
    AddMember(2, QStringLiteral("Xyaama"));
    Run(QStringLiteral("insert into BankMaster(CompanyId,BankName) values(1,'sTuT')"));
    Run(QStringLiteral("update MembersMaster set BankName='sTuT',BankAccountNo='47'"));
    Run(QStringLiteral("update MembersMaster set PaymentType='ba^nk' where MemberNo=2"));
    Play([](Clerk& clerk) {
        EXPECT_FALSE(ShowsBank(clerk));
        CallUp(clerk, 1);
        EXPECT_FALSE(ShowsBank(clerk)) << "paid in cash, whatever bank is on record";
        GoTo(clerk, QStringLiteral("txtPaymentType"));
        Type(clerk, "2{ENTER}");
        EXPECT_TRUE(ShowsBank(clerk));
        GoTo(clerk, QStringLiteral("txtPaymentType"));
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
    AddMember(1, QStringLiteral("rama"));
    for (const char* keys : {"%n{ENTER}{ENTER}", "%d{ENTER}{ENTER}", "%k{ENTER}{ENTER}"}) {
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            GoOn(clerk, QStringLiteral("maombarcao naaMva vyavaisqat Ta[-p kra"));
            EXPECT_EQ(Focus(clerk), "ComboMemberName") << keys;
        });
    }
}
