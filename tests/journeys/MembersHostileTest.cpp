#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"

#include "masters/frmMembers.h"

namespace {

// What can be typed into the screen of the members. The books of FillBooks.
class MembersHostileTest : public ProgramTest {
protected:
    MembersHostileTest() { FillBooks(); }

    // Plays on a new member's record, with the focus on the number.
    void OnANewMember(const std::function<void(Clerk&)>& script)
    {
        On<frmMembers>([&](Clerk& clerk) {
            Type(clerk, "%n");
            script(clerk);
        });
    }

    // From the number: a name, and the rest in short; the focus is then on the opening balance.
    static void Fill(Clerk& clerk, const QString& name)
    {
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}{ENTER}{ENTER}3{ENTER}1{ENTER}").arg(name));
    }

    static void ExpectLettersDropped(Clerk& clerk, const char* field)
    {
        ASSERT_EQ(Focus(clerk), field);
        const std::string before = Reads(clerk, field);
        Type(clerk, "abcXYZeE-,;:/'\"#*&!?=_ कखग");
        EXPECT_EQ(Reads(clerk, field), before) << field;
    }

    // Saves a member with this name and returns the name as it is in the books.
    QString Saved(const QString& name)
    {
        OnANewMember([&](Clerk& clerk) {
            Fill(clerk, name);
            Type(clerk, "%s");
            EXPECT_EQ(Focus(clerk), "cmdNew");
        });
        EXPECT_FALSE(Failure);
        return One("select MemberName from MembersMaster where MemberNo=4");
    }

    // From the main menu: a new member with an apostrophe, up to the save.
    static QString WayToAnApostrophe() { return OpeningKeys() + "{ENTER}{ENTER}%n{ENTER}"; }
};

constexpr const char* NumberFields[] = {"txtOpeningBalance", "txtCowOpeningLits", "txtBuffOpeningLits",
    "txtOpeningUchal", "txtCowOpeningThev", "txtBuffOpeningThev"};

}

TEST_F(MembersHostileTest, AThousandLettersOfANameAreSavedAndReadBackWhole)
{
    QString name;
    while (name.size() < 1000)
        name += "rama ";
    name = name.left(999) + u'a';
    EXPECT_EQ(Saved(name), name);
    On<frmMembers>([&](Clerk& clerk) {
        Type(clerk, "%d4{ENTER}");
        EXPECT_EQ(clerk.Reads("ComboMemberName"), name);
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MembersHostileTest, AThousandLettersOfAnAddressAreSavedWhole)
{
    const QString address(1000, u'k');
    OnANewMember([&](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}gaIta{ENTER}%1{ENTER}{ENTER}1{ENTER}1{ENTER}%s").arg(address));
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select Address from MembersMaster where MemberNo=4"), address);
}

TEST_F(MembersHostileTest, LettersAreDroppedInEveryNumberField)
{
    OnANewMember([](Clerk& clerk) {
        ExpectLettersDropped(clerk, "txtMemberNo");
        Fill(clerk, "gaIta");
        ExpectLettersDropped(clerk, NumberFields[0]);
        Type(clerk, "{ENTER}{ENTER}");
        for (std::size_t at = 1; at < std::size(NumberFields); ++at) {
            ExpectLettersDropped(clerk, NumberFields[at]);
            Type(clerk, "{ENTER}");
        }
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MembersHostileTest, AMemberPast32767IsSavedAndTheNextOneOverflows)
{
    OnANewMember([](Clerk& clerk) {
        Type(clerk, "32768");
        Fill(clerk, "gaIta");
        Type(clerk, "%s");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(One("select MemberName from MembersMaster where MemberNo=32768"), "gaIta");
}

TEST_F(MembersHostileTest, AMemberOfEightDigitsIsSavedUnderThem)
{
    OnANewMember([](Clerk& clerk) {
        Type(clerk, "99999999");
        Fill(clerk, "gaIta");
        Type(clerk, "%s%d99999999{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "gaIta");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MembersHostileTest, ANumberThatNobodyHasIsSaidToBeNobodys)
{
    for (const char* number : {"32768", "99999999"}) {
        On<frmMembers>([number](Clerk& clerk) {
            clerk.Type(QStringLiteral("%d") + QLatin1String(number) + "{ENTER}");
            EXPECT_EQ(clerk.Message().toStdString(), "yaa maombar naMbarcao roka^D- ]plabQa naahI");
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtMemberNo");
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(MembersHostileTest, FourHundredDigitsInANumberFieldAreAnOverflowAndNothingIsSaved)
{
    const QStringList before = AllRows();
    const QString digits = QString(400, u'8') + "{ENTER}";
    for (int field = -1; field < static_cast<int>(std::size(NumberFields)); ++field) {
        OnANewMember([&](Clerk& clerk) {
            if (field >= 0)
                Fill(clerk, "gaIta");
            for (int at = field > 0 ? -1 : 0; at < field; ++at)
                Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), field < 0 ? "txtMemberNo" : NumberFields[field]);
            clerk.Type(digits);
        });
        if (field < 0) { // a number that isn't numeric is refused
            EXPECT_FALSE(Failure);
        } else {
            ASSERT_TRUE(Failure) << field;
            EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
        }
    }
    EXPECT_EQ(Difference(before, AllRows()), "");
}

TEST_F(MembersHostileTest, AnApostropheInANewNameEndsTheProgramAndTheBooksAreAsBefore)
{
    const QStringList before = AllRows();
    const int exitCode = Start([](Clerk& clerk) {
        clerk.Type(WayToAnApostrophe());
        Type(clerk, "d'souza{ENTER}{ENTER}{ENTER}1{ENTER}1{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
        Type(clerk, "%s");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(exitCode, 1);
    EXPECT_EQ(Boxes("Run-time error"), 1);
    EXPECT_EQ(Boxes("d'souza"), 1) << "the statement is shown";
    Reopen();
    EXPECT_EQ(Difference(before, AllRows()), "");
}

TEST_F(MembersHostileTest, AnApostropheInAChangedNameEndsTheProgramAndTheBooksAreAsBefore)
{
    const QStringList before = AllRows();
    const int exitCode = Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys() + "{ENTER}{ENTER}%d1{ENTER}ra'ma{ENTER}%s%h");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(exitCode, 1);
    EXPECT_EQ(TheBox.Shown.size(), 1);
    EXPECT_EQ(Boxes("Run-time error"), 1);
    Reopen();
    EXPECT_EQ(Difference(before, AllRows()), "");
}

TEST_F(MembersHostileTest, AnApostropheInANewVillageEndsTheProgramAndTheBooksAreAsBefore)
{
    const QStringList before = AllRows();
    const int exitCode = Start([](Clerk& clerk) {
        clerk.Type(WayToAnApostrophe() + "gaIta{ENTER}{ENTER}ma'sUr{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(exitCode, 1);
    EXPECT_EQ(Boxes("Run-time error"), 1);
    Reopen();
    EXPECT_EQ(Difference(before, AllRows()), "");
}

TEST_F(MembersHostileTest, AStatementHiddenInANameIsNotRun)
{
    const QStringList before = AllRows();
    const int exitCode = Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys()
            + QStringLiteral(
                "{ENTER}{ENTER}%d1{ENTER}ra'; delete * from MembersMaster where 'a'='a{ENTER}%s%h"));
    });
    EXPECT_EQ(exitCode, 1);
    EXPECT_EQ(Boxes("Run-time error"), 1);
    Reopen();
    EXPECT_EQ(Difference(before, AllRows()), "");
}
