#include "tests/delivered/StatementsTest.h"

namespace {

// Two companies; the first member of each bears the same name.
class MasterStatementsTest : public StatementsTest {
protected:
    MasterStatementsTest()
    {
        AddMember(1, 1, "rama");
        AddMember(1, 12, "saIta", "mhOsa");
        AddMember(2, 1, "rama", "gaaya");
    }
};

TEST_F(MasterStatementsTest, AMemberIsInsertedColumnByColumn)
{
    EXPECT_EQ(Row("SELECT * FROM MembersMaster where MemberNo=12"),
        "1|12|saIta|12|maaL|masaUr|mhOsa|raoK|||101|C|102|D|103|104|105|106|107|108|109|110|111|112");
    EXPECT_EQ(Row("SELECT max(MemberNo) as MaxMemberNo FROM MembersMaster"), "12");
    EXPECT_EQ(Rows("SELECT * FROM MembersMaster").size(), 3U);
    EXPECT_EQ(
        Rows("select MemberName from MembersMaster order by MemberName"), (Lines{"rama", "rama", "saIta"}));
    EXPECT_EQ(Rows("select * from MembersMaster where left(MemberName,1)='s'").size(), 1U);
}

TEST_F(MasterStatementsTest, AMemberIsChangedInItsOwnCompanyOnly)
{
    EXPECT_EQ(
        Run("update MembersMaster set MemberName='ramaa',Address='gaava' ,City='kraD',Animal='gaaya',"
            "PaymentType='ba^nk',BankName='b',BankAccountNo='007' ,OpeningBalance=1.5,OpeningDorC='D',"
            "ClosingBalance=2.5 ,ClosingDorC='C',CowOpeningThev=3.25,CowClosingThev=4.25, "
            "BuffOpeningThev=5,BuffClosingThev=6,OpeningUchal=7,ClosingUchal=8, CowOpeningLits=9.125, "
            "CowClosingLits=10,BuffOpeningLits= 11,BuffClosingLits= 12 where CompanyId=1 and MemberNo=1"),
        1);
    EXPECT_EQ(Row("SELECT * FROM MembersMaster where MemberNo=1 and CompanyId=1"),
        "1|1|ramaa|1|gaava|kraD|gaaya|ba^nk|b|007|1.5|D|2.5|C|3.25|4.25|5|6|7|8|9.125|10|11|12");
    EXPECT_EQ(Row("SELECT MemberName,OpeningBalance FROM MembersMaster where CompanyId=2"), "rama|101");
}

TEST_F(MasterStatementsTest, ANewNameReachesEveryTableInEveryCompany)
{
    AddDelivery(1, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30);
    AddDelivery(2, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30);
    AddPayment(1, "01/04/2026", "10/04/2026", "11/04/2026", 1, 1, "rama");
    AddVoucher(1, "15/04/2026", 1, "pomaonT", "rama", "raoK", 5, "]cala", "]cala idlaI.");
    AddVoucher(1, "15/04/2026", 2, "irsaIT", "raoK", "rama", 5, "]cala jamaa", "]cala jamaa JaalaI.");
    EXPECT_EQ(Run("update MilkCollections set MemberName='ramaa' where MemberName='rama'"), 2);
    EXPECT_EQ(Run("Update MilkPayments Set MemberName='ramaa' Where MemberName='rama'"), 1);
    EXPECT_EQ(Run("Update TransactionsMaster Set DAccountName='ramaa' Where DAccountName='rama'"), 1);
    EXPECT_EQ(Run("Update TransactionsMaster Set CAccountName='ramaa' Where CAccountName='rama'"), 1);
    EXPECT_EQ(Rows("select DAccountName,CAccountName from TransactionsMaster order by TranId"),
        (Lines{"ramaa|raoK", "raoK|ramaa"}));
}

TEST_F(MasterStatementsTest, AMemberGoesWithAllThatIsHisInHisCompany)
{
    for (const int company : {1, 2}) {
        AddDelivery(company, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30);
        AddPayment(company, "01/04/2026", "10/04/2026", "11/04/2026", 1, 1, "rama");
        AddVoucher(company, "15/04/2026", 1, "pomaonT", "rama", "raoK", 5, "]cala", "]cala idlaI.");
        AddVoucher(
            company, "15/04/2026", 2, "irsaIT", "raoK", "rama", 5, "]cala jamaa", "]cala jamaa JaalaI.");
        for (const char* table : {"TransactionsDetails", "AdvanceReceipt", "MilkPaymentsDetails"})
            AddHead(table, company, "15/04/2026", 1, 1, "]cala", 5);
    }
    EXPECT_EQ(Run("delete * from MembersMaster where CompanyId=1 and MemberNo=1"), 1);
    EXPECT_EQ(Run("delete * from MilkCollections Where CompanyId=1 and MemberNo=1"), 1);
    EXPECT_EQ(Run("Delete * From MilkPayments Where CompanyId=1 and Memberno=1"), 1);
    EXPECT_EQ(Run("Delete * From TransactionsMaster Where CompanyId=1 And (DAccountName='rama' or "
                  "CAccountName='rama')"),
        2);
    EXPECT_EQ(Run("Delete * From TransactionsDetails Where CompanyId=1 And MemberNo=1"), 1);
    EXPECT_EQ(Run("Delete * From AdvanceReceipt Where CompanyId=1 And MemberNo=1"), 1);
    EXPECT_EQ(Run("Delete * From MilkPaymentsDetails Where CompanyId=1 And MemberNo=1"), 1);
    EXPECT_EQ(
        Rows("select CompanyId,MemberNo from MembersMaster order by CompanyId"), (Lines{"1|12", "2|1"}));
    EXPECT_EQ(Rows("select CompanyId from TransactionsMaster"), (Lines{"2", "2"}));
}

TEST_F(MasterStatementsTest, TownsAndBanksGrow)
{
    for (const std::string kind : {"City", "Bank"}) {
        Run("delete * from " + kind + "Master");
        EXPECT_TRUE(Rows("SELECT " + kind + "Name FROM " + kind + "Master WHERE CompanyId=1 and trim(" + kind
            + "Name)='masaUr'")
                        .empty());
        EXPECT_EQ(Run("INSERT INTO " + kind + "Master(CompanyId," + kind + "Name) VALUES(1,'masaUr ')"), 1);
        Run("INSERT INTO " + kind + "Master(CompanyId," + kind + "Name) VALUES(1,'kraD')");
        Run("INSERT INTO " + kind + "Master(CompanyId," + kind + "Name) VALUES(2,'Agaaor')");
        EXPECT_EQ(Row("SELECT " + kind + "Name FROM " + kind + "Master WHERE CompanyId=1 and trim(" + kind
                      + "Name)='masaUr'"),
            "masaUr ");
        EXPECT_EQ(Rows("select * from " + kind + "Master where CompanyId=1 ORDER BY " + kind + "Name"),
            (Lines{"1|kraD", "1|masaUr "}));
    }
}

TEST_F(MasterStatementsTest, TheClosingFiguresAreSummedFromTheEntries)
{
    EXPECT_EQ(
        Row("Select sum(Amount) as TrAmount From Milkcollections Where CompanyId=1 And MemberNo=1"), "null");
    AddDelivery(1, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30.25);
    AddDelivery(1, "15/04/2026", "sakaL", 2, 1, "rama", "gaaya", 1, 40.5);
    AddDelivery(2, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 900);
    AddPayment(1, "01/04/2026", "10/04/2026", "11/04/2026", 1, 1, "rama");
    AddHead("TransactionsDetails", 1, "15/04/2026", 1, 1, "]cala", 7.5);
    AddHead("AdvanceReceipt", 1, "15/04/2026", 1, 1, "Uchal Kapat", 5);
    AddHead("AdvanceReceipt", 1, "15/04/2026", 1, 1, "Uchal Receipt", 2.25);
    for (const char* type : {"gaaya zova", "mhOsa zova", "zova", "]cala"})
        AddHead("MilkPaymentsDetails", 1, "15/04/2026", 1, 1, type, 1.5);
    EXPECT_EQ(
        Row("Select sum(Amount) as TrAmount From Milkcollections Where CompanyId=1 And MemberNo=1"), "70.75");
    EXPECT_EQ(
        Row("Select Sum(NetAmount) as PayAmount From MilkPayments Where CompanyId=1 And MemberNo=1"), "850");
    EXPECT_EQ(
        Row("Select sum(Amount) as UchalPaid From TransactionsDetails Where CompanyId=1 And Memberno=1"),
        "7.5");
    EXPECT_EQ(
        Row("Select sum(Amount) as UchalReceived From AdvanceReceipt Where CompanyId=1 And MemberNo=1 And "
            "AdvanceType<>'Uchal Kapat'"),
        "2.25");
    EXPECT_EQ(Row("Select sum(Amount) as UchalReceived From AdvanceReceipt Where CompanyId=1 And MemberNo=1"),
        "7.25");
    EXPECT_EQ(
        Row("Select sum(Amount) as ThevAmount From MilkPaymentsDetails Where CompanyId=1 And MemberNo=1 And "
            "(AdvanceType='mhOsa zova' or AdvanceType='gaaya zova' or AdvanceType='zova')"),
        "4.5");
    EXPECT_EQ(
        Row("Select Sum(Amount) as ThevAmount From MilkPaymentsDetails Where CompanyId=1 And MemberNo=1 And "
            "AdvanceType='gaaya zova'"),
        "1.5");
}

TEST_F(MasterStatementsTest, ACustomerIsKeptChangedRenamedAndDeleted)
{
    EXPECT_EQ(Row("SELECT max(CustomerNo) as MaxCustomerNo FROM CustomersMaster"), "null");
    for (const std::string customer : {"1,9,'saMGa','daonhI','saMGa ivaËI',1.125,2.25,3,4",
             "1,10,'ha^Tola','gaaya','sqaainak ivaËI',0,0,0,0", "2,9,'saMGa','gaaya','saMGa ivaËI',0,0,0,0"})
        EXPECT_EQ(Run("Insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType ,"
                      "CowOpeningLits,CowClosingLits,BuffOpeningLits ,BuffClosingLits)values("
                      + customer + ")"),
            1);
    EXPECT_EQ(Row("SELECT max(CustomerNo) as MaxCustomerNo FROM CustomersMaster"), "10");
    EXPECT_EQ(Rows("SELECT CustomerName FROM CustomersMaster order by CustomerName"),
        (Lines{"ha^Tola", "saMGa", "saMGa"}));
    EXPECT_EQ(Row("select * from CustomersMaster where CompanyId=1 and CustomerNo=9"),
        "1|9|saMGa|daonhI|saMGa ivaËI|1.125|2.25|3|4");
    AddSale(1, "15/04/2026", "sakaL", "saMGa ivaËI", 1, 9, "saMGa", "gaaya", 5, 240);
    AddSale(1, "15/04/2026", "sakaL", "sqaainak ivaËI", 2, 10, "ha^Tola", "gaaya", 5, 240);

    EXPECT_EQ(
        Run("update CustomersMaster set CustomerName='navaa',Animal='gaaya',CustomerType='saMGa ivaËI',"
            "CowOpeningLits=5.5,CowClosingLits=6,BuffOpeningLits= 7,BuffClosingLits= 8 where CompanyId=1 and "
            "CustomerNo=9"),
        1);
    EXPECT_EQ(Run("update MilkSales set CustomerName='navaa' where CustomerName='saMGa'"), 1);
    EXPECT_EQ(Row("select * from CustomersMaster where CompanyId=1 and CustomerNo=9"),
        "1|9|navaa|gaaya|saMGa ivaËI|5.5|6|7|8");
    EXPECT_EQ(Rows("select CustomerName from MilkSales order by SalesNo"), (Lines{"navaa", "ha^Tola"}));

    EXPECT_EQ(Run("Delete * From CustomersMaster Where CompanyId=1 And CustomerNo=9"), 1);
    EXPECT_EQ(Run("Delete * From MilkSales Where CompanyId=1 And CustomerNo=9"), 1);
    EXPECT_EQ(
        Rows("select CompanyId,CustomerNo from CustomersMaster order by CompanyId"), (Lines{"1|10", "2|9"}));
}

}
