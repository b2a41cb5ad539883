// Every template that is shipped: sound against the tables, and laid out with the demonstration's figures as
// the golden file of its placed items says.

#include "tests/reports/TemplateGoldenTest.h"

#include "delivered/Delivered.h"
#include "platform/database/Sql.h"
#include "platform/report/LayoutCheck.h"
#include "platform/shell/AppFolder.h"
#include "rates/frmNewFatRates.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportPaymentList.h"

#include <QFile>

namespace {

// The demonstration, with payments and sales besides.
class ShippedTemplatesTest : public TemplateGoldenTest {
protected:
    // Prints a slip for a delivery of the demonstration, with a long name on it.
    void PrintReceipt(const QString& templateName)
    {
        const Recordset row(gCn,
            "select * from MilkCollections where CollectionDate=#04/15/2026# and "
            "CollectionTime='sakaL' and Animal='mhOsa' order by CollectionNo");
        ASSERT_FALSE(row.Eof());
        Run(Sql(u"insert into "
                u"MilkReceipt(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
                u"Animal,Liters,Fat,Rate,Amount,ActualCollectionTime) values(1,'15/04/2026','sakaL',",
            row[u"CollectionNo"].Number(), u",", row[u"MemberNo"].Number(), u",'", row[u"MemberName"].Text(),
            u"','mhOsa',", row[u"Liters"].Number(), u",", row[u"Fat"].Number(), u",", row[u"Rate"].Number(),
            u",", row[u"Amount"].Number(), u",'", row[u"ActualCollectionTime"].Text(), u"')"));
        ReportControl report;
        report.SetReportFileName(Paths::AppFolder.toString() + templateName);
        report.SetLogon(Logon());
        report.Print();
    }

    // Prints the receipt of a sale to the federation, with what the society measured itself.
    void PrintSalesReceipt(const QString& ours)
    {
        Run("insert into MilkSalesReceipt(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,"
            "CustomerName,Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) values(1,"
            "'15/04/2026','saMQyaakaL','saMGa ivaËI',12,104,'EaI mahalaxmaI sahkarI dUQa saMGa mayaa-idt',"
            "'mhOsa',10250.125,6.8,60,615007.5,"
            + ours + ')');
        ReportControl report;
        report.SetReportFileName(Paths::AppFolder.toString() + QStringLiteral("MilkSalesReceiptShenoli.rpt"));
        report.SetLogon(Logon());
        report.Print();
    }

    // Prints a voucher with the longest words that an amount has.
    void PrintVoucher(
        const QString& templateName, const QString& debit, const QString& credit, const QString& narration)
    {
        Run(Sql(u"insert into TransactionsMasterTemp(CompanyId,TranDate,TranId,TranType,DAccountName,"
                u"CAccountName,Amount,BillNo,Narration,RsInWords,Printname) values(1,'15/04/2026',12,"
                u"'pomaonT',",
            Values(debit, credit), u",9877887.00,']cala',", Quoted(narration),
            u",'A{yaaNNava laaK sa%yaah%tr Hajaar AazSao sa%yaaeoMSaI $pyao  ',",
            Quoted(NameOfMember("gaaya")), u")"));
        ReportControl report;
        report.SetReportFileName(Paths::AppFolder.toString() + templateName + u".rpt");
        report.SetLogon(Logon());
        report.Print();
    }

    // The payments of the first ten days, made on the 11th.
    void PayTheFirstTenDays()
    {
        for (Recordset member(gCn,
                 "select MemberNo,MemberName,sum(Liters) as Litres,sum(Amount) as Rupees from "
                 "MilkCollections where CollectionDate<=#04/10/2026# group by MemberNo,MemberName");
             !member.Eof(); member.MoveNext()) {
            const double amount = member[u"Rupees"].Number();
            const double kapat = 50 * member[u"MemberNo"].Number();
            Run(Sql(
                u"insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
                u"Liters,Amount,Kapat,NetAmount) values(1,'01/04/2026','10/04/2026','11/04/2026',1,",
                member[u"MemberNo"].Number(), u",'", member[u"MemberName"].Text(), u"',",
                member[u"Litres"].Number(), u",", amount, u",", kapat, u",", amount - kapat, u")"));
        }
    }

