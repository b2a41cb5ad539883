// What each field of a sale takes, refuses and leads to.

#include "tests/sales/MilkSalesTest.h"

#include <QTableView>

namespace {

using MilkSalesFieldsTest = MilkSalesTest;

NameCombo& Names(Clerk& clerk)
{
    return dynamic_cast<NameCombo&>(*clerk.Top().Find(u"ComboCustName"));
}

const DataGrid& Grid(Clerk& clerk)
{
    return dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridInwards"));
}

TEST_F(MilkSalesFieldsTest, ItOpensOnTheWorkingDayWithAnEmptyListAndTheCustomersBehindCash)
{
    Run("insert into MilkSalesTemp(CompanyId,SalesNo) values(1,7)");
    Play([this](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), " dUQa ivaËI");
        EXPECT_EQ(Label(clerk, "lblCompanyTitle"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(Label(clerk, "lblAcYear"), "2026-2027");
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        EXPECT_EQ(Copy(), QStringList());
        EXPECT_EQ(Names(clerk).Items(), (QStringList{"raoK", "ha^Tola", "saMGa"}));
        EXPECT_EQ(Focus(clerk), "maskDate");
        for (const char* field : {"txtSalesNo", "ComboCustName", "txtAnimal", "txtLiters", "txtFat",
                 "txtRate", "txtAmount", "cmdGo", "txtOurLiters"})
            EXPECT_FALSE(CanEnter(clerk, field)) << field << " has no shift yet";
        EXPECT_EQ(Label(clerk, "lblRokhCowSaleLiter"), "0.000");
        EXPECT_EQ(Label(clerk, "lblUdharBuffSaleAmt"), "0.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, TheListHasTheNineColumnsOfASale)
{
    Play([](Clerk& clerk) {
        const auto* view = dynamic_cast<const QTableView*>(Grid(clerk).Widget());
        QStringList heads;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            heads.append(view->model()->headerData(column, Qt::Horizontal).toString());
        QStringList captions;
        for (const char* caption : {"ivaËI Ë.", "ga`ahk p`kar", "ga`ahk Ë.", "ga`ahkacao naava", "dUQa",
                 "ilaTsa-", "f^T", "dr", "r@kma"})
            captions.append(Seen(caption));
        EXPECT_EQ(heads, captions);
    });
}

TEST_F(MilkSalesFieldsTest, ADateThatIsNoneKeepsTheFocusWithoutAMessage)
{
    for (const char* date : {"{BS}", "31022026", "15132026", "00042026"}) {
        Play([date](Clerk& clerk) {
            Type(clerk, date);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "maskDate") << date;
            EXPECT_EQ(OnTop(clerk), "frmMilkSales") << date;
            EXPECT_EQ(Label(clerk, "lblGuide"), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर");
        });
        EXPECT_FALSE(Failure) << date;
    }
    EXPECT_TRUE(TheBox.Shown.empty());
}

TEST_F(MilkSalesFieldsTest, TheShiftIsChosenByOneAndTwoAndAnEmptyOneReturnsToTheDate)
{
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        EXPECT_EQ(Label(clerk, "lblGuide"), "  १ - सकाळ    २ - संध्याकाळ");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskDate");
        Type(clerk, "{ENTER}1");
        EXPECT_EQ(Reads(clerk, "txtTime"), "sakaL");
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtTime"), "saMQyaakaL");
        EXPECT_EQ(Focus(clerk), "txtTime");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, LeavingTheShiftClosesTheDateAndLoadsItsSales)
{
    AddSale(2, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3);
    AddSale(1, "saMQyaakaL", "raoK", 0, "raoK", "gaaya", 4);
    AddSale(3, "sakaL", "raoK", 0, "raoK", "gaaya", 5, 2);
    InTheMorning([this](Clerk& clerk) {
        EXPECT_FALSE(CanEnter(clerk, "maskDate"));
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "4");
        EXPECT_EQ(Copy(),
            (QStringList{"1|saMGa ivaËI|2|saMGa|mhOsa|3|4.2|48|144", "2|raoK|0|raoK|gaaya|2|4.2|48|96"}));
        EXPECT_EQ(Grid(clerk).Rows(), 2);
        EXPECT_EQ(Grid(clerk).CurrentRow(), 1) << "the newest can be seen";
        EXPECT_EQ(Grid(clerk).Cell(0, 5).toStdString(), "3.000");
        EXPECT_EQ(Grid(clerk).Cell(0, 6).toStdString(), "4.2");
        EXPECT_EQ(Grid(clerk).Cell(0, 7).toStdString(), "48.00");
        EXPECT_EQ(Grid(clerk).Cell(0, 8).toStdString(), "144.00");
        EXPECT_EQ(Label(clerk, "lblRokhCowSaleLiter"), "2.000");
        EXPECT_EQ(Label(clerk, "lblRokhCowSaleAmt"), "96.00");
        EXPECT_EQ(Label(clerk, "lblUdharBuffSaleLiter"), "3.000");
        EXPECT_EQ(Label(clerk, "lblUdharBuffSaleAmt"), "144.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, ShiftTabLeadsBackToAnotherDay)
{
    AddSale(6, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    InTheMorning([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "7");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_FALSE(CanEnter(clerk, "txtSalesNo")) << "of the day before";
        Type(clerk, "14042026{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
        EXPECT_EQ(Grid(clerk).Rows(), 0);
    });
    EXPECT_FALSE(Failure);
}

// The number

TEST_F(MilkSalesFieldsTest, TheFirstOf2008WithoutSalesHasTheNumberOne)
{
    Play([](Clerk& clerk) {
        Type(clerk, "01012008{ENTER}1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, ASecondCompanysSaleTakesTheNextNumberOfTheSameSeries)
{
    AddSale(1, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    gAppState.gCompanyId = 2;
    InTheMorning([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2");
        EXPECT_EQ(Copy(), QStringList()) << "and its list has its own";
        Sell(clerk, "raoK", "1", "3", "4");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "3");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select CompanyId,SalesNo from MilkSales order by SalesNo"), (QStringList{"1|1", "2|2"}));
    EXPECT_EQ(Rows("select CompanyId,SalesNo from MilkSalesTemp"), QStringList("2|2"));
}

TEST_F(MilkSalesFieldsTest, TheSeriesStartsAgainInTheEvening)
{
    AddSale(9, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
    });
}

TEST_F(MilkSalesFieldsTest, UpAndDownShowTheSaleOfTheNumberInAllFields)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5);
    AddSale(2, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "raoK");
        Type(clerk, "{UP}");
        for (const auto& [field, text] : {std::pair("txtSalesNo", "1"), std::pair("ComboCustName", "saMGa"),
                 std::pair("txtAnimal", "mhOsa"), std::pair("txtLiters", "3.500"), std::pair("txtFat", "4.2"),
                 std::pair("txtRate", "48.00"), std::pair("txtAmount", "168.00"),
                 std::pair("txtOurLiters", "4.500"), std::pair("txtOurFat", "4.30"),
                 std::pair("txtOurRate", "33.00"), std::pair("txtSNF", "8.50")})
            EXPECT_EQ(Reads(clerk, field), text) << field;
        Type(clerk, "{UP}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "0");
        for (const char* field : {"ComboCustName", "txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount",
                 "txtOurLiters", "txtOurFat", "txtOurRate", "txtSNF"})
            EXPECT_EQ(Reads(clerk, field), "") << field;
        Type(clerk, "{UP}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "0") << "and not below";
        Type(clerk, "{DOWN}{DOWN}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "raoK");
        Type(clerk, "{DOWN}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "3");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "");
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, LargeFiguresAreShownWhole)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 1234567.875);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}60{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "1234567.875");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "1234568.875");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "74074072.50");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, ASaleOfTheEveningIsNotThatOfTheMorning)
{
    AddSale(1, "saMQyaakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5);
    AddSale(2, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{UP}");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "");
    });
}

TEST_F(MilkSalesFieldsTest, TheSalesOfAnotherDayAreNotThoseOfTheShift)
{
    AddSale(7, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5);
    Run("update MilkSales set SalesDate='14/04/2026'");
    InTheMorning([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "1");
        EXPECT_EQ(Copy(), QStringList());
        EXPECT_EQ(Label(clerk, "lblUdharBuffSaleLiter"), "0.000");
        Type(clerk, "7{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "") << "the number is free";
    });
    EXPECT_FALSE(Failure);
}

// Saving would write over it unseen.
TEST_F(MilkSalesFieldsTest, ANumberThatIsTypedShowsItsSaleAndAFreeOneLeavesWhatWasTyped)
{
    AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "mhOsa", 3.5);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "1{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "saMGa");
        Type(clerk, "+{TAB}8{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "") << "no second one of sale 1";
        Type(clerk, "raoK{ENTER}1{ENTER}+{TAB}+{TAB}9{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "raoK");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
    });
    EXPECT_FALSE(Failure);
}

// The customer

TEST_F(MilkSalesFieldsTest, TheListOfNamesOpensByItself)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboCustName");
        EXPECT_TRUE(Names(clerk).IsDroppedDown());
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "raoK") << "cash stands first";
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, AnUnknownCustomerIsToldAndTheFocusReturns)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}xyz{ENTER}");
        EXPECT_EQ(clerk.Message(), "ga`ahkacao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboCustName");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "xyz");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, WithoutAnyCustomerThereIsCashAndAnEmptyNameIsTold)
{
    Run("delete * from CustomersMaster");
    InTheMorning([this](Clerk& clerk) {
        EXPECT_EQ(Names(clerk).Items(), QStringList("raoK"));
        Type(clerk, "{ENTER}{ESC}{ENTER}");
        EXPECT_EQ(clerk.Message(), "ga`ahkacao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboCustName");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtSalesNo") << "to another number it goes without a word";
        EXPECT_EQ(OnTop(clerk), "frmMilkSales");
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        EXPECT_EQ(Books(), QStringList("1|raoK|0|raoK|gaaya|1.5|4.2|48|72"));
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, ANameThatReadsTheSameIsTheCustomer)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER} saMGa {ESC}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMilkSales");
        EXPECT_EQ(Reads(clerk, "ComboCustName"), "saMGa");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
}

// The milk

TEST_F(MilkSalesFieldsTest, TheAnimalIsChosenByOneAndTwo)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}raoK{ENTER}");
        EXPECT_EQ(Label(clerk, "lblGuide"), "  १ - गाय    २ - म्हैस");
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
        Type(clerk, "1");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
    });
}

TEST_F(MilkSalesFieldsTest, ZeroLitresKeepTheFocus)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}raoK{ENTER}1{ENTER}");
        for (const char* litres : {"", "0", "0.0001", "."}) {
            Type(clerk, litres);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtLiters") << litres;
            EXPECT_EQ(Reads(clerk, "txtLiters"), "0.000") << litres;
        }
        Type(clerk, "2.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "2.500");
        EXPECT_EQ(Reads(clerk, "txtOurLiters"), "2.500") << "the frame isn't used";
        EXPECT_EQ(Focus(clerk), "txtFat");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0.0");
        Type(clerk, "+{TAB}4.46{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, TheRateOfTheSettingsIsProposedByTheAnimal)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}raoK{ENTER}1{ENTER}2{ENTER}4{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Reads(clerk, "txtRate"), "48.00");
        Type(clerk, "+{TAB}+{TAB}+{TAB}2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "58.00");
        Run("update AutoSettings set SalesRateBuff='51.5',SalesRateMix='1'");
        Type(clerk, "+{TAB}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "51.50");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "103.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, ARateOfSixtyIsAcceptedAndSixtyAndAPaisaIsRefusedWithoutAWord)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}raoK{ENTER}1{ENTER}2{ENTER}4{ENTER}60.01{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(OnTop(clerk), "frmMilkSales");
        EXPECT_EQ(Reads(clerk, "txtRate"), "60.01") << "what was refused can be seen";
        EXPECT_EQ(Reads(clerk, "txtAmount"), "");
        EXPECT_EQ(Label(clerk, "lblGuide"), "दर टाका : 0.01 ते 60.00    Esc : बाहेर");
        Type(clerk, "60{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAmount");
        EXPECT_EQ(Reads(clerk, "txtRate"), "60.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "120.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, ARateOfNoughtOrNoneKeepsTheFocus)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}raoK{ENTER}1{ENTER}2{ENTER}4{ENTER}");
        for (const char* rate : {"0", "{DEL}", "0.004"}) {
            Type(clerk, rate);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtRate") << rate;
            EXPECT_EQ(Reads(clerk, "txtRate"), "0.00") << rate;
        }
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, TheAmountIsRoundedToPaiseAndFollowsTheLitres)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}raoK{ENTER}1{ENTER}1.015{ENTER}4{ENTER}33{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "33.50") << "33.495";
        Type(clerk, "+{TAB}+{TAB}+{TAB}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "96.00") << "at the 48 rupees that the way back proposed";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, AStoredSalesOtherRateIsToldWhereTheNewOneIsProposed)
{
    AddSale(1, "sakaL", "raoK", 0, "raoK", "mhOsa", 2);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Reads(clerk, "txtRate"), "58.00");
        EXPECT_EQ(Label(clerk, "lblGuide"), "सेटिंगमधील दर; या नोंदीचा दर 48.00 होता");
    });
}

