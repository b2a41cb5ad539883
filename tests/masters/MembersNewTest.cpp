#include "tests/masters/MembersTest.h"

namespace {

using MembersNewTest = MembersTest;

QString NextNumber(Clerk& clerk)
{
    clerk.Type(QStringLiteral("{ENTER}"));
    return clerk.Reads(QStringLiteral("txtMemberNo"));
}

}

TEST_F(MembersNewTest, TheFirstMemberIsNumberOne)
{
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), QStringLiteral("1")); });
}

TEST_F(MembersNewTest, TheNextNumberFollowsTheHighestOfAllCompanies)
{
    AddMember(7, QStringLiteral("rama"));
    Run(QStringLiteral("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,40,'Xyaama')"));
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), QStringLiteral("41")); });
}

TEST_F(MembersNewTest, WithoutAnyNumberOnRecordTheNextIsOne)
{
    Run(QStringLiteral("insert into MembersMaster(CompanyId,MemberName) values(1,'rama')"));
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), QStringLiteral("1")); });
}

TEST_F(MembersNewTest, TheLastNumberThatFitsIsGivenOut)
{
    AddMember(32766, QStringLiteral("rama"));
    Play([](Clerk& clerk) { EXPECT_EQ(NextNumber(clerk), QStringLiteral("32767")); });
    EXPECT_FALSE(Failure);
}

TEST_F(MembersNewTest, BeyondTheLastNumberTheProgramEndsWithAnOverflow)
{
    AddMember(32767, QStringLiteral("rama"));
    Play([](Clerk& clerk) { clerk.Type(QStringLiteral("{ENTER}")); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
}

TEST_F(MembersNewTest, AWholeMemberIsWrittenAsTyped)
{
    Run(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'Kod')"));
    Run(QStringLiteral("insert into BankMaster(CompanyId,BankName) values(1,'sTuT')"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}"));
        TypeEach(clerk,
            {QStringLiteral("12"), QStringLiteral(" ramaa "), QStringLiteral("vaaDa"), QStringLiteral("Kod"),
                QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("sTuT"), QStringLiteral("4711"),
                QStringLiteral("150.5"), QStringLiteral("2"), QStringLiteral("10.25"), QStringLiteral("20.5"),
                QStringLiteral("300"), QStringLiteral("40.4"), QStringLiteral("50.05")});
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdNew"));
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdNew")), QStringLiteral("&navaIna"));
    });
    EXPECT_EQ(Rows(QStringLiteral("select * from MembersMaster")).join(u'\n'),
        QStringLiteral(
            "1|12|ramaa|0|vaaDa|Kod|daonhI|ba^nk|sTuT|4711|150.5|D|150.5|D|40.4|40.4|50.05|50.05|300|300|"
            "10.25|10.25|20.5|20.5"));
}

TEST_F(MembersNewTest, AfterSavingEnterBeginsTheNextMember)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, QStringLiteral("rama"));
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdNew"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("ComboMemberName")), QString());
        EXPECT_TRUE(clerk.CanEnter(QStringLiteral("cmdModify")));
        EXPECT_TRUE(clerk.CanEnter(QStringLiteral("cmdDelete")));
        EXPECT_EQ(NextNumber(clerk), QStringLiteral("2"));
    });
}

TEST_F(MembersNewTest, TheNewNameIsOnTheListAtOnce)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, QStringLiteral("rama"));
        clerk.Type(QStringLiteral("{ENTER}"));
        const auto* names = dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboMemberName"));
        ASSERT_NE(names, nullptr);
        EXPECT_EQ(names->Items(), QStringList{QStringLiteral("rama")});
    });
}

TEST_F(MembersNewTest, AnEmptyNumberIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{BS}{ENTER}"));
        GoOn(clerk, QStringLiteral("maombar naMbar vyavaisqat Ta[-p kra"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
    });
}

TEST_F(MembersNewTest, ANumberOnRecordIsRefusedInWhateverCompanyItIs)
{
    Run(QStringLiteral("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,5,'Xyaama')"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}005{ENTER}"));
        GoOn(clerk, QStringLiteral("yaa maombar naMbarcao roka^D- Agaaodrca Aaho"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
        clerk.Type(QStringLiteral("4{ENTER}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ComboMemberName"));
    });
}

TEST_F(MembersNewTest, ANameOnRecordIsRefusedWhateverItsBlanks)
{
    AddMember(1, QStringLiteral(" rama "));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{ENTER}rama{ENTER}"));
        GoOn(clerk, QStringLiteral("yaa naavaacao roka^D- Agaaodrca Aaho"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ComboMemberName"));
    });
}

TEST_F(MembersNewTest, ANameThatReadsLikeOneOnRecordIsRefused)
{
    AddMember(1, QStringLiteral("maa$tI"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{ENTER}maarutI{ENTER}"));
        GoOn(clerk, QStringLiteral("yaa naavaacao roka^D- Agaaodrca Aaho"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ComboMemberName"));
        clerk.Type(QStringLiteral("maaQava{ENTER}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtAddress"));
    });
}

TEST_F(MembersNewTest, ANameIsStoredInTheSpellingThatWasTyped)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, QStringLiteral("maarutI"));
        clerk.Type(QStringLiteral("{ENTER}"));
    });
    EXPECT_EQ(One(QStringLiteral("select MemberName from MembersMaster")), QStringLiteral("maarutI"));
}

