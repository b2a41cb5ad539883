#include "tests/delivered/StatementsTest.h"

namespace {

// The registers of payments, deposits and advances, and the balances of the members.
class RegisterStatementsTest : public StatementsTest {
protected:
    RegisterStatementsTest()
    {
        AddMember(1, 5, "rama");
        AddMember(1, 12, "saIta");
        AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 1, 5, "rama");
        AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 2, 12, "saIta");
        AddPayment(1, "01/04/2026", "10/04/2026", "11/04/2026", 1, 5, "rama");
    }
};

TEST_F(RegisterStatementsTest, APeriodIsStaged)
{
    AddDelivery(1, "11/04/2026", "sakaL", 1, 5, "rama", "gaaya", 1.5, 45);
    AddDelivery(1, "12/04/2026", "sakaL", 1, 5, "rama", "gaaya", 2.25, 67.5);
    AddDelivery(1, "21/04/2026", "sakaL", 1, 5, "rama", "mhOsa", 4, 120);
    const std::string payments = "MilkPayments where CompanyId=1 and FromDate=#04/11/2026# and "
                                 "ToDate=#04/20/2026# and MemberNo>=1 and MemberNo<=5";
    EXPECT_EQ(Rows("select * from " + payments).size(), 1U);
    const std::string bounds = " where CompanyId=1 and CollectionDate>=#04/11/2026# and "
                               "CollectionDate<=#04/20/2026# and MemberNo>=1 and "
                               "MemberNo<=5";
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollections" + bounds), 2);
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollectionsOld" + bounds), 0);
    EXPECT_EQ(Run("insert into MilkPaymentsTemp select * from " + payments), 1);
    EXPECT_EQ(Rows("select * from MilkPaymentsTemp order by MemberNo").size(), 1U);
    EXPECT_EQ(Row("select sum(Liters) as CLit from MilkCollectionsTemp where MemberNo=5 and Animal='gaaya'"),
        "3.75");
    EXPECT_EQ(Row("select sum(Liters) as BLit from MilkCollectionsTemp where MemberNo=5 and Animal='mhOsa'"),
        "null");
}

TEST_F(RegisterStatementsTest, TheDepositRegisterIsReckonedAndWritten)
{
    AddHead("MilkPaymentsDetails", 1, "11/04/2026", 0, 5, "gaaya zova", 10.25);
    AddHead("MilkPaymentsDetails", 1, "21/04/2026", 0, 5, "mhOsa zova", 5.5);
    AddHead("MilkPaymentsDetails", 1, "21/04/2026", 0, 5, "maagaIla baakI", 77);
    const std::string types = " and (trim(AdvanceType)='gaaya zova' or trim(AdvanceType)='mhOsa zova')";
    EXPECT_EQ(
        Row("select sum(Amount) as TKapat from MilkPaymentsDetails where CompanyId=1 and MemberNo=5 and "
            "TranDate=#04/21/2026#"
            + types),
        "5.5");
    EXPECT_EQ(
        Row("select sum(Amount) as TKapat from MilkPaymentsDetails where CompanyId=1 and MemberNo=5 and "
            "TranDate>=#04/01/2026# AND TranDate<#04/21/2026#"
            + types),
        "10.25");
    EXPECT_EQ(
        Row("Select CowOpeningThev,BuffOpeningThev From MembersMaster Where CompanyId=1 And MemberNo=5"),
        "103|105");
    EXPECT_EQ(Row("Select PaymentDate From MilkPayments Where CompanyId=1 And FromDate=#04/11/2026# And "
                  "Todate=#04/20/2026# And MemberNo=5"),
        "21/04/2026");
    EXPECT_EQ(Row("Select * From MilkPaymentsDetails Where CompanyId=1 And TranDate=#04/21/2026# And "
                  "MemberNo=5 And "
                  "AdvanceType='maagaIla baakI'"),
        "1|21/04/2026|0|5|maagaIla baakI|77");
    EXPECT_TRUE(Rows(
        "Select * From MilkPaymentsDetails Where CompanyId=1 And TranDate=#01/01/1940# And MemberNo=5 And "
        "AdvanceType='maagaIla baakI'")
                    .empty());
    EXPECT_EQ(
        Run("insert into "
            "MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
            "ThevKapat,PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) values(1,'11/04/2026',"
            "'20/04/2026','21/04/2026',1,5,'rama',5.5,218.25,223.75,100,500)"),
        1);
    EXPECT_EQ(
        Run("insert into "
            "MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
            "OtherKapat,PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) values(1,'11/04/2026',"
            "'20/04/2026','21/04/2026',2,12,'saIta',77,-1.5,-101.5,100,500)"),
        1);
    EXPECT_EQ(Run("Delete * From MilkpaymentsRegister Where CompanYid=0"), 0);
    EXPECT_EQ(Rows("select * from MilkPaymentsRegister order by MemberNo"),
        (Lines{"1|11/04/2026|20/04/2026|21/04/"
               "2026|1|5|rama|null|null|null|null|5.5|null|null|218.25|223.75|100|500",
            "1|11/04/2026|20/04/2026|21/04/"
            "2026|2|12|saIta|null|null|null|null|null|77|null|-1.5|-101.5|100|500"}));
}

