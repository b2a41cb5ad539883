// Modifying and deleting a row of the books, Cancel, and the member's list.

#include "tests/collection/DailyCollectionTest.h"

namespace {

class DailyCollectionChangesTest : public DailyCollectionTest {
protected:
    // In the books: 5 litres of member 1 as number 5 on three mornings and an evening, and those of others.
    DailyCollectionChangesTest()
    {
        for (const char* date : {"14/04/2026", "15/04/2026", "16/04/2026"})
            Add(date, "sakaL", 5, 1, 4.5);
        Add("15/04/2026", "saMQyaakaL", 6, 1, 4.5);
        Add("15/04/2026", "sakaL", 7, 1, 4.55);
    }

    void Add(const char* date, const char* shift, int number, int member, double fat)
    {
        AddDelivery(QString::fromLatin1(date), QString::fromLatin1(shift), number, member, "rama", "gaaya", 5,
            fat, 35, 175);
    }

    // The row of the list that reads like this; -1 if there is none.
    static int RowOf(Clerk& clerk, const std::string& line)
    {
        const DataGrid& list = Grid(clerk, "DataGrid1");
        for (int row = 0; row < list.Rows(); ++row)
            if (Line(list, row) == line)
                return row;
        return -1;
    }

    static std::string MorningLine(const std::string& date, const std::string& number, const std::string& fat)
    {
        return date + '|' + Seen("sakaL").toStdString() + '|' + number + '|' + Seen("gaaya").toStdString()
            + "|5.000|" + fat + "|35.00|175.00";
    }

    // From the member's number to that row, with the list opened.
    static void ListAndMoveTo(Clerk& clerk, const std::string& line)
    {
        Type(clerk, "1{F5}");
        ASSERT_GE(RowOf(clerk, line), 0);
        clerk.Type("{HOME}" + QStringLiteral("{DOWN}").repeated(RowOf(clerk, line)));
    }

    // Leads from the button to the row of a morning of member 1 and leaves its number.
    static void GoTo(Clerk& clerk, const char* mode, const char* date, int number)
    {
        Type(clerk, mode);
        Type(clerk, "1{ENTER}{ENTER}");
        Type(clerk, date);
        clerk.Type(QStringLiteral("{ENTER}1{ENTER}%1{ENTER}").arg(number));
    }
};

}

// Modifying

TEST_F(DailyCollectionChangesTest, ModifyingOpensAllFieldsAndOnlySaveAndCancel)
{
    After("%d", [](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "&saovh");
        for (const char* field : Fields)
            EXPECT_TRUE(CanEnter(clerk, field)) << field;
        for (const char* button : {"cmdAdd", "cmdDelete", "cmdExit"})
            EXPECT_FALSE(CanEnter(clerk, button)) << button;
        EXPECT_TRUE(CanEnter(clerk, "cmdCancel"));
    });
}

TEST_F(DailyCollectionChangesTest, LeavingTheNumberShowsTheRowWithoutFormats)
{
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 7);
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.55");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175");
    });
}

TEST_F(DailyCollectionChangesTest, AFigureThatIsMissingCountsAsZero)
{
    Run("update MilkCollections set Rate=null where CollectionNo=7");
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 7);
        EXPECT_EQ(Reads(clerk, "txtRate"), "0");
    });
}

TEST_F(DailyCollectionChangesTest, TheRowDecidesTheShiftThatIsShown)
{
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 6);
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "saMQyaakaL");
    });
}

TEST_F(DailyCollectionChangesTest, ARowThatIsNotThereIsToldAndCancels)
{
    for (const char* mode : {"%d", "%k"}) {
        InTheOffice([mode](Clerk& clerk) {
            GoTo(clerk, mode, "15042026", 99);
            EXPECT_EQ(clerk.Message(), "saMklana naM tpasaa.") << mode;
            Type(clerk, "{ENTER}");
            ExpectIdle(clerk, "cmdAdd");
        });
    }
    EXPECT_EQ(Books().size(), 5);
}

TEST_F(DailyCollectionChangesTest, AnEmptyNumberCountsAsZeroAndIsNoRow)
{
    After("%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}",
        [](Clerk& clerk) { EXPECT_EQ(clerk.Message(), "saMklana naM tpasaa."); });
}

