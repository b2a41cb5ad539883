#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"

#include "masters/frmCustomers.h"
#include "platform/database/Sql.h"
#include "sales/frmMilkSales.h"

namespace {

// What can be typed into the screen of the customers, and what becomes of their sales. The books of
// FillBooks.
class CustomersHostileTest : public ProgramTest {
protected:
    CustomersHostileTest()
    {
        FillBooks();
        gAppState.gAppDate = QDate(2026, 4, 15);
    }

    // Plays on a new customer's record, with the focus on the number.
    void OnANewCustomer(const std::function<void(Clerk&)>& script)
    {
        On<frmCustomers>([&](Clerk& clerk) {
            Type(clerk, "%n");
            script(clerk);
        });
    }

    // From the number: a name, and the rest in short; the focus is then on the opening litres of the cows.
    static void Fill(Clerk& clerk, const QString& name)
    {
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}3{ENTER}1{ENTER}").arg(name));
    }

    static void ExpectLettersDropped(Clerk& clerk, const char* field)
    {
        ASSERT_EQ(Focus(clerk), field);
        const std::string before = Reads(clerk, field);
        Type(clerk, "abcXYZeE-,;:/'\"#*&!?=_ कखग");
        EXPECT_EQ(Reads(clerk, field), before) << field;
    }

    static QString ToTheCustomers() { return OpeningKeys() + "{ENTER}{DOWN}{ENTER}"; }

    // Plays the whole program with keys that end it in a run-time error, and expects the books as before.
    void ExpectTheEnd(const QString& keys, const char* shown)
    {
        const QStringList before = AllRows();
        TheBox.Shown.clear();
        const int exitCode = Start([&](Clerk& clerk) {
            clerk.Type(ToTheCustomers());
            EXPECT_EQ(OnTop(clerk), "frmCustomers");
            clerk.Type(keys);
            EXPECT_EQ(OnTop(clerk), "");
        });
        EXPECT_EQ(exitCode, 1);
        EXPECT_EQ(Boxes("Run-time error"), 1);
        EXPECT_EQ(Boxes(shown), 1) << "the statement is shown";
        Reopen();
        EXPECT_EQ(Difference(before, AllRows()), "");
    }

    // "CowOpeningLits|CowClosingLits" as the register shows them.
    std::string LitresOf(int customer)
    {
        std::string litres;
        On<frmCustomers>([&](Clerk& clerk) {
            clerk.Type(QStringLiteral("%d%1{ENTER}").arg(customer));
            litres = Reads(clerk, "txtCowOpeningLits") + '|' + Reads(clerk, "txtCowClosingLits");
        });
        return litres;
    }
};

constexpr const char* NumberFields[] = {"txtCowOpeningLits", "txtBuffOpeningLits"};

}

