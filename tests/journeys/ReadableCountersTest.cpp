// The counters and what is opened from them.

#include "collection/frmAbsenseMemberCollection.h"
#include "collection/frmCollectionGate.h"
#include "collection/frmDailyCollection.h"
#include "collection/frmMilkCollections.h"
#include "collection/frmSearchCollections.h"
#include "platform/forms/DataGrid.h"
#include "tests/journeys/ReadableTest.h"

#include <QDeadlineTimer>

namespace {

int RowsOf(Clerk& clerk, const char* grid)
{
    return dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(grid))).Rows();
}

}

TEST_F(ReadableTest, TheCounterFromTheDateToTheSave)
{
    On<frmMilkCollections>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        Type(clerk, "{ENTER}");
        ExpectReadable(clerk, "at the shift");
        Type(clerk, "1{ENTER}");
        ExpectReadable(clerk, "at the number");
        for (const char* keys :
            {"{ENTER}", "3{ENTER}", "2{ENTER}", "1666.666{ENTER}", "30{ENTER}", "60{ENTER}"}) {
            Type(clerk, keys);
            ExpectReadable(clerk, "at " + Focus(clerk));
        }
        EXPECT_EQ(Reads(clerk, "txtAmount"), "99999.96");
        Type(clerk, "{ENTER}");
        ExpectReadable(clerk, "after the save");
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheCounterWithTheNamesDroppedOpenAndWithARowToDelete)
{
    On<frmMilkCollections>([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        ExpectReadable(clerk, "the names open");
        Type(clerk, "{DOWN}{ENTER}");
        ExpectReadable(clerk, "a name picked");
    });
    On<frmMilkCollections>([](Clerk& clerk) {
        Type(clerk, "{ENTER}2{ENTER}{ENTER}3{ENTER}1{ENTER}9.999{ENTER}4.5{ENTER}{ENTER}{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        ExpectReadable(clerk, "with the key that deletes");
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheCounterWithRowsAndTheFrameOfAMember)
{
    On<frmMilkCollections>([](Clerk& clerk) {
        Type(clerk, "14042026{ENTER}1{ENTER}");
        EXPECT_EQ(RowsOf(clerk, "DataGridInwards"), 3);
        TypeAndLook(clerk, {"{HOME}", "99{ENTER}", "{ENTER}"});
        Type(clerk, "{ESC}");
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
    On<frmMilkCollections>([](Clerk& clerk) {
        Type(clerk, "14042026{ENTER}1{ENTER}{ENTER}3");
        TypeAndLook(clerk, {"{F7}", "14042026{ENTER}", "15042026{ENTER}", "3{ENTER}", "{ENTER}", "{ENTER}"});
        EXPECT_EQ(RowsOf(clerk, "DataGridMilk"), 4);
        TypeAndLook(clerk, {"%b"});
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheGateFromTheDateToTheSaveWithRows)
{
    On<frmCollectionGate>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk, {"14042026{ENTER}", "2{ENTER}"});
        EXPECT_EQ(RowsOf(clerk, "DataGridInwards"), 2);
        TypeAndLook(clerk, {"{ENTER}", "1{ENTER}", "1666.66{ENTER}", "30{ENTER}", "60{ENTER}"});
        EXPECT_EQ(Reads(clerk, "txtAmount"), "99999.60");
        TypeAndLook(clerk, {"{ENTER}"});
        EXPECT_EQ(RowsOf(clerk, "DataGridInwards"), 3);
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheGateWithTheSearchOnAndEachOrder)
{
    On<frmCollectionGate>([](Clerk& clerk) {
        Type(clerk, "14042026{ENTER}1{ENTER}");
        clerk.Press("chkSerachMode");
        ExpectReadable(clerk, "searching");
        for (const char* button : {"cmdLtrOrder", "cmdFatOrder", "cmdRateOrder", "cmdAmtOrder"}) {
            clerk.Press(QString::fromLatin1(button));
            ExpectReadable(clerk, std::string("sorted by ") + button);
        }
        clerk.Press("txtMemberNo");
        TypeAndLook(clerk, {"3", "7"});
        EXPECT_EQ(RowsOf(clerk, "DataGridInwards"), 0);
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheDailyCollectionIdleAndAddingWithTheListShown)
{
    On<frmDailyCollection>([](Clerk& clerk) {
        ExpectReadable(clerk, "idle");
        TypeAndLook(clerk, {"%n", "3{F5}"});
        EXPECT_EQ(RowsOf(clerk, "DataGrid1"), 4);
        TypeAndLook(clerk,
            {"{ENTER}", "{F5}", "3{ENTER}", "{ENTER}", "16042026{ENTER}", "2{ENTER}", "{ENTER}", "1{ENTER}",
                "9999.999{ENTER}", "29.9{ENTER}", "+{TAB}+{TAB}60{ENTER}"});
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheDailyCollectionChangingAndDeletingARow)
{
    for (const char* mode : {"%d", "%k"}) {
        On<frmDailyCollection>([mode](Clerk& clerk) {
            TypeAndLook(clerk, {mode, "3{ENTER}", "{ENTER}", "14042026{ENTER}", "1{ENTER}", "99{ENTER}"});
            EXPECT_EQ(Reads(clerk, "txtAmount"), "99999.96");
        });
        EXPECT_FALSE(Failure) << Failure->Text().toStdString();
    }
}

TEST_F(ReadableTest, TheSearchForASlipWithItsRows)
{
    On<frmSearchCollections>([](Clerk& clerk) {
        const QDeadlineTimer limit(10000);
        while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
            clerk.Do([] {});
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk, {"14042026{ENTER}", "1{ENTER}", "3{ENTER}", "{ENTER}"});
        EXPECT_EQ(RowsOf(clerk, "DataGridInwards"), 2);
        TypeAndLook(clerk, {"{DOWN}", "{ENTER}"});
        EXPECT_EQ(Focus(clerk), "cmdGo");
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(ReadableTest, TheAbsentMembersWithRows)
{
    On<frmAbsenseMemberCollection>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk, {"15042026{ENTER}", "1{ENTER}", "{ENTER}"});
        EXPECT_EQ(RowsOf(clerk, "DataGridMembers"), 2);
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}