    QString NameOfMember(const char* animal)
    {
        return One(Sql(u"select MemberName from MembersMaster where Animal='", QString::fromLatin1(animal),
            u"' order by MemberNo"));
    }
};

TEST_F(ShippedTemplatesTest, HaveNoFaultAgainstTheDeliveredTables)
{
    for (const Delivered::File& file : Delivered::Templates()) {
        TemplateFaults faults;
        ReportTemplate report = ReportTemplate::ReadText(QString::fromUtf8(file.content), file.name, faults);
        const TemplateFaults more = CheckForLayout(report, gCn);
        faults.insert(faults.end(), more.begin(), more.end());
        for (const TemplateFault& fault : faults)
            ADD_FAILURE() << fault.Line().toStdString();
        EXPECT_EQ(report.name + QStringLiteral(".rpt"), file.name);
        EXPECT_FALSE(report.title.trimmed().isEmpty()) << file.name.toStdString();
    }
}

TEST_F(ShippedTemplatesTest, EachHasAGoldenFile)
{
    for (const Delivered::File& file : Delivered::Templates())
        EXPECT_TRUE(QFile::exists(FileOfGolden(file.name.chopped(4)))) << file.name.toStdString();
}

class ReceiptTemplatesTest : public ShippedTemplatesTest, public testing::WithParamInterface<const char*> { };

TEST_P(ReceiptTemplatesTest, ShippedTemplatesReadAsTheyDidBefore)
{
    const QString name = QString::fromLatin1(GetParam());
    PrintReceipt(name + QStringLiteral(".rpt"));
    CompareWithGolden(name);
}

INSTANTIATE_TEST_SUITE_P(All, ReceiptTemplatesTest,
    testing::Values("MilkReceipt1", "MilkReceipt2", "MilkReceiptBhl", "MilkReceiptGhlp", "MilkReceiptAtk",
        "MilkReceiptShenoli Epson LX 300", "MilkReceiptShenoli", "MilkReceiptNerli With Time",
        "MilkReceiptNerli Minimised With Time XP", "MilkReceiptNerli Minimised With Time"));

TEST_F(ShippedTemplatesTest, FatRateListShowsTheWholeChartOnOneSheet)
{
    On<frmNewFatRates>([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}");
        Press(clerk, "Command1");
    });
    CompareWithGolden(QStringLiteral("FatRateList"));
    EXPECT_EQ(TheWindow.Shown.back()->PageCount(), 1U);
    EXPECT_EQ(One(QStringLiteral("select count(*) from FatRates")), QStringLiteral("131"));
}

TEST_F(ShippedTemplatesTest, FatRateListHasRoomForThreeHundredFats)
{
    const QString chart = One(QStringLiteral("select FatFileName from FatDates order by FromDate desc"));
    Run(Sql(u"delete * from ", chart));
    for (int tenths = 10; tenths <= 309; ++tenths)
        Run(Sql(u"insert into ", chart, u"(Fat,CowRate,BuffRate) values(", tenths / 10.0, u",",
            20 + tenths / 20.0, u",", 30 + tenths / 16.0, u")"));
    On<frmNewFatRates>([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}");
        Press(clerk, "Command1");
    });
    CompareWithGolden(QStringLiteral("FatRateList of 300 fats"));
    EXPECT_EQ(TheWindow.Shown.back()->PageCount(), 1U);
}

TEST_F(ShippedTemplatesTest, MilkPSReportShowsAMembersTenDays)
{
    const QString name = NameOfMember("daonhI");
    On<frmReportMilkPS>([&](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}10042026{ENTER}{ENTER}");
        clerk.Do([&] { dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboAccountName"))->SetText(name); });
        Type(clerk, "%i");
    });
    CompareWithGolden("MilkPSReport");
}

TEST_F(ShippedTemplatesTest, MilkPSReportShowsACustomersPurchasesInTheSameShape)
{
    for (const char* day : {"01/04/2026", "02/04/2026", "04/04/2026"}) {
        AddSale(day, "sakaL", 1, "dUQa saMGa", "gaaya", 120.5, 4.1, 8.5);
        AddSale(day, "saMQyaakaL", 1, "dUQa saMGa", "mhOsa", 80.25, 6.8, 9.1);
    }
    On<frmReportMilkPS>(
        [&](Clerk& clerk) { Type(clerk, "01042026{ENTER}10042026{ENTER}{DOWN}{ENTER}dUQa saMGa%i"); });
    CompareWithGolden("MilkPSReport of a customer");
}

TEST_F(ShippedTemplatesTest, MilkCollectionsReportShowsADay)
{
    Type<frmReportMilkCollections>("15042026{ENTER}{ENTER}%i");
    CompareWithGolden("MilkCollectionsReport");
}

TEST_F(ShippedTemplatesTest, ReportListMembersShowsTheAreas)
{
    Type<frmReportMembersList>("%2%i");
    CompareWithGolden("ReportListMembers");
}

TEST_F(ShippedTemplatesTest, ReportListMembersShowsAllOfThem)
{
    Type<frmReportMembersList>("%i");
    CompareWithGolden("ReportListMembers complete");
}

TEST_F(ShippedTemplatesTest, CashMilkPaymentShowsThoseWhoArePaidInCash)
{
    PayTheFirstTenDays();
    Type<frmReportPaymentList>("11042026{ENTER}%i");
    CompareWithGolden("CashMilkPayment");
}

TEST_F(ShippedTemplatesTest, PaymentVoucherShowsTheHeadsOfAnAdvance)
{
    for (const QString head : {"]cala", "KaV", "ikraNaa maalaÀroSana", "[tr"})
        Run(Sql(u"insert into TransactionsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,"
                u"Amount) values(1,'15/04/2026',12,3,",
            Quoted(head), u",2469471.75)"));
    PrintVoucher("PaymentVoucher", NameOfMember("daonhI"), "raoK", "]cala idlaI.");
    CompareWithGolden("PaymentVoucher");
}

TEST_F(ShippedTemplatesTest, ReceiptVoucherShowsWhatAMemberGivesBack)
{
    for (const QString values : {"2,'Uchal Kapat',75", "3,'Uchal Receipt',9877887"})
        Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'15/04/2026',12,"
            + values + ')');
    PrintVoucher("ReceiptVoucher", "raoK", NameOfMember("daonhI"), "]cala jamaa JaalaI.");
    CompareWithGolden("ReceiptVoucher");
}

