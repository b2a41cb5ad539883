// The frame of the society's own measure.

#include "tests/sales/MilkSalesTest.h"

namespace {

class OurMeasureTest : public MilkSalesTest {
protected:
    // The frame open on a sale of ten litres of cow milk to the federation.
    void InTheFrame(const std::function<void(Clerk&)>& script)
    {
        InTheMorning([&](Clerk& clerk) {
            Type(clerk, "{ENTER}saMGa{ENTER}1{ENTER}10{F9}");
            ASSERT_EQ(Focus(clerk), "txtOurLiters");
            script(clerk);
        });
        EXPECT_FALSE(Failure);
    }
};

TEST_F(OurMeasureTest, F9OpensItFromTheLitresAndLeavingTheSnfClosesItAndReturnsThere)
{
    InTheFrame([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblOurLiters"), Seen("AapNa maaojalaolao ilaTsa-").toStdString());
        EXPECT_EQ(Label(clerk, "lblSNF"), Seen("esa.ena.ef.³saMGa´").toStdString());
        Type(clerk, "10.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "10.500");
        EXPECT_EQ(Focus(clerk), "chkCalculate");
        Type(clerk, "{ENTER}4.15{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtOurFat"), "4.15");
        Type(clerk, "33.4{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtOurRate"), "33.40");
        EXPECT_EQ(Focus(clerk), "txtSNF");
        Type(clerk, "8.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtSNF"), "8.500");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_FALSE(CanEnter(clerk, "txtOurLiters")) << "the frame is closed";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "10.500") << "the frame was used";
        Type(clerk, "4{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Ours(), QStringList("1|10.5|8.5|4.15|33.4|350.7"));
    EXPECT_EQ(Rows("select OurAmount from MilkSalesTemp"), QStringList("350.7"));
}

TEST_F(OurMeasureTest, InNoOtherFieldDoesF9OpenIt)
{
    InTheMorning([](Clerk& clerk) {
        const char* ways[] = {"", "{ENTER}", "saMGa{ENTER}", "1{ENTER}10{ENTER}", "4{ENTER}", "{ENTER}"};
        for (const char* way : ways) {
            Type(clerk, way);
            Type(clerk, "{F9}");
            EXPECT_FALSE(CanEnter(clerk, "txtOurLiters")) << Focus(clerk);
        }
        EXPECT_EQ(Focus(clerk), "txtAmount");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(OurMeasureTest, WhatIsLeftEmptyCountsAsNought)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        for (const auto& [field, text] : {std::pair("txtOurLiters", "0.000"), std::pair("txtOurFat", "0.00"),
                 std::pair("txtOurRate", "0.00"), std::pair("txtSNF", "0.000")})
            EXPECT_EQ(Reads(clerk, field), text) << field;
        Type(clerk, "{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Ours(), QStringList("1|0|0|0|0|0"));
}

TEST_F(OurMeasureTest, OurAmountIsRoundedToPaiseWhenItIsSaved)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "1.015{ENTER}{ENTER}4{ENTER}33{ENTER}{ENTER}{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Ours(), QStringList("1|1.015|0|4|33|33.5"));
}

TEST_F(OurMeasureTest, TheTickWorksItOutFromTheCollectionOfDayShiftAndAnimal)
{
    AddDelivery(1, "sakaL", "gaaya", 5, 4.5);
    AddDelivery(2, "sakaL", "gaaya", 15, 3.9);
    AddDelivery(3, "sakaL", "mhOsa", 100, 9);
    AddDelivery(4, "saMQyaakaL", "gaaya", 200, 9);
    AddDelivery(5, "sakaL", "gaaya", 400, 9, 2);
    Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,Animal,Liters,Fat) "
        "values(1,'14/04/2026','sakaL',1,'gaaya',800,9)");
    const double rate = One("select CowRate from Fat010426 where Fat='4.1'").toDouble();
    ASSERT_GT(rate, 0);
    InTheFrame([rate](Clerk& clerk) {
        Type(clerk, "{ENTER} ");
        EXPECT_EQ(Reads(clerk, "chkCalculate"), "1");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "20.000");
        EXPECT_EQ(Reads(clerk, "txtOurFat"), "4.1") << "81 / 20";
        EXPECT_EQ(Reads(clerk, "txtOurRate"), QString::number(rate, 'f', 2).toStdString());
        EXPECT_EQ(Focus(clerk), "txtOurFat");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtOurFat"), "4.10");
        Type(clerk, "+{TAB}+{TAB} ");
        EXPECT_EQ(Reads(clerk, "chkCalculate"), "0");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "0.000");
        EXPECT_EQ(Reads(clerk, "txtOurFat"), "4.10");
    });
}