TEST_F(DailyCollectionChangesTest, AChangeIsPricedAnewAndSavedFromTheRate)
{
    InTheOffice([this](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 5);
        Type(clerk, "{ENTER}6.5{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate") << "the save button of the adding is closed";
        EXPECT_EQ(Reads(clerk, "txtAmount"), "227.50");
        Type(clerk, "36{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdModify");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "234.00");
        Type(clerk, "{ENTER}");
        ExpectIdle(clerk, "cmdModify");
        EXPECT_EQ(Days(),
            Of({"14/04/2026|sakaL|5|1|gaaya|5|4.5|35|175", "15/04/2026|sakaL|5|1|gaaya|6.5|4.5|36|234",
                "15/04/2026|saMQyaakaL|6|1|gaaya|5|4.5|35|175", "15/04/2026|sakaL|7|1|gaaya|5|4.55|35|175",
                "16/04/2026|sakaL|5|1|gaaya|5|4.5|35|175"}));
    });
}

TEST_F(DailyCollectionChangesTest, AChangeLeavesTheMembersFiguresAlone)
{
    const QString member = "select ClosingBalance,CowClosingLits from MembersMaster where MemberNo=1";
    const QStringList before = Rows(member);
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 5);
        Type(clerk, "{ENTER}6.5{ENTER}4.5{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Rows(member), before);
}

TEST_F(DailyCollectionChangesTest, AnotherAnimalFindsNoRowToChange)
{
    const QStringList before = Days();
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 5);
        Type(clerk, "2{ENTER}6.5{ENTER}8{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdModify");
    });
    EXPECT_EQ(Days(), before);
}

TEST_F(DailyCollectionChangesTest, ARowIsShownBeforeItIsWritten)
{
    Add("17/04/2026", "saMQyaakaL", 5, 1, 4.5);
    const QStringList before = Days();
    const std::pair<const char*, const char*> others[] = {{"txtMemberNo", "2"},
        {"MasKCollectionDate", "16042026"}, {"cmbCollectionTime", "2"}, {"txtCollectionNo", "7"}};
    for (const char* mode : {"%d", "%k"}) {
        for (const auto& [field, other] : others) {
            InTheOffice([mode, field = field, other = other](Clerk& clerk) {
                Type(clerk, mode);
                Type(clerk, "1{ENTER}{ENTER}15042026{ENTER}1{ENTER}5+{TAB}");
                ASSERT_EQ(Reads(clerk, "txtLiters"), "5");
                clerk.Press(QString::fromLatin1(field));
                Type(clerk, other);
                Type(clerk, mode[1] == 'd' ? "%s" : "%k");
                EXPECT_EQ(Focus(clerk), "txtCollectionNo") << mode << field;
            });
        }
    }
    EXPECT_EQ(Days(), before);
}

TEST_F(DailyCollectionChangesTest, ANumberAndTheButtonAtOnceShowTheRowAndASecondPressWritesIt)
{
    InTheOffice([this](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}{ENTER}15042026{ENTER}1{ENTER}7%k");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.55");
        EXPECT_EQ(Books().size(), 5);
        clerk.Press("cmdDelete");
        ExpectIdle(clerk, "cmdDelete");
        EXPECT_EQ(Books().size(), 4);
    });
}

// Deleting

TEST_F(DailyCollectionChangesTest, DeletingOpensOnlyWhatFindsTheRow)
{
    After("%k", [](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
        for (const char* field : {"txtMemberNo", "cmbMemberName", "MasKCollectionDate", "cmbCollectionTime",
                 "txtCollectionNo", "cmdDelete", "cmdCancel"})
            EXPECT_TRUE(CanEnter(clerk, field)) << field;
        for (const char* field :
            {"txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount", "cmdAdd", "cmdModify", "cmdExit"})
            EXPECT_FALSE(CanEnter(clerk, field)) << field;
    });
}

TEST_F(DailyCollectionChangesTest, ShiftTabLeadsFromTheNumberBackToTheShiftWithoutADeletionAtHand)
{
    After("%k1{ENTER}{ENTER}15042026{ENTER}1{ENTER}5+{TAB}", [](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "cmbCollectionTime");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
    });
}

