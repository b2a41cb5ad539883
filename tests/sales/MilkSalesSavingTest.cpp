// What a save writes: the sale, its copy, and the litres of the customer.

#include "tests/sales/MilkSalesTest.h"

#include "platform/database/Sql.h"

namespace {

using MilkSalesSavingTest = MilkSalesTest;

TEST_F(MilkSalesSavingTest, ASaleForCashIsInBooksAndCopyAndLeavesTheCustomersAlone)
{
    const QStringList customers = Rows("select * from CustomersMaster");
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2");
        for (const char* field : {"ComboCustName", "txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount",
                 "txtOurLiters", "txtOurFat", "txtOurRate", "txtSNF"})
            EXPECT_EQ(Reads(clerk, field), "") << field;
        EXPECT_EQ(Label(clerk, "lblRokhCowSaleLiter"), "1.500");
        EXPECT_EQ(Label(clerk, "lblRokhCowSaleAmt"), "72.00");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from MilkSales"),
        QStringList("1|15/04/2026|sakaL|raoK|1|0|raoK|gaaya|1.5|4.2|48|72|1.5|0|0|0|0"));
    EXPECT_EQ(Rows("select * from MilkSalesTemp"), Rows("select * from MilkSales"));
    EXPECT_EQ(Rows("select * from CustomersMaster"), customers);
    EXPECT_TRUE(Printed.empty()) << "the settings say: save only";
}

// The register offers the word as a name.
TEST_F(MilkSalesSavingTest, ACustomerOnRecordWhoIsCalledCashIsLeftAlone)
{
    AddCustomer(3, "raoK", "saMGa ivaËI");
    Run("update CustomersMaster set CowClosingLits=90 where CustomerNo=3");
    const QStringList customers = Rows("select * from CustomersMaster");
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        EXPECT_EQ(Books(), QStringList("1|raoK|0|raoK|gaaya|1.5|4.2|48|72"));
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}2{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Books(), QStringList("1|raoK|0|raoK|gaaya|2|4.2|48|96"));
        Type(clerk, "{UP}{ENTER}{F10}");
        EXPECT_EQ(Books(), QStringList());
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from CustomersMaster"), customers);
}

