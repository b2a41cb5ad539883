#include "tests/sales/MilkSalesTest.h"

#include "platform/database/Sql.h"

namespace {

class MilkSalesDeletingTest : public MilkSalesTest {
protected:
    MilkSalesDeletingTest()
    {
        AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 10.125);
        AddSale(2, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 20);
        AddSale(2, "saMQyaakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 40);
    }
};

TEST_F(MilkSalesDeletingTest, F10DeletesTheSaleShownWithoutAQuestion)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboCustName");
        Type(clerk, "{F10}");
        EXPECT_EQ(OnTop(clerk), "frmMilkSales");
        EXPECT_EQ(Books(),
            (QStringList{"2|saMGa ivaËI|2|saMGa|gaaya|40|4.2|48|1920",
                "1|saMGa ivaËI|2|saMGa|gaaya|10.125|4.2|48|486"}));
        EXPECT_EQ(Copy(), QStringList("1|saMGa ivaËI|2|saMGa|gaaya|10.125|4.2|48|486"));
        EXPECT_EQ(Closing(2), "150.13|120") << "opening and the sum of what is left, of its animal alone";
        EXPECT_EQ(Label(clerk, "lblUdharCowSaleLiter"), "10.125");
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
    });
    EXPECT_FALSE(Failure);
}

// The list of names hides the guide line.
TEST_F(MilkSalesDeletingTest, TheStripNamesTheKeyAndItIsLitInTheName)
{
    const auto isLit = [](Clerk& clerk) {
        for (const QWidget* key : clerk.Top().findChildren<QWidget*>())
            if (key->accessibleName() == QString::fromUtf8("F10 विक्री खोडा"))
                return key->isEnabled();
        ADD_FAILURE() << "the strip doesn't name it";
        return false;
    };
    InTheMorning([&](Clerk& clerk) {
        EXPECT_FALSE(isLit(clerk));
        Type(clerk, "{UP}{ENTER}");
        EXPECT_TRUE(isLit(clerk));
        Type(clerk, "{ENTER}");
        EXPECT_FALSE(isLit(clerk));
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesDeletingTest, BehindItTheNextNumberComesFromTheCopy)
{
    AddSale(7, "sakaL", "raoK", 0, "raoK", "gaaya", 1, 2);
    InTheMorning([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "8");
        Type(clerk, "1{ENTER}{F10}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "3");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesDeletingTest, OnlyTheKeyInTheNameDeletesAndOnlyASaleThatIsShown)
{
    const QStringList all = Books();
    InTheMorning([&](Clerk& clerk) {
        Type(clerk, "{UP}{F10}");
        EXPECT_EQ(Books(), all) << "in the number";
        Type(clerk, "{DOWN}{ENTER}saMGa{F10}");
        EXPECT_EQ(Books(), all) << "of a new one";
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "saMGa") << "what was typed stays";
        Type(clerk, "{ENTER}{F10}{ENTER}{F10}");
        EXPECT_EQ(Books(), all);
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesDeletingTest, ANameTypedOverTheSaleDoesntMisleadTheLitres)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}ha{^}Tola{F10}");
        EXPECT_EQ(Books().size(), 2);
        EXPECT_EQ(Closing(2), "150.13|120");
        EXPECT_EQ(Closing(1), "120|120");
        EXPECT_EQ(OnTop(clerk), "frmMilkSales");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesDeletingTest, ASaleForCashIsDeletedAndTheCustomersStay)
{
    AddSale(3, "sakaL", "raoK", 0, "raoK", "gaaya", 5);
    const QStringList customers = Rows("select * from CustomersMaster");
    InTheMorning([](Clerk& clerk) { Type(clerk, "{UP}{ENTER}{F10}"); });
    EXPECT_EQ(Books().size(), 3);
    EXPECT_EQ(Rows("select * from CustomersMaster"), customers);
}

TEST_F(MilkSalesDeletingTest, ASecondCompanysSaleIsDeletedByItsNumberAndItsCustomerKeepsHisLitres)
{
    AddCustomer(9, "gaNaoSa", "saMGa ivaËI", 2);
    AddSale(3, "sakaL", "saMGa ivaËI", 9, "gaNaoSa", "gaaya", 5, 2);
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{F10}");
        EXPECT_EQ(Books().size(), 3);
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "3");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(9, 2), "120|120");
    EXPECT_EQ(Closing(2), "120|120");
}

TEST_F(MilkSalesDeletingTest, TheLastOneLeavesTheNumberOneAndTheOpening)
{
    Run("delete * from MilkSales where SalesNo=2");
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{F10}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
        EXPECT_EQ(Closing(2), "100|120");
        EXPECT_EQ(Label(clerk, "lblUdharCowSaleLiter"), "0.000");
    });
    EXPECT_EQ(Books(), QStringList());
}

}
