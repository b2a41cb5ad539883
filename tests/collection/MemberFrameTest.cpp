#include "CounterTest.h"

#include "ScreenDirectory.h"

namespace {

class frmAbsent final : public Screen {
public:
    frmAbsent() : Screen("frmAbsenseMemberCollection") { }
};

// Member 3 brought both kinds of milk on the 13th and the 14th; the morning of the 15th is open.
class MemberFrameTest : public CounterTest {
protected:
    MemberFrameTest()
    {
        AddMilk("13/04/2026", "sakaL", 4, "gaaya", 10, 4, 300);
        AddMilk("13/04/2026", "saMQyaakaL", 7, "gaaya", 5, 5, 175.5);
        AddMilk("14/04/2026", "sakaL", 2, "mhOsa", 2, 7, 90);
        AddMilk("14/04/2026", "saMQyaakaL", 1, "mhOsa", 6, 8, 294.25);
        AddMorningDelivery(1);
    }

    void AddMilk(const char* date, const char* shift, int number, const char* animal, double liters,
        double fat, double amount)
    {
        AddDelivery(QString::fromLatin1(date), QString::fromLatin1(shift), number, 3,
            QStringLiteral("gaNaoSa"), QString::fromLatin1(animal), liters, fat, 35, amount);
    }

    // With the frame open and the focus on its first date.
    void InTheFrame(const std::function<void(Clerk&)>& script)
    {
        InTheMorning([&](Clerk& clerk) {
            Type(clerk, "{ENTER}2{F7}");
            script(clerk);
        });
    }

    // The period of both days, and the member by number.
    static void Ask(Clerk& clerk, const char* member)
    {
        clerk.Type(QStringLiteral("13042026{ENTER}14042026{ENTER}%1{ENTER}{ENTER}{ENTER}")
                       .arg(QString::fromLatin1(member)));
    }

    static const DataGrid& Milk(Clerk& clerk) { return Grid(clerk, "DataGridMilk"); }
    static bool IsOpen(Clerk& clerk)
    {
        return clerk.Top().findChild<QWidget*>(QStringLiteral("FrameMilkCollection"))->isVisible();
    }
    static std::string Labels(Clerk& clerk, std::initializer_list<const char*> names)
    {
        std::string all;
        for (const char* name : names)
            all += Label(clerk, name) + '|';
        return all;
    }
    static std::string Cow(Clerk& clerk)
    {
        return Labels(clerk,
            {"lblCowLitM", "lblCowLitE", "lblCowTotalLiters", "lblCowTotalM", "lblCowTotalE", "lblCowTotal",
                "lblCowAvgFatM", "lblCowAvgFatE", "lblCowTotalAvgFat"});
    }
    static std::string Buff(Clerk& clerk)
    {
        return Labels(clerk,
            {"lblBuffLitM", "lblBuffLitE", "lblBuffTotalLiters", "lblBuffTotalM", "lblBuffTotalE",
                "lblBuffTotal", "lblBuffAvgFatM", "lblBuffAvgFatE", "lblBuffTotalAvgFat"});
    }
};

constexpr const char* NoMilk = "0.000|0.000|0.000|0.000|0.000|0.000|0.0|0.0|0.0|";

TEST_F(MemberFrameTest, F7OpensItOnTheFirstDateAndTheLineStaysAsItWas)
{
    InTheMorning([](Clerk& clerk) {
        EXPECT_FALSE(IsOpen(clerk));
        Type(clerk, "{ENTER}2{F7}");
        EXPECT_TRUE(IsOpen(clerk));
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "") << "the number wasn't checked on leaving it";
        EXPECT_EQ(Cow(clerk), NoMilk);
    });
}

TEST_F(MemberFrameTest, ShowsTheMembersRowsOfThePeriodNumberedAnew)
{
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        const DataGrid& grid = Milk(clerk);
        ASSERT_EQ(grid.Rows(), 4);
        EXPECT_EQ(Line(grid, 0), "1|13/04/2026|संध्याकाळ|गाय|5.000|5.00|35.00|175.50");
        EXPECT_EQ(Line(grid, 1), "2|13/04/2026|सकाळ|गाय|10.000|4.00|35.00|300.00");
        EXPECT_EQ(Line(grid, 2), "3|14/04/2026|संध्याकाळ|म्हैस|6.000|8.00|35.00|294.25");
        EXPECT_EQ(Line(grid, 3), "4|14/04/2026|सकाळ|म्हैस|2.000|7.00|35.00|90.00");
    });
    EXPECT_EQ(Books().size(), 5) << "only the copy is numbered anew";
    EXPECT_EQ(One(QStringLiteral("select max(CollectionNo) from MilkCollections")), QStringLiteral("7"));
}

