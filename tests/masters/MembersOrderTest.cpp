#include "tests/masters/MembersTest.h"

namespace {

// The member rama has something in every table; whatever is written is noted down in turn.
class MembersOrderTest : public MembersTest {
protected:
    MembersOrderTest()
    {
        const QString rama = "rama";
        AddMember(1, rama);
        AddCollection(1, rama, 10);
        AddPayment(1, rama, 10);
        AddUchal(1, 10);
        AddReceipt(1, "Uchal Receipt", 10);
        AddDeduction(1, "gaaya zova", 10);
        AddVoucher(rama, rama);
        gCn.RunScript("create table Written(Turn integer primary key,What text)");
    }

    // Notes each of these events ("delete on T") down from now on.
    void Note(const QStringList& events)
    {
        for (qsizetype at = 0; at < events.size(); ++at)
            gCn.RunScript(QStringLiteral("create trigger Note%1 after %2 "
                                         "begin insert into Written(What) values('%2'); end")
                              .arg(at)
                              .arg(events[at]));
    }

    QStringList Written() { return Rows("select What from Written order by Turn"); }
};

const QStringList Renames = {
    "update of MemberName on MembersMaster",
    "update of MemberName on MilkCollections",
    "update of MemberName on MilkPayments",
    "update of DAccountName on TransactionsMaster",
    "update of CAccountName on TransactionsMaster",
};

const QStringList Deletes = {
    "delete on MembersMaster",
    "delete on MilkCollections",
    "delete on MilkPayments",
    "delete on TransactionsMaster",
    "delete on TransactionsDetails",
    "delete on AdvanceReceipt",
    "delete on MilkPaymentsDetails",
};

// At the last opening field of a new or a called-up member.
void ExpectSaveAfter(Clerk& clerk, const QString& lastField, const QString& saveButton)
{
    GoTo(clerk, lastField);
    ASSERT_EQ(clerk.Focus(), lastField);
    clerk.Type("5{ENTER}");
    EXPECT_EQ(clerk.Focus(), saveButton);
    EXPECT_EQ(clerk.Reads(lastField), "5.00");
    EXPECT_EQ(clerk.Reads(saveButton), "&saovh") << "the mode goes on";
    EXPECT_EQ(clerk.Message(), QString()) << "nothing is saved yet";
}

}

TEST_F(MembersOrderTest, TheMasterAndThenTheFourPlacesOfTheNameAreWritten)
{
    Play([this](Clerk& clerk) {
        CallUp(clerk, 1);
        Note(Renames);
        Type(clerk, "gaNaoXa{ENTER}%s%h");
    });
    EXPECT_EQ(Written(), Renames);
}

TEST_F(MembersOrderTest, AnUnchangedNameIsWrittenInTheSameOrder)
{
    Play([this](Clerk& clerk) {
        CallUp(clerk, 1);
        Note(Renames);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Written(), Renames);
}

TEST_F(MembersOrderTest, AMemberLeavesTheMasterFirstAndTheDeductionsLast)
{
    Play([this](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}");
        Note(Deletes);
        Type(clerk, "{ENTER}%h");
    });
    EXPECT_EQ(Written(), Deletes);
}

TEST_F(MembersOrderTest, ANoWritesNothingAtAll)
{
    Note(Renames + Deletes);
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%n"); });
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "gaNaoXa{ENTER}%s%n");
    });
    EXPECT_EQ(Written(), QStringList());
}

// The last opening field

TEST_F(MembersOrderTest, LeavingTheLastOpeningFieldGivesTheFocusToSave)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        ExpectSaveAfter(clerk, "txtBuffOpeningThev", "cmdModify");
    });
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        ExpectSaveAfter(clerk, "txtBuffOpeningThev", "cmdNew");
    });
}

TEST_F(MembersOrderTest, ACowMembersLastOpeningFieldIsTheCowsDeposit)
{
    Run("update MembersMaster set Animal='gaaya'");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        ExpectSaveAfter(clerk, "txtCowOpeningThev", "cmdModify");
    });
}

TEST_F(MembersOrderTest, SteppingBackFromTheLastOpeningFieldLeadsToTheFieldBeforeIt)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, "txtBuffOpeningThev");
        Type(clerk, "5+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtCowOpeningThev");
        EXPECT_EQ(Reads(clerk, "txtBuffOpeningThev"), "5.00");
    });
    Run("update MembersMaster set Animal='gaaya'");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, "txtCowOpeningThev");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtOpeningUchal");
    });
}