// Such as one that came from other books; the register trims what is typed.
TEST_F(MilkSalesSavingTest, ANameWithBlanksAtItsEndsIsThatOfItsCustomer)
{
    AddCustomer(3, " gaNaoSa ", "saMGa ivaËI");
    InTheMorning([](Clerk& clerk) { Sell(clerk, "gaNaoSa", "1", "10", "4"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|3| gaNaoSa |gaaya|10|4|48|480"));
    EXPECT_EQ(Closing(3), "130|120");
}

TEST_F(MilkSalesSavingTest, TheListFollowsEachSaleChangeAndDeletionAndStandsAtTheLast)
{
    const auto isWhole = [&](const Clerk& clerk, int sales) {
        EXPECT_EQ(Listed(clerk), Copy());
        EXPECT_EQ(Listed(clerk), Books());
        EXPECT_EQ(
            dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridInwards")).CurrentRow(), sales - 1);
    };
    InTheMorning([&](Clerk& clerk) {
        for (int sale = 1; sale <= 45; ++sale) {
            Sell(clerk, sale % 2 == 0 ? "raoK" : Hotel, "1", "1.5", "4.2");
            if (sale % 9 == 0)
                isWhole(clerk, sale);
        }
        Type(clerk, "{UP}{UP}{ENTER}{ENTER}{ENTER}7{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        isWhole(clerk, 45);
        Sell(clerk, "saMGa", "2", "3", "7");
        isWhole(clerk, 46);
        Type(clerk, "{UP}{UP}{ENTER}{F10}");
        isWhole(clerk, 45);
        Sell(clerk, "raoK", "1", "2", "4");
        isWhole(clerk, 46);
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesSavingTest, RowsOfNoCompanyAreTidiedOutOfTheCopy)
{
    const auto addStray = [this] {
        Run("insert into MilkSalesTemp(CompanyId,SalesDate,SalesTime,SalesNo) "
            "values(0,'15/04/2026','sakaL',99)");
    };
    InTheMorning([&](Clerk& clerk) {
        addStray();
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        EXPECT_EQ(Copy(), Books());
        addStray();
        Type(clerk, "{UP}{ENTER}{F10}");
        EXPECT_EQ(Copy(), QStringList());
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesSavingTest, ACreditSaleTakesNumberAndTypeOfTheCustomer)
{
    InTheMorning([](Clerk& clerk) {
        Sell(clerk, Hotel, "1", "2", "4.2");
        Sell(clerk, "saMGa", "2", "20.25", "7.1", "60");
        EXPECT_EQ(Label(clerk, "lblRokhCowSaleAmt"), "96.00");
        EXPECT_EQ(Label(clerk, "lblUdharBuffSaleLiter"), "20.250");
        EXPECT_EQ(Label(clerk, "lblUdharBuffSaleAmt"), "1215.00");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(),
        (QStringList{"1|sqaainak ivaËI|1|ha^Tola|gaaya|2|4.2|48|96",
            "2|saMGa ivaËI|2|saMGa|mhOsa|20.25|7.1|60|1215"}));
    EXPECT_EQ(Copy(), Books());
    EXPECT_EQ(Closing(1), "122|120");
    EXPECT_EQ(Closing(2), "120|140.25");
}

TEST_F(MilkSalesSavingTest, WhatIsntWholeIsNotWrittenAndStaysOnTheScreen)
{
    struct Gap {
        const char* field;
        const char* focus;
    };
    for (const Gap& gap : {Gap{"ComboCustName", "ComboCustName"}, Gap{"txtAnimal", "txtAnimal"},
             Gap{"txtLiters", "txtLiters"}, Gap{"txtRate", "txtSalesNo"}, Gap{"txtSalesNo", "txtSalesNo"}}) {
        InTheMorning([&](Clerk& clerk) {
            Key(clerk, "saMGa", "1", "10", "4");
            clerk.Do(
                [&] { dynamic_cast<Field&>(*clerk.Top().Find(QString::fromLatin1(gap.field))).Clear(); });
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), gap.focus) << gap.field;
            EXPECT_EQ(OnTop(clerk), "frmMilkSales") << "no message";
            EXPECT_EQ(Reads(clerk, "txtFat"), "4.0") << "all else stays";
            EXPECT_NE(Label(clerk, "lblGuide"), "") << gap.field;
        });
        EXPECT_FALSE(Failure) << gap.field;
        EXPECT_EQ(Books(), QStringList()) << gap.field;
        EXPECT_EQ(Closing(2), "120|120") << gap.field;
    }
}

TEST_F(MilkSalesSavingTest, ATypedAmountIsKept)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}saMGa{ENTER}1{ENTER}10{ENTER}4{ENTER}{ENTER}479.5{ENTER}{ENTER}");
    });
    EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|2|saMGa|gaaya|10|4|48|479.5"));
}

TEST_F(MilkSalesSavingTest, ATypedAmountStaysWhenTheLitresAreOnlyLookedAt)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}saMGa{ENTER}1{ENTER}10{ENTER}4{ENTER}{ENTER}479.5{ENTER}{ENTER}{UP}");
        clerk.Do([&] { clerk.Top().Find(u"txtLiters")->SetFocus(); });
        Type(clerk, "{F9}10.5{ENTER}{ENTER}4{ENTER}30{ENTER}8.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Press(clerk, "cmdGo");
        EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|2|saMGa|gaaya|10|4|48|479.5"));
        EXPECT_EQ(Ours(), QStringList("1|10.5|8.5|4|30|315"));
        Type(clerk, "{UP}");
        clerk.Do([&] { clerk.Top().Find(u"txtLiters")->SetFocus(); });
        Type(clerk, "11");
        Press(clerk, "cmdGo");
        EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|2|saMGa|gaaya|11|4|48|528"));
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesSavingTest, OfTwoCompaniesCustomersOfOneNameThePickedOneIsMeant)
{
    AddCustomer(7, "saMGa", "sqaainak ivaËI", 2);
    gAppState.gCompanyId = 2;
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}saMGa{DOWN}{ENTER}1{ENTER}10{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(), QStringList("1|sqaainak ivaËI|7|saMGa|gaaya|10|4|48|480"));
    EXPECT_EQ(Closing(7, 2), "130|120");
    EXPECT_EQ(Closing(2, 1), "120|120");
}

TEST_F(MilkSalesSavingTest, ANameWithAnApostropheFailsItsStatementAndNothingIsWritten)
{
    AddCustomer(3, "x", "saMGa ivaËI");
    Run("update CustomersMaster set CustomerName='gaNaoSa' where CustomerNo=3");
    InTheMorning([](Clerk& clerk) {
        Key(clerk, "gaNaoSa", "1", "10", "4");
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"ComboCustName")).SetText("gaNao'Sa"); });
        Type(clerk, "{ENTER}");
    });
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Books(), QStringList());
}

