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
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdNew"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdCancel")), QStringLiteral("&r_"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdExit")), QStringLiteral("&baahor"));
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
        EXPECT_EQ(clerk.Reads(QStringLiteral("txtOpeningDorC")), QStringLiteral("doNao"));
    });
}

TEST_F(MembersModesTest, WithoutAnyMemberOnlyNewAndExitAreOpen)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdExit"));
        clerk.Type(QStringLiteral("{ENTER}"));
        clerk.Press(QStringLiteral("cmdCancel"));
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdExit"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdNew"));
    });
}

TEST_F(MembersModesTest, NewOpensAllFieldsAndLeavesOnlySaveAndCancelToPress)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr navaIna roka^D-"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdNew")), QStringLiteral("&saovh"));
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdNew cmdCancel"));
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
    });
}

TEST_F(MembersModesTest, ModifyOpensAllFieldsWithTheNumberEmpty)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("%d"));
        EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr roka^D-maQyao badla"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdModify")), QStringLiteral("&saovh"));
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdModify cmdCancel"));
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("txtMemberNo")), QString());
    });
}

TEST_F(MembersModesTest, DeleteOpensOnlyTheNumberAndTheName)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("%k"));
        EXPECT_EQ(TitleOf(clerk), QStringLiteral(" ]%padkacao maasTr roka^D- KaoDNao"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdDelete")), QStringLiteral("&KaoDa"));
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), QStringLiteral("cmdDelete cmdCancel"));
        EXPECT_EQ(Open(clerk, EntryFields).join(u' '), QStringLiteral("txtMemberNo ComboMemberName"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("ComboMemberName")), QString());
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
    });
}

TEST_F(MembersModesTest, CancelByMouseFromAnInvalidFieldShowsNothingAndReturnsToIdle)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}1"));
        clerk.Press(QStringLiteral("cmdCancel"));
        ExpectIdle(clerk);
        clerk.Type(QStringLiteral("%d1{ENTER}{BS}"));
        clerk.Press(QStringLiteral("cmdCancel"));
        ExpectIdle(clerk);
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdModify"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("ComboMemberName")), QString());
    });
}

TEST_F(MembersModesTest, CancelByItsKeyChecksTheFieldFirstAndIsPressedWhateverItSays)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}1%r"));
        GoOn(clerk, QStringLiteral("yaa maombar naMbarcao roka^D- Agaaodrca Aaho"));
        ExpectIdle(clerk);
        clerk.Type(QStringLiteral("%n2%r"));
        ExpectIdle(clerk);
    });
}

TEST_F(MembersModesTest, CancelHidesTheBankFields)
{
    AddMember(1, QStringLiteral("rama"));
    Run(QStringLiteral("update MembersMaster set PaymentType='ba^nk',BankName='sTuT'"));
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        EXPECT_TRUE(clerk.CanEnter(QStringLiteral("ComboBankName")));
        clerk.Press(QStringLiteral("cmdCancel"));
        EXPECT_FALSE(clerk.Top().Find(u"ComboBankName")->Visible());
        EXPECT_FALSE(clerk.Top().Find(u"txtBankAccountNo")->Visible());
    });
}

TEST_F(MembersModesTest, EscOnAnInvalidFieldClosesWithoutAMessage)
{
    AddMember(1, QStringLiteral("rama"));
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}1{ESC}"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One(QStringLiteral("select count(*) from MembersMaster")), QStringLiteral("1"));
}

TEST_F(MembersModesTest, EscClearsTheFieldsAndTheCloseBoxLeavesThem)
{
    frmMembers screen;
    const auto open = [&screen] { screen.ShowModal(); };
    Failure = TheClerk.Play(open, [](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}7"));
        clerk.CloseBox();
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_EQ(screen.Find(u"txtMemberNo")->Text(), QStringLiteral("7"));
    Failure = TheClerk.Play(open, [](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}8{ESC}"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_EQ(screen.Find(u"txtMemberNo")->Text(), QString());
}

TEST_F(MembersModesTest, ExitCloses)
{
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("%b"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(MembersModesTest, F12OpensTheKeyboardTutorAndF2NothingAtAll)
{
    Play([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{F2}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMembers"));
        clerk.Type(QStringLiteral("{F12}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmKeyboardTutor"));
        clerk.Type(QStringLiteral("{ESC}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtMemberNo"));
    });
    EXPECT_TRUE(TheCalculator.Started.isEmpty());
}
