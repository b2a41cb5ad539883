// Calling up a customer, changing and deleting one.

#include "tests/masters/CustomersTest.h"

namespace {

class CustomersChangeTest : public CustomersTest {
protected:
    CustomersChangeTest()
    {
        AddCustomer(1, "rama", "gaaya");
        AddCustomer(2, "Xyaama");
        AddCustomer(1, "gaNaoXa", "mhOsa", 2);
        AddSale(1, "rama");
        AddSale(2, "Xyaama");
        AddSale(1, "rama", 2);
    }

    QStringList Books() { return Customers() + Sales(); }
};

const QString SaveQuestion = "roka^D- na@kI badlaayacao ka Æ";
const QString DeleteQuestion = "ga`akacaI sava- maaihtI KaoDlaI jaa[-la¸ roka^D- na@kI KaoDayacao ka Æ";

}

TEST_F(CustomersChangeTest, ANumberCallsUpTheWholeRecord)
{
    Run("update CustomersMaster set CowOpeningLits=1.5,CowClosingLits=2.345,BuffOpeningLits=3,"
        "BuffClosingLits=4 where CustomerNo=2");
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        EXPECT_EQ(Focus(clerk), "ComboCustomerName");
        const std::pair<const char*, const char16_t*> expected[] = {{"txtCustomerNo", u"2"},
            {"ComboCustomerName", u"Xyaama"}, {"txtAnimal", u"daonhI"}, {"txtCustomerType", u"saMGa ivaËI"},
            {"txtCowOpeningLits", u"1.5"}, {"txtCowClosingLits", u"2.35"}, {"txtBuffOpeningLits", u"3"},
            {"txtBuffClosingLits", u"4.00"}};
        for (const auto& [field, text] : expected)
            EXPECT_EQ(clerk.Reads(QLatin1String(field)), QStringView(text)) << field;
    });
}

TEST_F(CustomersChangeTest, NullsOnRecordReadAsEmptyAndZero)
{
    Run("insert into CustomersMaster(CompanyId,CustomerNo,CustomerName) values(1,9,'saMGa')");
    Play([](Clerk& clerk) {
        CallUp(clerk, 9);
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        EXPECT_EQ(Reads(clerk, "txtCustomerType"), "");
        EXPECT_EQ(Reads(clerk, "txtBuffOpeningLits"), "0");
        EXPECT_EQ(Reads(clerk, "txtBuffClosingLits"), "0.00");
    });
}

TEST_F(CustomersChangeTest, ANameCallsUpTheRecordAndAnotherName)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}Xyaama{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "daonhI");
        Type(clerk, "+{TAB}rama{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "1");
        EXPECT_FALSE(CanEnter(clerk, "txtBuffOpeningLits")) << "a customer of cow's milk";
    });
}

TEST_F(CustomersChangeTest, ANewNameThatBeginsLikeAnothersStaysThatOfItsRecord)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "X{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "X");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "1");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        Type(clerk, "+{TAB}X{TAB}");
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "1");
        Type(clerk, "+{TAB}X{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "Xyaama") << "picked from the list";
        EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "2");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CustomersChangeTest, WithoutANumberTheBeginningOfANameIsEnough)
{
    for (const char* keys : {"%d{ENTER}X{ENTER}", "%k{ENTER}X{ENTER}"})
        Play([keys](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "Xyaama") << keys;
            EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "2") << keys;
        });
}

TEST_F(CustomersChangeTest, OfTwoCustomersOfOneNameTheOneWhoseNumberWasTypedStays)
{
    AddCustomer(12, "rama", "mhOsa");
    for (const char* keys : {"%d12{ENTER}{ENTER}", "%d12{ENTER}rama{ESC}{ENTER}"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(Focus(clerk), "txtAnimal") << keys;
            EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "12") << keys;
            EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa") << keys;
        });
}

