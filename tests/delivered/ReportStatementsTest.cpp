#include "tests/delivered/StatementsTest.h"

namespace {

// Gain and loss, statements of milk, lists of members, purchase and sales, and the books of cash and bank.
class ReportStatementsTest : public StatementsTest {
protected:
    ReportStatementsTest()
    {
        AddMember(1, 5, "rama ", "gaaya");
        AddMember(1, 12, "saIta", "mhOsa");
        AddDelivery(1, "15/04/2026", "sakaL", 2, 5, "rama ", "gaaya", 1.5, 45);
        AddDelivery(1, "15/04/2026", "sakaL", 10, 5, "rama ", "gaaya", 2.25, 67.5);
        AddDelivery(1, "16/04/2026", "saMQyaakaL", 1, 12, "saIta", "mhOsa", 4, 120);
        AddSale(1, "15/04/2026", "sakaL", "saMGa ivaËI", 1, 1, "saMGa ", "gaaya", 20.25, 972);
        AddSale(1, "15/04/2026", "sakaL", "raoK", 2, 0, "raoK", "gaaya", 1.5, 72);
        AddSale(1, "16/04/2026", "saMQyaakaL", "saMGa ivaËI", 1, 1, "saMGa ", "mhOsa", 4, 200);
    }

    void AddAccount(
        int number, const std::string& name, const std::string& group, const std::string& category)
    {
        Run("insert into "
            "AccountsMaster(CompanyId,AccountId,AccountName,GroupCode,Category,OpeningBalance,OpeningDorC,"
            "ClosingBalance,ClosingDorC) values(1,"
            + std::to_string(number) + ",'" + name + "','" + group + "','" + category
            + "',250.5,'D',300,'C')");
    }
};

TEST_F(ReportStatementsTest, TheMilkInAndOutIsSummed)
{
    Run("Insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType ,CowOpeningLits,"
        "CowClosingLits,BuffOpeningLits ,BuffClosingLits)values(1,1,'saMGa','daonhI','saMGa ivaËI "
        "',0,0,0,0)");
    EXPECT_EQ(
        Rows("select * from CustomersMaster where CompanyId=1 and Trim(CustomerType)='saMGa ivaËI'").size(),
        1U);
    EXPECT_EQ(Run("delete * from VadhTootReport"), 0);
    const std::string collected = " from MilkCollections where CollectionDate=#04/15/2026# and "
                                  "trim(CollectionTime)='sakaL' and trim(Animal)='gaaya'";
    const std::string sold =
        " from MilkSales where SalesDate=#04/15/2026# and trim(SalesTime)='sakaL' and trim(Animal)='gaaya'";
    EXPECT_EQ(Row("select sum(Liters) as TotalCowMLiters" + collected), "3.75");
    EXPECT_EQ(
        Row("select sum(Liters) as TotalCowMLiters" + sold + " and trim(CustomerName)='saMGa'"), "20.25");
    EXPECT_EQ(Row("select sum(Liters) as TotalCowMLiters" + sold), "21.75");
    EXPECT_EQ(Row("select sum(OurLiters) as TotalLiters" + sold), "23.75");
    EXPECT_EQ(Row("select sum(Amount) as TotalCowMLiters" + collected), "112.5");
    EXPECT_EQ(Row("select sum(Amount) as TotalCowMLiters" + sold + " and trim(CustomerName)='saMGa'"), "972");
    EXPECT_EQ(Row("select sum(Liters) as TotalBuffELiters from MilkCollections where "
                  "CollectionDate=#04/16/2026# and "
                  "trim(CollectionTime)='saMQyaakaL' and trim(Animal)='mhOsa'"),
        "4");
    EXPECT_EQ(
        Run("insert into VadhTootReport(CompanyId,CollectionDate,CollectionTime,Animal,LitersIn,LitersLocal,"
            "LitersSangh,LitersOut,OurLiters) "
            "values(1,'15/04/2026','sakaL','gaaya',3.75,1.5,20.25,21.75,-23.75)"),
        1);
    EXPECT_EQ(
        Run("insert into VadhTootReport(CompanyId,CollectionDate,CollectionTime,Animal,LitersIn,LitersLocal,"
            "LitersSangh,LitersOut) values(1,'15/04/2026','sakaL','gaaya',112.5,72,972,1044)"),
        1);
    EXPECT_EQ(Run("delete * from VadhTootReport where CompanyId=0"), 0);
    EXPECT_EQ(Rows("select * from VadhTootReport order by LitersIn"),
        (Lines{"1|15/04/2026|sakaL|gaaya|3.75|1.5|20.25|21.75|-23.75",
            "1|15/04/2026|sakaL|gaaya|112.5|72|972|1044|null"}));
    AddAccount(9, "saMGa", "Debtors ", " saMGa");
    EXPECT_EQ(Rows("select * from AccountsMaster where CompanyId=1 and trim(GroupCode)='Debtors' and "
                   "trim(Category)='saMGa'"),
        (Lines{"1|9|saMGa|Debtors | saMGa|250.5|D|300|C"}));
}

TEST_F(ReportStatementsTest, AStatementOfMilkIsStagedForAMemberOrACustomer)
{
    EXPECT_EQ(Row("select MemberNo from MembersMaster where CompanyId=1 and trim(MemberName)='rama'"), "5");
    EXPECT_EQ(Rows("select * from MembersMaster where CompanyId=1 and trim(MemberName)='rama'").size(), 1U);
    for (const std::string table : {"MilkCollectionsTemp", "MilkSalesTemp", "MilkCollectionsME"})
        EXPECT_EQ(Run("delete * from " + table), 0);
    EXPECT_EQ(
        Run("insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=1 and "
            "CollectionDate>=#04/15/2026# and CollectionDate<=#04/16/2026# and trim(MemberName)='rama'"),
        2);
    EXPECT_EQ(Run("insert into MilkSalesTemp select * from MilkSales where CompanyId=1 and "
                  "SalesDate>=#04/15/2026# and "
                  "SalesDate<=#04/16/2026# and trim(CustomerName)='saMGa'"),
        2);
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp where CompanyId=1 and CollectionDate=#04/15/2026# and "
                   "Animal='gaaya' and CollectionTime='sakaL' order by CollectionNo"),
        (Lines{"1|15/04/2026|sakaL|2|5|rama |gaaya|1.5|4.5|30|45|0|6.05|null",
            "1|15/04/2026|sakaL|10|5|rama |gaaya|2.25|4.5|30|67.5|0|6.05|null"}));
    EXPECT_EQ(
        Rows(
            "select * from MilkSalesTemp where CompanyId=1 and SalesDate=#04/15/2026# and Animal='gaaya' and "
            "SalesTime='sakaL' order by SalesNo"),
        (Lines{"1|15/04/2026|sakaL|saMGa ivaËI|1|1|saMGa |gaaya|20.25|4.2|48|972|21.25|8.5|4.3|40|99"}));
    EXPECT_EQ(Run("insert into "
                  "MilkCollectionsME(CompanyId,CollectionDate,MemberNo,MemberName,Animal,LitersM,FatM,RateM,"
                  "AmountM,LitersE,FatE,RateE,AmountE,SNFM,SNFE) "
                  "values(1,'15/04/2026',5,'rama','gaaya',1.5,4.5,30,45,0,0,"
                  "0,0,8.5,0)"),
        1);
    EXPECT_EQ(Run("DELETE * FROM MilkCollectionsME WHERE CompanyId=0"), 0);
    EXPECT_EQ(
        Row("select * from MilkCollectionsME"), "1|15/04/2026|5|rama|gaaya|1.5|4.5|30|45|0|0|0|0|8.5|0");
}

