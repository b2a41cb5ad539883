#include "tests/masters/MembersTest.h"

namespace {

using MembersModesTest = MembersTest;

const QStringList EntryFields = {QStringLiteral("txtMemberNo"), QStringLiteral("ComboMemberName"),
    QStringLiteral("txtAddress"), QStringLiteral("ComboCity"), QStringLiteral("txtAnimal"),
    QStringLiteral("txtPaymentType"), QStringLiteral("txtOpeningBalance"), QStringLiteral("txtOpeningDorC"),
    QStringLiteral("txtCowOpeningLits"), QStringLiteral("txtBuffOpeningLits"),
    QStringLiteral("txtOpeningUchal"), QStringLiteral("txtCowOpeningThev"),
    QStringLiteral("txtBuffOpeningThev")};

const QStringList Buttons = {QStringLiteral("cmdNew"), QStringLiteral("cmdModify"),
    QStringLiteral("cmdDelete"), QStringLiteral("cmdCancel"), QStringLiteral("cmdExit")};

QStringList Open(const Clerk& clerk, const QStringList& controls)
{
    QStringList open;
    for (const QString& control : controls)
        if (clerk.CanEnter(control))
            open.append(control);
    return open;
}

QString TitleOf(const Clerk& clerk)
{
    return clerk.Top().Title().Text();
}

void ExpectIdle(const Clerk& clerk)
{
    EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMembers"));
    EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr"));
    EXPECT_EQ(clerk.Reads(QStringLiteral("cmdNew")), QStringLiteral("&navaIna"));
    EXPECT_EQ(clerk.Reads(QStringLiteral("cmdModify")), QStringLiteral("ba&dla"));
    EXPECT_EQ(clerk.Reads(QStringLiteral("cmdDelete")), QStringLiteral("&KaoDNao"));
    EXPECT_FALSE(clerk.CanEnter(QStringLiteral("cmdCancel")));
    EXPECT_TRUE(Open(clerk, EntryFields).isEmpty());
}

}

TEST_F(MembersModesTest, OpensIdleWithItsFieldsClosedAndTheFocusOnNew)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        ExpectIdle(clerk);
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdModify cmdDelete cmdExit"));
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
            EXPECT_EQ(clerk.Reads(QLatin1String(name)), QStringLiteral("0.00")) << name;
        for (const char* name :
            {"txtCowOpeningLits", "txtCowClosingLits", "txtBuffOpeningLits", "txtBuffClosingLits"})
            EXPECT_EQ(clerk.Reads(QLatin1String(name)), QStringLiteral("0.000")) << name;
        EXPECT_EQ(Reads(clerk, "txtOpeningDorC"), "doNao");
    });
}

TEST_F(MembersModesTest, WithoutAnyMemberOnlyNewAndExitAreOpen)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdExit"));
        Type(clerk, "{ENTER}");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdExit"));
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
}

TEST_F(MembersModesTest, NewOpensAllFieldsAndLeavesOnlySaveAndCancelToPress)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr navaIna roka^D-"));
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&saovh");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdCancel"));
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(MembersModesTest, ModifyOpensAllFieldsWithTheNumberEmpty)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        Type(clerk, "%d");
        EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr roka^D-maQyao badla"));
        EXPECT_EQ(Reads(clerk, "cmdModify"), "&saovh");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdModify cmdCancel"));
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
}

TEST_F(MembersModesTest, DeleteOpensOnlyTheNumberAndTheName)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        Type(clerk, "%k");
        EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr roka^D- KaoDNao"));
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdDelete cmdCancel"));
        EXPECT_EQ(Open(clerk, EntryFields).join(u' '), QStringLiteral("txtMemberNo ComboMemberName"));
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(MembersModesTest, CancelByMouseFromAnInvalidFieldShowsNothingAndReturnsToIdle)
{
    AddMember(1, QStringLiteral("rama"));
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
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}1%r");
        GoOn(clerk, QStringLiteral("yaa maombar naMbarcao roka^D- Agaaodrca Aaho"));
        ExpectIdle(clerk);
        Type(clerk, "%n2%r");
        ExpectIdle(clerk);
    });
}

TEST_F(MembersModesTest, CancelHidesTheBankFields)
{
    AddMember(1, QStringLiteral("rama"));
    Run(QStringLiteral("update MembersMaster set PaymentType='ba^nk',BankName='sTuT'"));
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
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One(QStringLiteral("select count(*) from MembersMaster")), QStringLiteral("1"));
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
    EXPECT_EQ(screen.Find(u"txtMemberNo")->Text(), QStringLiteral("7"));
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
