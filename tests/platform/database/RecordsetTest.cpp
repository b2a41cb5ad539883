#include "tests/platform/database/DatabaseTest.h"

#include "platform/database/ConnectionPrivate.h"

namespace {

class RecordsetTest : public DatabaseTest {
protected:
    void AddCities(int count)
    {
        for (int i = 1; i <= count; ++i)
            connection.Execute(
                QStringLiteral("insert into CityMaster(CompanyId,CityName) values(%1,'c%1')").arg(i));
    }

    template <class Act> int NumberOf(Act act)
    {
        try {
            act();
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    }
};

TEST_F(RecordsetTest, WalksForwardsAndEnds)
{
    AddCities(3);
    Recordset rows = Rows("select CompanyId,CityName from CityMaster order by CompanyId");
    QStringList seen;
    for (; !rows.Eof(); rows.MoveNext())
        seen += rows[u"cityname"].Text();
    EXPECT_EQ(seen, QStringList({"c1", "c2", "c3"}));
    EXPECT_EQ(NumberOf([&] { rows.MoveNext(); }), RunTimeError::NoCurrentRecord);
    EXPECT_EQ(NumberOf([&] { rows[u"CityName"]; }), RunTimeError::NoCurrentRecord);
}

TEST_F(RecordsetTest, KnowsItsColumns)
{
    AddCities(1);
    const Recordset rows = Rows("select CompanyId,CityName as Name from CityMaster");
    EXPECT_EQ(rows.Columns(), 2);
    EXPECT_EQ(rows.Name(1), "Name");
    EXPECT_EQ(rows[u"NAME"].Text(), "c1");
    EXPECT_EQ(rows[u"companyid"].Number(), 1);
    EXPECT_EQ(NumberOf([&] { rows[u"City"]; }), RunTimeError::ItemNotFound);
    EXPECT_EQ(NumberOf([&] { rows.At(2); }), RunTimeError::ItemNotFound);
}

TEST_F(RecordsetTest, TellsNullFromEmpty)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'')");
    Run("insert into CityMaster(CompanyId) values(2)");
    Recordset rows = Rows("select CityName from CityMaster order by CompanyId");
    EXPECT_FALSE(rows.At(0).IsNull());
    rows.MoveNext();
    EXPECT_TRUE(rows.At(0).IsNull());
    EXPECT_EQ(rows.At(0).Text(), QString());
    EXPECT_EQ(rows.At(0).Number(), 0);
    EXPECT_FALSE(rows.At(0).Date().isValid());
}

TEST_F(RecordsetTest, ASumOverNoRowsIsNullAndReadAsNought)
{
    for (const char* query : {"select sum(Amount) as Total from MilkPayments",
             "select sum(Liters) as Total from MilkCollections where CompanyId=0",
             "select max(CollectionNo) as Total from MilkCollections where CollectionTime='sakaL'"}) {
        const Recordset sum = Rows(query);
        ASSERT_FALSE(sum.Eof()) << query;
        EXPECT_TRUE(sum[u"Total"].IsNull()) << query;
        EXPECT_EQ(sum[u"Total"].Number(), 0) << query;
        EXPECT_EQ(sum[u"Total"].Text(), QString()) << query;
    }
    EXPECT_EQ(One("select count(*) from MilkPayments"), "0");
}

TEST_F(RecordsetTest, ReadsTheRowsOfBeforeAWrite)
{
    AddCities(5);
    Recordset rows = Rows("select * from CityMaster order by CompanyId");
    int walked = 0;
    for (; !rows.Eof(); rows.MoveNext(), ++walked) {
        connection.Execute(
            QStringLiteral("insert into CityMaster(CompanyId,CityName) values(%1,'new')").arg(9 + walked));
        connection.Execute("delete * from CityMaster where CompanyId=" + QString::number(walked + 2));
        EXPECT_EQ(rows[u"CompanyId"].Number(), walked + 1);
    }
    EXPECT_EQ(walked, 5);
}

