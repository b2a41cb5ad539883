// The window at rest, the modes, and what the fields do when they are entered and left.

#include "tests/masters/CustomersTest.h"

namespace {

class CustomersFieldsTest : public CustomersTest {
protected:
    void TearDown() override { EXPECT_FALSE(Failure); }
};

const QStringList EntryFields = {"txtCustomerNo", "ComboCustomerName", "txtAnimal", "txtCustomerType",
    "txtCowOpeningLits", "txtBuffOpeningLits"};

bool IsListOpen(const Clerk& clerk)
{
    const auto* names = dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboCustomerName"));
    return names && names->IsDroppedDown();
}

}

TEST_F(CustomersFieldsTest, OpensIdleWithItsFieldsClosedAndTheFocusOnNew)
{
    AddCustomer(1, "rama");
    Play([](Clerk& clerk) {
        EXPECT_EQ(OnTop(clerk), "frmCustomers");
        EXPECT_EQ(TitleOf(clerk), " ga`ahkacao maasTr");
        EXPECT_EQ(Label(clerk, "lblCompanyTitle"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(Label(clerk, "lblAcYear"), "2026-2027");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdModify cmdDelete cmdExit");
        EXPECT_TRUE(Open(clerk, EntryFields).isEmpty());
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        EXPECT_EQ(Reads(clerk, "cmdCancel"), "&r_");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "&baahor");
    });
}

TEST_F(CustomersFieldsTest, WithoutAnyCustomerOnlyNewAndExitAreOpen)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdExit");
        Type(clerk, "{ENTER}");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdExit");
    });
}

TEST_F(CustomersFieldsTest, EachModeHasItsTitleItsButtonAndItsFields)
{
    AddCustomer(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%n");
        EXPECT_EQ(TitleOf(clerk), " ga`ahkacao maasTr navaIna roka^D-");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&saovh");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdNew cmdCancel");
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
        Press(clerk, "cmdCancel");
        Type(clerk, "%d");
        EXPECT_EQ(TitleOf(clerk), " ga`ahkacao maasTr roka^D-maQyao badla");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "&saovh");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdModify cmdCancel");
        EXPECT_EQ(Open(clerk, EntryFields), EntryFields);
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "");
        Press(clerk, "cmdCancel");
        Type(clerk, "%k");
        EXPECT_EQ(TitleOf(clerk), " ga`ahkacao maasTr roka^D- KaoDNao");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
        EXPECT_EQ(Open(clerk, Buttons).join(u' '), "cmdDelete cmdCancel");
        EXPECT_EQ(Open(clerk, EntryFields).join(u' '), "txtCustomerNo ComboCustomerName");
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(TitleOf(clerk), " ga`ahkacao maasTr");
    });
}

TEST_F(CustomersFieldsTest, EmptyTheLitresShowAPlainZeroAndTheTextsNothing)
{
    AddCustomer(1, "rama");
    Play([](Clerk& clerk) {
        const auto expectEmpty = [&clerk] {
            for (const char* text : {"txtCustomerNo", "ComboCustomerName", "txtAnimal", "txtCustomerType"})
                EXPECT_EQ(Reads(clerk, text), "") << text;
            for (const char* litres :
                {"txtCowOpeningLits", "txtCowClosingLits", "txtBuffOpeningLits", "txtBuffClosingLits"})
                EXPECT_EQ(Reads(clerk, litres), "0") << litres;
        };
        expectEmpty();
        CallUp(clerk, 1);
        EXPECT_EQ(Reads(clerk, "txtCowOpeningLits"), "5");
        Press(clerk, "cmdCancel");
        expectEmpty();
    });
}

TEST_F(CustomersFieldsTest, EachFieldHasItsGuide)
{
    Play([](Clerk& clerk) {
        const auto guideOf = [&clerk](QStringView field) { return clerk.Top().Find(field)->Guide().Text(); };
        EXPECT_EQ(guideOf(u"txtCustomerNo"), "ga`ahk naMbar");
        EXPECT_EQ(guideOf(u"ComboCustomerName"), "ga`ahkacao naaMva");
        EXPECT_EQ(guideOf(u"txtAnimal"), "1 ¹ gaaya    2 ¹ mhOsa    3 ¹ daonhI");
        EXPECT_EQ(guideOf(u"txtCustomerType"), "1 ¹ sqaainak ivaËI    2 ¹ saMGa ivaËI");
    });
}

