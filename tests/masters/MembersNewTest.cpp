#include "tests/masters/MembersTest.h"

namespace {

using MembersNewTest = MembersTest;

QString NextNumber(Clerk& clerk)
{
    clerk.Type("{ENTER}");
    return clerk.Reads("txtMemberNo");
}

}

TEST_F(MembersNewTest, TheFirstMemberIsNumberOne)
{
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), "1"); });
}

TEST_F(MembersNewTest, TheNextNumberFollowsTheHighestOfAllCompanies)
{
    AddMember(7, "rama");
    Run("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,40,'Xyaama')");
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), "41"); });
}

TEST_F(MembersNewTest, WithoutAnyNumberOnRecordTheNextIsOne)
{
    Run("insert into MembersMaster(CompanyId,MemberName) values(1,'rama')");
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), "1"); });
}

TEST_F(MembersNewTest, TheLastNumberThatFitsIsGivenOut)
{
    AddMember(32766, "rama");
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), "32767"); });
    EXPECT_FALSE(Failure);
}

TEST_F(MembersNewTest, BeyondTheLastNumberTheProgramEndsWithAnOverflow)
{
    AddMember(32767, "rama");
    Play([](Clerk& clerk) { Type(clerk, "{ENTER}"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
}

TEST_F(MembersNewTest, AWholeMemberIsWrittenAsTyped)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'Kod')");
    Run("insert into BankMaster(CompanyId,BankName) values(1,'sTuT')");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        TypeEach(clerk,
            {"12", " ramaa ", "vaaDa", "Kod", "3", "2", "sTuT", "4711", "150.5", "2", "10.25", "20.5", "300",
                "40.4", "50.05"});
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
    });
    EXPECT_EQ(Rows("select * from MembersMaster").join(u'\n'),
        "1|12|ramaa|0|vaaDa|Kod|daonhI|ba^nk|sTuT|4711|150.5|D|150.5|D|40.4|40.4|50.05|50.05|300|300|"
        "10.25|10.25|20.5|20.5");
}

TEST_F(MembersNewTest, AfterSavingEnterBeginsTheNextMember)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "rama");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
        EXPECT_TRUE(CanEnter(clerk, "cmdModify"));
        EXPECT_TRUE(CanEnter(clerk, "cmdDelete"));
        EXPECT_EQ(NextNumber(clerk), "2");
    });
}

TEST_F(MembersNewTest, TheNewNameIsOnTheListAtOnce)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "rama");
        Type(clerk, "{ENTER}");
        const auto* names = dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboMemberName"));
        ASSERT_NE(names, nullptr);
        EXPECT_EQ(names->Items(), QStringList{"rama"});
    });
}

TEST_F(MembersNewTest, AnEmptyNumberIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{BS}{ENTER}");
        GoOn(clerk, "maombar naMbar vyavaisqat Ta[-p kra");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(MembersNewTest, ANumberOnRecordIsRefusedInWhateverCompanyItIs)
{
    Run("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,5,'Xyaama')");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}005{ENTER}");
        GoOn(clerk, "yaa maombar naMbarcao roka^D- Agaaodrca Aaho");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "4{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(MembersNewTest, ANameOnRecordIsRefusedWhateverItsBlanks)
{
    AddMember(1, " rama ");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}rama{ENTER}");
        GoOn(clerk, "yaa naavaacao roka^D- Agaaodrca Aaho");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(MembersNewTest, ANameThatReadsLikeOneOnRecordIsRefused)
{
    AddMember(1, "maa$tI");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}maarutI{ENTER}");
        GoOn(clerk, "yaa naavaacao roka^D- Agaaodrca Aaho");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        Type(clerk, "maaQava{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAddress");
    });
}

TEST_F(MembersNewTest, ANameIsStoredInTheSpellingThatWasTyped)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "maarutI");
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(One("select MemberName from MembersMaster"), "maarutI");
}

TEST_F(MembersNewTest, AnEmptyNameIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}  {ENTER}");
        GoOn(clerk, "maombarcao naaMva vyavaisqat Ta[-p kra");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(MembersNewTest, SavingStopsAtTheFirstThatIsMissing)
{
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}0%s");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        Type(clerk, "rama%s");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "txtPaymentType");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
    });
    EXPECT_EQ(Rows("select MemberNo,MemberName,Animal,PaymentType,OpeningDorC,ClosingDorC,"
                   "ClosingBalance from MembersMaster"),
        QStringList{"1|rama|gaaya|raoK|C|C|0"});
}

TEST_F(MembersNewTest, ANewMemberTakesTheAccountThatWasReadLast)
{
    AddMember(1, "rama");
    Run("update MembersMaster set AccountId=815");
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "Xyaama");
        Type(clerk, "{ENTER}");
        CallUp(clerk, 1);
        Press(clerk, "cmdCancel");
        Press(clerk, "cmdNew");
        Press(clerk, "cmdCancel");
        FillNewMember(clerk, "gaNaoXa");
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(
        Rows("select MemberNo,AccountId from MembersMaster order by MemberNo").join(u' '), "1|815 2|0 3|815");
}

TEST_F(MembersNewTest, AnApostropheInTheNameEndsTheProgramAndLeavesTheBooksAsTheyWere)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "ra'ma");
        Type(clerk, "{ENTER}");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
    EXPECT_TRUE(Failure->Statement().startsWith("Insert into MembersMaster(CompanyId,"));
    EXPECT_EQ(One("select count(*) from MembersMaster"), "0");
}

TEST_F(MembersNewTest, ANameOfAThousandCharactersIsKeptWhole)
{
    const QString name = QStringLiteral("rama ").repeated(200).trimmed();
    Play([&name](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        clerk.Type(Typed(name));
        Type(clerk, "{ENTER}%s");
        TypeEach(clerk, {"1", "1"});
        Type(clerk, "%s");
    });
    EXPECT_EQ(One("select MemberName from MembersMaster"), name);
}

TEST_F(MembersNewTest, CollectionsOnRecordForTheNumberCountForTheNewMember)
{
    AddCollection(1, "rama", 812.5);
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "rama");
        EXPECT_EQ(Reads(clerk, "txtClosingBalance"), "812.50");
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Rows("select ClosingBalance,ClosingDorC from MembersMaster"), QStringList{"812.5|C"});
}

TEST_F(MembersNewTest, TheLatinKeysOfTheLayoutReadAsMarathi)
{
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        clerk.Type(Typed("maombarcao naaMva"));
        const auto* name = dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboMemberName"));
        ASSERT_NE(name, nullptr);
        EXPECT_EQ(name->Text(), "maombarcao naaMva");
        EXPECT_EQ(name->Seen(), Seen("maombarcao naaMva"));
        EXPECT_TRUE(name->Seen().startsWith("मेम्बरचे"));
    });
}