TEST_F(MemberFrameTest, TheSumsAreByAnimalAndHalfOfTheDay)
{
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Cow(clerk), "10.000|5.000|15.000|300.000|175.500|475.500|4.0|5.0|4.3|");
        EXPECT_EQ(Buff(clerk), "2.000|6.000|8.000|90.000|294.250|384.250|7.0|8.0|7.8|");
    });
}

TEST_F(MemberFrameTest, OneDeliveryIsOneRowNumberedOne)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}");
        ASSERT_EQ(Milk(clerk).Rows(), 1);
        EXPECT_EQ(Line(Milk(clerk), 0), "1|15/04/2026|सकाळ|गाय|5.000|4.50|35.00|175.00");
        EXPECT_EQ(Label(clerk, "lblCowTotalM"), "175.000") << "amounts have three decimals here";
        EXPECT_EQ(Label(clerk, "lblCowAvgFatE"), "0.0");
    });
}

TEST_F(MemberFrameTest, AMemberWithoutMilkInThePeriodIsToldAndNothingChanges)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        const QStringList before = Copy();
        clerk.Press(QStringLiteral("txtAccountId"));
        Type(clerk, "{END}{BS}2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(TheBox.Shown, Of({"No Records"}));
        EXPECT_EQ(Focus(clerk), "txtAccountId");
        EXPECT_EQ(Copy(), before);
        EXPECT_EQ(Milk(clerk).Rows(), 4);
    });
}

TEST_F(MemberFrameTest, RowsOfAnotherCompanyAndRowsNumberedZeroStayOut)
{
    AddMilk("14/04/2026", "sakaL", 3, "gaaya", 1, 4, 35);
    Run(QStringLiteral("update MilkCollections set CompanyId=2 where CollectionNo=3"));
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Milk(clerk).Rows(), 4);
    });
}

TEST_F(MemberFrameTest, ANumberOrANameFindsTheMember)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026{ENTER}3{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbAccountName");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "gaNaoSa");
        Type(clerk, "ra'1ma{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "1");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "rama");
        EXPECT_EQ(Focus(clerk), "cmdGoOn");
    });
}

TEST_F(MemberFrameTest, AnUnknownNumberAndAnUnknownNameChangeNothing)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026{ENTER}3{ENTER}xyz{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "3");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "xyz");
        clerk.Press(QStringLiteral("txtAccountId"));
        Type(clerk, "{END}{BS}a88.{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "88");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "xyz");
    });
}

TEST_F(MemberFrameTest, TheNamesAreAddedOnceMoreOnEnteringTheList)
{
    InTheFrame([](Clerk& clerk) {
        const auto& combo = dynamic_cast<NameCombo&>(*clerk.Top().Find(u"cmbAccountName"));
        const QStringList names = Of({"gaNaoSa", "rama", "saIta"});
        EXPECT_EQ(combo.Items(), names);
        Type(clerk, "13042026{ENTER}14042026{ENTER}{ENTER}");
        EXPECT_EQ(combo.Items(), names + names);
        EXPECT_TRUE(combo.IsDroppedDown());
    });
}

TEST_F(MemberFrameTest, ABadDateKeepsTheFocus)
{
    InTheFrame([this](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        Type(clerk, "31022026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        Type(clerk, "{HOME}13042026{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        clerk.Press(QStringLiteral("cmdGoOn"));
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MemberFrameTest, APeriodThatWasNeverEnteredIsAskedFor)
{
    InTheFrame([this](Clerk& clerk) {
        Type(clerk, "13042026");
        clerk.Press(QStringLiteral("txtAccountId"));
        Type(clerk, "3{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MemberFrameTest, EscGivesTheCopyBackToTheShiftAndReturnsToTheNumber)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Copy().size(), 4);
        Type(clerk, "{ESC}");
        EXPECT_FALSE(IsOpen(clerk));
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(Books().last().toStdString(), "2|2|saIta|mhOsa|2|8|49|98");
        Type(clerk, "{ENTER}{F7}");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "");
        EXPECT_EQ(Cow(clerk), NoMilk);
        EXPECT_EQ(Buff(clerk), NoMilk);
        EXPECT_EQ(Milk(clerk).Rows(), 0);
    });
}

TEST_F(MemberFrameTest, EscInABadDateClosesTheFrameAllTheSame)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "31022026{ESC}");
        EXPECT_FALSE(IsOpen(clerk));
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        Type(clerk, "{ESC}");
        EXPECT_TRUE(clerk.ScreenName().isEmpty());
    });
}

