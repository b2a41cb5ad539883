#include "tests/collection/MemberFrameTest.h"

#include "core/menu/Keys.h"

#include <algorithm>

namespace {

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

TEST_F(MemberFrameTest, TheListHasItsCaptionsAndWidths)
{
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Heads(Milk(clerk)), "अ.क्र.|दिनांक|वेळ|दूध|लिटर्स|फॅट|दर|रक्कम");
        EXPECT_EQ(Widths(Milk(clerk)), (std::vector<int>{60, 86, 46, 93, 80, 80, 86}))
            << "900 twips are 60 pixels; the half of the day has what is left";
        EXPECT_EQ(Alignments(Milk(clerk)), "llllrrrr");
    });
}

TEST_F(MemberFrameTest, ItsTitleAndItsButtonsHaveTheirCaptions)
{
    InTheFrame([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "Label28").text(), Seen("]%padkacao vaOyai@tk dUQa saMklana"));
        EXPECT_EQ(Reads(clerk, "cmdGoOn"), ">>");
        EXPECT_EQ(Reads(clerk, "Command1"), "&irpaoT-");
        EXPECT_EQ(Reads(clerk, "Command2"), "&baahor");
        EXPECT_EQ(Reads(clerk, "Command3"), "dUQa saMklana nasaNaaro saBaasad");
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

TEST_F(MemberFrameTest, OfTwoMembersOfOneNameTheOneWhoseNumberWasTypedStays)
{
    AddMember(12, "rama", "gaaya");
    for (const char* keys : {"12{ENTER}{ENTER}", "12{ENTER}rama%{UP}{ENTER}"})
        InTheFrame([keys](Clerk& clerk) {
            Type(clerk, "13042026{ENTER}14042026{ENTER}");
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), "cmdGoOn") << keys;
            EXPECT_EQ(Reads(clerk, "txtAccountId"), "12") << keys;
        });
}

TEST_F(MemberFrameTest, AnotherSpellingOfANameIsTheMember)
{
    AddMember(8, "maa$tI", "gaaya");
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026{ENTER}3{ENTER}maarutI{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "8");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "maa$tI");
    });
}

TEST_F(MemberFrameTest, AMemberOfTheOtherCompanyIsFoundByNumberAndByName)
{
    AddMember(40, "paava-tI", "gaaya");
    AddMember(41, "paava-tI", "gaaya");
    Run("update MembersMaster set CompanyId=2 where MemberNo=40");
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026{ENTER}40{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "paava-tI");
        Type(clerk, "paava-tI{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "40") << "the number beside the name";
        Type(clerk, "+{TAB}+{TAB}3{ENTER}paava-tI{ESC}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "40") << "the first of the name, whosesoever he is";
        EXPECT_EQ(Focus(clerk), "cmdGoOn");
    });
}

TEST_F(MemberFrameTest, AnUnknownNumberAndAnUnknownNameChangeNothing)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026{ENTER}3{ENTER}xyz{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAccountId"), "3");
        EXPECT_EQ(Reads(clerk, "cmbAccountName"), "xyz");
        clerk.Press("txtAccountId");
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
        clerk.Press("cmdGoOn");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MemberFrameTest, APeriodThatWasNeverEnteredIsAskedFor)
{
    InTheFrame([this](Clerk& clerk) {
        Type(clerk, "13042026");
        clerk.Press("txtAccountId");
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
    Run("update MilkCollections set CompanyId=2 where CollectionNo=5");
    InTheFrame([this](Clerk& clerk) {
        EXPECT_EQ(Copy().size(), 2);
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 2);
        Type(clerk, "{ESC}");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1) << "the list of the shift follows";
    });
}

