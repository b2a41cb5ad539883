#include "tests/masters/MembersTest.h"

namespace {

class MembersModifyTest : public MembersTest {
protected:
    MembersModifyTest()
    {
        AddMember(1, "rama", "gaaya");
        AddMember(2, "Xyaama");
    }

    // The places outside of the masters that hold a member's name, each with its company.
    QStringList NamesElsewhere()
    {
        QStringList names = Rows("select CompanyId,MemberName from MilkCollections");
        names += Rows("select CompanyId,MemberName from MilkPayments");
        names += Rows("select CompanyId,DAccountName,CAccountName from TransactionsMaster");
        return names;
    }

    void AddEntriesOf(const QString& name)
    {
        for (int company : {1, 2}) {
            AddCollection(1, name, 10, company);
            AddPayment(1, name, 10, company);
            AddVoucher(name, "raoK", company);
            AddVoucher("raoK", name, company);
        }
    }
};

const QString SaveQuestion = "roka^D- na@kI badlaayacao ka Æ";

}

TEST_F(MembersModifyTest, ANumberCallsUpTheWholeRecord)
{
    Run("update MembersMaster set "
        "Address='vaaDa',City='Kod',Animal='daonhI',PaymentType='ba^nk',BankName='sTuT',"
        "BankAccountNo='47',OpeningBalance=1.5,OpeningDorC='D',ClosingBalance=2,ClosingDorC='C',"
        "CowOpeningThev=3,"
        "CowClosingThev=4,BuffOpeningThev=5,BuffClosingThev=6,OpeningUchal=7,ClosingUchal=8,CowOpeningLits=9,"
        "CowClosingLits=10,BuffOpeningLits=11,BuffClosingLits=12.3456 where MemberNo=2");
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        const std::pair<const char*, const char16_t*> expected[] = {{"txtMemberNo", u"2"},
            {"ComboMemberName", u"Xyaama"}, {"txtAddress", u"vaaDa"}, {"ComboCity", u"Kod"},
            {"txtAnimal", u"daonhI"}, {"txtPaymentType", u"ba^nk"}, {"ComboBankName", u"sTuT"},
            {"txtBankAccountNo", u"47"}, {"txtOpeningBalance", u"1.50"}, {"txtOpeningDorC", u"yaoNao"},
            {"txtClosingBalance", u"2.00"}, {"txtClosingDorC", u"doNao"}, {"txtCowOpeningThev", u"3.00"},
            {"txtCowClosingThev", u"4.00"}, {"txtBuffOpeningThev", u"5.00"}, {"txtBuffClosingThev", u"6.00"},
            {"txtOpeningUchal", u"7.00"}, {"txtClosingUchal", u"8.00"}, {"txtCowOpeningLits", u"9.000"},
            {"txtCowClosingLits", u"10.000"}, {"txtBuffOpeningLits", u"11.000"},
            {"txtBuffClosingLits", u"12.346"}};
        for (const auto& [field, text] : expected)
            EXPECT_EQ(clerk.Reads(QLatin1String(field)), QStringView(text)) << field;
        EXPECT_TRUE(CanEnter(clerk, "ComboBankName"));
        EXPECT_TRUE(CanEnter(clerk, "txtBankAccountNo"));
    });
}

TEST_F(MembersModifyTest, NullsOnRecordReadAsEmptyAndZero)
{
    Run("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(1,9,'gaNaoXa')");
    Play([](Clerk& clerk) {
        CallUp(clerk, 9);
        EXPECT_EQ(Reads(clerk, "txtAddress"), "");
        EXPECT_EQ(Reads(clerk, "txtOpeningDorC"), "");
        EXPECT_EQ(Reads(clerk, "txtClosingUchal"), "0.00");
        EXPECT_EQ(Reads(clerk, "txtBuffClosingLits"), "0.000");
    });
}

TEST_F(MembersModifyTest, ANameCallsUpTheRecordWhenTheNumberIsEmpty)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}Xyaama{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAddress");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "daonhI");
    });
}

TEST_F(MembersModifyTest, AnotherMembersNameCallsUpThatMember)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "Xyaama{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
    });
}

TEST_F(MembersModifyTest, OfTwoMembersOfOneNameTheOneWhoseNumberWasTypedStays)
{
    AddMember(12, "rama", "mhOsa");
    for (const char* keys : {"%d12{ENTER}{ENTER}", "%d12{ENTER}rama{ENTER}"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(Focus(clerk), "txtAddress") << keys;
            EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12") << keys;
            EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa") << keys;
        });
}

TEST_F(MembersModifyTest, TheMembersOwnNameLeavesWhatWasTypedElsewhere)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "{ENTER}vaaDa+{TAB}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAddress");
        EXPECT_EQ(Reads(clerk, "txtAddress"), "vaaDa");
    });
}