TEST_F(MemberFrameTest, TheReloadGoesByTheCompany)
{
    AddMorningDelivery(5);
    Run(QStringLiteral("update MilkCollections set CompanyId=2 where CollectionNo=5"));
    InTheFrame([this](Clerk& clerk) {
        EXPECT_EQ(Copy().size(), 2);
        Type(clerk, "{ESC}");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
    });
}

TEST_F(MemberFrameTest, ItsOwnButtonLeadsBackToTheEntryLine)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        Type(clerk, "%b");
        EXPECT_FALSE(IsOpen(clerk));
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        Type(clerk, "{END}{BS}2{ENTER}2{ENTER}8{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Books().last().toStdString(), "2|2|saIta|mhOsa|2|8|49|98");
    });
}

TEST_F(MemberFrameTest, NothingCanBeSavedAgainstThePeriodInTheCopy)
{
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        for (const char* control : {"maskDate", "txtTime", "txtCollectionNo", "txtMemberNo",
                 "ComboMemberName", "txtLiters", "cmdGo", "DataGridInwards"})
            EXPECT_FALSE(CanEnter(clerk, control)) << control;
        Type(clerk, "{ESC}");
        for (const char* control : {"maskDate", "txtTime", "txtCollectionNo", "txtMemberNo",
                 "ComboMemberName", "txtLiters", "cmdGo", "DataGridInwards"})
            EXPECT_TRUE(CanEnter(clerk, control)) << control;
        EXPECT_FALSE(CanEnter(clerk, "txtAmount"));
    });
}

TEST_F(MemberFrameTest, TheFrameCanBeEnteredOnlyWhileItIsOpen)
{
    InTheMorning([](Clerk& clerk) {
        for (const char* control : {"maskFromDate", "maskToDate", "txtAccountId", "cmbAccountName", "cmdGoOn",
                 "Command1", "Command2", "Command3", "DataGridMilk"})
            EXPECT_FALSE(CanEnter(clerk, control)) << control;
    });
}

TEST_F(MemberFrameTest, AReportWithoutAMemberAsksForTheMember)
{
    InTheFrame([this](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026{ENTER}%i");
        EXPECT_EQ(Focus(clerk), "txtAccountId");
        EXPECT_TRUE(Printed.empty());
        EXPECT_EQ(One(QStringLiteral("select count(*) from ReportDates")), QStringLiteral("0"));
    });
}

TEST_F(MemberFrameTest, TheReportIsRunOverTheCopyWithThePeriod)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        Type(clerk, "%i");
        ASSERT_EQ(Printed.size(), 1U);
        EXPECT_EQ(Printed[0].fileName, QStringLiteral("C:\\Tarvel01\\Vetrolan\\MilkPSReport.rpt"));
        EXPECT_EQ(Printed[0].logon, QStringLiteral("dsn=VetrolanDSN;pwd=Doodh#26"));
        EXPECT_EQ(Printed[0].destination, CounterReport::Destination::Window);
        EXPECT_EQ(Rows(QStringLiteral("select CompanyId,FromDate,ToDate from ReportDates")),
            Of({"1|13/04/2026|14/04/2026"}));
        EXPECT_EQ(Copy().size(), 4);
        EXPECT_EQ(gAppState.gReportMode, QStringLiteral("ShowMilkCollection"));
        EXPECT_TRUE(IsOpen(clerk));
    });
}

TEST_F(MemberFrameTest, AbsentMembersAreAScreenOfTheirOwn)
{
    ScreenDirectory::Add(
        QStringLiteral("frmAbsenseMemberCollection"), [] { return std::make_unique<frmAbsent>(); });
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026");
        clerk.Press(QStringLiteral("Command3"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmAbsenseMemberCollection"));
        Type(clerk, "{ESC}");
        EXPECT_TRUE(IsOpen(clerk));
    });
    ScreenDirectory::Add(QStringLiteral("frmAbsenseMemberCollection"), {});
}

TEST_F(MemberFrameTest, ReturningFromTheMembersAddsTheFirstNameToItsList)
{
    ScreenDirectory::Add(QStringLiteral("frmMembers"), [] { return std::make_unique<frmAbsent>(); });
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{F3}{ESC}");
        EXPECT_EQ(dynamic_cast<NameCombo&>(*clerk.Top().Find(u"cmbAccountName")).Items(),
            Of({"gaNaoSa", "rama", "saIta", "rama"}));
    });
    ScreenDirectory::Add(QStringLiteral("frmMembers"), {});
}

}