TEST_F(RecordsetTest, RenumbersWhatItWalks)
{
    for (int i = 1; i <= 4; ++i)
        connection.Execute(
            QStringLiteral("insert into MilkCollections(CollectionDate,CollectionTime,CollectionNo) "
                           "values('15/04/2026','sakaL',%1)")
                .arg(i));
    Recordset rows =
        Rows("Select * From MilkCollections Order By CollectionDate,CollectionTime,CollectionNo");
    int walked = 0;
    for (; !rows.Eof() && walked < 100; rows.MoveNext(), ++walked)
        connection.Execute(QStringLiteral("Update MilkCollections Set CollectionNo=%1 Where CollectionNo=%2")
                               .arg(walked + 50)
                               .arg(rows[u"CollectionNo"].Text()));
    EXPECT_EQ(walked, 4);
    EXPECT_EQ(One("select max(CollectionNo) from MilkCollections"), "53");
}

TEST_F(RecordsetTest, SurvivesTheDroppingOfItsTable)
{
    Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    Run("insert into Fat150307 values(4,5,6)");
    Run("insert into Fat150307 values(7,8,9)");
    Recordset rows = Rows("select * from Fat150307");
    connection.RunScript("drop table Fat150307");
    rows.MoveNext();
    EXPECT_EQ(rows.At(0).Text(), "7");
}

TEST_F(RecordsetTest, IsClosedWithItsConnection)
{
    AddCities(2);
    Recordset rows = Rows("select * from CityMaster");
    Recordset ended = Rows("select * from BankMaster");
    connection.Close();
    EXPECT_EQ(NumberOf([&] { rows.At(0); }), RunTimeError::ConnectionClosed);
    EXPECT_EQ(NumberOf([&] { (void)rows.Eof(); }), RunTimeError::ConnectionClosed);
    EXPECT_EQ(NumberOf([&] { rows.MoveNext(); }), RunTimeError::ConnectionClosed);
    EXPECT_EQ(NumberOf([&] { (void)ended.Columns(); }), RunTimeError::ConnectionClosed);
    EXPECT_EQ(NumberOf([&] { Rows("select * from CityMaster"); }), RunTimeError::ConnectionClosed);
    EXPECT_EQ(ErrorOf("delete * from CityMaster"), RunTimeError::ConnectionClosed);
    rows.Close();
}

TEST_F(RecordsetTest, RefusesWhatIsNoQuery)
{
    AddCities(1);
    EXPECT_EQ(NumberOf([&] { Rows("delete * from CityMaster"); }), RunTimeError::DatabaseFailure);
    EXPECT_EQ(One("select count(*) from CityMaster"), "1");
}

TEST_F(RecordsetTest, PreparesAShapeOnce)
{
    AddCities(3);
    const int before = connection.d()->Cache().Preparations();
    for (int i = 1; i <= 50; ++i) {
        Recordset rows(connection,
            QStringLiteral("select * from CityMaster where CompanyId=%1 and CityName='c%1'").arg(i));
        EXPECT_EQ(rows.Eof(), i > 3);
    }
    EXPECT_EQ(connection.d()->Cache().Preparations(), before + 1);
}

TEST_F(RecordsetTest, HandsNoStatementOutTwice)
{
    AddCities(3);
    Recordset first = Rows("select CityName from CityMaster where CompanyId>=1 order by CompanyId");
    Recordset second = Rows("select CityName from CityMaster where CompanyId>=3 order by CompanyId");
    EXPECT_EQ(second.At(0).Text(), "c3");
    first.MoveNext();
    EXPECT_EQ(first.At(0).Text(), "c2");
    Recordset moved = std::move(second);
    EXPECT_EQ(moved.At(0).Text(), "c3");
}

TEST_F(RecordsetTest, SeesATableMadeAnewUnderAnOldName)
{
    Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    Run("insert into Fat150307 values(4.50,5,6)");
    EXPECT_EQ(One("select * from Fat150307 where Fat='4.5'"), "4.5");
    connection.RunScript("drop table Fat150307");
    Run("create table Fat150307(Fat REAL,CowRate REAL)");
    Run("insert into Fat150307 values(4.50,5)");
    EXPECT_EQ(One("select * from Fat150307 where Fat='4.5'"), "4.5");
    EXPECT_EQ(Rows("select * from Fat150307").Columns(), 2);
}

}