TEST_F(CustomersHostileTest, AThousandLettersOfANameAreSavedAndReadBackWhole)
{
    const QString name = QStringLiteral("rama ").repeated(200).trimmed();
    OnANewCustomer([&](Clerk& clerk) {
        Fill(clerk, name);
        Type(clerk, "%s");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "%d2{ENTER}");
        EXPECT_EQ(clerk.Reads("ComboCustomerName"), name);
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select CustomerName from CustomersMaster where CustomerNo=2"), name);
}

TEST_F(CustomersHostileTest, LettersAreDroppedInEveryNumberFieldAndInTheChoices)
{
    OnANewCustomer([](Clerk& clerk) {
        ExpectLettersDropped(clerk, "txtCustomerNo");
        Type(clerk, "{ENTER}gaIta{ENTER}");
        ExpectLettersDropped(clerk, "txtAnimal");
        Type(clerk, "890");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        Type(clerk, "3{ENTER}");
        ExpectLettersDropped(clerk, "txtCustomerType");
        Type(clerk, "1{ENTER}");
        for (const char* field : NumberFields) {
            ExpectLettersDropped(clerk, field);
            Type(clerk, "{ENTER}");
        }
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CustomersHostileTest, ACustomerPast32767IsSavedAndTheNextOneOverflows)
{
    OnANewCustomer([](Clerk& clerk) {
        Type(clerk, "32768");
        Fill(clerk, "gaIta");
        Type(clerk, "%s");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(One("select CustomerName from CustomersMaster where CustomerNo=32768"), "gaIta");
}

TEST_F(CustomersHostileTest, ACustomerOfEightDigitsIsSavedUnderThem)
{
    OnANewCustomer([](Clerk& clerk) {
        Type(clerk, "99999999");
        Fill(clerk, "gaIta");
        Type(clerk, "%s%d99999999{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustomerName"), "gaIta");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CustomersHostileTest, ANumberThatNobodyHasIsSaidToBeNobodys)
{
    for (const char* number : {"0", "2", "32768", "99999999"}) {
        On<frmCustomers>([number](Clerk& clerk) {
            clerk.Type(QStringLiteral("%d") + QLatin1String(number) + "{ENTER}");
            EXPECT_EQ(clerk.Message().toStdString(), "yaa ga`ahk naMbarcao roka^D- ]plabQa naahI") << number;
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtCustomerNo") << number;
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(CustomersHostileTest, FourHundredDigitsInANumberFieldAreAnOverflowAndNothingIsSaved)
{
    const QStringList before = AllRows();
    const QString digits = QString(400, u'8') + "{ENTER}";
    OnANewCustomer([&](Clerk& clerk) {
        clerk.Type(digits);
        EXPECT_EQ(clerk.Message(), "ga`ahk naMbar vyavaisqat Ta[-p kra") << "what isn't numeric is refused";
    });
    EXPECT_FALSE(Failure);
    for (const char* field : NumberFields) {
        OnANewCustomer([&](Clerk& clerk) {
            Fill(clerk, "gaIta");
            if (Focus(clerk) != field)
                Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), field);
            clerk.Type(digits);
        });
        ASSERT_TRUE(Failure) << field;
        EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    }
    EXPECT_EQ(Difference(before, AllRows()), "");
}

TEST_F(CustomersHostileTest, AnApostropheInANewNameEndsTheProgramAndTheBooksAreAsBefore)
{
    ExpectTheEnd("%n{ENTER}d'souza{ENTER}1{ENTER}1{ENTER}%s", "d'souza");
}

TEST_F(CustomersHostileTest, AnApostropheInAChangedNameEndsTheProgramAndTheBooksAreAsBefore)
{
    ExpectTheEnd("%d1{ENTER}ra'ma{ENTER}%s%h", "ra'ma");
}

TEST_F(CustomersHostileTest, AStatementHiddenInANameIsNotRun)
{
    ExpectTheEnd(
        "%d1{ENTER}ra'; delete * from CustomersMaster where 'a'='a{ENTER}%s%h", "delete * from Customers");
}

// Customers and their sales

TEST_F(CustomersHostileTest, TheClosingLitresAreKeptUpByTheSales)
{
    Run("update CustomersMaster set CowOpeningLits=100,CowClosingLits=120 where CustomerNo=1");
    const auto onSales = [this](const char* keys) {
        On<frmMilkSales>([keys](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), "txtSalesNo");
        });
        EXPECT_FALSE(Failure);
    };
    onSales("{ENTER}ha{^}Tola{ENTER}1{ENTER}10.25{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
    EXPECT_EQ(LitresOf(1), "100|130.25");
    onSales("{UP}{ENTER}{ENTER}{ENTER}11{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    EXPECT_EQ(LitresOf(1), "100|111.00");
    onSales("{UP}{ENTER}{F10}");
    EXPECT_EQ(LitresOf(1), "100|100.00");
}

TEST_F(CustomersHostileTest, ARenamedCustomerIsOnHisSaleAndADeletedOneTakesItAlong)
{
    On<frmCustomers>([](Clerk& clerk) { Type(clerk, "%d1{ENTER}gaaolaa{ENTER}%s%h"); });
    EXPECT_FALSE(Failure);
    On<frmMilkSales>([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{UP}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "gaaolaa");
    });
    On<frmCustomers>([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    EXPECT_FALSE(Failure);
    On<frmMilkSales>([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2") << "the number is free again";
        EXPECT_EQ(Label(clerk, "lblRokhBuffSaleLiter"), "0.000");
        Type(clerk, "{ENTER}gaaolaa{ENTER}");
        EXPECT_EQ(clerk.Message(), "ga`ahkacao naaMva vyavaisqat Ta[-p kra");
    });
    EXPECT_EQ(Rows("select CustomerName from MilkSales where CustomerNo=1"), QStringList());
}