TEST_F(CustomersChangeTest, AnUnknownNumberIsRefusedWithANoticeInBothModes)
{
    AddMember(77, "rama");
    for (const char* keys : {"%d77{ENTER}", "%k77{ENTER}"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            GoOn(clerk, "yaa ga`ahk naMbarcao roka^D- ]plabQa naahI");
            EXPECT_EQ(Focus(clerk), "txtCustomerNo") << keys;
        });
}

TEST_F(CustomersChangeTest, AnUnknownNameWithoutANumberHoldsTheFocusInSilence)
{
    AddMember(77, "maaQava");
    for (const char* keys : {"%d{ENTER}maaQava{ENTER}", "%k{ENTER}maaQava{ENTER}"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(OnTop(clerk), "frmCustomers") << keys;
            EXPECT_EQ(Focus(clerk), "ComboCustomerName") << keys;
        });
}

TEST_F(CustomersChangeTest, AnEmptyNameIsRefusedWithANoticeInBothModes)
{
    for (const char* keys : {"%d{ENTER}{ENTER}", "%k{ENTER}{ENTER}"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            GoOn(clerk, "ga`ahakacao naaMva vyavaisqat Ta[-p kra");
            EXPECT_EQ(Focus(clerk), "ComboCustomerName") << keys;
        });
}

TEST_F(CustomersChangeTest, YesWritesTheRecordAndOnlyThat)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        Type(clerk, "{ENTER}3{ENTER}1{ENTER}6.5{ENTER}7.25{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdModify");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), SaveQuestion);
        Type(clerk, "%h");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Focus(clerk), "cmdModify");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Customers().join(u'\n'),
        "1|1|rama|gaaya|saMGa ivaËI|5|8|5|9\n"
        "1|2|Xyaama|daonhI|sqaainak ivaËI|6.5|9.5|7.25|11.25\n"
        "2|1|gaNaoXa|mhOsa|saMGa ivaËI|5|8|5|9");
}

TEST_F(CustomersChangeTest, SavedStraightFromTheirFieldTheLitresCount)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        GoTo(clerk, "txtCowOpeningLits");
        Type(clerk, "6.5%s%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from CustomersMaster where CustomerNo=2"),
        QStringList("1|2|Xyaama|daonhI|saMGa ivaËI|6.5|9.5|5|9"));
}

TEST_F(CustomersChangeTest, SavingAChangeStopsAtTheFirstThatIsMissing)
{
    Run("insert into CustomersMaster(CompanyId,CustomerNo,CustomerName) values(1,9,'saMGa')");
    Play([](Clerk& clerk) {
        Type(clerk, "%d%s");
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
        Type(clerk, "9{ENTER}%s");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "txtCustomerType");
        EXPECT_EQ(OnTop(clerk), "frmCustomers") << "nothing was asked";
        Type(clerk, "2%s");
        EXPECT_EQ(clerk.Message(), SaveQuestion);
        Type(clerk, "%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from CustomersMaster where CustomerNo=9"),
        QStringList("1|9|saMGa|gaaya|saMGa ivaËI|0|0|0|0"));
}

TEST_F(CustomersChangeTest, NoReturnsToIdleWithNothingWritten)
{
    const QStringList before = Books();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "maaQava%s%n");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "");
    });
    EXPECT_EQ(Books(), before);
}

TEST_F(CustomersChangeTest, ANewNameReachesTheSalesOfEveryCompanyAndTheOtherCompanysCustomerStays)
{
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, " maaQava {ENTER}%s%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Sales().join(u' '), "1|1|maaQava 1|2|Xyaama 2|1|maaQava");
    EXPECT_EQ(Rows("select CompanyId,CustomerNo,CustomerName from CustomersMaster").join(u' '),
        "1|1|maaQava 1|2|Xyaama 2|1|gaNaoXa");
}

TEST_F(CustomersChangeTest, AnUnchangedNameIsWrittenToTheSalesAgain)
{
    Run("update CustomersMaster set CustomerName='rama ' where CustomerName='rama'");
    Run("update MilkSales set CustomerName='rama ' where CustomerName='rama'");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Sales().join(u' '), "1|1|rama 1|2|Xyaama 2|1|rama");
}

