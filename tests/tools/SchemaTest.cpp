#include "tests/tools/SetupSupport.h"

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

// Every table, with its columns in order, spelled as the statements spell them, and what each holds: whole
// numbers (i), numbers with decimals (r), numbers copied into texts without decimals of their own (n), texts
// (t), days (d).
const std::vector<Table> Tables{
    {"CompanyMaster", "CompanyId:i FromDate:d CompanyName:t"},
    {"CompanySelected",
        "CompanyId:i CompanyName:t AccountingYear:t FromDate:d ToDate:d BstNo:t CostCenter:i"},
    {"AutoSettings",
        "CompanyId:i AutoLiters:t AutoFat:t PrintStatus:t MSRPrintStatus:t CanLimitBuff:t "
        "CanLimitCow:t ReceiptType:t RepeatCollection:t PaymentDuration:t PurchaseEntry:t "
        "UchalEntry:t DecimalPayment:t ThevKapatCow:r ThevKapatBuff:r SalesRateCow:t "
        "SalesRateBuff:t SalesRateMix:t WeighScale:t FatRateType:t BasicCowRate:r BasicBuffRate:r "
        "CowBonusRate:r BuffBonusRate:r FixedKapat:r ShowTransportCharges:t"},
    {"MenuAccessTable", "MenuName:t AccessYesNo:i"},
    {"PortTable",
        "LComPortNo:i LSetting:t LTareCommand:t LCounter:i LReceiverCommand:t FComPortNo:i "
        "FSetting:t"},
    {"rswords", "no1:i word1:t"},
    {"MembersMaster",
        "CompanyId:i MemberNo:i MemberName:t AccountId:i Address:t City:t Animal:t PaymentType:t "
        "BankName:t BankAccountNo:t OpeningBalance:r OpeningDorC:t ClosingBalance:r ClosingDorC:t "
        "CowOpeningThev:r CowClosingThev:r BuffOpeningThev:r BuffClosingThev:r OpeningUchal:r "
        "ClosingUchal:r CowOpeningLits:r CowClosingLits:r BuffOpeningLits:r BuffClosingLits:r"},
    {"CustomersMaster",
        "CompanyId:i CustomerNo:i CustomerName:t Animal:t CustomerType:t CowOpeningLits:r "
        "CowClosingLits:r BuffOpeningLits:r BuffClosingLits:r"},
    {"CityMaster", "CompanyId:i CityName:t"},
    {"BankMaster", "CompanyId:i BankName:t"},
    {"AccountsMaster",
        "CompanyId:i AccountId:i AccountName:t GroupCode:t Category:t OpeningBalance:r "
        "OpeningDorC:t ClosingBalance:r ClosingDorC:t"},
    {"UchalTypes", "CompanyId:i TypeId:i UchalType:t"},
    {"InstallmentTable", "MemberNo:i MemberName:t Kapat:r"},
    {"FatDates", "FromDate:d FatFileName:t"},
    {"FatRates", "Fat:n CowRate:n BuffRate:n"},
    {"MilkCollections",
        "CompanyId:i CollectionDate:d CollectionTime:t CollectionNo:i MemberNo:i MemberName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r TranId:i ActualCollectionTime:t SNF:r"},
    {"MilkSales",
        "CompanyId:i SalesDate:d SalesTime:t SalesType:t SalesNo:i CustomerNo:i CustomerName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r OurLiters:r SNF:r OurFat:r OurRate:r OurAmount:r"},
    {"MilkPayments",
        "CompanyId:i FromDate:d ToDate:d PaymentDate:d TranId:i MemberNo:i MemberName:t Animal:t "
        "Liters:r Amount:r Kapat:r NetAmount:r PreviousBalance:r CurrentBalance:r TotalUchal:r "
        "ThevKapatCow:r ThevKapatBuff:r LitersCow:r LitersBuff:r CowAmount:r BuffAmount:r "
        "FixedKapat:r PreviousAdvance:r"},
    {"MilkPaymentsDetails", "CompanyId:i TranDate:d TranId:i MemberNo:i AdvanceType:t Amount:r"},
    {"TransactionsMaster",
        "CompanyId:i TranDate:d TranId:i TranType:t DAccountName:t CAccountName:t Amount:r "
        "BillNo:t Narration:t RsInWords:t Printname:t Narration2:t Narration3:t"},
    {"TransactionsDetails", "CompanyId:i TranDate:d TranId:i MemberNo:i AdvanceType:t Amount:r"},
    {"AdvanceReceipt", "CompanyId:i TranDate:d TranId:i MemberNo:i AdvanceType:t Amount:r"},
    {"YearSums", "Entries:t CompanyId:i MemberNo:i Year:t Deposit:i Amount:r"},
    {"AccountYearSums", "CompanyId:i AccountName:t Year:t Entries:i Amount:r"},
    {"MilkCollectionsOld",
        "CompanyId:i CollectionDate:d CollectionTime:t CollectionNo:i MemberNo:i MemberName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r TranId:i ActualCollectionTime:t SNF:r"},
    {"MilkPaymentsOld",
        "CompanyId:i FromDate:d ToDate:d PaymentDate:d TranId:i MemberNo:i MemberName:t Animal:t "
        "Liters:r Amount:r Kapat:r NetAmount:r PreviousBalance:r CurrentBalance:r TotalUchal:r "
        "ThevKapatCow:r ThevKapatBuff:r LitersCow:r LitersBuff:r CowAmount:r BuffAmount:r "
        "FixedKapat:r PreviousAdvance:r"},
    {"TransactionsMasterOld",
        "CompanyId:i TranDate:d TranId:i TranType:t DAccountName:t CAccountName:t Amount:r "
        "BillNo:t Narration:t RsInWords:t Printname:t Narration2:t Narration3:t"},
    {"AccountsMasterOld",
        "CompanyId:i AccountId:i AccountName:t GroupCode:t Category:t OpeningBalance:r "
        "OpeningDorC:t ClosingBalance:r ClosingDorC:t"},
    {"MilkCollectionsTemp",
        "CompanyId:i CollectionDate:d CollectionTime:t CollectionNo:i MemberNo:i MemberName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r TranId:i ActualCollectionTime:t SNF:r"},
    {"MilkSalesTemp",
        "CompanyId:i SalesDate:d SalesTime:t SalesType:t SalesNo:i CustomerNo:i CustomerName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r OurLiters:r SNF:r OurFat:r OurRate:r OurAmount:r"},
    {"MilkPaymentsTemp",
        "CompanyId:i FromDate:d ToDate:d PaymentDate:d TranId:i MemberNo:i MemberName:t Animal:t "
        "Liters:r Amount:r Kapat:r NetAmount:r PreviousBalance:r CurrentBalance:r TotalUchal:r "
        "ThevKapatCow:r ThevKapatBuff:r LitersCow:r LitersBuff:r CowAmount:r BuffAmount:r "
        "FixedKapat:r PreviousAdvance:r"},
    {"MilkPaymentsDetailsTemp", "CompanyId:i TranDate:d TranId:i MemberNo:i AdvanceType:t Amount:r"},
    {"AdvanceTemp", "CompanyId:i TranDate:d TranId:i MemberNo:i AdvanceType:t Amount:r"},
    {"TransactionsDetailsTemp", "CompanyId:i TranDate:d TranId:i MemberNo:i AdvanceType:t Amount:r"},
    {"TransactionsMasterTemp",
        "CompanyId:i TranDate:d TranId:i TranType:t DAccountName:t CAccountName:t Amount:r "
        "BillNo:t Narration:t RsInWords:t Printname:t Narration2:t Narration3:t"},
    {"BonusPaymentsTemp",
        "CompanyId:i FromDate:d ToDate:d FromAcNo:i ToAcNo:i MilkType:t CowBonusRate:r "
        "BuffBonusRate:r SerialNo:i MemberNo:i MemberName:t CurrentCowLiters:r "
        "CurrentBuffLiters:r PreviousCowLiters:r PreviousBuffLiters:r TotalCowLiters:r "
        "TotalBuffLiters:r TotalCowBonus:r TotalBuffBonus:r TotalBonus:r Advance:r "
        "RemainingBonus:r PreviousThev:r AcNo:i AccountName:t Animal:t TotalMilk:r BonusCharges:r"},
    {"ShortMemberList", "CompanyId:i MemberNo:i MemberName:t"},
    {"ReportDates", "CompanyId:i FromDate:d ToDate:d"},
    {"MilkReceipt",
        "CompanyId:i CollectionDate:d CollectionTime:t CollectionNo:i MemberNo:i MemberName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r ActualCollectionTime:t"},
    {"MilkSalesReceipt",
        "CompanyId:i SalesDate:d SalesTime:t SalesType:t SalesNo:i CustomerNo:i CustomerName:t "
        "Animal:t Liters:r Fat:r Rate:r Amount:r OurLiters:r SNF:r OurFat:r OurRate:r OurAmount:r"},
    {"MilkCollectionsME",
        "CompanyId:i CollectionDate:d MemberNo:i MemberName:t Animal:t LitersM:r FatM:r RateM:r "
        "AmountM:r LitersE:r FatE:r RateE:r AmountE:r SNFM:r SNFE:r"},
    {"KapatDetails", "CompanyId:i MemberNo:i CollectionDate:d Label1:t Value1:r"},
    {"KapatSummary",
        "CompanyId:i MemberNo:i Other:r Uchal:r Khadya:r Kirana:r PrevThev:r CurrentThev:r "
        "BalThev:r"},
    {"MilkPaymentsRegister",
        "CompanyId:i FromDate:d ToDate:d PaymentDate:d TranId:i MemberNo:i MemberName:t Animal:t "
        "CowLiters:r BuffLiters:r Amount:r ThevKapat:r OtherKapat:r NetAmount:r PreviousBalance:r "
        "CurrentBalance:r ActualKapat:r PreviousAdvance:r"},
    {"MembersListReport", "CompanyId:i Crieteria:t CrieteriaValue:t MemberNo:i MemberName:t City:t Animal:t"},
    {"VadhTootReport",
        "CompanyId:i CollectionDate:d CollectionTime:t Animal:t LitersIn:r LitersLocal:r "
        "LitersSangh:r LitersOut:r OurLiters:r"},
    {"LedgersMaster",
        "LedgerName:t FromDate:d ToDate:d CompanyId:i TranDate:d TranId:i TranType:t "
        "AccountName:t DAmount:r CAmount:r Narration:t Narration2:t Narration3:t OpeningBalance:r "
        "OpeningDorC:t ClosingBalance:r ClosingDorC:t Total:r"},
    {"BonusPayments",
        "CompanyId:i FromDate:d ToDate:d FromAcNo:i ToAcNo:i MilkType:t CowBonusRate:r "
        "BuffBonusRate:r SerialNo:i MemberNo:i MemberName:t CurrentCowLiters:r "
        "CurrentBuffLiters:r PreviousCowLiters:r PreviousBuffLiters:r TotalCowLiters:r "
        "TotalBuffLiters:r TotalCowBonus:r TotalBuffBonus:r TotalBonus:r Advance:r "
        "RemainingBonus:r PreviousThev:r AcNo:i AccountName:t Animal:t TotalMilk:r BonusCharges:r"},
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

TEST(SchemaTest, HasEveryTableWithEveryColumnInOrderAndOfItsType)
{
    const QHash<QString, QChar> letters{
        {"INTEGER", u'i'}, {"REAL", u'r'}, {"NUMERIC", u'n'}, {"TEXT", u't'}, {"DATE", u'd'}};
    for (const Table& table : Tables) {
        QStringList columns;
        for (const Column& column : ColumnsOf(table.name))
            columns.append(column.name % u':' % letters.value(column.type, u'?'));
        EXPECT_EQ(columns.join(u' '), QString::fromLatin1(table.columns)) << table.name;
    }
}

TEST(SchemaTest, AChartHoldsTexts)
{
    QStringList columns;
    for (const QString& line : AskDelivered("pragma table_info(Fat010426);"))
        columns.append(line.section(u'|', 1, 2));
    EXPECT_EQ(columns.join(u' '), "Fat|TEXT CowRate|TEXT BuffRate|TEXT");
}

TEST(SchemaTest, HasNoOtherTablesThanTheseAndTheFirstChart)
{
    QStringList expected{"Fat010426"};
    for (const Table& table : Tables)
        expected.append(QString::fromLatin1(table.name));
    expected.sort();
    QStringList found = AskDelivered("select name from sqlite_master where type='table';");
    found.sort();
    EXPECT_EQ(found.join(u' '), expected.join(u' '));
}

TEST(SchemaTest, TablesCopiedWholeHaveTheSameColumns)
{
    for (const auto& [one, other] : Pairs) {
        EXPECT_FALSE(ColumnsOf(one).isEmpty()) << one;
        EXPECT_TRUE(ColumnsOf(one) == ColumnsOf(other)) << one << " and " << other;
    }
}

TEST(SchemaTest, DaysAreDatesAndNothingElseIs)
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

TEST(SchemaTest, NumbersKeptAsTextAreText)
{
    const QStringList texts{"CanLimitBuff", "CanLimitCow", "SalesRateCow", "SalesRateBuff", "SalesRateMix",
        "ShowTransportCharges"};
    int found = 0;
    for (const Column& column : ColumnsOf("AutoSettings")) {
        if (texts.contains(column.name)) {
            EXPECT_EQ(column.type, "TEXT");
            ++found;
        }
    }
    EXPECT_EQ(found, texts.size());
}

TEST(SchemaTest, WholeNumbersComeIntoAChartWithoutDecimals)
{
    const QStringList rows =
        AskDelivered("begin; insert into FatRates values(4.0,35.0,40.5); delete from Fat010426;"
                     "insert into Fat010426 select * from FatRates;"
                     "select Fat,CowRate,BuffRate,typeof(Fat) from Fat010426; rollback;");
    EXPECT_EQ(rows.join(u'\n'), "4|35|40.5|text");
}

TEST(SchemaTest, TheSampleBillIsOneRowInTheShapeOfAReceipt)
{
    const QStringList rows =
        AskDelivered("begin; delete from MilkReceipt; insert into MilkReceipt select * from MRView;"
                     "select CompanyId,CollectionDate,CollectionTime,MemberName,Animal,Liters*Rate-Amount,"
                     "ActualCollectionTime from MilkReceipt; rollback;");
    EXPECT_EQ(rows.join(u'\n'), "1|2026-04-01|sakaL|namaunaa saBaasad|gaaya|0.0|6.45");
    const QStringList rate =
        AskDelivered("select cast(CowRate as real)-Rate from MRView, Fat010426 where Fat010426.Fat='4.5';");
    EXPECT_EQ(rate.join(u'\n'), "0.0");
}

TEST(IndexesTest, AMembersLastFatIsReadOffAnIndexInItsOrder)
{
    const QString plan = PlanOf(
        "select * from MilkCollections where CollectionDate<='2026-05-01' and CollectionTime='sakaL' and "
        "Animal='gaaya' and MemberNo=7 and MemberName='x' order by CollectionDate desc,CollectionNo desc");
    EXPECT_TRUE(plan.contains(u"MilkCollectionsByMember (MemberNo=? AND Animal=? AND CollectionTime=?"))
        << plan.toStdString();
    EXPECT_FALSE(plan.contains(u"TEMP B-TREE")) << plan.toStdString();
}

TEST(IndexesTest, AMembersLitresAreSummedFromAnIndexAlone)
{
    const QString plan =
        PlanOf("select sum(Liters) from MilkCollections where CompanyId=1 and Animal='gaaya' and MemberNo=7");
    EXPECT_TRUE(plan.contains(u"COVERING INDEX MilkCollectionsByMember (MemberNo=? AND Animal=?)"))
        << plan.toStdString();
}

TEST(IndexesTest, AMembersPeriodIsReadOffItsDaysAlone)
{
    const QString period = QStringLiteral(" from MilkCollections where CompanyId=1 and MemberNo=7 and "
                                          "CollectionDate>='2026-05-01' and CollectionDate<='2026-05-10'");
    for (const QString& statement : QStringList{QStringLiteral("select *") + period,
             QStringLiteral("select sum(Liters)") + period + QStringLiteral(" and Animal='gaaya'"),
             QStringLiteral("select sum(Amount)") + period + QStringLiteral(" and Animal='gaaya'")}) {
        const QString plan = PlanOf(statement);
        EXPECT_TRUE(plan.contains(
            u"MilkCollectionsByMemberDay (MemberNo=? AND CollectionDate>? AND CollectionDate<?)"))
            << plan.toStdString();
    }
}

TEST(IndexesTest, AMembersLitresOfAPeriodAreSummedFromAnIndexAlone)
{
    const QString plan = PlanOf("select sum(Liters) as cowliters from MilkCollections where "
                                "CollectionDate>='2026-04-01' and CollectionDate<='2027-03-31' and "
                                "MemberNo=7 and Animal='gaaya'");
    EXPECT_TRUE(
        plan.contains(u"COVERING INDEX MilkCollectionsByMemberDay (MemberNo=? AND CollectionDate>? AND "
                      u"CollectionDate<?)"))
        << plan.toStdString();
}

TEST(IndexesTest, TheLitresOfARangeAreSummedFromAnIndexAloneAndInItsOrder)
{
    const QString plan = PlanOf("select CollectionDate,trim(CollectionTime),sum(case when "
                                "trim(Animal)='gaaya' then Liters end) from MilkCollections where "
                                "CollectionDate>='2026-04-01' and CollectionDate<='2027-03-31' group by "
                                "CollectionDate,CollectionTime");
    EXPECT_TRUE(
        plan.contains(u"COVERING INDEX MilkCollectionsByShift (CollectionDate>? AND CollectionDate<?)"))
        << plan.toStdString();
    EXPECT_FALSE(plan.contains(u"TEMP B-TREE")) << plan.toStdString();
}

TEST(IndexesTest, TheDaysOfAllMembersAreCopiedByTheirDaysAlone)
{
    const QString plan = PlanOf("select * from MilkCollections where CompanyId=1 and "
                                "CollectionDate>='2026-05-01' and CollectionDate<='2026-05-10' and "
                                "+MemberNo>=1 and +MemberNo<=500");
    EXPECT_TRUE(plan.contains(u"MilkCollectionsByShift (CollectionDate>? AND CollectionDate<?)"))
        << plan.toStdString();
}

TEST(IndexesTest, DeliveriesArePricedAnewByTheirFatAlone)
{
    const QString plan = PlanOf("update MilkCollections set Rate=30 where CompanyId=1 and "
                                "CollectionDate>='2026-05-01' and Animal='gaaya' and Fat=4.5");
    EXPECT_TRUE(plan.contains(u"MilkCollectionsByFat (Fat=? AND Animal=? AND CollectionDate>?)"))
        << plan.toStdString();
    const QString ofDays = PlanOf("select sum(Liters) from MilkCollections where CompanyId=1 and "
                                  "CollectionDate>='2026-05-01' and CollectionDate<='2026-05-10' and "
                                  "Animal='gaaya'");
    EXPECT_TRUE(ofDays.contains(u"MilkCollectionsByShift")) << ofDays.toStdString();
}

TEST(IndexesTest, WhatAMemberOwesFromAllHisYearsIsSummedFromIndexesAlone)
{
    const QString before = QStringLiteral(" where CompanyId=1 and MemberNo=7 and TranDate<'2026-05-01'");
    for (const QString& sum :
        QStringList{QStringLiteral("select sum(Amount) from TransactionsDetails") + before,
            QStringLiteral("select sum(Amount) from AdvanceReceipt") + before,
            QStringLiteral("select sum(Amount) from TransactionsDetails") + before
                + QStringLiteral(" and trim(AdvanceType)<>'gaaya zova'"),
            QStringLiteral("select sum(Amount) from MilkPaymentsDetails") + before
                + QStringLiteral(" and trim(AdvanceType)<>'gaaya zova'")}) {
        const QString plan = PlanOf(sum);
        EXPECT_TRUE(plan.contains(u"COVERING INDEX")) << plan.toStdString();
        EXPECT_TRUE(plan.contains(u"(MemberNo=? AND TranDate<?)")) << plan.toStdString();
    }
}

TEST(IndexesTest, TheStatementsOfEveryDayScanNoLongTable)
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

TEST(IndexesTest, ThePaymentsOfAPeriodAreFoundByItsDays)
{
    const QString period =
        PlanOf("select * from MilkPayments where CompanyId=1 and FromDate='2026-05-01' and "
               "ToDate='2026-05-10' and MemberNo>=1 and MemberNo<=500");
    EXPECT_TRUE(period.contains(u"MilkPaymentsByPeriod (CompanyId=? AND ToDate=? AND FromDate=?)"))
        << period.toStdString();
    const QString later = PlanOf("select * from MilkPayments where CompanyId=1 and ToDate>='2026-05-01'");
    EXPECT_TRUE(later.contains(u"MilkPaymentsByPeriod (CompanyId=? AND ToDate>?)")) << later.toStdString();
}

TEST(IndexesTest, APaymentIsFoundByItsMemberNotByItsCompany)
{
    const QString plan = PlanOf("select sum(NetAmount) from MilkPayments where CompanyId=1 and MemberNo=7");
    EXPECT_TRUE(plan.contains(u"MilkPaymentsByMember")) << plan.toStdString();
}

}
