#include "tests/collection/EachCounterTest.h"

#include "platform/database/Sql.h"

#include <map>

namespace {

class CounterEdgesTest : public EachCounterTest {
protected:
    QStringList Figures(int member)
    {
        return Rows(Sql(u"select ClosingBalance,CowClosingLits,BuffClosingLits from MembersMaster "
                        u"where MemberNo=",
            member));
    }
    QStringList Balances()
    {
        return Rows("select MemberNo,ClosingBalance,ClosingDorC from MembersMaster order by MemberNo");
    }

    // Opens a counter that is kept after it has closed, and returns what its fields read then.
    template <class S> std::map<std::string, std::string> ReadAfter(const std::function<void(Clerk&)>& script)
    {
        std::map<std::string, std::string> read;
        Failure = TheClerk.Play(
            [&read] {
                S counter;
                counter.ShowModal();
                for (const Control* control : counter.Controls())
                    if (const auto* field = dynamic_cast<const Field*>(control))
                        read[field->Name().toStdString()] = field->Text().toStdString();
            },
            script);
        return read;
    }
};

INSTANTIATE_TEST_SUITE_P(AtEach, CounterEdgesTest, Counters(), CounterName);

constexpr const char* EntryFields[] = {
    "txtMemberNo", "ComboMemberName", "txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount"};

// Member and animal

TEST_P(CounterEdgesTest, AnUnknownNumberBesideASettledAnimalGoesToTheLitresAndIsNotSaved)
{
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5");
        clerk.Press("txtMemberNo");
        Type(clerk, "{END}{BS}77{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama") << "the member before, until another is named";
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_FALSE(CanEnter(clerk, "txtAnimal"));
        Type(clerk, "{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_TRUE(Books().isEmpty());
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_P(CounterEdgesTest, ACowMemberCantHaveBuffaloMilkEntered)
{
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5");
        EXPECT_FALSE(CanEnter(clerk, "txtAnimal"));
        clerk.Press("txtAnimal");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "52");
        Type(clerk, "{ENTER}4.5{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|52|4.5|35|1820"}));
}

TEST_P(CounterEdgesTest, AnAnimalOfNeitherWordLeavesTheRateUntouched)
{
    AddMember(4, "Aajaaobaa", QString());
    AddMorningDelivery(1);
    Run("update MilkCollections set Rate=41");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "1{ENTER}4{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        Type(clerk, "6{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "6") << "not reformatted either";
        EXPECT_EQ(Reads(clerk, "txtRate"), "41.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "246.00");
    });
}

// Chart and rate

TEST_P(CounterEdgesTest, AChartWithoutATableIsTheCaseOfNoChart)
{
    Run("update FatDates set FatFileName=null");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        for (const char* field : EntryFields)
            EXPECT_EQ(Reads(clerk, field), "") << field;
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_TRUE(Books().isEmpty());
    });
    EXPECT_EQ(Error(), "");
}

TEST_P(CounterEdgesTest, ARateOfZeroCantBeSavedAndTheLineStaysInSilence)
{
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5{ENTER}20");
        clerk.Press("cmdGo");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_EQ(clerk.Message(), QString());
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        const std::string line[] = {
            "1", "rama", "gaaya", Litres("5.00"), "20.0", "0.00", "0.00"}; // in the order of the fields
        for (std::size_t at = 0; at < std::size(line); ++at)
            EXPECT_EQ(Reads(clerk, EntryFields[at]), line[at]) << EntryFields[at];
    });
    EXPECT_TRUE(Books().isEmpty());
    EXPECT_TRUE(Copy().isEmpty());
}

TEST_P(CounterEdgesTest, ATypedRateOfZeroIsHeldBackFromTheButtonToo)
{
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5{ENTER}4.5{ENTER}0");
        clerk.Press("cmdGo");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "0.00");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_TRUE(Books().isEmpty());
}

// Changed rows

