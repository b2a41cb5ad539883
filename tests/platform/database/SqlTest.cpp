#include "platform/database/Sql.h"
#include "tests/platform/database/DatabaseTest.h"

namespace {

class SqlTest : public DatabaseTest {
protected:
    SqlTest()
    {
        Run("insert into CityMaster(CompanyId,CityName) values(1,'gaava')");
        Run("insert into CityMaster(CompanyId,CityName) values(2,'sahr')");
    }

    // The statement that the failure of `sql` tells; empty if it doesn't fail as a statement fails.
    QString Told(const SqlText& sql)
    {
        try {
            connection.Execute(sql);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), RunTimeError::DatabaseFailure);
            EXPECT_TRUE(error.Happened().contains("apostrophe")) << error.what();
            return error.Statement();
        }
        return {};
    }

    QString Cities() { return One("select count(*) from CityMaster where CityName in ('gaava','sahr')"); }
};

TEST_F(SqlTest, AnApostropheInAValueFailsTheStatement)
{
    for (const char* value : {"'", "''", "ga'ava", "ga''ava", "x'' or ''a''=''a", "x' or 'a'='a", "gaava'",
             "'gaava", "''''", "x'';", "1' --"}) {
        const QString name = QString::fromUtf8(value);
        EXPECT_EQ(Told(Sql(u"delete * from CityMaster where CityName='", name, u"'")),
            "delete * from CityMaster where CityName='" + name + u'\'');
        EXPECT_EQ(Told(Sql(u"update CityMaster set CityName='", QStringView(name), u"' where CompanyId=", 1)),
            "update CityMaster set CityName='" + name + "' where CompanyId=1");
        EXPECT_FALSE(Told(Sql(u"delete * from ", name)).isEmpty()) << "no quotes around it: " << value;
        EXPECT_EQ(Cities(), "2") << value;
    }
}

TEST_F(SqlTest, AnApostropheThatStandsInTheBooksFailsTheNextStatement)
{
    connection.RunScript("insert into CityMaster(CompanyId,CityName) values(3,'x'' or ''a''=''a')");
    const QString stored = One("select CityName from CityMaster where CompanyId=3");
    EXPECT_EQ(stored, "x' or 'a'='a");
    EXPECT_FALSE(Told(Sql(u"delete * from CityMaster where CityName='", stored, u"'")).isEmpty());
    EXPECT_EQ(One("select count(*) from CityMaster"), "3");
}

TEST_F(SqlTest, APieceThatSqlHasMadeKeepsItsQuotes)
{
    const QString name = "gaava";
    const SqlText condition = Sql(u" where CityName='", name, u"'");
    EXPECT_EQ(
        connection.Execute(Sql(u"update CityMaster set CompanyId=7", condition, u" and CompanyId=1")), 1);
    const SqlText words(u" where CityName='sahr'");
    EXPECT_EQ(connection.Execute(Sql(u"delete * from CityMaster", words)), 1);
}

TEST_F(SqlTest, APieceWithABrokenValueBreaksTheWholeStatement)
{
    const QString name = "ga'ava";
    const SqlText condition = Sql(u" where CityName='", name, u"'");
    EXPECT_EQ(Told(Sql(Sql(u"delete * from CityMaster", condition), u" and CompanyId=", 1)),
        "delete * from CityMaster where CityName='ga'ava' and CompanyId=1");
    EXPECT_EQ(Cities(), "2");
}

TEST_F(SqlTest, AQuotedValueIsAPieceWithItsQuotes)
{
    const QString name = "gaava";
    EXPECT_EQ(QString(Sql(u"where CityName=", Quoted(name), u" and CompanyId=", 1)),
        "where CityName='gaava' and CompanyId=1");
    EXPECT_EQ(QString(Quoted(u"sakaL")), "'sakaL'");
    EXPECT_EQ(QString(Quoted(QString())), "''");
    EXPECT_EQ(QString(Quoted(QDate(2026, 4, 15))), "'15/04/2026'");
    EXPECT_EQ(QString(Quoted(QDate())), "''");
    EXPECT_EQ(QString(Quoted(4.50)), "'4.5'");
}

TEST_F(SqlTest, ValuesAreListedAsTheirKindWantsThem)
{
    const QString name = "gaava";
    EXPECT_EQ(
        QString(Values(1, 0.1 + 0.2, 36.525F, name, QStringView(name), QDate(2026, 4, 5), u"raoK", -0.0)),
        "1,0.3,36.525,'gaava','gaava','05/04/2026','raoK',0");
    EXPECT_EQ(QString(Values(QString(), QDate(), 7)), "'','',7");
    EXPECT_EQ(
        connection.Execute(Sql(u"insert into CityMaster(CompanyId,CityName) values(", Values(3, name), u")")),
        1);
    EXPECT_EQ(One("select CityName from CityMaster where CompanyId=3"), name);
}

TEST_F(SqlTest, AnApostropheInAQuotedOrListedValueFailsTheStatement)
{
    const QString name = "ga'ava";
    EXPECT_EQ(Told(Sql(u"delete * from CityMaster where CityName=", Quoted(name))),
        "delete * from CityMaster where CityName='ga'ava'");
    EXPECT_EQ(Told(Sql(u"insert into CityMaster(CompanyId,CityName) values(", Values(1, name), u")")),
        "insert into CityMaster(CompanyId,CityName) values(1,'ga'ava')");
    EXPECT_FALSE(Told(Sql(u"insert into CityMaster(CompanyId,CityName) values(", Values(1, u"ga''ava"), u")"))
                     .isEmpty())
        << "words written out in a list are a value";
    EXPECT_EQ(Cities(), "2");
}

TEST_F(SqlTest, AStatementWithoutValuesIsRunAsItIsWrittenOut)
{
    constexpr QStringView query = u"select CityName from CityMaster order by CompanyId";
    EXPECT_EQ(Recordset(connection, query).At(0).Text(), "gaava");
    EXPECT_EQ(Recordset(connection, u"select count(*) from CityMaster").At(0).Number(), 2);
    EXPECT_EQ(connection.Execute(u"delete * from CityMaster where CompanyId=1"), 1);
    EXPECT_EQ(Recordset(connection, query).At(0).Text(), "sahr");
}

TEST_F(SqlTest, EveryOtherSignOfAValueIsCarried)
{
    const QString name = "a\" or \"1\"=\"1 # ; -- /* ? %_ [x] \\ " + QChar(0x2019);
    connection.Execute(Sql(u"insert into CityMaster(CompanyId,CityName) values(", 3, u",'", name, u"')"));
    EXPECT_EQ(One("select CityName from CityMaster where CompanyId=3"), name);
    EXPECT_EQ(connection.Execute(Sql(u"delete * from CityMaster where CityName='", name, u"'")), 1);
    EXPECT_EQ(Cities(), "2");
}

}