TEST_F(ReportStatementsTest, ADaysCollectionIsStagedByItsChoices)
{
    const std::string day = "insert into MilkCollectionsTemp select * from MilkCollections where "
                            "CStr(CollectionDate)='15/04/2026'";
    EXPECT_EQ(Run(day), 2);
    EXPECT_EQ(Run(day + " and CollectionTime='sakaL'"), 2);
    EXPECT_EQ(Run(day + " and CollectionTime='saMQyaakaL'"), 0);
    EXPECT_EQ(Run(day + " and CollectionTime='sakaL' and  Animal='gaaya'"), 2);
    EXPECT_EQ(Run(day + " and Animal='mhOsa'"), 0);
    EXPECT_EQ(Run("delete * from MilkCollectionsTemp where CompanyId=0"), 0);
    EXPECT_EQ(Run("delete * from MilkCollectionsTemp"), 6);
}

TEST_F(ReportStatementsTest, TheMembersAreListed)
{
    EXPECT_EQ(Rows("select * from MembersMaster where City='masaUr'").size(), 2U);
    EXPECT_TRUE(Rows("select * from MembersMaster where City='kraD'").empty());
    EXPECT_EQ(Run("delete * from MembersListReport"), 0);
    EXPECT_EQ(Run("insert into "
                  "MembersListReport(CompanyId,Crieteria,CrieteriaValue,MemberNo,MemberName,City,Animal) "
                  "values(1,'Milk','gaaya',5,'rama','masaUr','gaaya')"),
        1);
    EXPECT_EQ(Run("delete * from MembersListReport where CompanyId=0"), 0);
    EXPECT_EQ(Row("select CompanyId,Crieteria,Crieteriavalue,MemberNo,MemberName,City,Animal from "
                  "MembersListReport"),
        "1|Milk|gaaya|5|rama|masaUr|gaaya");
}