TEST_F(ShippedTemplatesTest, MilkSalesReceiptShenoliHasAHalfForTheBuyerAndOneWithTheSocietysMeasure)
{
    PrintSalesReceipt("10251.5,8.75,6.85,57.25,586898.38");
    CompareWithGolden("MilkSalesReceiptShenoli");
    EXPECT_EQ(TheWindow.Shown.back()->PageCount(), 1U);
    const QStringList texts = ReportTexts();
    EXPECT_EQ(texts.count("615007.50"), 2);
    EXPECT_EQ(texts.count("586898.38"), 1) << "not for the buyer";
}

TEST_F(ShippedTemplatesTest, MilkSalesReceiptShenoliIsSilentWhereTheSocietyHasNoMeasureOfItsOwn)
{
    PrintSalesReceipt("10250.125,0,0,0,0");
    CompareWithGolden("MilkSalesReceiptShenoli without our measure");
    EXPECT_EQ(TheWindow.Shown.back()->PageCount(), 1U);
    EXPECT_FALSE(ReportTexts().contains("आपले मोजमाप"));
}

TEST_F(ShippedTemplatesTest, MilkSalesReceiptShenoliNamesCashWithoutANumberAtTheEdge)
{
    Run("insert into "
        "MilkSalesReceipt(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,"
        "Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) values(1,'15/04/2026','sakaL',"
        "'raoK',1,0,'raoK','gaaya',4.5,4.1,48,216,4.5,0,0,0,0)");
    ReportControl report;
    report.SetReportFileName(Paths::AppFolder.toString() + QStringLiteral("MilkSalesReceiptShenoli.rpt"));
    report.SetLogon(Logon());
    report.Print();
    EXPECT_EQ(ReportTexts().count("रोख"), 2) << "no blank where the number would stand";
}

TEST_F(ShippedTemplatesTest, BonusPaymentsShowsEachMemberAndWhatIsLeftWhereTheClerkHasPassed)
{
    int serial = 0;
    for (Recordset member(gCn, "select MemberNo,MemberName from MembersMaster order by MemberNo");
         !member.Eof(); member.MoveNext()) {
        const int n = ++serial;
        Run(Sql(
            u"Insert Into BonusPayments(CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,CowBonusRate,"
            u"BuffBonusRate,SerialNo,MemberNo,MemberName,CurrentCowLiters,CurrentBuffLiters,TotalCowLiters,"
            u"TotalBuffLiters,TotalCowBonus,TotalBuffBonus,TotalBonus,Advance) Values(",
            Values(1, u"01/04/2026", u"31/03/2027", 1, 40, u"daonhI", 0.5, 0.75, n,
                member[u"MemberNo"].Number(), member[u"MemberName"].Text(), 12345.125 * n, 8765.5 * n,
                12345.125 * n, 8765.5 * n, 6172.5625 * n, 6574.125 * n, 12746.6875 * n, 100 * n),
            u")"));
    }
    Run("Update BonusPayments Set PreviousCowLiters=10.125,PreviousBuffLiters=20,RemainingBonus=12659.19,"
        "PreviousThev=12.5 Where SerialNo=1");
    ReportControl report;
    report.SetReportFileName(Paths::AppFolder.toString() + QStringLiteral("BonusPayments.rpt"));
    report.SetLogon(Logon());
    report.Print();
    CompareWithGolden("BonusPayments");
}

TEST_F(ShippedTemplatesTest, BonusPaymentsSaysWhenThereIsNone)
{
    ReportControl report;
    report.SetReportFileName(Paths::AppFolder.toString() + QStringLiteral("BonusPayments.rpt"));
    report.SetLogon(Logon());
    report.Print();
    EXPECT_TRUE(ReportTexts().contains("या काळात कोणाही मेम्बरचा बोनस नाही."));
}

TEST_F(ShippedTemplatesTest, BankMilkPaymentShowsTheAccounts)
{
    PayTheFirstTenDays();
    Run("update MembersMaster set BankName='' where MemberNo=11");
    Type<frmReportPaymentList>("11042026{ENTER}{DOWN}%i");
    CompareWithGolden("BankMilkPayment");
}

}
