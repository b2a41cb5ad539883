// The statement of a member's deliveries and of a customer's purchases.

#include "tests/reports/ReportsTest.h"

#include "platform/forms/OptionButton.h"
#include "reports/frmReportMilkPS.h"

namespace {

constexpr const char* Lines =
    "select CollectionDate,MemberNo,MemberName,Animal,LitersM,FatM,RateM,AmountM,LitersE,"
    "FatE,RateE,AmountE,SNFM,SNFE from MilkCollectionsME";

class MilkStatementTest : public ReportsTest {
protected:
    MilkStatementTest()
    {
        AddMember(3, "gaNaoSa");
        AddMember(4, "maaQava");
        Run("insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType) "
            "values(1,1,'dUQa saMGa','daonhI','saMGa ivaËI')");
    }

    void Report(const char* keys) { Type<frmReportMilkPS>(keys); }
    QStringList Staged() { return Rows(QString::fromLatin1(Lines)); }
    static QStringList Texts(std::initializer_list<const char*> lines)
    {
        QStringList texts;
        for (const char* line : lines)
            texts.append(QString::fromUtf8(line));
        return texts;
    }
};

constexpr const char* OfTheMember = "13042026{ENTER}15042026{ENTER}{ENTER}gaNaoSa%i";
constexpr const char* OfTheCustomer = "13042026{ENTER}15042026{ENTER}{DOWN}{ENTER}dUQa saMGa%i";

TEST_F(MilkStatementTest, AMorningAloneHasEveningNoughtsAndADayWithoutMilkHasNoLine)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    AddDelivery("15/04/2026", "saMQyaakaL", 2, 3, "gaNaoSa", "gaaya", 4.5, 4.2, 32);
    Report(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(),
        Texts({"13/04/2026|3|gaNaoSa|gaaya|10|4|30|300|0|0|0|0|0|0",
            "15/04/2026|3|gaNaoSa|gaaya|0|0|0|0|4.5|4.2|32|144|0|0"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Texts({"1|13/04/2026|15/04/2026"}));
    EXPECT_TRUE(ReportTexts().contains(Seen("gaNaoSa")));
}

TEST_F(MilkStatementTest, AFileOfItIsNamedAfterTheMemberAndThePeriod)
{
    Report(OfTheMember);
    EXPECT_EQ(TheWindow.Subject(), "गणेश 13-04-2026 ते 15-04-2026");
    Report("13042026{ENTER}13042026{ENTER}%i");
    EXPECT_EQ(TheWindow.Subject(), "13-04-2026");
}

TEST_F(MilkStatementTest, CowStandsBeforeBuffaloOnEachDayAndBothShiftsInOneLine)
{
    AddDelivery("13/04/2026", "sakaL", 1, 3, "gaNaoSa", "mhOsa", 2, 7, 45);
    AddDelivery("13/04/2026", "sakaL", 2, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    AddDelivery("13/04/2026", "saMQyaakaL", 9, 3, "gaNaoSa", "gaaya", 8, 4.1, 30);
    Report(OfTheMember);
    EXPECT_EQ(Staged(),
        Texts({"13/04/2026|3|gaNaoSa|gaaya|10|4|30|300|8|4.1|30|240|0|0",
            "13/04/2026|3|gaNaoSa|mhOsa|2|7|45|90|0|0|0|0|0|0"}));
}

TEST_F(MilkStatementTest, TheCopyHoldsTheMembersRowsOfTheRangeAndNoOthers)
{
    AddDelivery("12/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 1, 4, 30);
    AddDelivery("13/04/2026", "sakaL", 1, 3, " gaNaoSa ", "gaaya", 2, 4, 30);
    AddDelivery("13/04/2026", "sakaL", 2, 4, "maaQava", "gaaya", 3, 4, 30);
    AddDelivery("15/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 4, 4, 30);
    AddDelivery("16/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 5, 4, 30);
    Run("insert into MilkSalesTemp(CompanyId,SalesNo) values(1,1)");
    Report(OfTheMember);
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp"), Texts({"2", "4"}));
    EXPECT_EQ(Rows("select * from MilkSalesTemp"), QStringList());
}

TEST_F(MilkStatementTest, WithoutRepetitionOnlyTheFirstRowOfAShiftIsTold)
{
    AddDelivery("13/04/2026", "sakaL", 7, 3, "gaNaoSa", "gaaya", 7, 4, 30);
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 5, 4, 30);
    Report(OfTheMember);
    EXPECT_EQ(Rows("select LitersM from MilkCollectionsME"), Texts({"5"}));
}

TEST_F(MilkStatementTest, WithRepetitionTheFurtherRowsFollowWithoutSnfUntilNeitherShiftHasOne)
{
    Run("update AutoSettings set RepeatCollection='haoya'");
    for (int number : {5, 7, 9})
        AddDelivery("13/04/2026", "sakaL", number, 3, "gaNaoSa", "gaaya", number, 4, 30);
    AddDelivery("13/04/2026", "saMQyaakaL", 2, 3, "gaNaoSa", "gaaya", 2, 4, 30);
    AddDelivery("13/04/2026", "saMQyaakaL", 3, 3, "gaNaoSa", "mhOsa", 3, 7, 40);
    Report(OfTheMember);
    EXPECT_EQ(Rows("select Animal,LitersM,LitersE,SNFM,SNFE from MilkCollectionsME"),
        Texts({"gaaya|5|2|0|0", "gaaya|7|0|NULL|NULL", "gaaya|9|0|NULL|NULL", "mhOsa|0|3|0|0"}));
}

TEST_F(MilkStatementTest, WithRepetitionNumbersOfAnySizeComeToAnEnd)
{
    Run("update AutoSettings set RepeatCollection='haoya'");
    for (int number : {1, 2, 3, 4})
        AddDelivery("13/04/2026", "sakaL", number, 3, "gaNaoSa", "gaaya", number, 4, 30);
    for (const auto& [number, large] :
        {std::pair("2", "3000000000"), {"3", "3000000001"}, {"4", "1234567890123456768"}})
        Run(QStringLiteral("update MilkCollections set CollectionNo=%1 where CollectionNo=%2")
                .arg(QString::fromLatin1(large), QString::fromLatin1(number)));
    Report(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select LitersM from MilkCollectionsME"), Texts({"1", "2", "3", "4"}));
}

TEST_F(MilkStatementTest, AMembersLargeNumberIsStagedAsItIs)
{
    Run("update MembersMaster set MemberNo=3000000000 where MemberNo=3");
    AddDelivery("13/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    Report(OfTheMember);
    EXPECT_EQ(Rows("select MemberNo from MilkCollectionsME"), Texts({"3000000000"}));
}

TEST_F(MilkStatementTest, ACustomersPurchasesAreStagedInTheMembersShapeWithTheirSnf)
{
    AddSale("13/04/2026", "sakaL", 1, "dUQa saMGa", "gaaya", 100, 4, 8.5);
    AddSale("13/04/2026", "saMQyaakaL", 1, "dUQa saMGa", "gaaya", 90, 4.1, 8.6);
    AddSale("13/04/2026", "sakaL", 2, "Anya", "gaaya", 5, 4, 8.5);
    AddDelivery("13/04/2026", "sakaL", 1, 3, "dUQa saMGa", "gaaya", 7, 4, 30);
    Report(OfTheCustomer);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(), Texts({"13/04/2026|0|dUQa saMGa|gaaya|100|4|40|4000|90|4.1|40|3600|8.5|8.6"}));
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp"), QStringList());
    EXPECT_TRUE(ReportTexts().contains("8.5"));
}

TEST_F(MilkStatementTest, WithRepetitionAFurtherSaleIsFoundByItsOwnNumber)
{
    Run("update AutoSettings set RepeatCollection='haoya'");
    AddSale("13/04/2026", "sakaL", 1, "dUQa saMGa", "gaaya", 100, 4, 8.5);
    AddSale("13/04/2026", "sakaL", 2, "dUQa saMGa", "gaaya", 50, 4, 8.5);
    Report(OfTheCustomer);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select LitersM,SNFM from MilkCollectionsME"), Texts({"100|8.5", "50|NULL"}));
}

TEST_F(MilkStatementTest, TheDatesOfTheRunBeforeAreRemovedBeforeAnyRowIsStaged)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    Run("insert into ReportDates(CompanyId,FromDate) values(1,'01/01/2026')");
    gCn.RunScript("create trigger Watch after delete on ReportDates begin "
                  "insert into KapatDetails(MemberNo) "
                  "select count(*) from MilkCollectionsTemp; end");
    Report(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select MemberNo from KapatDetails"), Texts({"0"}));
    EXPECT_EQ(Staged().size(), 1);
}

TEST_F(MilkStatementTest, TwoRunsGiveTheSame)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    Report(OfTheMember);
    const QStringList staged = Staged();
    const QStringList texts = ReportTexts();
    Report(OfTheMember);
    EXPECT_EQ(Staged(), staged);
    EXPECT_EQ(Rows("select * from ReportDates").size(), 1);
    EXPECT_EQ(ReportTexts(), texts);
}

TEST_F(MilkStatementTest, NoMilkAtAllIsAReportThatSaysSo)
{
    Report(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(), QStringList());
    EXPECT_TRUE(ReportTexts().contains("13/04/2026 ते 15/04/2026 या काळात दुधाची नोंद नाही."));
}

TEST_F(MilkStatementTest, AMissingTemplateEndsTheProgramWithTheStagingDone)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    RemoveTemplate("MilkPSReport.rpt");
    Report(OfTheMember);
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Staged().size(), 1);
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(MilkStatementTest, ANameWithAnApostropheEndsTheProgramAndChangesNothing)
{
    Run("insert into MilkCollectionsME(CompanyId,MemberNo) values(1,9)");
    Report("13042026{ENTER}15042026{ENTER}{ENTER}ga'Na%i");
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Rows("select MemberNo from MilkCollectionsME"), Texts({"9"}));
}

TEST_F(MilkStatementTest, ANameThatIsBegunIsTheOneThatTheListStandsAt)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    for (const char* typed : {"gaNa", "g", " gaNaoSa"}) {
        Run("delete * from MilkCollectionsME");
        On<frmReportMilkPS>([&](Clerk& clerk) {
            clerk.Type("13042026{ENTER}15042026{ENTER}{ENTER}" + QString::fromLatin1(typed));
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Reads(clerk, "ComboAccountName"), "gaNaoSa") << typed;
            EXPECT_EQ(Focus(clerk), "cmdReport");
            Type(clerk, "{ENTER}");
        });
        EXPECT_EQ(Staged(), Texts({"13/04/2026|3|gaNaoSa|gaaya|10|4|30|300|0|0|0|0|0|0"})) << typed;
    }
}

TEST_F(MilkStatementTest, ANameOfTheListIsNotTakenForTheBeginningOfALongerOne)
{
    AddMember(5, "gaNaoSarava");
    AddMember(6, "gaNa");
    On<frmReportMilkPS>([](Clerk& clerk) {
        const QString combo = "ComboAccountName";
        Type(clerk, "13042026{ENTER}15042026{ENTER}{ENTER}gaNaoSa{ENTER}");
        EXPECT_EQ(clerk.Reads(combo), "gaNaoSa");
        Type(clerk, "+{TAB}gaNa +{TAB}");
        EXPECT_EQ(clerk.Reads(combo), "gaNa");
        Type(clerk, "{ENTER}gaNaoSar{ENTER}");
        EXPECT_EQ(clerk.Reads(combo), "gaNaoSarava");
        Type(clerk, "+{TAB}raja{ENTER}");
        EXPECT_EQ(clerk.Reads(combo), "raja") << "what matches nothing stays";
        Type(clerk, "+{TAB}{BS}{ENTER}");
        EXPECT_EQ(clerk.Reads(combo), QString()) << "and so does nothing";
    });
}

TEST_F(MilkStatementTest, ADateThatIsNoneTakesTheFocusBackWithoutAMessage)
{
    On<frmReportMilkPS>([this](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        Type(clerk, "13042026{ENTER}3104{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        Type(clerk, "%i");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_EQ(OnTop(clerk), "frmReportMilkPS");
        EXPECT_TRUE(TheWindow.Shown.empty());
    });
}

TEST_F(MilkStatementTest, TheNamesAreTheMembersOrTheCustomersByTheOption)
{
    On<frmReportMilkPS>([](Clerk& clerk) {
        const auto names = [&] {
            return dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboAccountName"))->Items();
        };
        EXPECT_EQ(Reads(clerk, "OptionCollections"), "1");
        EXPECT_EQ(names(), Texts({"gaNaoSa", "maaQava"}));
        Type(clerk, "13042026{ENTER}15042026{ENTER}{ENTER}gaNaoSa+{TAB}{DOWN}");
        EXPECT_EQ(Reads(clerk, "OptionSales"), "1");
        EXPECT_EQ(names(), Texts({"dUQa saMGa"}));
        EXPECT_EQ(Reads(clerk, "ComboAccountName"), "");
    });
}

TEST_F(MilkStatementTest, EscClearsAndClosesAndTheExitButtonCloses)
{
    for (const char* keys : {"13042026{ESC}", "13042026{ENTER}15042026{ENTER}%b"}) {
        On<frmReportMilkPS>([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(OnTop(clerk), "");
        });
    }
    On<frmReportMilkPS>([](Clerk& clerk) {
        Press(clerk, "cmdExit");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

// Opened by a counter.

TEST_F(MilkStatementTest, ForACounterItStagesItsCopyPrintsNothingAndClosesItself)
{
    AddDelivery("13/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    AddDelivery("14/04/2026", "saMQyaakaL", 2, 3, "gaNaoSa", "mhOsa", 6, 8, 50);
    Run("insert into MilkCollectionsTemp select * from MilkCollections");
    Run("insert into MilkCollectionsME(CompanyId,MemberNo) values(1,9)");
    gAppState.gReportMode = "ShowMilkCollection";
    const QStringList dates{"2|NULL|NULL"};
    Run("insert into ReportDates(CompanyId) values(2)");
    On<frmReportMilkPS>([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from ReportDates"), dates) << "the range is the counter's";
    EXPECT_TRUE(TheWindow.Shown.empty());
    EXPECT_EQ(Staged(),
        Texts({"13/04/2026|3|gaNaoSa|gaaya|10|4|30|300|0|0|0|0|0|0",
            "14/04/2026|3|gaNaoSa|mhOsa|0|0|0|0|6|8|50|300|0|0"}));
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp").size(), 2);
    EXPECT_EQ(gAppState.gReportMode, QString());
}

TEST_F(MilkStatementTest, AfterACounterTheNextOpeningIsTheClerksOwn)
{
    gAppState.gReportMode = "ShowMilkCollection";
    Report("");
    EXPECT_EQ(Staged(), QStringList());
    Report(OfTheMember);
    EXPECT_EQ(TheWindow.Shown.size(), 1U);
}

}
