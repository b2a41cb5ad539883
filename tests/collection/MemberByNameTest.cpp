#include "tests/collection/CounterTest.h"

namespace {

class MemberByNameTest : public CounterTest {
protected:
    // With the number left empty and the focus on the name.
    void AtTheName(const std::function<void(Clerk&)>& script)
    {
        InTheMorning([&](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}");
            script(clerk);
        });
    }

    static NameCombo& Combo(Clerk& clerk)
    {
        return dynamic_cast<NameCombo&>(*clerk.Top().Find(u"ComboMemberName"));
    }
};

TEST_F(MemberByNameTest, AnEmptyNumberOpensTheListOfNamesInOrder)
{
    AtTheName([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_TRUE(Combo(clerk).IsDroppedDown());
        EXPECT_EQ(Combo(clerk).Items(), Of({"gaNaoSa", "rama", "saIta"}));
    });
}

TEST_F(MemberByNameTest, AMemberAddedMeanwhileIsInTheList)
{
    InTheMorning([this](Clerk& clerk) {
        AddMember(4, "Aajaaobaa");
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Combo(clerk).Items().size(), 4);
    });
}

TEST_F(MemberByNameTest, ANumberOfZeroIsEmptied)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}00{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
}

TEST_F(MemberByNameTest, TheFirstEnterFindsTheMemberAndTheNextGoesOn)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "rama{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_FALSE(Combo(clerk).IsDroppedDown());
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_FALSE(CanEnter(clerk, "txtAnimal"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
    });
}

TEST_F(MemberByNameTest, AStepBackFromANameThatIsFoundLeadsToTheNumber)
{
    for (const char* name : {"rama", "gaNaoSa", "sa"})
        AtTheName([name](Clerk& clerk) {
            Type(clerk, name);
            Type(clerk, "%{UP}+{TAB}");
            const bool isFound = std::string(name) != "sa";
            EXPECT_EQ(Focus(clerk), isFound ? "txtMemberNo" : "ComboMemberName") << name;
            EXPECT_EQ(Reads(clerk, "txtMemberNo").empty(), !isFound) << name;
        });
}

TEST_F(MemberByNameTest, ANameCanBePickedFromTheList)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "{DOWN}{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
    });
}

TEST_F(MemberByNameTest, AMemberOfBothGoesToTheAnimalAtOnce)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "gaNaoSa{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "3");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
    });
}

TEST_F(MemberByNameTest, AnUnknownNameStaysWithTheListDroppedOpen)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "raja{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_TRUE(Combo(clerk).IsDroppedDown());
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "raja");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
    });
}

TEST_F(MemberByNameTest, AnUnknownNameBesideANumberChangesNothing)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}1{ENTER}2");
        clerk.Press("ComboMemberName");
        Type(clerk, "raja{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "3");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "raja");
    });
}

TEST_F(MemberByNameTest, BlanksAroundANameDoNotCount)
{
    Run("update MembersMaster set MemberName='rama ' where MemberNo=1");
    AtTheName([](Clerk& clerk) {
        Type(clerk, " rama{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
    });
}

TEST_F(MemberByNameTest, AnotherSpellingOfANameFindsTheMemberAndGivesWayToHisOwn)
{
    Set("PurchaseEntry", "Collection");
    AddMember(8, "maa$tI", "gaaya");
    AtTheName([this](Clerk& clerk) {
        Type(clerk, "maarutI{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "8");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "maa$tI");
        Type(clerk, "{ENTER}5{ENTER}4.5{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(One("select MemberName from MilkCollections where MemberNo=8"), "maa$tI");
        EXPECT_EQ(One("select ClosingBalance from MembersMaster where MemberNo=8"), "175")
            << "the balance is kept under the member's own spelling";
    });
}

TEST_F(MemberByNameTest, OfTwoMembersOfOneNameTheFirstIsFound)
{
    AddMember(8, "rama", "mhOsa");
    AtTheName([](Clerk& clerk) {
        Type(clerk, "rama{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
    });
}

TEST_F(MemberByNameTest, OfTwoMembersOfOneNameTheOneWhoseNumberWasTypedStays)
{
    AddMember(12, "rama", "gaaya");
    for (const char* keys : {"{ENTER}12{ENTER}5+{TAB}+{TAB}", "{ENTER}12{ENTER}5+{TAB}rama+{TAB}"})
        InTheMorning([keys](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), "txtMemberNo") << keys;
            EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12") << keys;
        });
}

TEST_F(MemberByNameTest, OfTwoMembersOfOneNameTheTypedNumberStaysInWhateverCompany)
{
    AddMember(12, "rama", "gaaya");
    Run("update MembersMaster set CompanyId=2 where MemberNo=12");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}12{ENTER}5+{TAB}rama+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MemberByNameTest, OfTwoMembersOfOneNameTheOneOfAStoredRowStays)
{
    AddMember(12, "rama", "gaaya");
    AddDelivery("15/04/2026", "sakaL", 1, 12, "rama", "gaaya", 5, 4.5, 35, 175);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "1{ENTER}");
        clerk.Press("ComboMemberName");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12");
    });
}

TEST_F(MemberByNameTest, AnEmptyNameIsAskedForAndHoldsTheFocus)
{
    AtTheName([](Clerk& clerk) {
        for (const char* empty : {"{ENTER}", " {ENTER}"}) {
            Type(clerk, empty);
            EXPECT_EQ(clerk.Message(), "maombarcao naaMva vyavaisqat Ta[-p kra") << empty;
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "ComboMemberName") << empty;
        }
    });
}

TEST_F(MemberByNameTest, ApostrophesAndDigitsAreDropped)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "r'a1m2a");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
    });
}

TEST_F(MemberByNameTest, TheBeginningOfANameAndEnterTakeTheDarkRow)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "sa{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "saIta");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
    });
}

TEST_F(MemberByNameTest, EscClosesTheListAndLeavesTheCounterOpen)
{
    AtTheName([](Clerk& clerk) {
        Type(clerk, "ra{ESC}");
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "ra");
        EXPECT_FALSE(Combo(clerk).IsDroppedDown());
        Type(clerk, "{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(MemberByNameTest, OfTwoMembersOfOneNameTheOnePickedInTheListIsTaken)
{
    AddMember(8, "rama", "mhOsa");
    AtTheName([](Clerk& clerk) {
        Type(clerk, "{DOWN}{DOWN}{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "8");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
    });
}

}
