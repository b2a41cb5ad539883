#include "sales/CustomerLitres.h"

#include "tests/sales/MilkSalesTest.h"

#include "platform/database/Sql.h"

namespace {

using CustomerLitresTest = MilkSalesTest;

TEST_F(CustomerLitresTest, ANewSaleCountsAGapBelowTheOpeningTwice)
{
    struct Case {
        double opening;
        const char* closing;
        double liters;
        const char* now;
    };
    for (const Case& c : {Case{100, "120", 10, "130"}, Case{100, "100", 10, "110"},
             Case{100, "90", 10, "120"}, Case{100.004, "90", 10, "120"}, Case{0, "0", 2.5, "2.5"},
             Case{0, "null", 2.5, "2.5"}, Case{100, "null", 10, "110"}, Case{100, "0", 10, "210"},
             Case{10.004, "20.006", 1.125, "21.135"}, Case{100.1, "120.35", 10.125, "130.475"}}) {
        Run(Sql(u"update CustomersMaster set CowOpeningLits=", c.opening));
        Run(QStringLiteral("update CustomersMaster set CowClosingLits=%1").arg(QLatin1String(c.closing)));
        CustomerLitres::Advance("saMGa", u"gaaya", c.liters);
        EXPECT_EQ(One("select CowClosingLits from CustomersMaster where CustomerNo=2"), c.now) << c.closing;
        EXPECT_EQ(One("select BuffClosingLits from CustomersMaster where CustomerNo=2"), "120");
    }
}

TEST_F(CustomerLitresTest, AChangeTakesTheOpeningAndTheSumToTwoDecimals)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 10.125);
    AddSale(2, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 5.002);
    AddSale(3, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 80);
    AddSale(4, "sakaL", "saMGa ivaËI", 1, "ha^Tola", "mhOsa", 160);
    AddSale(5, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 320, 2);
    CustomerLitres::Recompute("saMGa", u"mhOsa");
    EXPECT_EQ(Closing(2), "120|115.13");
    EXPECT_EQ(Closing(1), "120|120");
}

TEST_F(CustomerLitresTest, AChangeTakesTheOpeningOfTheFirstCustomerOfTheNameInWhicheverCompany)
{
    AddCustomer(7, "DoarI", "saMGa ivaËI", 2);
    Run("update CustomersMaster set CowOpeningLits=55 where CustomerNo=7");
    AddCustomer(3, "DoarI", "saMGa ivaËI", 1);
    AddSale(1, "sakaL", "saMGa ivaËI", 3, "DoarI", "gaaya", 10);
    CustomerLitres::Recompute("DoarI", u"gaaya");
    EXPECT_EQ(Closing(3, 1), "65|120");
    EXPECT_EQ(Closing(7, 2), "120|120");
}

TEST_F(CustomerLitresTest, ACustomerWhoIsntThereChangesNothing)
{
    const QStringList customers = Rows("select * from CustomersMaster");
    CustomerLitres::Advance("kuNaI", u"gaaya", 5);
    CustomerLitres::Recompute("kuNaI", u"gaaya");
    EXPECT_EQ(Rows("select * from CustomersMaster"), customers);
}

}