// The button

TEST_F(MilkSalesFieldsTest, LeavingTheButtonWithoutARateLeadsToTheNumber)
{
    InTheMorning([](Clerk& clerk) {
        Press(clerk, "cmdGo");
        EXPECT_EQ(Focus(clerk), "txtSalesNo") << "no rate";
        clerk.Do([&] { clerk.Top().Find(u"cmdGo")->SetFocus(); });
        Type(clerk, "{TAB}");
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
        clerk.Do([&] { clerk.Top().Find(u"cmdGo")->SetFocus(); });
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtSalesNo") << "which lies behind the button, too";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, LeavingTheButtonWithARateAboveSixtyLeadsToTheNumber)
{
    AddSale(1, "sakaL", "raoK", 0, "raoK", "gaaya", 2);
    Run("update MilkSales set Rate=60.01");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}");
        clerk.Do([&] { clerk.Top().Find(u"cmdGo")->SetFocus(); });
        Type(clerk, "{TAB}");
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
    });
    EXPECT_FALSE(Failure);
    Run("update MilkSales set Rate=60");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}");
        clerk.Do([&] { clerk.Top().Find(u"cmdGo")->SetFocus(); });
        Type(clerk, "{TAB}");
        EXPECT_EQ(Focus(clerk), "txtTime");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesFieldsTest, F2StartsTheCalculatorAndF12TheTutorAndEscLeaves)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, QStringList("C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"));
        Type(clerk, "{F12}");
        EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmMilkSales");
        Type(clerk, "{ENTER}{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmMilkSales") << "the list of names alone";
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
}

}
