#include "tests/delivered/StatementsTest.h"

namespace {

// The start of the program, the menu, the date, the ports and the settings.
class CompanyStatementsTest : public StatementsTest { };

TEST_F(CompanyStatementsTest, TheStartReadsCompanySettingsAndRights)
{
    EXPECT_EQ(
        Row("SELECT * FROM CompanySelected"), "1|" + SocietyName + "|2026-2027|01/04/2026|31/03/2027|null|0");
    EXPECT_EQ(Row("select * from CompanyMaster"), "1|01/04/2026|" + SocietyName);
    EXPECT_EQ(Row("SELECT * FROM CompanyMaster where CompanyId=1"), "1|01/04/2026|" + SocietyName);
    EXPECT_EQ(Row("select * from AutoSettings where CompanyId=1"),
        "1|naahI|naahI|naahI|saovh|40.000|40.000|Tašp 1|naahI|10 "
        "idvasa|Payment|Uchal|PayIt|0.5|0.5|48.00|58.00|"
        "52.00|NO|f^T nausaar|0|0|0|0|0|False");
    EXPECT_EQ(Rows("SELECT * FROM AutoSettings"), Rows("select * from AutoSettings"));
    EXPECT_EQ(Row("Select ShowTransportCharges From AutoSettings"), "False");
    EXPECT_EQ(Rows("SELECT * FROM MenuAccessTable"),
        (Lines{"Master|1", "Account Voucher|1", "Stock Voucher|1", "Account Report|1", "Stock Report|1",
            "Statistical Report|1", "Utilities|1"}));
    EXPECT_EQ(Row("SELECT * FROM PortTable"), "1|2400,n,8,1|T|170000|W|2|9600,n,8,1");
}

TEST_F(CompanyStatementsTest, TheDateIsThatOfTheNewestDelivery)
{
    AddDelivery(1, "30/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30);
    AddDelivery(1, "02/05/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30);
    EXPECT_EQ(Rows("select CollectionDate from MilkCollections order by CollectionDate desc"),
        (Lines{"02/05/2026", "30/04/2026"}));
}

TEST_F(CompanyStatementsTest, TheSpanAndTheTickOfTheInstallmentsAreKept)
{
    EXPECT_EQ(Run("UPDATE CompanySelected SET FromDate='01/05/2026', ToDate='30/04/2027'"), 1);
    EXPECT_EQ(Run("UPDATE Companyselected SET CostCenter=1"), 1);
    EXPECT_EQ(Row("SELECT FromDate,ToDate,CostCenter FROM CompanySelected"), "01/05/2026|30/04/2027|1");
    EXPECT_EQ(Run("UPDATE Companyselected SET CostCenter=0"), 1);
    EXPECT_EQ(Row("SELECT CostCenter FROM CompanySelected"), "0");
    EXPECT_EQ(
        Rows("SELECT * FROM CompanySelected where FromDate=#05/01/2026# and ToDate='30/04/2027'").size(), 1U);
}

TEST_F(CompanyStatementsTest, TheGuardsTakeNothing)
{
    AddDelivery(1, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 1, 30);
    EXPECT_EQ(Run("DELETE * FROM MilkCollections WHERE CompanyId=999"), 0);
    EXPECT_EQ(Run("DELETE * FROM MilkPaymentsRegister WHERE CompanyID=992"), 0);
    EXPECT_TRUE(Rows("SELECT * FROM MilkCollections WHERE CompanyId=0").empty());
    EXPECT_EQ(Count("MilkCollections"), 1);
}

TEST_F(CompanyStatementsTest, TheSettingsAreDeletedAndInserted)
{
    EXPECT_EQ(Run("delete * from AutoSettings where CompanyId=1"), 1);
    EXPECT_EQ(
        Run("insert into AutoSettings(CompanyId,AutoLiters,AutoFat,PrintStatus,MSRPrintStatus,CanLimitBuff,"
            "CanLimitCow,ReceiptType,RepeatCollection,PaymentDuration,PurchaseEntry,UchalEntry,"
            "DecimalPayment,ThevKapatCow,ThevKapatBuff,SalesRateCow,SalesRateBuff,SalesRateMix,WeighScale) "
            "Values(1,'haoya','naahI','f@t sËIna','saovh va sËIna','40.500','39.000','Tašp 8','haoya',"
            "'15 idvasa','Collection','Sales','AddThev',0.10,0.20,'48.50','58.00','52.00','MCS')"),
        1);
    EXPECT_EQ(Row("select * from AutoSettings where CompanyId=1"),
        "1|haoya|naahI|f@t sËIna|saovh va sËIna|40.500|39.000|Tašp 8|haoya|15 "
        "idvasa|Collection|Sales|AddThev|0.1|"
        "0.2|48.50|58.00|52.00|MCS|null|null|null|null|null|null|null");
    EXPECT_EQ(Run("Update Autosettings Set FatRateType='f^T nausaar'"), 1);
    EXPECT_EQ(Row("select FatRatetype from AutoSettings"), "f^T nausaar");
}

TEST_F(CompanyStatementsTest, TheSampleBillStaysInItsTable)
{
    EXPECT_EQ(Run("delete * from MilkReceipt"), 0);
    EXPECT_EQ(Run("insert into MilkReceipt select * from MRView"), 1);
    EXPECT_EQ(Run("update MilkReceipt set CompanyId=1"), 1);
    EXPECT_EQ(Run("delete * from MilkReceipt where CompanyId=0"), 0);
    EXPECT_EQ(Rows("select * from MilkReceipt"), Rows("select * from MRView"));
    EXPECT_EQ(
        Row("select "
            "CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,Animal,Liters,Fat,Rate,Amount,"
            "ActualCollectionTime from MilkReceipt"),
        "1|01/04/2026|sakaL|1|1|gaaya|5.25|4.5|35|183.75|6.45");
}

}
