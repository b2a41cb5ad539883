#include "tests/platform/database/DatabaseTest.h"
#include "tests/platform/database/SystemStatements.h"

#include <QLocale>

#include "platform/database/Translator.h"

namespace {

class TranslatorTest : public DatabaseTest {
protected:
    Translation Made(const char* statement)
    {
        const QString text = QString::fromUtf8(statement);
        ScannedStatement scanned;
        scanned.Scan(text);
        Catalogue catalogue(connection.Handle());
        return Translator(catalogue).Translate(scanned, text);
    }

    // How the engine goes about a statement.
    QString Plan(const char* statement)
    {
        const QByteArray sql = "explain query plan " + Made(statement).sql;
        sqlite3_stmt* explained = nullptr;
        EXPECT_EQ(
            sqlite3_prepare_v2(connection.Handle(), sql.constData(), -1, &explained, nullptr), SQLITE_OK);
        QString plan;
        while (sqlite3_step(explained) == SQLITE_ROW)
            plan += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(explained, 3)));
        sqlite3_finalize(explained);
        return plan;
    }

    void AddDelivery(const char* date, int number)
    {
        connection.Execute(
            QStringLiteral("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,"
                           "CollectionNo,MemberNo,Liters,Fat) values(1,'%1','sakaL',%2,5,1.5,4.3)")
                .arg(QString::fromUtf8(date))
                .arg(number));
    }
};

TEST_F(TranslatorTest, CarriesEveryStatementOfTheSystem)
{
    for (const char* statement : SystemStatements())
        EXPECT_NO_THROW(Run(statement)) << statement;
}

TEST_F(TranslatorTest, KeepsDatesAsIsoText)
{
    AddDelivery("15/04/2026", 1);
    sqlite3_stmt* raw = nullptr;
    sqlite3_prepare_v2(connection.Handle(), "select CollectionDate from MilkCollections", -1, &raw, nullptr);
    ASSERT_EQ(sqlite3_step(raw), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(raw, 0)), "2026-04-15");
    sqlite3_finalize(raw);
}

TEST_F(TranslatorTest, FindsADateInEveryWayOfWritingIt)
{
    AddDelivery("15/04/2026", 7);
    AddDelivery("05/11/2026", 8);
    const char* conditions[] = {"CollectionDate=#04/15/2026#", "CollectionDate='15/04/2026'",
        "cstr(CollectionDate)=#04/15/2026#", "cstr(CollectionDate)='15/04/2026'",
        "CStr(collectiondate)= '15/04/2026'", "'15/04/2026'=cstr(CollectionDate)",
        "CollectionDate<#11/05/2026#", "CollectionDate<'05/11/2026'",
        "CollectionDate between #04/15/2026# and #04/16/2026#", "CollectionDate<>'05/11/2026'",
        "cstr(CollectionDate)<>'05/11/2026'", "CollectionDate in ('15/04/2026','16/04/2026')",
        "left(CollectionDate,2)='15'", "MilkCollections.CollectionDate='15/04/2026'"};
    for (const char* condition : conditions) {
        Recordset rows(
            connection, "select CollectionNo from MilkCollections where " + QString::fromUtf8(condition));
        ASSERT_FALSE(rows.Eof()) << condition;
        EXPECT_EQ(rows.At(0).Text(), "7") << condition;
        rows.MoveNext();
        EXPECT_TRUE(rows.Eof()) << condition;
    }
}

TEST_F(TranslatorTest, ATextThatIsNoDateEqualsNoDateUnderCstr)
{
    AddDelivery("15/04/2026", 7);
    EXPECT_TRUE(Rows("select * from MilkCollections where cstr(CollectionDate)='__/__/____'").Eof());
    EXPECT_TRUE(Rows("select * from MilkCollections where cstr(CollectionDate)='2026-04-15'").Eof());
    EXPECT_FALSE(Rows("select * from MilkCollections where cstr(CollectionDate)<>''").Eof());
}

TEST_F(TranslatorTest, UsesTheIndexForADateUnderCstr)
{
    for (const char* statement :
        {"select * from MilkCollections where cstr(CollectionDate)=#04/15/2026# and CollectionTime='sakaL'",
            "select * from MilkCollections where cstr(CollectionDate)='15/04/2026'",
            "delete * from MilkCollections where CollectionDate='15/04/2026'"}) {
        EXPECT_TRUE(Plan(statement).contains("USING INDEX MilkCollectionsByShift"))
            << statement << "\n"
            << Plan(statement).toStdString();
    }
}

TEST_F(TranslatorTest, WritesNumbersIntoTextColumnsInShortestForm)
{
    Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    Run("insert into Fat150307(Fat,CowRate,BuffRate) values(4.0,23.50,-30.00)");
    EXPECT_EQ(One("select Fat from Fat150307"), "4");
    EXPECT_EQ(One("select CowRate from Fat150307"), "23.5");
    EXPECT_EQ(One("select BuffRate from Fat150307"), "-30");
    EXPECT_EQ(One("select CowRate from Fat150307 where Fat=4.00"), "23.5");
    EXPECT_EQ(One("select CowRate from Fat150307 where Fat='4'"), "23.5");
    EXPECT_TRUE(Rows("select CowRate from Fat150307 where Fat='4.0'").Eof());
}