TEST_F(DailyCollectionChangesTest, ADeletionTakesTheNumberOfMemberAndShiftOnEveryDay)
{
    Add("17/04/2026", "saMQyaakaL", 5, 1, 4.5);
    Add("17/04/2026", "sakaL", 5, 2, 4.5);
    Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo) "
        "values(2,'18/04/2026','sakaL',5,1)");
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%k", "15042026", 5);
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
        EXPECT_NE(Label(clerk, "lblGuide"), "") << "the clerk is warned";
        Type(clerk, "{ENTER}");
        ExpectIdle(clerk, "cmdDelete");
        EXPECT_EQ(Label(clerk, "lblGuide"), "");
    });
    EXPECT_EQ(Rows("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo from "
                   "MilkCollections order by CompanyId,CollectionDate,CollectionNo,MemberNo"),
        Of({"1|15/04/2026|saMQyaakaL|6|1", "1|15/04/2026|sakaL|7|1", "1|17/04/2026|saMQyaakaL|5|1",
            "1|17/04/2026|sakaL|5|2", "2|18/04/2026|sakaL|5|1"}));
}

TEST_F(DailyCollectionChangesTest, ADeletionLeavesTheMembersFiguresAlone)
{
    Run("update MembersMaster set ClosingBalance=525,ClosingDorC='C',CowClosingLits=15");
    const QString members = "select MemberNo,ClosingBalance,ClosingDorC,CowClosingLits,"
                            "BuffClosingLits from MembersMaster";
    const QStringList before = Rows(members);
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%k", "15042026", 5);
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Books().size(), 2);
    EXPECT_EQ(Rows(members), before);
}

TEST_F(DailyCollectionChangesTest, ADeletionAsksForNoPayment)
{
    Run("insert into MilkPayments(CompanyId,MemberNo,FromDate,ToDate) "
        "values(1,1,'15/04/2026','15/04/2026')");
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%k", "15042026", 5);
        Type(clerk, "{ENTER}");
        ExpectIdle(clerk, "cmdDelete");
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
    EXPECT_EQ(Books().size(), 2);
}

// Guides

TEST_F(DailyCollectionChangesTest, TheGuidesSayHowARowIsFoundAndWhatIsSaved)
{
    for (const char* mode : {"%d", "%k"}) {
        After(mode, [](Clerk& clerk) {
            EXPECT_EQ(Label(clerk, "lblGuide"), "नोंद शोधा : मेम्बर, दिनांक, वेळ, संकलन क्रमांक");
            Type(clerk, "1{ENTER}{ENTER}15042026{ENTER}1{ENTER}");
            EXPECT_EQ(Label(clerk, "lblGuide"), "Enter : ही नोंद");
        });
    }
    InTheOffice([](Clerk& clerk) {
        GoTo(clerk, "%d", "15042026", 5);
        EXPECT_EQ(Label(clerk, "lblGuide"), "दूध प्रकार नोंदीचाच ठेवा : दुसरा सेव्ह होत नाही");
        Type(clerk, "%r%n");
        EXPECT_EQ(Label(clerk, "lblGuide"), "F5 : मेम्बरचे आतापर्यंतचे संकलन");
        Type(clerk, "3{ENTER}{ENTER}15042026{ENTER}1{ENTER}");
        EXPECT_EQ(Label(clerk, "lblGuide"), "1 ते 32766");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Label(clerk, "lblGuide"), Seen("  1 ¹ gaaya    2 ¹ mhOsa").toStdString());
    });
}

// Cancel

TEST_F(DailyCollectionChangesTest, CancelGoesBackToIdle)
{
    for (const char* mode : {"%n", "%d", "%k"}) {
        InTheOffice([mode](Clerk& clerk) {
            Type(clerk, mode);
            Type(clerk, "1{ENTER}%r");
            ExpectIdle(clerk, "cmdAdd");
        });
    }
}

TEST_F(DailyCollectionChangesTest, CancelByItsKeyIsNotHeldByAFieldThatRefuses)
{
    const char* refused[] = {"%n1{ENTER}{ENTER}", "%n1{ENTER}{ENTER}15042026{ENTER}",
        "%n3{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}",
        "%n1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}",
        "%n1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}5{ENTER}"};
    for (const char* keys : refused) {
        After(keys, [keys](Clerk& clerk) {
            const std::string field = Focus(clerk);
            Type(clerk, "{ENTER}");
            ASSERT_EQ(Focus(clerk), field) << keys;
            Type(clerk, "%r");
            ExpectIdle(clerk, "cmdAdd");
        });
    }
}