// The litres of the customer

TEST_F(MilkSalesSavingTest, Opening100AndClosing120WithASaleOf10Give130)
{
    InTheMorning([](Clerk& clerk) { Sell(clerk, "saMGa", "1", "10", "4"); });
    EXPECT_EQ(Closing(2), "130|120");
}

TEST_F(MilkSalesSavingTest, Opening100AndClosing90WithASaleOf10Give120AndAChangeResetsIt)
{
    Run("update CustomersMaster set CowClosingLits=90 where CustomerNo=2");
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "saMGa", "1", "10", "4");
        EXPECT_EQ(Closing(2), "120|120");
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}11.125{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|2|saMGa|gaaya|11.125|4|48|534"));
        EXPECT_EQ(Closing(2), "111.13|100") << "opening and the true sum, of both animals";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesSavingTest, AChangeOfAnySaleResetsTheLitresOfItsCustomer)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 25);
    Run("update CustomersMaster set CowClosingLits=90 where CustomerNo=2");
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "saMGa", "1", "10", "4");
        EXPECT_EQ(Closing(2), "120|120");
        Type(clerk, "1{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Closing(2), "135|100") << "saved as it was";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesSavingTest, WithoutAClosingFigureTheGapToTheOpeningIsTaken)
{
    Run("update CustomersMaster set BuffOpeningLits=40,BuffClosingLits=null where CustomerNo=2");
    InTheMorning([](Clerk& clerk) { Sell(clerk, "saMGa", "2", "10.125", "4"); });
    EXPECT_EQ(Closing(2), "120|50.125") << "of a new sale in shortest form";
}

TEST_F(MilkSalesSavingTest, AnotherCompanysCustomerOfTheNameKeepsHisLitres)
{
    AddCustomer(2, "saMGa", "saMGa ivaËI", 2);
    InTheMorning([](Clerk& clerk) {
        Sell(clerk, "saMGa", "1", "10", "4");
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}11{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Closing(2, 2), "120|120");
    EXPECT_EQ(Closing(2, 1), "111|100");
}

// A change

TEST_F(MilkSalesSavingTest, AChangeKeepsTheTypeAndWritesAllElse)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5);
    AddSale(2, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 7);
    AddSale(1, "saMQyaakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 9);
    const QStringList others = Rows("select * from MilkSales where not (SalesNo=1 and SalesTime='sakaL')");
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{UP}{UP}{ENTER}");
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"ComboCustName")).SetText("ha^Tola"); });
        Type(clerk, "{ENTER}1{ENTER}4.25{ENTER}4.8{ENTER}50{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "3");
        EXPECT_EQ(Copy().first(), "1|saMGa ivaËI|1|ha^Tola|gaaya|4.25|4.8|50|212.5");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from MilkSales where SalesNo=1 and SalesTime='sakaL'"),
        QStringList(
            "1|15/04/2026|sakaL|saMGa ivaËI|1|1|ha^Tola|gaaya|4.25|4.8|50|212.5|4.5|8.5|4.3|33|148.5"));
    EXPECT_EQ(Rows("select * from MilkSales where not (SalesNo=1 and SalesTime='sakaL')"), others);
}

