#include "tests/masters/CustomersTest.h"

namespace {

using CustomersNewTest = CustomersTest;

}

TEST_F(CustomersNewTest, TheFirstCustomerIsNumberOne)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "1");
    });
}

TEST_F(CustomersNewTest, TheNextNumberFollowsTheHighestCustomerOfAllCompanies)
{
    AddCustomer(7, "rama");
    AddCustomer(40, "Xyaama", "gaaya", 2);
    AddMember(300, "gaNaoXa");
    Play([](Clerk& clerk) {
        Type(clerk, "%n");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "41");
    });
}

TEST_F(CustomersNewTest, BeyondTheLastNumberTheProgramEndsWithAnOverflow)
{
    AddCustomer(32766, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%n");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "32767");
    });
    EXPECT_FALSE(Failure);
    AddCustomer(32767, "Xyaama");
    Play([](Clerk& clerk) { Type(clerk, "%n"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
}

TEST_F(CustomersNewTest, AWholeCustomerIsWrittenAsTypedAndTheNameIsOnTheListAtOnce)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n");
        TypeEach(clerk, {"12", " ramaa ", "3", "2", "10.25", "20.5"});
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "");
        EXPECT_TRUE(CanEnter(clerk, "cmdModify"));
        EXPECT_EQ(NamesOnList(clerk), (QStringList{"raoK", "ramaa"}));
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Customers(), QStringList("1|12|ramaa|daonhI|saMGa ivaËI|10.25|10.25|20.5|20.5"));
}

TEST_F(CustomersNewTest, ANewCustomersClosingLitresAreThoseOfTheFormat)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}rama{ENTER}3{ENTER}{ENTER}1.256{ENTER}2.344{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Customers(), QStringList("1|1|rama|daonhI|sqaainak ivaËI|1.256|1.26|2.344|2.34"));
}

TEST_F(CustomersNewTest, SavedStraightFromTheirFieldTheLitresCount)
{
    Play([](Clerk& clerk) { Type(clerk, "%n{ENTER}rama{ENTER}3{ENTER}{ENTER}1.5%s"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Customers(), QStringList("1|1|rama|daonhI|sqaainak ivaËI|1.5|1.5|0|0"));
}

TEST_F(CustomersNewTest, ANewCustomerTakesNothingOfTheOneThatWasShownBefore)
{
    AddCustomer(1, "Xyaama");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Press(clerk, "cmdCancel");
        Type(clerk, "%n{ENTER}rama{ENTER}3{ENTER}{ENTER}1{ENTER}2{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from CustomersMaster where CustomerNo=2"),
        QStringList("1|2|rama|daonhI|sqaainak ivaËI|1|1|2|2"));
}

TEST_F(CustomersNewTest, AnEmptyNumberIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{BS}{ENTER}");
        GoOn(clerk, "ga`ahk naMbar vyavaisqat Ta[-p kra");
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
    });
}

TEST_F(CustomersNewTest, ANumberOnRecordIsRefusedInWhateverCompanyItIs)
{
    AddCustomer(5, "Xyaama", "gaaya", 2);
    AddMember(4, "rama");
    Play([](Clerk& clerk) {
        Type(clerk, "%n005{ENTER}");
        GoOn(clerk, "yaa ga`ahk naMbarcao roka^D- Agaaodrca Aaho");
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
        Type(clerk, "4{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboCustomerName") << "a member's number is free for a customer";
    });
}

TEST_F(CustomersNewTest, ANameOnRecordIsRefusedWhateverItsBlanksAndItsSpelling)
{
    AddCustomer(1, " maa$tI ");
    AddMember(1, "rama");
    Play([](Clerk& clerk) {
        for (const char* name : {"maa{$}tI{ENTER}", "maarutI{ENTER}"}) {
            Type(clerk, "%n{ENTER}");
            Type(clerk, name);
            GoOn(clerk, "yaa naavaacao roka^D- Agaaodrca Aaho");
            EXPECT_EQ(Focus(clerk), "ComboCustomerName");
            Press(clerk, "cmdCancel");
        }
        Type(clerk, "%n{ENTER}rama{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal") << "a member's name is free for a customer";
    });
}

TEST_F(CustomersNewTest, AnEmptyNameIsRefusedWithANotice)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}  {ENTER}");
        GoOn(clerk, "ga`ahakacao naaMva vyavaisqat Ta[-p kra");
        EXPECT_EQ(Focus(clerk), "ComboCustomerName");
    });
}

TEST_F(CustomersNewTest, SavingStopsAtTheFirstThatIsMissing)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n0%s");
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "ComboCustomerName");
        Type(clerk, "rama%s");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "txtCustomerType");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&saovh");
        Type(clerk, "1%s");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
    });
    EXPECT_EQ(Customers(), QStringList("1|1|rama|gaaya|sqaainak ivaËI|0|0|0|0"));
}

TEST_F(CustomersNewTest, AnApostropheInTheNameEndsTheProgramAndLeavesTheBooksAsTheyWere)
{
    for (const QString name : {"ra'ma", "x'' or ''a''=''a"}) {
        Play([&](Clerk& clerk) {
            Type(clerk, "%n{ENTER}");
            clerk.Type(Typed(name));
            Type(clerk, "{ENTER}1{ENTER}{ENTER}{ENTER}{ENTER}");
        });
        ASSERT_TRUE(Failure);
        EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(Failure->Statement().startsWith("Insert into CustomersMaster(CompanyId,"));
        EXPECT_TRUE(Customers().isEmpty());
    }
}

TEST_F(CustomersNewTest, ANameOfAThousandCharactersIsKeptWhole)
{
    const QString name = QStringLiteral("rama ").repeated(200).trimmed();
    Play([&name](Clerk& clerk) {
        Type(clerk, "%n{ENTER}");
        clerk.Type(Typed(name));
        Type(clerk, "{ENTER}1{ENTER}{ENTER}%s");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select CustomerName from CustomersMaster"), name);
}
