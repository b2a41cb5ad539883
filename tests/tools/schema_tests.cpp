#include "SetupSupport.h"

#include <gtest/gtest.h>

#include <QHash>

#include <array>
#include <utility>
#include <vector>

namespace {

struct Table {
    const char* name;
    const char* columns;
};

// Every table, with its columns in order, spelled as the statements spell them.
const std::vector<Table> Tables{
    {"CompanyMaster", "CompanyId FromDate CompanyName"},
    {"CompanySelected", "CompanyId CompanyName AccountingYear FromDate ToDate BstNo CostCenter"},
    {"AutoSettings",
        "CompanyId AutoLiters AutoFat PrintStatus MSRPrintStatus CanLimitBuff CanLimitCow ReceiptType "
        "RepeatCollection PaymentDuration PurchaseEntry UchalEntry DecimalPayment ThevKapatCow "
        "ThevKapatBuff SalesRateCow SalesRateBuff SalesRateMix WeighScale FatRateType BasicCowRate "
        "BasicBuffRate CowBonusRate BuffBonusRate FixedKapat ShowTransportCharges"},
    {"MenuAccessTable", "MenuName AccessYesNo"},
    {"PortTable", "LComPortNo LSetting LTareCommand LCounter LReceiverCommand FComPortNo FSetting"},
    {"rswords", "no1 word1"},
    {"MembersMaster",
        "CompanyId MemberNo MemberName AccountId Address City Animal PaymentType BankName "
        "BankAccountNo OpeningBalance OpeningDorC ClosingBalance ClosingDorC CowOpeningThev "
        "CowClosingThev BuffOpeningThev BuffClosingThev OpeningUchal ClosingUchal CowOpeningLits "
        "CowClosingLits BuffOpeningLits BuffClosingLits"},
    {"CustomersMaster",
        "CompanyId CustomerNo CustomerName Animal CustomerType CowOpeningLits CowClosingLits "
        "BuffOpeningLits BuffClosingLits"},
    {"CityMaster", "CompanyId CityName"},
    {"BankMaster", "CompanyId BankName"},
    {"AccountsMaster",
        "CompanyId AccountId AccountName GroupCode Category OpeningBalance OpeningDorC ClosingBalance "
        "ClosingDorC"},
    {"UchalTypes", "CompanyId TypeId UchalType"},
    {"InstallmentTable", "MemberNo MemberName Kapat"},
    {"FatDates", "FromDate FatFileName"},
    {"FatRates", "Fat CowRate BuffRate"},
    {"MilkCollections",
        "CompanyId CollectionDate CollectionTime CollectionNo MemberNo MemberName Animal Liters Fat "
        "Rate Amount TranId ActualCollectionTime SNF"},
    {"MilkSales",
        "CompanyId SalesDate SalesTime SalesType SalesNo CustomerNo CustomerName Animal Liters Fat "
        "Rate Amount OurLiters SNF OurFat OurRate OurAmount"},
    {"MilkPayments",
        "CompanyId FromDate ToDate PaymentDate TranId MemberNo MemberName Animal Liters Amount Kapat "
        "NetAmount PreviousBalance CurrentBalance TotalUchal ThevKapatCow ThevKapatBuff LitersCow "
        "LitersBuff CowAmount BuffAmount FixedKapat PreviousAdvance"},
    {"MilkPaymentsDetails", "CompanyId TranDate TranId MemberNo AdvanceType Amount"},
    {"TransactionsMaster",
        "CompanyId TranDate TranId TranType DAccountName CAccountName Amount BillNo Narration "
        "RsInWords Printname Narration2 Narration3"},
    {"TransactionsDetails", "CompanyId TranDate TranId MemberNo AdvanceType Amount"},
    {"AdvanceReceipt", "CompanyId TranDate TranId MemberNo AdvanceType Amount"},
    {"MilkCollectionsOld",
        "CompanyId CollectionDate CollectionTime CollectionNo MemberNo MemberName Animal Liters Fat "
        "Rate Amount TranId ActualCollectionTime SNF"},
    {"MilkPaymentsOld",
        "CompanyId FromDate ToDate PaymentDate TranId MemberNo MemberName Animal Liters Amount Kapat "
        "NetAmount PreviousBalance CurrentBalance TotalUchal ThevKapatCow ThevKapatBuff LitersCow "
        "LitersBuff CowAmount BuffAmount FixedKapat PreviousAdvance"},
    {"TransactionsMasterOld",
        "CompanyId TranDate TranId TranType DAccountName CAccountName Amount BillNo Narration "
        "RsInWords Printname Narration2 Narration3"},
    {"AccountsMasterOld",
        "CompanyId AccountId AccountName GroupCode Category OpeningBalance OpeningDorC ClosingBalance "
        "ClosingDorC"},
    {"MilkCollectionsTemp",
        "CompanyId CollectionDate CollectionTime CollectionNo MemberNo MemberName Animal Liters Fat "
        "Rate Amount TranId ActualCollectionTime SNF"},
    {"MilkSalesTemp",
        "CompanyId SalesDate SalesTime SalesType SalesNo CustomerNo CustomerName Animal Liters Fat "
        "Rate Amount OurLiters SNF OurFat OurRate OurAmount"},
    {"MilkPaymentsTemp",
        "CompanyId FromDate ToDate PaymentDate TranId MemberNo MemberName Animal Liters Amount Kapat "
        "NetAmount PreviousBalance CurrentBalance TotalUchal ThevKapatCow ThevKapatBuff LitersCow "
        "LitersBuff CowAmount BuffAmount FixedKapat PreviousAdvance"},
    {"MilkPaymentsDetailsTemp", "CompanyId TranDate TranId MemberNo AdvanceType Amount"},
    {"AdvanceTemp", "CompanyId TranDate TranId MemberNo AdvanceType Amount"},
    {"TransactionsDetailsTemp", "CompanyId TranDate TranId MemberNo AdvanceType Amount"},
    {"TransactionsMasterTemp",
        "CompanyId TranDate TranId TranType DAccountName CAccountName Amount BillNo Narration "
        "RsInWords Printname Narration2 Narration3"},
    {"BonusPaymentsTemp",
        "CompanyId FromDate ToDate FromAcNo ToAcNo MilkType CowBonusRate BuffBonusRate SerialNo "
        "MemberNo MemberName CurrentCowLiters CurrentBuffLiters PreviousCowLiters PreviousBuffLiters "
        "TotalCowLiters TotalBuffLiters TotalCowBonus TotalBuffBonus TotalBonus Advance "
        "RemainingBonus PreviousThev AcNo AccountName Animal TotalMilk BonusCharges"},
    {"ShortMemberList", "CompanyId MemberNo MemberName"},
    {"ReportDates", "CompanyId FromDate ToDate"},
    {"MilkReceipt",
        "CompanyId CollectionDate CollectionTime CollectionNo MemberNo MemberName Animal Liters Fat "
        "Rate Amount ActualCollectionTime"},
    {"MilkSalesReceipt",
        "CompanyId SalesDate SalesTime SalesType SalesNo CustomerNo CustomerName Animal Liters Fat "
        "Rate Amount OurLiters SNF OurFat OurRate OurAmount"},
    {"MilkCollectionsME",
        "CompanyId CollectionDate MemberNo MemberName Animal LitersM FatM RateM AmountM LitersE FatE "
        "RateE AmountE SNFM SNFE"},
    {"KapatDetails", "CompanyId MemberNo CollectionDate Label1 Value1"},
    {"KapatSummary", "CompanyId MemberNo Other Uchal Khadya Kirana PrevThev CurrentThev BalThev"},
    {"MilkPaymentsRegister",
        "CompanyId FromDate ToDate PaymentDate TranId MemberNo MemberName Animal CowLiters BuffLiters "
        "Amount ThevKapat OtherKapat NetAmount PreviousBalance CurrentBalance ActualKapat "
        "PreviousAdvance"},
    {"MembersListReport", "CompanyId Crieteria CrieteriaValue MemberNo MemberName City Animal"},
    {"VadhTootReport",
        "CompanyId CollectionDate CollectionTime Animal LitersIn LitersLocal LitersSangh LitersOut "
        "OurLiters"},
    {"LedgersMaster",
        "LedgerName FromDate ToDate CompanyId TranDate TranId TranType AccountName DAmount CAmount "
        "Narration Narration2 Narration3 OpeningBalance OpeningDorC ClosingBalance ClosingDorC Total"},
    {"BonusPayments",
        "CompanyId FromDate ToDate FromAcNo ToAcNo MilkType CowBonusRate BuffBonusRate SerialNo "
        "MemberNo MemberName CurrentCowLiters CurrentBuffLiters PreviousCowLiters PreviousBuffLiters "
        "TotalCowLiters TotalBuffLiters TotalCowBonus TotalBuffBonus TotalBonus Advance "
        "RemainingBonus PreviousThev AcNo AccountName Animal TotalMilk BonusCharges"},
};

// Tables that are copied whole from one another.
const std::vector<std::pair<const char*, const char*>> Pairs{
    {"MilkCollections", "MilkCollectionsTemp"},
    {"MilkCollections", "MilkCollectionsOld"},
    {"MilkSales", "MilkSalesTemp"},
    {"MilkSalesTemp", "MilkSalesReceipt"},
    {"MilkPayments", "MilkPaymentsTemp"},
    {"MilkPayments", "MilkPaymentsOld"},
    {"MilkPaymentsDetails", "MilkPaymentsDetailsTemp"},
    {"MilkPaymentsDetails", "AdvanceTemp"},
    {"TransactionsDetails", "AdvanceTemp"},
    {"AdvanceReceipt", "AdvanceTemp"},
    {"TransactionsDetails", "TransactionsDetailsTemp"},
    {"TransactionsDetails", "AdvanceReceipt"},
    {"TransactionsMaster", "TransactionsMasterTemp"},
    {"TransactionsMaster", "TransactionsMasterOld"},
    {"AccountsMaster", "AccountsMasterOld"},
    {"BonusPayments", "BonusPaymentsTemp"},
};

struct Column {
    QString name;
    QString type;
    bool operator==(const Column&) const = default;
};

// The columns of all tables as the engine has them, read in one go.
const QHash<QString, QList<Column>>& AllColumns()
{
    static const QHash<QString, QList<Column>> all = [] {
        QString statements;
        for (const Table& table : Tables) {
            const QString name = QString::fromLatin1(table.name);
            statements += QStringLiteral(".print table ") % name % QStringLiteral("\npragma table_info(")
                % name % QStringLiteral(");\n");
        }
        QHash<QString, QList<Column>> columns;
        QString table;
        for (const QString& line : AskDelivered(statements)) {
            const QStringList cells = line.split(u'|');
            if (line.startsWith(u"table "))
                table = line.mid(6);
            else if (cells.size() >= 3)
                columns[table].append({cells[1], cells[2]});
        }
        return columns;
    }();
    return all;
}

QList<Column> ColumnsOf(const char* table)
{
    return AllColumns().value(QString::fromLatin1(table));
}

// How the engine would go about a statement, in one line.
QString PlanOf(const QString& statement)
{
    return AskDelivered(QStringLiteral("explain query plan ") % statement % u';').join(u' ');
}

TEST(Schema, HasEveryTableWithEveryColumnInOrder)
{
    for (const Table& table : Tables) {
        QStringList names;
        for (const Column& column : ColumnsOf(table.name))
            names.append(column.name);
        EXPECT_EQ(names.join(u' '), QString::fromLatin1(table.columns)) << table.name;
    }
}

TEST(Schema, HasNoOtherTablesThanTheseAndTheFirstChart)
{
    QStringList expected{QStringLiteral("Fat010426")};
    for (const Table& table : Tables)
        expected.append(QString::fromLatin1(table.name));
    expected.sort();
    QStringList found = AskDelivered(QStringLiteral("select name from sqlite_master where type='table';"));
    found.sort();
    EXPECT_EQ(found.join(u' '), expected.join(u' '));
}

TEST(Schema, TablesCopiedWholeHaveTheSameColumns)
{
    for (const auto& [one, other] : Pairs) {
        EXPECT_FALSE(ColumnsOf(one).isEmpty()) << one;
        EXPECT_TRUE(ColumnsOf(one) == ColumnsOf(other)) << one << " and " << other;
    }
}

TEST(Schema, DaysAreDatesAndNothingElseIs)
{
    int dates = 0;
    for (const Table& table : Tables) {
        for (const Column& column : ColumnsOf(table.name)) {
            EXPECT_EQ(column.name.endsWith(u"Date"), column.type == u"DATE")
                << table.name << column.name.toStdString();
            dates += column.type == u"DATE";
        }
    }
    EXPECT_GT(dates, 40);
}

TEST(Schema, NumbersKeptAsTextAreText)
{
    const QStringList texts{QStringLiteral("CanLimitBuff"), QStringLiteral("CanLimitCow"),
        QStringLiteral("SalesRateCow"), QStringLiteral("SalesRateBuff"), QStringLiteral("SalesRateMix"),
        QStringLiteral("ShowTransportCharges")};
    int found = 0;
    for (const Column& column : ColumnsOf("AutoSettings")) {
        if (texts.contains(column.name)) {
            EXPECT_EQ(column.type, QStringLiteral("TEXT"));
            ++found;
        }
    }
    EXPECT_EQ(found, texts.size());
}

TEST(Schema, WholeNumbersComeIntoAChartWithoutDecimals)
{
    const QStringList rows = AskDelivered(
        QStringLiteral("begin; insert into FatRates values(4.0,35.0,40.5); delete from Fat010426;"
                       "insert into Fat010426 select * from FatRates;"
                       "select Fat,CowRate,BuffRate,typeof(Fat) from Fat010426; rollback;"));
    EXPECT_EQ(rows.join(u'\n'), QStringLiteral("4|35|40.5|text"));
}

TEST(Schema, TheSampleBillIsOneRowInTheShapeOfAReceipt)
{
    const QStringList rows = AskDelivered(
        QStringLiteral("begin; delete from MilkReceipt; insert into MilkReceipt select * from MRView;"
                       "select CompanyId,CollectionDate,CollectionTime,MemberName,Animal,Liters*Rate-Amount,"
                       "ActualCollectionTime from MilkReceipt; rollback;"));
    EXPECT_EQ(rows.join(u'\n'), QStringLiteral("1|2026-04-01|sakaL|namaunaa saBaasad|gaaya|0.0|6.45"));
    const QStringList rate = AskDelivered(QStringLiteral(
        "select cast(CowRate as real)-Rate from MRView, Fat010426 where Fat010426.Fat='4.5';"));
    EXPECT_EQ(rate.join(u'\n'), QStringLiteral("0.0"));
}

TEST(Indexes, AMembersLastFatIsReadOffAnIndexInItsOrder)
{
    const QString plan = PlanOf(QStringLiteral(
        "select * from MilkCollections where CollectionDate<='2026-05-01' and CollectionTime='sakaL' and "
        "Animal='gaaya' and MemberNo=7 and MemberName='x' order by CollectionDate desc,CollectionNo desc"));
    EXPECT_TRUE(plan.contains(u"MilkCollectionsByMember (MemberNo=? AND Animal=? AND CollectionTime=?"))
        << plan.toStdString();
    EXPECT_FALSE(plan.contains(u"TEMP B-TREE")) << plan.toStdString();
}

TEST(Indexes, AMembersLitresAreSummedFromAnIndexAlone)
{
    const QString plan = PlanOf(QStringLiteral(
        "select sum(Liters) from MilkCollections where CompanyId=1 and Animal='gaaya' and MemberNo=7"));
    EXPECT_TRUE(plan.contains(u"COVERING INDEX MilkCollectionsByMember (MemberNo=? AND Animal=?)"))
        << plan.toStdString();
}

TEST(Indexes, TheStatementsOfEveryDayScanNoLongTable)
{
    const std::array statements{
        u"select max(CollectionNo) from MilkCollections where CollectionDate='2026-05-01' and "
        u"CollectionTime='sakaL'",
        u"select * from MilkCollections where CollectionDate='2026-05-01' and CollectionTime='sakaL' and "
        u"CollectionNo=3",
        u"select * from MilkCollections where CompanyId=1 and CollectionDate>='2026-05-01' and "
        u"CollectionDate<='2026-05-10' and MemberNo>=1 and MemberNo<=500",
        u"select sum(Amount) from MilkCollections where CompanyId=1 and MemberNo=7",
        u"select sum(Liters) from MilkCollections where CompanyId=1 and MemberNo=7 and "
        u"CollectionDate>='2026-05-01' "
        u"and CollectionDate<='2026-05-10' and Animal='gaaya'",
        u"select * from MilkCollectionsTemp where CompanyId=1 and MemberNo=7 and CollectionDate='2026-05-01' "
        u"and "
        u"Animal='gaaya' and CollectionTime='sakaL'",
        u"select * from MembersMaster where MemberNo=7",
        u"select max(SalesNo) from MilkSales where SalesDate='2026-05-01' and SalesTime='sakaL'",
        u"select * from MilkPayments where CompanyId=1 and FromDate>='2026-05-01' and ToDate<='2026-05-01' "
        u"and MemberNo=7",
        u"select sum(NetAmount) from MilkPayments where CompanyId=1 and MemberNo=7",
        u"select max(TranId) from MilkPayments where CompanyId=1 and PaymentDate='2026-05-11'",
        u"select * from MilkPayments where PaymentDate='2026-05-11' and MemberNo=7",
        u"delete from MilkPayments where CompanyId=0",
        u"select * from MilkPaymentsDetails where TranDate='2026-05-11' and MemberNo=7",
        u"select sum(Amount) from TransactionsDetails where CompanyId=1 and TranDate<'2026-05-11' and "
        u"MemberNo=7",
        u"select sum(Amount) from AdvanceReceipt where CompanyId=1 and TranDate<'2026-05-11' and MemberNo=7",
        u"select * from TransactionsMaster where CompanyId=1 and TranDate='2026-05-11' and TranId=2",
        u"select sum(Amount) from TransactionsMaster where CompanyId=1 and DAccountName='x' and "
        u"Narration='y' and "
        u"TranDate>='2026-04-01' and TranDate<='2027-03-31'",
    };
    for (const QStringView statement : statements) {
        const QString plan = PlanOf(statement.toString());
        EXPECT_TRUE(plan.contains(u"SEARCH TABLE")) << statement.toString().toStdString() << '\n'
                                                    << plan.toStdString();
        EXPECT_FALSE(plan.contains(u"SCAN TABLE")) << statement.toString().toStdString() << '\n'
                                                   << plan.toStdString();
    }
}

TEST(Indexes, APaymentIsFoundByItsMemberNotByItsCompany)
{
    const QString plan =
        PlanOf(QStringLiteral("select sum(NetAmount) from MilkPayments where CompanyId=1 and MemberNo=7"));
    EXPECT_TRUE(plan.contains(u"MilkPaymentsByMember")) << plan.toStdString();
}

}