TEST_F(OurMeasureTest, TheTickTakesCollectionAndChartOfTheKeyedDayAndTheAnimal)
{
    for (const auto& [day, chart, cow, buffalo] :
        {std::tuple("14", "Fat140426", 31, 51), std::tuple("15", "Fat150426", 32, 52)}) {
        gCn.RunScript(QString("create table %1(Fat TEXT,CowRate TEXT,BuffRate TEXT);"
                              "insert into %1 values('4.1','%2','%3');")
                          .arg(chart)
                          .arg(cow)
                          .arg(buffalo));
        Run(QString("insert into FatDates(FromDate,FatFileName) values('%1/04/2026','%2')").arg(day, chart));
        for (const auto& [number, animal] : {std::pair("1", "gaaya"), std::pair("2", "mhOsa")})
            Run(QString("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,"
                        "Animal,Liters,Fat) values(1,'%1/04/2026','sakaL',%2,'%3',%2%1,4.1)")
                    .arg(day, number, animal));
    }
    struct Case {
        const char* keys;
        const char* liters;
        const char* rate;
    };
    for (const Case& c : {Case{"14042026{ENTER}1{ENTER}{ENTER}saMGa{ENTER}1", "114.000", "31.00"},
             {"14042026{ENTER}1{ENTER}{ENTER}saMGa{ENTER}2", "214.000", "51.00"},
             {"{ENTER}1{ENTER}{ENTER}saMGa{ENTER}1", "115.000", "32.00"},
             {"{ENTER}1{ENTER}{ENTER}saMGa{ENTER}2", "215.000", "52.00"}}) {
        Play([&](Clerk& clerk) {
            Type(clerk, c.keys);
            Type(clerk, "{ENTER}10{F9}{ENTER} ");
            EXPECT_EQ(Reads(clerk, "txtOurLiters"), c.liters) << c.keys;
            EXPECT_EQ(Reads(clerk, "txtOurRate"), c.rate) << c.keys;
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(OurMeasureTest, WithoutACollectionItIsToldInOneSentenceAndTheFiguresAreNought)
{
    AddDelivery(1, "sakaL", "gaaya", 0, 4.5);
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "{ENTER} ");
        EXPECT_EQ(clerk.Message(), "या दिवशी या वेळेला या दुधाचे संकलन झालेले नाही.");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtOurFat");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "0.000");
        EXPECT_EQ(Reads(clerk, "txtOurFat"), "0.0");
        EXPECT_EQ(Reads(clerk, "txtOurRate"), "0.00");
    });
}

TEST_F(OurMeasureTest, AFatThatTheChartHasntGivesARateOfNoughtAndNoChartLeavesTheRate)
{
    AddDelivery(1, "sakaL", "gaaya", 5, 29);
    InTheFrame([this](Clerk& clerk) {
        Type(clerk, "{ENTER} ");
        EXPECT_EQ(Reads(clerk, "txtOurRate"), "0.00");
        Type(clerk, "{ENTER}31{ENTER}");
        Run("delete * from FatDates");
        Type(clerk, "+{TAB}+{TAB}+{TAB}  ");
        EXPECT_EQ(Reads(clerk, "txtOurFat"), "29.0");
        EXPECT_EQ(Reads(clerk, "txtOurRate"), "31.00");
    });
}

TEST_F(OurMeasureTest, WithoutACustomerTheTickDoesNothing)
{
    AddDelivery(1, "sakaL", "gaaya", 5, 4.5);
    InTheFrame([](Clerk& clerk) {
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"ComboCustName")).Clear(); });
        Type(clerk, "7{ENTER} ");
        EXPECT_EQ(Reads(clerk, "chkCalculate"), "0");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "7.000");
        EXPECT_EQ(Focus(clerk), "chkCalculate");
    });
}

TEST_F(OurMeasureTest, WithoutLitresItOpensAndTheFocusGoesThereWithThem)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}saMGa{ENTER}1{ENTER}{F9}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_TRUE(CanEnter(clerk, "txtOurLiters"));
        Type(clerk, "10{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtOurLiters");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(OurMeasureTest, AStoredMeasureStaysWhenTheLitresOfItsSaleAreChanged)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 10);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}12{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        Sell(clerk, "saMGa", "1", "5", "4");
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}6{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Ours(), (QStringList{"1|11|8.5|4.3|33|363", "2|6|0|0|0|0"}));
}

}