TEST_F(CustomersFieldsTest, WhoeverPaysInCashStandsFirstOnTheListOfNames)
{
    AddCustomer(1, "gaNaoXa", "gaaya", 2);
    AddCustomer(2, "Xyaama");
    Play([](Clerk& clerk) {
        const QStringList before{"raoK", "Xyaama", "gaNaoXa"};
        EXPECT_EQ(NamesOnList(clerk), before);
        Type(clerk, "%n{ENTER}{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "raoK") << "a name like any other";
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(NamesOnList(clerk), before) << "read again, the word stands there once";
    });
}

TEST_F(CustomersFieldsTest, TheListOfNamesDropsDownInModifyAndDeleteAndNotInNew)
{
    AddCustomer(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboCustomerName");
        EXPECT_FALSE(IsListOpen(clerk));
        Press(clerk, "cmdCancel");
        Type(clerk, "%d{ENTER}");
        EXPECT_TRUE(IsListOpen(clerk));
        Press(clerk, "cmdCancel");
        Type(clerk, "%k{ENTER}");
        EXPECT_TRUE(IsListOpen(clerk));
    });
}

TEST_F(CustomersFieldsTest, AnEmptyAnimalHoldsTheFocusInSilence)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}rama{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(clerk.Message(), QString());
    });
}

TEST_F(CustomersFieldsTest, TheAnimalOpensItsOwnLitresOnly)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}rama{ENTER}");
        const auto expect = [&clerk](const char* keys, bool cow, bool buffalo) {
            Type(clerk, keys);
            EXPECT_EQ(CanEnter(clerk, "txtCowOpeningLits"), cow) << keys;
            EXPECT_EQ(CanEnter(clerk, "txtBuffOpeningLits"), buffalo) << keys;
            Type(clerk, "+{TAB}");
        };
        expect("1{ENTER}", true, false);
        expect("2{ENTER}", false, true);
        expect("3{ENTER}", true, true);
        EXPECT_FALSE(CanEnter(clerk, "txtCowClosingLits"));
        EXPECT_FALSE(CanEnter(clerk, "txtBuffClosingLits"));
    });
}

TEST_F(CustomersFieldsTest, AnEmptyTypeTakesLocalSale)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}rama{ENTER}3{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCowOpeningLits");
        EXPECT_EQ(Reads(clerk, "txtCustomerType"), "sqaainak ivaËI");
        Type(clerk, "+{TAB}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCustomerType"), "saMGa ivaËI");
    });
}

TEST_F(CustomersFieldsTest, TheClosingLitresMoveWithTheOpeningOnes)
{
    AddCustomer(1, "rama");
    Run("update CustomersMaster set CowClosingLits=-8");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "-8.00") << "as it is on record";
        EXPECT_EQ(Reads(clerk, "txtBuffClosingLits"), "9.00");
        GoTo(clerk, "txtCowOpeningLits");
        Type(clerk, "6.255{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCowOpeningLits"), "6.255");
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "9.26") << "8 - 5 + 6.255";
        EXPECT_EQ(Focus(clerk), "txtBuffOpeningLits");
        Type(clerk, "{BS}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtBuffOpeningLits"), "0");
        EXPECT_EQ(Reads(clerk, "txtBuffClosingLits"), "4.00");
    });
}

TEST_F(CustomersFieldsTest, TheLastFieldOfTheAnimalLeadsToTheSaveButtonAndBackToTheFieldBeforeIt)
{
    AddCustomer(1, "rama", "gaaya");
    AddCustomer(2, "Xyaama");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, "txtCowOpeningLits");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdModify");
        Type(clerk, "+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtCustomerType");
        Press(clerk, "cmdCancel");
        CallUp(clerk, 2);
        GoTo(clerk, "txtBuffOpeningLits");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtCowOpeningLits");
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdModify");
        Press(clerk, "cmdCancel");
        Type(clerk, "%n{ENTER}gaNaoXa{ENTER}2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&saovh");
    });
}

TEST_F(CustomersFieldsTest, CancelByMouseFromAnInvalidFieldShowsNothing)
{
    AddCustomer(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%n1");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(OnTop(clerk), "frmCustomers");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
    });
}

TEST_F(CustomersFieldsTest, EscOnAnInvalidFieldClosesWithoutAMessage)
{
    AddCustomer(1, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%n1{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(Customers().size(), 1);
}

TEST_F(CustomersFieldsTest, LettersAreDroppedInTheNumberAndInTheLitres)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{BS}x4.5-y{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "45");
        Type(clerk, "rama{ENTER}3{ENTER}{ENTER}a1x2-.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCowOpeningLits"), "12.5");
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "12.50");
    });
}