TEST_P(CounterEdgesTest, AChangedRowThatCollidesWithAnotherChangesNothing)
{
    InTheShift([this](Clerk& clerk) {
        DeliverOf(clerk, 3, 1, "2", "4.5");
        DeliverOf(clerk, 3, 2, "1", "8");
        const QStringList books = Books();
        const QStringList figures = Figures(3);
        Type(clerk, "2{ENTER}{ENTER}1{ENTER}9{ENTER}4.5{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        for (const char* field : EntryFields)
            EXPECT_EQ(Reads(clerk, field), "") << field;
        EXPECT_EQ(Books(), books);
        EXPECT_EQ(Copy(), books);
        EXPECT_EQ(Figures(3), figures);
    });
    EXPECT_EQ(Books().size(), 2);
}

TEST_P(CounterEdgesTest, ARowMovedToAnotherMemberRefreshesOnlyTheNewOnesLitres)
{
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Figures(1), Of({"0|5|0"}));
        Type(clerk, "1{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
    });
    EXPECT_EQ(Books(), Of({"1|3|gaNaoSa|gaaya|5|4.5|35|175"}));
    EXPECT_EQ(Copy(), Books());
    EXPECT_EQ(Figures(3), Of({"0|5|0"}));
    EXPECT_EQ(Figures(1), Of({"0|5|0"})) << "what was taken away still stands with the member before";
}

// Whom a closing balance is posted to

TEST_P(CounterEdgesTest, MembersOfOneNameAreBothGivenTheBalanceOfTheFirst)
{
    Set("PurchaseEntry", "Collection");
    AddMember(8, "rama", "mhOsa");
    Run("update MembersMaster set ClosingBalance=10*MemberNo");
    InTheShift([](Clerk& clerk) { Deliver(clerk, 8, "1", "8"); });
    EXPECT_EQ(Balances(), Of({"1|59|C", "2|20|C", "3|30|C", "8|59|C"}));
}

TEST_P(CounterEdgesTest, ANameWithABlankAtItsEndIsSavedAndPostedToNobody)
{
    Set("PurchaseEntry", "Collection");
    Run("update MembersMaster set MemberName='rama ' where MemberNo=1");
    InTheShift([](Clerk& clerk) { Deliver(clerk, 1, "5", "4.5"); });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Books(), Of({"1|1|rama |gaaya|5|4.5|35|175"}));
    EXPECT_EQ(Balances(), Of({"1|0|C", "2|0|C", "3|0|C"}));
    EXPECT_EQ(Figures(1), Of({"0|5|0"})) << "litres go by the number";
}

// Deleting

TEST_P(CounterEdgesTest, DeletingTidiesRowsNumberedZeroOutOfTheCopy)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    InTheShift([this](Clerk& clerk) {
        Run("insert into MilkCollectionsTemp(CompanyId,CollectionNo) values(1,0)");
        Type(clerk, "1{ENTER}{F10}");
    });
    EXPECT_EQ(Copy(), Of({"2|1|rama|gaaya|5|4.5|35|175"}));
}

TEST_P(CounterEdgesTest, APaymentOfAnotherCompanyDoesNotStopADeletion)
{
    AddMorningDelivery(1);
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,MemberNo) "
        "values(2,'15/04/2026','15/04/2026',1)");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}{F10}");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_TRUE(Books().isEmpty());
}

// The series

TEST_P(CounterEdgesTest, TheHighestNumberIsGivenOutAndTheOneAfterItOverflows)
{
    AddMorningDelivery(32766);
    InTheShift([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "32767");
        Deliver(clerk, 2, "1", "8");
    });
    ASSERT_TRUE(Failure) << "there is no next number to show";
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(Books().last().toStdString(), "32767|2|saIta|mhOsa|1|8|49|49") << "the can itself is saved";

    InTheShift([](Clerk& clerk) { EXPECT_TRUE(clerk.ScreenName().isEmpty()); });
    ASSERT_TRUE(Failure) << "the full shift can't be opened again";
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(Books().size(), 2);
}

// Esc

TEST_P(CounterEdgesTest, EscEmptiesTheLineAndClosesTheCounter)
{
    const auto script = [](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}1{ENTER}5{ENTER}4.5{ENTER}");
        for (const char* field : EntryFields)
            EXPECT_NE(Reads(clerk, field), "") << field;
        Type(clerk, "{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QString());
    };
    auto read = IsGate() ? ReadAfter<frmCollectionGate>(script) : ReadAfter<frmMilkCollections>(script);
    EXPECT_EQ(Error(), "");
    for (const char* field : EntryFields) {
        ASSERT_TRUE(read.contains(field)) << field;
        EXPECT_EQ(read[field], "") << field;
    }
    EXPECT_EQ(read["txtTime"], "sakaL") << "date, shift and number are no part of the line";
    EXPECT_EQ(read["txtCollectionNo"], "1");
    EXPECT_TRUE(Books().isEmpty());
}

}