TEST_F(CustomersChangeTest, AFailureInTheRenameLeavesTheCustomerAsItWas)
{
    const QStringList before = Customers();
    gCn.RunScript("drop table MilkSales");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "maaQava{ENTER}%s%h");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Statement(), "update MilkSales set CustomerName='maaQava' where CustomerName='rama'");
    EXPECT_EQ(Customers(), before);
}

TEST_F(CustomersChangeTest, AnApostropheInTheOldOrTheNewNameEndsTheProgramAndLeavesTheBooksAsTheyWere)
{
    const auto expectFailure = [this](const QString& newName) {
        const QStringList before = Books();
        Play([&newName](Clerk& clerk) {
            CallUp(clerk, 1);
            clerk.Type(Typed(newName) + "{ENTER}%s%h");
        });
        ASSERT_TRUE(Failure);
        EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
        EXPECT_EQ(Books(), before);
    };
    expectFailure("x'' or ''a''=''a");
    gCn.RunScript("update CustomersMaster set CustomerName='x'' or ''a''=''a' "
                  "where CompanyId=1 and CustomerNo=1");
    expectFailure("maaQava");
}

TEST_F(CustomersChangeTest, AFoundCustomerIsShownAndWaitsOnTheDeleteButton)
{
    for (const char* keys : {"%k2{ENTER}", "%k{ENTER}Xyaama{ENTER}"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(Reads(clerk, "txtCustomerNo"), "2") << keys;
            EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "Xyaama") << keys;
            EXPECT_EQ(Focus(clerk), "cmdDelete") << keys;
            EXPECT_FALSE(CanEnter(clerk, "txtCowOpeningLits")) << keys;
        });
}

TEST_F(CustomersChangeTest, DeletingACustomerDeletesAllTheirSales)
{
    AddSale(1, "somebody else by then");
    Play([](Clerk& clerk) {
        Type(clerk, "%k1{ENTER}{ENTER}");
        EXPECT_EQ(clerk.Message(), DeleteQuestion);
        Type(clerk, "%h");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        EXPECT_FALSE(NamesOnList(clerk).contains("rama"));
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Customers().join(u'\n'),
        "1|2|Xyaama|daonhI|saMGa ivaËI|5|8|5|9\n2|1|gaNaoXa|mhOsa|saMGa ivaËI|5|8|5|9");
    EXPECT_EQ(Sales().join(u' '), "1|2|Xyaama 2|1|rama") << "the other company's stay";
}

TEST_F(CustomersChangeTest, AnEnterTooManyOrANoDeletesNothing)
{
    const QStringList before = Books();
    for (const char* keys : {"%k1{ENTER}{ENTER}{ENTER}", "%k1{ENTER}{ENTER}%n"})
        Play([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao") << keys;
        });
    EXPECT_EQ(Books(), before);
}

TEST_F(CustomersChangeTest, WithoutANumberThePressOfDeleteGoesBackToIt)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k%k");
        EXPECT_EQ(OnTop(clerk), "frmCustomers");
        EXPECT_EQ(Focus(clerk), "txtCustomerNo");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
    });
}

TEST_F(CustomersChangeTest, AFailureInTheSalesKeepsTheCustomer)
{
    const QStringList before = Customers();
    gCn.RunScript("drop table MilkSales");
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Statement(), "Delete * From MilkSales Where CompanyId=1 And CustomerNo=1");
    EXPECT_EQ(Customers(), before);
}

TEST_F(CustomersChangeTest, TheLitresThatSalesHaveBroughtStayWhenTheRestIsChanged)
{
    Run("Update CustomersMaster Set CowClosinglits=52.25 Where CompanyId=1 and CustomerNo=2");
    Run("Update CustomersMaster Set BuffClosinglits=24.25 Where CompanyId=1 and CustomerNo=2");
    Play([](Clerk& clerk) {
        CallUp(clerk, 2);
        Type(clerk, "maaQava{ENTER}%s%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from CustomersMaster where CustomerNo=2"),
        QStringList("1|2|maaQava|daonhI|saMGa ivaËI|5|52.25|5|24.25"));
}
