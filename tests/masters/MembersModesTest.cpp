#include "tests/masters/MembersTest.h"

namespace {

using MembersModesTest = MembersTest;

const QStringList EntryFields = {"txtMemberNo", "ComboMemberName", "txtAddress", "ComboCity", "txtAnimal",
    "txtPaymentType", "txtOpeningBalance", "txtOpeningDorC", "txtCowOpeningLits", "txtBuffOpeningLits",
    "txtOpeningUchal", "txtCowOpeningThev", "txtBuffOpeningThev"};

void ExpectIdle(const Clerk& clerk)
{
    EXPECT_EQ(clerk.ScreenName(), "frmMembers");
    EXPECT_EQ(TitleOf(clerk), " ]%padkacao maasTr");
    EXPECT_EQ(clerk.Reads("cmdNew"), "&navaIna");
    EXPECT_EQ(clerk.Reads("cmdModify"), "ba&dla");
    EXPECT_EQ(clerk.Reads("cmdDelete"), "&KaoDNao");
    EXPECT_FALSE(clerk.CanEnter("cmdCancel"));
    EXPECT_TRUE(Open(clerk, EntryFields).isEmpty());
}

}

TEST_F(MembersModesTest, OpensIdleWithItsFieldsClosedAndTheFocusOnNew)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        ExpectIdle(clerk);
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdModify cmdDelete cmdExit");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdCancel"), "&r_");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "&baahor");
    });
}

TEST_F(MembersModesTest, TheFieldsOpenWithTheirEmptyValues)
{
    Play([](Clerk& clerk) {
        for (const char* name : {"txtMemberNo", "ComboMemberName", "txtAddress", "ComboCity", "txtAnimal",
                 "txtPaymentType", "ComboBankName", "txtBankAccountNo", "txtClosingDorC"})
            EXPECT_EQ(clerk.Reads(QLatin1String(name)), QString()) << name;
        for (const char* name :
            {"txtOpeningBalance", "txtClosingBalance", "txtOpeningUchal", "txtClosingUchal",
                "txtCowOpeningThev", "txtCowClosingThev", "txtBuffOpeningThev", "txtBuffClosingThev"})
            EXPECT_EQ(clerk.Reads(QLatin1String(name)), "0.00") << name;
        for (const char* name :
            {"txtCowOpeningLits", "txtCowClosingLits", "txtBuffOpeningLits", "txtBuffClosingLits"})
            EXPECT_EQ(clerk.Reads(QLatin1String(name)), "0.000") << name;
        EXPECT_EQ(Reads(clerk, "txtOpeningDorC"), "doNao");
    });
}

TEST_F(MembersModesTest, WithoutAnyMemberOnlyNewAndExitAreOpen)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdExit");
        Type(clerk, "{ENTER}");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdExit");
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
}

TEST_F(MembersModesTest, NewOpensAllFieldsAndLeavesOnlySaveAndCancelToPress)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(TitleOf(clerk), " ]%padkacao maasTr navaIna roka^D-");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&saovh");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdCancel");
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(MembersModesTest, ModifyOpensAllFieldsWithTheNumberEmpty)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%d");
        EXPECT_EQ(TitleOf(clerk), " ]%padkacao maasTr roka^D-maQyao badla");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "&saovh");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdModify cmdCancel");
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
}

TEST_F(MembersModesTest, DeleteOpensOnlyTheNumberAndTheName)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%k");
        EXPECT_EQ(TitleOf(clerk), " ]%padkacao maasTr roka^D- KaoDNao");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdDelete cmdCancel");
        EXPECT_EQ(Open(clerk, EntryFields).join(u' '), "txtMemberNo ComboMemberName");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(MembersModesTest, CancelByMouseFromAnInvalidFieldShowsNothingAndReturnsToIdle)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}1");
        Press(clerk, "cmdCancel");
        ExpectIdle(clerk);
        Type(clerk, "%d1{ENTER}{BS}");
        Press(clerk, "cmdCancel");
        ExpectIdle(clerk);
        EXPECT_EQ(Focus(clerk), "cmdModify");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
    });
}

TEST_F(MembersModesTest, CancelByItsKeyChecksTheFieldFirstAndIsPressedWhateverItSays)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}1%r");
        GoOn(clerk, "yaa maombar naMbarcao roka^D- Agaaodrca Aaho");
        ExpectIdle(clerk);
        Type(clerk, "%n2%r");
        ExpectIdle(clerk);
    });
}

TEST_F(MembersModesTest, CancelHidesTheBankFields)
{
    AddMember(1, "rama");
    Run("update MembersMaster set PaymentType='ba^nk',BankName='sTuT'");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        EXPECT_TRUE(CanEnter(clerk, "ComboBankName"));
        Press(clerk, "cmdCancel");
        EXPECT_FALSE(clerk.Top().Find(u"ComboBankName")->Visible());
        EXPECT_FALSE(clerk.Top().Find(u"txtBankAccountNo")->Visible());
    });
}

TEST_F(MembersModesTest, EscOnAnInvalidFieldClosesWithoutAMessage)
{
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select count(*) from MembersMaster"), "1");
}

TEST_F(MembersModesTest, EscClearsTheFieldsAndTheCloseBoxLeavesThem)
{
    frmMembers screen;
    const auto open = [&screen] { screen.ShowModal(); };
    Failure = TheClerk.Play(open, [](Clerk& clerk) {
        Type(clerk, "{ENTER}7");
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(screen.Find(u"txtMemberNo")->Text(), "7");
    Failure = TheClerk.Play(open, [](Clerk& clerk) {
        Type(clerk, "{ENTER}8{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(screen.Find(u"txtMemberNo")->Text(), QString());
}

TEST_F(MembersModesTest, ExitCloses)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%b");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(MembersModesTest, F12OpensTheKeyboardTutorAndF2NothingAtAll)
{
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{F2}");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
        Type(clerk, "{F12}");
        EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
        Type(clerk, "{ESC}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
    EXPECT_TRUE(TheCalculator.Started.isEmpty());
}