TEST_F(ReportStatementsTest, PurchaseAndSalesAreSummedDayByDay)
{
    for (const char* type : {"raoK ivaËI", "]Qaar ivaËI", "raoK KrodI", "]Qaar KrodI", "pomaonT"})
        AddVoucher(1, "15/04/2026", 1, type, "rama", "raoK", 10.25, "", "");
    AddVoucher(1, "16/04/2026", 1, "raoK ivaËI", "rama", "raoK", 64, "", "");
    EXPECT_EQ(
        Rows("select TranDate from TransactionsMaster where CompanyId=1 order by TranDate desc").front(),
        "16/04/2026");
    EXPECT_EQ(Rows("Select CompanyId,TranDate,TranType,Amount from TransactionsMaster where CompanyId=1 And  "
                   "TranDate>=#04/15/2026# And  TranDate<=#04/15/2026# and ( TranType='raoK ivaËI' or "
                   "TranType=']Qaar "
                   "ivaËI' or TranType='raoK KrodI' or TranType=']Qaar KrodI')"),
        (Lines{"1|15/04/2026|raoK ivaËI|10.25", "1|15/04/2026|]Qaar ivaËI|10.25",
            "1|15/04/2026|raoK KrodI|10.25", "1|15/04/2026|]Qaar KrodI|10.25"}));
    EXPECT_EQ(Run("Delete * From LedgersMaster"), 0);
    EXPECT_EQ(Run("Delete * From TransactionsMasterTemp"), 0);
    for (const std::string type : {"raoK ivaËI", "]Qaar ivaËI", "raoK KrodI"})
        EXPECT_EQ(Run("Insert Into TransactionsMasterTemp (CompanyId,Trandate,Amount,TranType) "
                      "values(1,'15/04/2026',10.25,'"
                      + type + "')"),
            1);
    EXPECT_EQ(
        Row("Select CompanyId,TranDate,Sum(Amount) as mCAmount from TransactionsMasterTemp where CompanyId=1 "
            "And  "
            "TranDate=#04/15/2026# and (TranType='raoK ivaËI' or TranType=']Qaar ivaËI') Group By CompanyId,"
            "TranDate"),
        "1|15/04/2026|20.5");
    EXPECT_TRUE(Rows(
        "Select CompanyId,TranDate,Sum(Amount) as mCAmount from TransactionsMasterTemp where CompanyId=1 "
        "And  TranDate=#04/17/2026# and (TranType='raoK ivaËI' or TranType=']Qaar ivaËI') Group By "
        "CompanyId,TranDate")
                    .empty());
    EXPECT_EQ(Run("Insert Into LedgersMaster (CompanyId,Trandate,CAmount,DAmount,FromDate,ToDate) "
                  "values(1,'15/04/2026',20.5,10.25,'15/04/2026','16/04/2026')"),
        1);
    EXPECT_EQ(Run("Delete * from LedgersMaster where CompanyId=0"), 0);
    EXPECT_EQ(Row("select CompanyId,TranDate,CAmount,DAmount,FromDate,ToDate,LedgerName from LedgersMaster"),
        "1|15/04/2026|20.5|10.25|15/04/2026|16/04/2026|null");
}

TEST_F(ReportStatementsTest, MilkBoughtAndSoldIsStagedForARange)
{
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=1 and "
                  "CollectionDate>=#04/15/2026# and CollectionDate<=#04/15/2026#"),
        2);
    EXPECT_EQ(Run("Delete * from MilkCollectionsTemp where CompanyId=0"), 0);
    EXPECT_EQ(Run("Delete * From MilkCollectionsTemp"), 2);
    EXPECT_EQ(Run("insert into MilkSalesTemp select * from MilkSales where CompanyId=1 and "
                  "SalesDate>=#04/15/2026# and "
                  "SalesDate<=#04/16/2026#"),
        3);
    EXPECT_EQ(Run("Delete * from MilkSalesTemp where CompanyId=0"), 0);
    EXPECT_EQ(Run("delete * from MilkSalesTemp"), 3);
    EXPECT_EQ(
        Run("insert into ReportDates(CompanyId,FromDate,ToDate) values(1,'15/04/2026','16/04/2026')"), 1);
    EXPECT_EQ(Row("select * from ReportDates where FromDate=#04/15/2026#"), "1|15/04/2026|16/04/2026");
    EXPECT_EQ(Run("Delete * From ReportDates"), 1);
}

