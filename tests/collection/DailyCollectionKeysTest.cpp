// Rows that differ in one part of their key only: what is shown, changed and taken for a duplicate.

#include "tests/collection/DailyCollectionTest.h"

namespace {

class DailyCollectionKeysTest : public DailyCollectionTest {
protected:
    // No script of these is broken off, unless its test says so.
    void TearDown() override { EXPECT_FALSE(Failure); }

    void Add(const char* date, const char* shift, int number, int member, double liters)
    {
        AddDelivery(QString::fromLatin1(date), QString::fromLatin1(shift), number, member, "rama", "gaaya",
            liters, 4.5, 35, liters * 35);
    }
};

TEST_F(DailyCollectionKeysTest, AChangeReachesTheRowOfItsMemberDayAndShiftAlone)
{
    Add("15/04/2026", "sakaL", 5, 1, 5);
    Add("15/04/2026", "saMQyaakaL", 5, 1, 5);
    Add("15/04/2026", "saMQyaakaL", 5, 2, 5);
    Add("16/04/2026", "saMQyaakaL", 5, 1, 5);
    After("%d1{ENTER}{ENTER}15042026{ENTER}2{ENTER}5{ENTER}",
        [](Clerk& clerk) { Type(clerk, "{ENTER}6{ENTER}4.5{ENTER}{ENTER}{ENTER}"); });
    QStringList days = Rows("select CollectionDate,CollectionTime,MemberNo,Liters,Amount "
                            "from MilkCollections");
    days.sort();
    EXPECT_EQ(days,
        Of({"15/04/2026|saMQyaakaL|1|6|210", "15/04/2026|saMQyaakaL|2|5|175", "15/04/2026|sakaL|1|5|175",
            "16/04/2026|saMQyaakaL|1|5|175"}));
}

TEST_F(DailyCollectionKeysTest, OfOneNumberInBothShiftsTheRowOfTheKeyedShiftIsShown)
{
    Add("15/04/2026", "sakaL", 5, 1, 5);
    Add("15/04/2026", "saMQyaakaL", 5, 1, 6);
    After("%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}5{ENTER}",
        [](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtLiters"), "5"); });
    After("%d1{ENTER}{ENTER}15042026{ENTER}2{ENTER}5{ENTER}",
        [](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtLiters"), "6"); });
}

TEST_F(DailyCollectionKeysTest, ANumberShowsTheRowOfItsMember)
{
    Add("15/04/2026", "sakaL", 7, 2, 9);
    Add("15/04/2026", "sakaL", 7, 1, 5);
    for (const char* mode : {"%d", "%k"}) {
        After(mode, [mode](Clerk& clerk) {
            Type(clerk, "1{ENTER}{ENTER}15042026{ENTER}1{ENTER}7{ENTER}");
            EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1") << mode;
            EXPECT_EQ(Reads(clerk, "txtLiters"), "5") << mode;
        });
    }
}

TEST_F(DailyCollectionKeysTest, ANumberIsSoughtInBothShifts)
{
    Add("15/04/2026", "saMQyaakaL", 6, 1, 5);
    After("%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}6{ENTER}", [](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "saMQyaakaL");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
    });
}

TEST_F(DailyCollectionKeysTest, ACanOfAnotherMemberOrOfTheOtherCompanyIsNoDuplicate)
{
    Add("15/04/2026", "sakaL", 1, 2, 5);
    Add("15/04/2026", "sakaL", 2, 1, 5);
    Run("update MilkCollections set CompanyId=2 where CollectionNo=2");
    AddingFor(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}6{ENTER}4.5{ENTER}{ENTER}"); });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(DailyCollectionKeysTest, TheListHasTheMembersRowsOfEveryCompany)
{
    Add("15/04/2026", "sakaL", 1, 1, 5);
    Add("15/04/2026", "saMQyaakaL", 2, 1, 5);
    Run("update MilkCollections set CompanyId=2 where CollectionNo=2");
    Adding([](Clerk& clerk) {
        Type(clerk, "1{F5}");
        EXPECT_EQ(Grid(clerk, "DataGrid1").Rows(), 2);
    });
}

TEST_F(DailyCollectionKeysTest, AMemberAndARowOfTheOtherCompanyAreShownAndChanged)
{
    gAppState.gCompanyId = 2;
    AddMember(40, "maaQava", "gaaya");
    gAppState.gCompanyId = 1;
    Add("15/04/2026", "sakaL", 5, 40, 5);
    Run("update MilkCollections set CompanyId=2");
    After("%d40{ENTER}", [](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "maaQava");
        Type(clerk, "{ENTER}15042026{ENTER}1{ENTER}5{ENTER}{ENTER}6{ENTER}4.5{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Rows("select CompanyId,MemberNo,Liters,Amount from MilkCollections"), Of({"2|40|6|210"}));
}

TEST_F(DailyCollectionKeysTest, ANameOfTheOtherCompanyIsListedAndFoundAndStaysBesideItsNumber)
{
    AddMember(40, "maaQava", "gaaya");
    AddMember(41, "maaQava", "gaaya");
    Run("update MembersMaster set CompanyId=2 where MemberNo>3");
    Adding([](Clerk& clerk) {
        EXPECT_EQ(dynamic_cast<const NameCombo&>(*clerk.Top().Find(u"cmbMemberName")).Items().size(), 5);
        Type(clerk, "{ENTER}maaQava{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "40");
    });
    EXPECT_FALSE(Failure);
    Adding([](Clerk& clerk) {
        Type(clerk, "41{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "41");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "maaQava");
    });
}

TEST_F(DailyCollectionKeysTest, ACanOfAnotherDayIsNoDuplicate)
{
    Add("14/04/2026", "sakaL", 1, 1, 5);
    AddingFor(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}6{ENTER}4.5{ENTER}{ENTER}"); });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
    EXPECT_EQ(Books().size(), 2);
}

TEST_F(DailyCollectionKeysTest, OnlyWhileAddingDoesLeavingTheShiftGiveANumber)
{
    Add("15/04/2026", "sakaL", 5, 1, 5);
    for (const char* mode : {"%d", "%k"}) {
        After(mode, [mode](Clerk& clerk) {
            Type(clerk, "1{ENTER}{ENTER}15042026{ENTER}1{ENTER}");
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "") << mode;
            Type(clerk, "5+{TAB}{ENTER}");
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5") << mode;
        });
    }
    AddingFor(1, [](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6"); });
}

}