TEST_F(MembersNewTest, AnEmptyNameIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{ENTER}  {ENTER}"));
        GoOn(clerk, QStringLiteral("maombarcao naaMva vyavaisqat Ta[-p kra"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ComboMemberName"));
    });
}

TEST_F(MembersNewTest, SavingStopsAtTheFirstThatIsMissing)
{
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}0%s"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
        clerk.Type(QStringLiteral("1%s"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ComboMemberName"));
        clerk.Type(QStringLiteral("rama%s"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtAnimal"));
        clerk.Type(QStringLiteral("1%s"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtPaymentType"));
        clerk.Type(QStringLiteral("1%s"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdNew"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdNew")), QStringLiteral("&navaIna"));
    });
    EXPECT_EQ(Rows(QStringLiteral("select MemberNo,MemberName,Animal,PaymentType,OpeningDorC,ClosingDorC,"
                                  "ClosingBalance from MembersMaster")),
        QStringList{QStringLiteral("1|rama|gaaya|raoK|C|C|0")});
}

TEST_F(MembersNewTest, ANewMemberTakesTheAccountThatWasReadLast)
{
    AddMember(1, QStringLiteral("rama"));
    Run(QStringLiteral("update MembersMaster set AccountId=815"));
    Play([](Clerk& clerk) {
        FillNewMember(clerk, QStringLiteral("Xyaama"));
        clerk.Type(QStringLiteral("{ENTER}"));
        CallUp(clerk, 1);
        clerk.Press(QStringLiteral("cmdCancel"));
        clerk.Press(QStringLiteral("cmdNew"));
        clerk.Press(QStringLiteral("cmdCancel"));
        FillNewMember(clerk, QStringLiteral("gaNaoXa"));
        clerk.Type(QStringLiteral("{ENTER}"));
    });
    EXPECT_EQ(
        Rows(QStringLiteral("select MemberNo,AccountId from MembersMaster order by MemberNo")).join(u' '),
        QStringLiteral("1|815 2|0 3|815"));
}

TEST_F(MembersNewTest, AnApostropheInTheNameEndsTheProgramAndLeavesTheBooksAsTheyWere)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, QStringLiteral("ra'ma"));
        clerk.Type(QStringLiteral("{ENTER}"));
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
    EXPECT_TRUE(Failure->Statement().startsWith(QStringLiteral("Insert into MembersMaster(CompanyId,")));
    EXPECT_EQ(One(QStringLiteral("select count(*) from MembersMaster")), QStringLiteral("0"));
}

TEST_F(MembersNewTest, ANameOfAThousandCharactersIsKeptWhole)
{
    const QString name = QStringLiteral("rama ").repeated(200).trimmed();
    Play([&name](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{ENTER}"));
        clerk.Type(Typed(name));
        clerk.Type(QStringLiteral("{ENTER}%s"));
        TypeEach(clerk, {QStringLiteral("1"), QStringLiteral("1")});
        clerk.Type(QStringLiteral("%s"));
    });
    EXPECT_EQ(One(QStringLiteral("select MemberName from MembersMaster")), name);
}

TEST_F(MembersNewTest, CollectionsOnRecordForTheNumberCountForTheNewMember)
{
    AddCollection(1, QStringLiteral("rama"), 812.5);
    Play([](Clerk& clerk) {
        FillNewMember(clerk, QStringLiteral("rama"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("txtClosingBalance")), QStringLiteral("812.50"));
        clerk.Type(QStringLiteral("{ENTER}"));
    });
    EXPECT_EQ(Rows(QStringLiteral("select ClosingBalance,ClosingDorC from MembersMaster")),
        QStringList{QStringLiteral("812.5|C")});
}

TEST_F(MembersNewTest, TheLatinKeysOfTheLayoutReadAsMarathi)
{
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{ENTER}"));
        clerk.Type(Typed(QStringLiteral("maombarcao naaMva")));
        const auto* name = dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboMemberName"));
        ASSERT_NE(name, nullptr);
        EXPECT_EQ(name->Text(), QStringLiteral("maombarcao naaMva"));
        EXPECT_EQ(name->Seen(), Seen(QStringLiteral("maombarcao naaMva")));
        EXPECT_TRUE(name->Seen().startsWith(QStringLiteral("मेम्बरचे")));
    });
}
