#include "platform/database/ConnectionPrivate.h"
#include "platform/database/Transaction.h"
#include "tests/platform/database/DatabaseTest.h"

#include <QFile>

namespace {

class StatementGuardTest : public DatabaseTest {
protected:
    StatementGuardTest() { Run("insert into CityMaster(CompanyId,CityName) values(1,'gaava')"); }

    // What the engine says to a statement of its own on this connection, without the translator before it.
    int Asked(const char* sql)
    {
        sqlite3_stmt* statement = nullptr;
        const int code = sqlite3_prepare_v2(connection.Handle(), sql, -1, &statement, nullptr);
        sqlite3_finalize(statement);
        return code;
    }

    void AddCities(int count)
    {
        Transaction adding(connection);
        for (int i = 0; i < count; ++i)
            Run("insert into CityMaster(CompanyId,CityName) values(2,'sahr')");
        adding.Commit();
    }
};

constexpr const char* ChangesOfTheSchema[] = {"create table T(A TEXT)", "create table CityMasterOld(A TEXT)",
    "create table Fat15032007(Fat TEXT)", "create table Fat15037(Fat TEXT)",
    "create table Fat1503xx(Fat TEXT)", "create table MyFat150307(Fat TEXT)",
    "create temp table Fat150307(Fat TEXT)", "create temp table CityMaster(A TEXT)",
    "create index I on CityMaster(CityName)", "create view V as select 1",
    "create trigger T after insert on CityMaster begin delete from CityMaster; end",
    "create virtual table V using fts5(a)", "drop table CityMaster", "drop view MRView",
    "drop index MilkCollectionsByShift", "alter table CityMaster rename to Towns",
    "alter table CityMaster add column A", "reindex", "analyze",
    "create table Fat150307(Fat TEXT primary key)"};

TEST_F(StatementGuardTest, AFunctionThatRunsStatementsOrLoadsCodeIsDenied)
{
    for (const char* statement : {"select sqlcipher_export('main')", "select SQLCIPHER_EXPORT('main','main')",
             "select sqlcipher_export('main','main.sqlite_master; delete from CityMaster; select 1')",
             "delete * from CityMaster where CompanyId=sqlcipher_export('main')",
             "insert into CityMaster(CompanyId,CityName) values(1,sqlcipher_export('main'))",
             "update CityMaster set CityName=load_extension('./x')", "select load_extension('./x','y')",
             "select * from CityMaster where CompanyId=(select sqlcipher_export('main'))"}) {
        EXPECT_EQ(ErrorOf(statement), RunTimeError::DatabaseFailure) << statement;
        EXPECT_EQ(One("select CityName from CityMaster"), "gaava") << statement;
    }
    try {
        Run("select sqlcipher_export('main')");
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Happened().contains("not authorized")) << error.what();
    }
}

TEST_F(StatementGuardTest, SuchAFunctionIsDeniedBeforeItRuns)
{
    for (const char* statement : {"select sqlcipher_export('main')", "select load_extension('./x')",
             "select load_extension('./x','y')"}) {
        EXPECT_NE(Asked(statement), SQLITE_OK) << statement;
        EXPECT_TRUE(
            QByteArray(sqlite3_errmsg(connection.Handle())).contains("not authorized to use function"))
            << statement;
    }
}

TEST_F(StatementGuardTest, TheSchemaChangesByANewChartOnly)
{
    for (const char* statement : ChangesOfTheSchema) {
        EXPECT_EQ(Asked(statement), SQLITE_AUTH) << statement;
        EXPECT_EQ(ErrorOf(statement), RunTimeError::DatabaseFailure) << statement;
    }
    EXPECT_EQ(Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)"), 0);
    EXPECT_EQ(Run("insert into Fat150307(Fat,CowRate,BuffRate) values(4.0,23.50,30.00)"), 1);
    EXPECT_NE(ErrorOf("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)"), 0) << "it is there";
}