TEST_F(MembersModifyTest, AnUnknownNumberIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 77);
        GoOn(clerk, "yaa maombar naMbarcao roka^D- ]plabQa naahI");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "Xyaama");
    });
}

TEST_F(MembersModifyTest, AnUnknownNameWithoutANumberHoldsTheFocusInSilence)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}gaNaoXa{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(MembersModifyTest, AnEmptyNameIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}{ENTER}");
        GoOn(clerk, "maombarcao naaMva vyavaisqat Ta[-p kra");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(MembersModifyTest, ACowMembersBuffaloFiguresAreClosedFromTheStart)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        EXPECT_TRUE(CanEnter(clerk, "txtCowOpeningLits"));
        EXPECT_FALSE(CanEnter(clerk, "txtBuffOpeningLits"));
        EXPECT_FALSE(CanEnter(clerk, "txtBuffOpeningThev"));
    });
}

TEST_F(MembersModifyTest, YesWritesTheRecordAndOnlyThat)
{
    const QString other = Rows("select * from MembersMaster where MemberNo=2").join(u' ');
    Run("update MembersMaster set AccountId=5 where MemberNo=1");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        TypeEach(clerk, {QString(), "vaaDa", QString(), "2", QString(), "25", "2", "4", "30", "6"});
        EXPECT_EQ(Focus(clerk), "cmdModify");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), SaveQuestion);
        Type(clerk, "%h");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Focus(clerk), "cmdModify");
    });
    EXPECT_EQ(Rows("select * from MembersMaster where MemberNo=1").join(u' '),
        "1|1|rama|5|vaaDa||mhOsa|raoK|||25|D|25|D|0|0|6|6|30|30|0|0|4|4");
    EXPECT_EQ(Rows("select * from MembersMaster where MemberNo=2").join(u' '), other);
}

TEST_F(MembersModifyTest, NoReturnsToIdleWithNothingWritten)
{
    AddEntriesOf("rama");
    const QStringList before = NamesElsewhere();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "gaNaoXa%s%n");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
    });
    EXPECT_EQ(One("select MemberName from MembersMaster where MemberNo=1"), "rama");
    EXPECT_EQ(NamesElsewhere(), before);
}

TEST_F(MembersModifyTest, ANewNameReachesAllFourPlacesInEveryCompany)
{
    AddEntriesOf("rama");
    AddCollection(2, "Xyaama", 10);
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "gaNaoXa{ENTER}%s%h");
    });
    EXPECT_EQ(NamesElsewhere().join(u' '),
        "1|gaNaoXa 2|gaNaoXa 1|Xyaama 1|gaNaoXa 2|gaNaoXa 1|gaNaoXa|raoK 1|raoK|gaNaoXa "
        "2|gaNaoXa|raoK 2|raoK|gaNaoXa");
    EXPECT_EQ(One("select MemberName from MembersMaster where MemberNo=1"), "gaNaoXa");
}

TEST_F(MembersModifyTest, AnUnchangedNameIsWrittenEverywhereAgain)
{
    Run("update MembersMaster set MemberName='rama ' where MemberNo=1");
    AddEntriesOf("rama ");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(NamesElsewhere().join(u' '),
        "1|rama 2|rama 1|rama 2|rama 1|rama|raoK 1|raoK|rama 2|rama|raoK 2|raoK|rama");
}

TEST_F(MembersModifyTest, AFailureInTheLastRenameLeavesEverythingAsItWas)
{
    AddEntriesOf("rama");
    const QStringList before = NamesElsewhere();
    gCn.RunScript("drop table TransactionsMaster");
    gCn.RunScript("create table TransactionsMaster(CompanyId INTEGER,DAccountName TEXT)");
    Run("insert into TransactionsMaster(CompanyId,DAccountName) values(1,'rama')");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "gaNaoXa{ENTER}%s%h");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Statement(),
        "Update TransactionsMaster Set CAccountName='gaNaoXa' Where CAccountName='rama'");
    EXPECT_EQ(One("select MemberName from MembersMaster where MemberNo=1"), "rama");
    EXPECT_EQ(Rows("select CompanyId,MemberName from MilkCollections"), before.mid(0, 2));
    EXPECT_EQ(Rows("select CompanyId,MemberName from MilkPayments"), before.mid(2, 2));
    EXPECT_EQ(One("select DAccountName from TransactionsMaster"), "rama");
}

TEST_F(MembersModifyTest, AnApostropheInTheNewNameEndsTheProgramAndLeavesTheBooksAsTheyWere)
{
    AddEntriesOf("rama");
    const QStringList before = NamesElsewhere();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "ra'ma{ENTER}%s%h");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
    EXPECT_EQ(One("select MemberName from MembersMaster where MemberNo=1"), "rama");
    EXPECT_EQ(NamesElsewhere(), before);
}

TEST_F(MembersModifyTest, SavingAtOnceStopsAtTheNumber)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d%s");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}