TEST_F(ReportStatementsTest, TheComparisonIsOfOneAccount)
{
    AddAccount(9, "saMGa", "Debtors", "saMGa");
    AddAccount(8, "Agaaor", "Debtors", "saMGa");
    AddAccount(7, "dUsara", "Debtors", "");
    AddAccount(6, "baÐk", " Bank", "");
    EXPECT_EQ(
        Rows("SELECT AccountName FROM AccountsMaster WHERE CompanyId=1 and Trim(GroupCode)= 'Debtors' and "
             "trim(Category)='saMGa' order by AccountName"),
        (Lines{"Agaaor", "saMGa"}));
    EXPECT_EQ(
        Rows("SELECT AccountName FROM AccountsMaster WHERE CompanyId=1 and Trim(GroupCode)= 'Bank' order by "
             "AccountName")
            .size(),
        2U)
        << "the delivered one and this one";
    EXPECT_EQ(Run("insert into MilkSalesTemp select * from MilkSales where CompanyId=1 and "
                  "SalesDate>=#04/15/2026# and "
                  "SalesDate<=#04/15/2026# and trim(CustomerName)='saMGa'"),
        1);
    EXPECT_EQ(Rows("select * from MilkSalesTemp where CompanyId=1").size(), 1U);
}

TEST_F(ReportStatementsTest, ABookIsRolledForwardAndWrittenRowByRow)
{
    AddVoucher(1, "14/04/2026", 1, "pomaonT", "rama", "raoK ", 10, "]cala", "]cala idlaI.");
    AddVoucher(1, "15/04/2026", 10, "irsaIT", "raoK", "rama", 20.5, "]cala jamaa", "]cala jamaa JaalaI.");
    AddVoucher(1, "15/04/2026", 2, "pomaonT", "rama", " raoK", 30, "]cala", "]cala idlaI.");
    AddVoucher(1, "15/04/2026", 3, "pomaonT", "rama", "baÐk", 40, "", "");
    EXPECT_EQ(Row("Select * from AccountsMaster where CompanyId=1 And AccountName='raoK'"),
        "1|1|raoK|Cash||0|D|0|D");
    const std::string ledger = " from TransactionsMaster where CompanyId=1 And (trim(DAccountName)='raoK' Or "
                               "trim(CAccountName)='raoK') And ";
    EXPECT_EQ(Rows("Select *" + ledger + "TranDate<#04/15/2026# order by TranDate,TranId"),
        (Lines{"1|14/04/2026|1|pomaonT|rama|raoK |10|]cala|]cala idlaI.|null|null|null|null"}));
    EXPECT_EQ(Rows("Select TranId,Amount" + ledger
                  + "TranDate>=#04/15/2026# And TranDate<=#04/16/2026# order by TranDate,tranId"),
        (Lines{"2|30", "10|20.5"}));
    EXPECT_EQ(Run("Delete * from LedgersMaster"), 0);
    for (const std::string amounts : {"0,30", "0,0"})
        EXPECT_EQ(
            Run("Insert into "
                "LedgersMaster(LedgerName,FromDate,ToDate,CompanyId,TranDate,TranId,TranType,AccountName,"
                "DAmount,CAmount,Narration,Narration2,Narration3,OpeningBalance,OpeningDorC,ClosingBalance,"
                "ClosingDorC,Total) "
                "values('raoK','15/04/2026','16/04/2026',1,#04/15/2026#,2,'pomaonT','rama',"
                + amounts + ",']cala idlaI.','','',10,'C',40,'C',40)"),
            1);
    EXPECT_EQ(Run("Delete * from LedgersMaster where DAmount=0 and CAmount=0"), 1);
    EXPECT_EQ(Row("select * from LedgersMaster"),
        "raoK|15/04/2026|16/04/2026|1|15/04/2026|2|pomaonT|rama|0|30|]cala idlaI.|||10|C|40|C|40");
}

}