TEST_F(RegisterStatementsTest, TheAdvanceRegisterIsReckoned)
{
    for (const char* table : {"TransactionsDetails", "MilkPaymentsDetails"}) {
        AddHead(table, 1, "10/04/2026", 1, 5, "]cala", 100.5);
        AddHead(table, 1, "10/04/2026", 1, 5, "gaaya zova ", 900);
        AddHead(table, 1, "10/04/2026", 1, 5, "mhOsa zova", 900);
        AddHead(table, 1, "11/04/2026", 1, 5, "]cala", 900);
    }
    AddHead("AdvanceReceipt", 1, "10/04/2026", 1, 5, "Uchal Receipt", 20.25);
    AddHead("AdvanceReceipt", 1, "11/04/2026", 1, 5, "Uchal Receipt", 900);
    const std::string before =
        " where CompanyId=1 and MemberNo=5 and TranDate<#04/11/2026# and trim(AdvanceType)<>'gaaya zova' and "
        "trim(AdvanceType)<>'mhOsa zova'";
    EXPECT_EQ(Row("select sum(Amount) as TUchal from TransactionsDetails" + before), "100.5");
    EXPECT_EQ(Row("Select Sum(Amount) as UchalPaid From AdvanceReceipt where CompanyId=1 and MemberNo=5 and "
                  "TranDate<#04/11/2026#"),
        "20.25");
    EXPECT_EQ(Row("select sum(Amount) as UKapat from MilkPaymentsDetails" + before), "100.5");
}

TEST_F(RegisterStatementsTest, TheAdvancesOfOnePersonAreListedBehindTheirOpening)
{
    AddHead("TransactionsDetails", 1, "31/03/2026", 1, 5, "]cala", 100);
    AddHead("TransactionsDetails", 1, "02/04/2026", 2, 5, "KaV", 50.5);
    AddHead("AdvanceReceipt", 1, "31/03/2026", 1, 5, "Uchal Receipt", 112.5);
    AddHead("AdvanceReceipt", 1, "10/04/2026", 3, 5, "Uchal Kapat", 25);
    AddHead("AdvanceReceipt", 1, "11/04/2026", 3, 5, "Uchal Kapat", 26);
    EXPECT_EQ(Run("Delete * From ReportDates"), 0);
    EXPECT_EQ(
        Run("Insert Into ReportDates(CompanyId,FromDate,Todate) Values(1,'01/04/2026','10/04/2026')"), 1);
    EXPECT_EQ(Run("Delete * From Advancetemp"), 0);
    EXPECT_EQ(Row("Select Sum(Amount) as Uchalpaid From TransactionsDetails Where CompanyId=1 And "
                  "Trandate<#04/01/2026# And MemberNo=5"),
        "100");
    EXPECT_EQ(Row("Select Sum(Amount) as UchalReceived From AdvanceReceipt Where CompanyId=1 And "
                  "Trandate<#04/01/2026# And MemberNo=5"),
        "112.5");
    EXPECT_EQ(Run("Insert Into Advancetemp(CompanyId,Trandate,TranId,MemberNo,Advancetype,Amount) "
                  "Values(1,'01/01/1940',0,5,'OpeningBalance',-12.5)"),
        1);
    for (const std::string table : {"TransactionsDetails", "AdvanceReceipt"})
        EXPECT_EQ(Run("Insert Into AdvanceTemp Select * From " + table
                      + " Where TranDate>=#04/01/2026# And Trandate<=#04/10/2026# And Memberno=5"),
            1);
    EXPECT_EQ(Run("Delete * from Advancetemp Where CompanyId=0"), 0);
    EXPECT_EQ(Rows("select * from AdvanceTemp order by TranDate"),
        (Lines{"1|01/01/1940|0|5|OpeningBalance|-12.5", "1|02/04/2026|2|5|KaV|50.5",
            "1|10/04/2026|3|5|Uchal Kapat|25"}));
}

TEST_F(RegisterStatementsTest, TheBalancesAreWrittenForEachMember)
{
    EXPECT_EQ(
        Rows("SELECT * FROM MembersMaster WHERE MemberNo>=1 AND MemberNo<=12 ORDER BY MemberNo").size(), 2U);
    EXPECT_EQ(Row("Select sum(ThevKapatCow) as UchalPaid, sum(ThevKapatBuff) as UchalReceived From "
                  "MilkPayments Where "
                  "CompanyId=1 And PaymentDate>=#04/11/2026# And PaymentDate<=#04/21/2026# AND MemberNo=5"),
        "40|60");
    EXPECT_EQ(Run("delete * from MilkPaymentsRegister"), 0);
    for (const std::string figures : {"5,'rama', 'N/AP',0,0,0,100, 0,500,500, 0,0,0",
             "12,'saIta', 'N/AP',0,0,0,0, 0,500,"
             "400.5, 99.5,0,0"})
        EXPECT_EQ(Run("INSERT INTO MilkPaymentsRegister(CompanyId,FromDate, "
                      "ToDate,PaymentDate,TranId,MemberNo,MemberName, "
                      "Animal,CowLiters,BuffLiters,Amount,ThevKapat, OtherKapat,NetAmount,PreviousBalance, "
                      "CurrentBalance,ActualKapat,PreviousAdvance) VALUES(1,'01/04/2026', "
                      "'30/04/2026','30/04/2026',0,"
                      + figures + ")"),
            1);
    EXPECT_EQ(Run("DELETE * FROM MilkPaymentsRegister WHERE CurrentBalance=0"), 1);
    EXPECT_EQ(Run("DELETE * FROM MilkPaymentsRegister WHERE CompanyID=992"), 0);
    EXPECT_EQ(Row("select * from MilkPaymentsRegister"),
        "1|01/04/2026|30/04/2026|30/04/2026|0|12|saIta|N/AP|0|0|0|0|0|500|400.5|99.5|0|0");
    EXPECT_EQ(Run("DELETE * FROM MilkPaymentsRegister WHERE ThevKapat=0"), 1);
}

}