TEST_F(StatementGuardTest, OtherFilesAndSwitchesAreDenied)
{
    const QByteArray attach = "attach '" + folder.filePath("other.mdb").toUtf8() + "' as other";
    for (const char* statement : {attach.constData(), "detach main", "pragma journal_mode=delete",
             "pragma journal_mode", "pragma writable_schema=1", "pragma synchronous=off", "pragma rekey='x'",
             "pragma key='x'", "pragma user_version=5", "pragma wal_checkpoint(truncate)",
             "pragma cipher_page_size=4096", "pragma foreign_keys=on", "savepoint a"}) {
        EXPECT_EQ(Asked(statement), SQLITE_AUTH) << statement;
        EXPECT_EQ(ErrorOf(statement), RunTimeError::DatabaseFailure) << statement;
    }
    EXPECT_NE(sqlite3_exec(connection.Handle(), "vacuum", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_FALSE(QFile::exists(folder.filePath("other.mdb")));
    EXPECT_NE(ErrorOf("select * from pragma_journal_mode"), 0);
}

TEST_F(StatementGuardTest, AConnectionThatWasOpenedIsGuardedLikeANewOne)
{
    connection.Close();
    Open();
    EXPECT_EQ(Asked("pragma journal_mode=delete"), SQLITE_AUTH);
    EXPECT_EQ(ErrorOf("select sqlcipher_export('main')"), RunTimeError::DatabaseFailure);
}

TEST_F(StatementGuardTest, StandsAsideForTheRoomItself)
{
    {
        const StatementGuard::Aside aside(connection.d()->Guard());
        const StatementGuard::Aside again(connection.d()->Guard());
        EXPECT_EQ(Asked("pragma wal_checkpoint(truncate)"), SQLITE_OK);
    }
    EXPECT_EQ(Asked("pragma wal_checkpoint(truncate)"), SQLITE_AUTH);
    connection.RunScript("create index I on CityMaster(CityName)");
    EXPECT_EQ(Asked("create index J on CityMaster(CityName)"), SQLITE_AUTH);
    EXPECT_THROW(connection.RunScript("create index I on CityMaster(CityName)"), RunTimeError);
    EXPECT_EQ(Asked("create index J on CityMaster(CityName)"), SQLITE_AUTH);
}

// Some ten millions of the engine's small steps.
constexpr const char* Long =
    "select count(*) from CityMaster a, CityMaster b, CityMaster c where a.CityName<>'' and c.CompanyId>0";

TEST_F(StatementGuardTest, AStatementThatWorksForTooLongIsEnded)
{
    AddCities(150);
    EXPECT_EQ(One(Long), QString::number(151 * 151 * 151)) << "within its time it answers";
    connection.d()->Guard().SetBound(std::chrono::seconds(0));
    for (const bool inATransaction : {false, true}) {
        std::optional<Transaction> writing;
        if (inATransaction) {
            writing.emplace(connection);
            Run("insert into CityMaster(CompanyId,CityName) values(3,'navaIna')");
        }
        try {
            Run(Long);
            ADD_FAILURE() << "it wasn't ended";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), RunTimeError::DatabaseFailure);
            EXPECT_TRUE(error.Happened().contains("took too long")) << error.what();
            EXPECT_EQ(error.Statement(), QString::fromUtf8(Long));
        }
        EXPECT_THROW(Rows(Long), RunTimeError);
        EXPECT_THROW(
            Run("update CityMaster set CityName='x' where CompanyId=(select count(*) from CityMaster a, "
                "CityMaster b, CityMaster c where a.CityName>='')"),
            RunTimeError);
        writing.reset();
        EXPECT_EQ(One("select count(*) from CityMaster where CityName in ('gaava','sahr')"), "151")
            << "a short one still answers";
        EXPECT_EQ(One("select count(*) from CityMaster"), "151");
    }
}

TEST_F(StatementGuardTest, AStatementThatWorksForLongSaysSoMeanwhile)
{
    AddCities(150);
    int said = 0;
    connection.SetWorking([&] { ++said; });
    Run("update CityMaster set CityName='x' where CompanyId=1");
    EXPECT_EQ(said, 0) << "a short one";
    for (int i = 0; i < 100; ++i)
        Run("update CityMaster set CityName='x' where CompanyId=1");
    EXPECT_EQ(said, 0) << "nor many of them";
    Run("update CityMaster set CityName='x' where CompanyId=(select count(*) from CityMaster a, CityMaster "
        "b, "
        "CityMaster c where a.CityName>='')");
    EXPECT_GT(said, 100);
    said = 0;
    connection.d()->Guard().SetQuiet(std::chrono::hours(1));
    Run("update CityMaster set CityName='x' where CompanyId=(select count(*) from CityMaster a, CityMaster b "
        "where a.CityName>='')");
    EXPECT_EQ(said, 0) << "not long enough";
    connection.d()->Guard().SetQuiet(std::chrono::seconds(0));
    Run("update CityMaster set CityName='x' where CompanyId=(select count(*) from CityMaster a, CityMaster b "
        "where a.CityName>='')");
    EXPECT_GT(said, 0);
    said = 0;
    EXPECT_EQ(One(Long), QString::number(151 * 151 * 151));
    EXPECT_EQ(said, 0) << "a list that is read may be one that is being painted";
    connection.SetWorking({});
    Run("update CityMaster set CityName='x' where CompanyId=(select count(*) from CityMaster a, CityMaster "
        "b, "
        "CityMaster c where a.CityName>='')");
    EXPECT_EQ(said, 0);
}

TEST_F(StatementGuardTest, TheTimeBetweenTheRowsOfAListDoesNotCount)
{
    AddCities(700);
    connection.d()->Guard().SetBound(std::chrono::seconds(0));
    int rows = 0;
    for (Recordset row = Rows("select a.CityName from CityMaster a, CityMaster b"); !row.Eof();
         row.MoveNext())
        ++rows;
    EXPECT_EQ(rows, 701 * 701) << "many steps in all, few for each row";
}

TEST_F(StatementGuardTest, WhatIsLeftOfAListIsReadWithinTheBoundToo)
{
    AddCities(700);
    Recordset list = Rows("select a.CityName from CityMaster a, CityMaster b");
    connection.d()->Guard().SetBound(std::chrono::seconds(0));
    EXPECT_EQ(ErrorOf("delete * from CityMaster"), RunTimeError::DatabaseFailure);
    EXPECT_EQ(One("select count(*) from CityMaster"), "701");
}

}