TEST_F(DailyCollectionChangesTest, CancelByTheMouseAsksNoRuleOfTheFieldBefore)
{
    After("%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}99", [](Clerk& clerk) {
        clerk.Press("cmdCancel");
        EXPECT_EQ(clerk.ScreenName(), "frmDailyCollection") << "no message";
        ExpectIdle(clerk, "cmdAdd");
    });
}

// The member's list

TEST_F(DailyCollectionChangesTest, F5ListsTheMembersRowsWhileAdding)
{
    AddDelivery("15/04/2026", "sakaL", 8, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    Adding([](Clerk& clerk) {
        Type(clerk, "1{F5}");
        EXPECT_EQ(Grid(clerk, "DataGrid1").Rows(), 5);
        EXPECT_GE(RowOf(clerk, MorningLine("15/04/2026", "7", "4.55")), 0);
        EXPECT_EQ(Focus(clerk), "DataGrid1");
        Type(clerk, "{F5}");
        EXPECT_FALSE(CanEnter(clerk, "DataGrid1"));
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(DailyCollectionChangesTest, TheListHasItsCaptionsAndItsFiguresTheirDecimals)
{
    Run("update MilkCollections set Liters=5.5,Rate=35.5,Amount=195.25 where CollectionNo=7");
    Adding([](Clerk& clerk) {
        Type(clerk, "1{F5}");
        const DataGrid& list = Grid(clerk, "DataGrid1");
        EXPECT_EQ(Heads(list), "दिनांक|वेळ|संकलन क्रं|दूध प्रकार|लिटर्स|फॅट|दर|रक्कम");
        EXPECT_GE(RowOf(clerk, "15/04/2026|सकाळ|7|गाय|5.500|4.55|35.50|195.25"), 0);
    });
}

TEST_F(DailyCollectionChangesTest, F5InTheNumberHidesTheListToo)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "2{F5}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo") << "there is no row to go to";
        EXPECT_TRUE(CanEnter(clerk, "DataGrid1"));
        Type(clerk, "{F5}");
        EXPECT_FALSE(CanEnter(clerk, "DataGrid1"));
    });
}

TEST_F(DailyCollectionChangesTest, F5DoesNothingElsewhere)
{
    for (const char* keys : {"{F5}", "%d1{F5}", "%k1{F5}", "%n1{ENTER}{F5}"})
        After(keys, [keys](Clerk& clerk) { EXPECT_FALSE(CanEnter(clerk, "DataGrid1")) << keys; });
}

TEST_F(DailyCollectionChangesTest, F5ClearsTheCompanyThatIsNeverUsed)
{
    Run("insert into MilkCollections(CompanyId,CollectionNo,MemberNo) values(999,1,1)");
    After("%n1{F5}", [](Clerk& clerk) { EXPECT_EQ(Grid(clerk, "DataGrid1").Rows(), 5); });
    EXPECT_EQ(Books().size(), 5);
}

TEST_F(DailyCollectionChangesTest, APickedRowIsShownOnLeavingItsNumberAndIsADuplicate)
{
    Adding([this](Clerk& clerk) {
        ListAndMoveTo(clerk, MorningLine("15/04/2026", "5", "4.50"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_FALSE(CanEnter(clerk, "DataGrid1"));
        EXPECT_EQ(Reads(clerk, "MasKCollectionDate"), "15/04/2026");
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "sakaL");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175");
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate record not allowed"}));
        EXPECT_EQ(Books().size(), 5);
    });
}

TEST_F(DailyCollectionChangesTest, ARowIsPickedByTheMouse)
{
    Adding([](Clerk& clerk) {
        ListAndMoveTo(clerk, MorningLine("16/04/2026", "5", "4.50"));
        clerk.Press("DataGrid1");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "MasKCollectionDate"), "16/04/2026");
        EXPECT_FALSE(CanEnter(clerk, "DataGrid1"));
    });
}

TEST_F(DailyCollectionChangesTest, WhileAddingANumberThatWasTypedShowsNoRow)
{
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
    });
}

TEST_F(DailyCollectionChangesTest, TheListFollowsASaveAndGoesWithItsMember)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "1{F5}{TAB}{ENTER}{ENTER}20042026{ENTER}1{ENTER}{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Grid(clerk, "DataGrid1").Rows(), 6);
        clerk.Press("txtLiters");
        Type(clerk, "1");
        clerk.Press("txtMemberNo");
        Type(clerk, "2");
        EXPECT_FALSE(CanEnter(clerk, "DataGrid1"));
    });
}
