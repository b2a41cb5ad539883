// What F9 brings along, what the list of names shows, and the slip of no company.

#include "tests/collection/SearchCollectionsTest.h"

namespace {

class SearchKeysTest : public SearchCollectionsTest {
protected:
    // No script of these is broken off, unless its test says so.
    void TearDown() override { EXPECT_FALSE(Failure); }
};

TEST_F(SearchKeysTest, F9BringsTheDayAndTheShiftOfTheCounterAlong)
{
    AddDelivery("02/04/2026", "saMQyaakaL", 1, 1, "rama", "gaaya", 9, 4.5, 35, 315);
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "02042026{ENTER}2{ENTER}{ENTER}1{F9}");
        ASSERT_EQ(clerk.ScreenName(), "frmSearchCollections");
        AwaitTick(clerk);
        EXPECT_EQ(Reads(clerk, "maskDate"), "02/04/2026");
        EXPECT_EQ(Reads(clerk, "txtTime"), "saMQyaakaL");
        Type(clerk, "{ENTER}");
        ASSERT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Cell(0, 2), "9.000");
    });
}

TEST_F(SearchKeysTest, AnUnknownNameBesideANumberLoadsTheListAnew)
{
    After(1, [this](Clerk& clerk) {
        AddMember(4, "Aajaaobaa");
        Type(clerk, "+{TAB}{END}+{HOME}raja{ENTER}");
        EXPECT_EQ(dynamic_cast<const NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).Items(),
            Of({"Aajaaobaa", "gaNaoSa", "rama", "saIta"}));
    });
}

TEST_F(SearchKeysTest, AMemberOfTheOtherCompanyIsFoundByNumberAndByName)
{
    AddMember(40, "paava-tI", "gaaya");
    Run("update MembersMaster set CompanyId=2 where MemberNo=40");
    Run("update MilkCollections set MemberNo=40,MemberName='paava-tI' where MemberNo=2");
    for (const char* keys : {"40{ENTER}{ENTER}", "{ENTER}paava-tI{ENTER}"}) {
        FromTheMenu([keys](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            Type(clerk, keys);
            EXPECT_EQ(Reads(clerk, "txtMemberNo"), "40") << keys;
            EXPECT_EQ(Reads(clerk, "ComboMemberName"), "paava-tI") << keys;
            EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1) << keys;
        });
        EXPECT_FALSE(Failure) << keys;
    }
}

TEST_F(SearchKeysTest, ASlipOfNoCompanyIsGoneBeforeItIsPrintedAgain)
{
    QStringList atPrinting;
    TemplateReport::Engine() = [&](const TemplateReport::Run&) {
        atPrinting.append(One("select count(*) from MilkReceipt"));
    };
    gAppState.gCompanyId = 0;
    After(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}"); });
    EXPECT_EQ(atPrinting, Of({"0"}));
}

}