TEST_F(MilkSalesSavingTest, ChangingTheCustomerLeavesTheOldOnesLitresAsTheyWere)
{
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "saMGa", "1", "10", "4");
        EXPECT_EQ(Closing(2), "130|120");
        Type(clerk, "{UP}{ENTER}");
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"ComboCustName")).SetText("ha^Tola"); });
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|1|ha^Tola|gaaya|10|4|48|480"));
    EXPECT_EQ(Closing(2), "130|120");
    EXPECT_EQ(Closing(1), "110|100");
}

TEST_F(MilkSalesSavingTest, ASaleThatIsChangedToCashKeepsItsTypeAndTheCustomersTheirLitres)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 10);
    const QStringList customers = Rows("select * from CustomersMaster");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}raoK{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|0|raoK|gaaya|10|4.2|48|480"));
    EXPECT_EQ(Rows("select * from CustomersMaster"), customers);
}

TEST_F(MilkSalesSavingTest, ASaleForCashThatGetsACustomerKeepsItsTypeAndCountsForHim)
{
    AddSale(1, "sakaL", "raoK", 0, "raoK", "gaaya", 10);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}saMGa{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(), QStringList("1|raoK|2|saMGa|gaaya|10|4.2|48|480"));
    EXPECT_EQ(Closing(2), "110|100");
}

TEST_F(MilkSalesSavingTest, TheSaleOfAnotherDayWithTheSameNumberStaysAsItIs)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5);
    Run("update MilkSales set SalesDate='14/04/2026'");
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 10);
    const auto theOther = [this] { return Rows("select * from MilkSales where SalesDate=#04/14/2026#"); };
    const QStringList before = theOther();
    InTheMorning([&](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}12{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(theOther(), before);
        EXPECT_EQ(Closing(2), "112|103.5") << "of all days";
        Type(clerk, "{UP}{ENTER}{F10}");
        EXPECT_EQ(theOther(), before);
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books().size(), 1);
    EXPECT_EQ(Closing(2), "100|103.5");
}

TEST_F(MilkSalesSavingTest, ASaleOfAnotherCompanyThatIsChangedBecomesThisOnes)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5, 2);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "saMGa");
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select CompanyId from MilkSales"), "1");
}

// The customer was struck from the register by other means, and the sale stayed.
TEST_F(MilkSalesSavingTest, ASaleWhoseCustomerIsGoneKeepsItsNumberWhenItIsSavedAgain)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 9, "gaolaa", "gaaya", 3.5);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}");
        Press(clerk, "cmdGo");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books(), QStringList("1|saMGa ivaËI|9|gaolaa|gaaya|3.5|4.2|48|168"));
}

TEST_F(MilkSalesSavingTest, NextToCashTheLocalSaleIsInTheSameSummary)
{
    AddSale(1, "sakaL", "sqaainak ivaËI", 1, "ha^Tola", "gaaya", 2);
    AddSale(2, "sakaL", "raoK", 0, "raoK", "gaaya", 3);
    AddSale(3, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 5);
    AddSale(4, "sakaL", "raoK", 0, "raoK", "mhOsa", 7);
    AddSale(5, "sakaL", "x", 2, "saMGa", "x", 11);
    InTheMorning([](Clerk& clerk) {
        for (const auto& [label, figure] :
            {std::pair("lblRokhCowSaleLiter", "5.000"), std::pair("lblRokhCowSaleAmt", "240.00"),
                std::pair("lblRokhBuffSaleLiter", "7.000"), std::pair("lblRokhBuffSaleAmt", "336.00"),
                std::pair("lblUdharCowSaleLiter", "5.000"), std::pair("lblUdharCowSaleAmt", "240.00"),
                std::pair("lblUdharBuffSaleLiter", "11.000"), std::pair("lblUdharBuffSaleAmt", "528.00")})
            EXPECT_EQ(Label(clerk, label), figure) << label;
    });
}

}