TEST_F(MemberFrameTest, TheReloadLeavesOutRowsNumberedZero)
{
    AddMorningDelivery(0);
    InTheFrame([this](Clerk& clerk) {
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

TEST_F(MemberFrameTest, ItsOwnButtonLeadsBackWhateverStandsInItsDates)
{
    for (const char* dates : {"", "31022026", "13042026{ENTER}", "13042026{ENTER}3113"})
        InTheFrame([dates](Clerk& clerk) {
            Type(clerk, dates);
            Type(clerk, "%b");
            EXPECT_FALSE(IsOpen(clerk)) << dates;
            EXPECT_EQ(Focus(clerk), "txtMemberNo") << dates;
        });
}

TEST_F(MemberFrameTest, ItShowsItsOwnKeysInPlaceOfTheCounters)
{
    const auto shown = [](Clerk& clerk, const QString& action) {
        const QList<QWidget*> keys = clerk.Top().findChildren<QWidget*>();
        return std::any_of(keys.begin(), keys.end(), [&](const QWidget* key) {
            return key->isVisible() && key->accessibleName() == "Alt+I " + action;
        });
    };
    const QString report = Seen("irpaoT-");
    InTheMorning([&](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_FALSE(shown(clerk, report));
        Type(clerk, "{F7}");
        EXPECT_TRUE(shown(clerk, report));
        Type(clerk, "{ESC}");
        EXPECT_FALSE(shown(clerk, report));
    });
}

TEST_F(MemberFrameTest, TheKeysOfTheMemberAreToldWhileTheFrameIsOpenAndNoLongerBehindIt)
{
    const auto expect = [](Clerk& clerk, bool told) {
        for (const char* label : {"lblF9", "lblSearch", "lblF7", "lblMilk"})
            EXPECT_EQ(Shows(clerk, label), told) << label;
    };
    InTheMorning([&](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        expect(clerk, true);
        Type(clerk, "{F7}");
        expect(clerk, true);
        Type(clerk, "{ESC}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        expect(clerk, false);
        clerk.Press("txtMemberNo");
        expect(clerk, true);
        Type(clerk, "1{ENTER}");
        expect(clerk, false);
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
        EXPECT_EQ(One("select count(*) from ReportDates"), "0");
    });
}

TEST_F(MemberFrameTest, TheReportIsRunOverTheCopyWithThePeriod)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        Type(clerk, "%i");
        ASSERT_EQ(Printed.size(), 1U);
        EXPECT_EQ(Printed[0].fileName, "C:\\Tarvel01\\Vetrolan\\MilkPSReport.rpt");
        EXPECT_EQ(Printed[0].logon, "dsn=VetrolanDSN;pwd=Doodh#26");
        EXPECT_EQ(Printed[0].destination, ReportDestination::Window);
        EXPECT_EQ(Printed[0].subject, "गणेश 13-04-2026 ते 14-04-2026");
        EXPECT_EQ(Rows("select CompanyId,FromDate,ToDate from ReportDates"), Of({"1|13/04/2026|14/04/2026"}));
        EXPECT_EQ(Copy().size(), 4);
        EXPECT_EQ(gAppState.gReportMode, "ShowMilkCollection");
        EXPECT_TRUE(IsOpen(clerk));
    });
}

TEST_F(MemberFrameTest, TheReportLeavesOutRowsAndPeriodsOfNoCompany)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        Run("update MilkCollectionsTemp set CompanyId=0 where CollectionNo=1");
        gAppState.gCompanyId = 0;
        Type(clerk, "%i");
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_EQ(One("select count(*) from MilkCollectionsTemp"), "3");
        EXPECT_EQ(One("select count(*) from ReportDates"), "0");
    });
}

TEST_F(MemberFrameTest, AbsentMembersAreAScreenOfTheirOwn)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}14042026");
        clerk.Press("Command3");
        EXPECT_EQ(clerk.ScreenName(), "frmAbsenseMemberCollection");
        Type(clerk, "{ESC}");
        EXPECT_TRUE(IsOpen(clerk));
    });
}

TEST_F(MemberFrameTest, ReturningFromTheMembersAddsTheFirstNameToItsList)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{F3}{ESC}");
        EXPECT_EQ(dynamic_cast<NameCombo&>(*clerk.Top().Find(u"cmbAccountName")).Items(),
            Of({"gaNaoSa", "rama", "saIta", "rama"}));
    });
}

}