TEST_F(TranslatorTest, CopiesNumbersIntoTextColumnsInShortestForm)
{
    Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    Run("insert into FatRates(Fat,CowRate,BuffRate) values(4.0,23.951,30.00)");
    Run("insert into Fat150307 select * from FatRates");
    EXPECT_EQ(One("select CowRate from Fat150307 where Fat='4'"), "23.951");
    Run("delete * from FatRates");
    Run("insert into FatRates select * from Fat150307");
    EXPECT_EQ(One("select BuffRate from FatRates where Fat=4"), "30");
    sqlite3_stmt* raw = nullptr;
    sqlite3_prepare_v2(connection.Handle(), "select typeof(Fat) from FatRates", -1, &raw, nullptr);
    ASSERT_EQ(sqlite3_step(raw), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(raw, 0)), "real");
    sqlite3_finalize(raw);
}

TEST_F(TranslatorTest, RefusesLiteralsThatTheirColumnCannotHold)
{
    AddDelivery("15/04/2026", 7);
    for (const char* statement : {"insert into ReportDates(FromDate) values('')",
             "insert into FatDates(FromDate,FatFileName) values('','x')",
             "insert into FatDates values('31/02/2026','x')", "update FatDates set FromDate='__/__/____'",
             "insert into FatDates(FromDate) values(5)", "update MilkCollections set Liters=''",
             "update MilkCollections set Liters='1,5'", "select * from MilkCollections where MemberNo='x'",
             "select * from MilkCollections where CollectionDate='32/01/2026'",
             "insert into FatRates(Fat) values(#01/31/2026#)"}) {
        const bool isUnknownTable = QByteArray(statement).contains("ReportDates");
        EXPECT_EQ(
            ErrorOf(statement), isUnknownTable ? RunTimeError::DatabaseFailure : RunTimeError::TypeMismatch)
            << statement;
    }
    EXPECT_EQ(ErrorOf("update MilkCollections set Liters=1e999"), RunTimeError::Overflow);
    EXPECT_EQ(One("select Liters from MilkCollections"), "1.5");
    EXPECT_EQ(One("select count(*) from FatDates"), "0");
}

TEST_F(TranslatorTest, TakesAQuotedNumberForANumberColumn)
{
    AddDelivery("15/04/2026", 7);
    EXPECT_FALSE(
        Rows("select * from MilkCollections where MemberNo='5' and Fat='4.3' and Liters=' 1.50 '").Eof());
    EXPECT_EQ(Run("update MilkCollections set Rate='24.35',TranId='-1'"), 1);
    EXPECT_EQ(One("select Rate from MilkCollections"), "24.35");
    EXPECT_EQ(One("select TranId from MilkCollections"), "-1");
}

TEST_F(TranslatorTest, AnswersDatesAsDates)
{
    AddDelivery("15/04/2026", 7);
    AddDelivery("02/05/2026", 8);
    const QDate newest(2026, 5, 2);
    EXPECT_EQ(Rows("select max(CollectionDate) as d from MilkCollections").At(0).Date(), newest);
    EXPECT_EQ(Rows("select max(CollectionDate) as d from MilkCollections").At(0).Text(), "02/05/2026");
    EXPECT_EQ(Rows("select count(*),max(CollectionDate) from MRView").At(1).Date(), newest);
    EXPECT_EQ(Rows("select *,min(CollectionDate) as d from MilkCollections")[u"d"].Text(), "15/04/2026");
    EXPECT_EQ(
        Rows("select CollectionDate as d from MRView order by CollectionDate desc")[u"D"].Date(), newest);
    EXPECT_EQ(One("select cstr(CollectionDate) from MilkCollections"), "15/04/2026");
    EXPECT_EQ(One("select cstr(max(CollectionDate)) from MilkCollections"), "02/05/2026");
    EXPECT_EQ(One("select cstr(Liters*2) from MilkCollections"), "3");
}

TEST_F(TranslatorTest, LeavesATextThatLooksLikeADateAlone)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'2026-04-15')");
    EXPECT_EQ(One("select max(CityName) from CityMaster"), "2026-04-15");
}

TEST_F(TranslatorTest, KeepsPositionsInAnOrder)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'k')");
    Run("insert into CityMaster(CompanyId,CityName) values(2,'a')");
    EXPECT_EQ(One("select CityName,CompanyId from CityMaster order by 1"), "a");
    EXPECT_EQ(One("select CityName,CompanyId from CityMaster order by 2"), "k");
}

TEST_F(TranslatorTest, CarriesAnyTextBetweenQuotes)
{
    const QString text = "Tašp ]cala #; -- /* ? \"@ " + QChar(0x0917) + QString::fromUtf8("😀");
    connection.Execute("insert into CityMaster(CompanyId,CityName) values(1,'" + text + "')");
    EXPECT_EQ(One("select CityName from CityMaster"), text);
    EXPECT_EQ(One("select CompanyId from CityMaster where CityName=\"x\" or CityName<>'it''s'"), "1");
}

TEST_F(TranslatorTest, FollowsNoLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const std::string old = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "de_DE.UTF-8");
    AddDelivery("15/04/2026", 7);
    EXPECT_EQ(One("select Fat from MilkCollections where Fat=4.3"), "4.3");
    EXPECT_EQ(One("select cstr(Fat) from MilkCollections"), "4.3");
    EXPECT_EQ(One("select CollectionDate from MilkCollections"), "15/04/2026");
    setlocale(LC_ALL, old.c_str());
    QLocale::setDefault(before);
}

}
