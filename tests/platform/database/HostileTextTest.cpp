#include "tests/platform/database/DatabaseTest.h"
#include "tests/platform/database/SystemStatements.h"

#include <QElapsedTimer>

#include <random>

namespace {

class HostileTextTest : public DatabaseTest {
protected:
    HostileTextTest() { Run("insert into CityMaster(CompanyId,CityName) values(1,'gaava')"); }

    void ExpectRefused(const QString& statement)
    {
        EXPECT_NE(ErrorOf(statement), 0) << statement.left(200).toStdString();
        EXPECT_EQ(One("select count(*) from CityMaster"), "1") << statement.left(200).toStdString();
    }
};

TEST_F(HostileTextTest, RunsOneStatementOnly)
{
    for (const char* statement : {"", " ", ";", "delete * from CityMaster; delete * from CityMaster",
             "select * from CityMaster;delete * from CityMaster", "delete * from CityMaster;;",
             "delete * from CityMaster -- where CompanyId=2", "delete * from CityMaster /* x */",
             "delete * from CityMaster where CityName='gaava",
             "delete * from CityMaster where CityName=\"gaava",
             "delete * from CityMaster where CompanyId=1 or '",
             "delete * from FatDates where FromDate=#04/15/2026", "delete * from FatDates where FromDate=##",
             "delete * from FatDates where FromDate=#15/04/2026#",
             "delete * from FatDates where FromDate=#2026-04-15#",
             "delete * from CityMaster where CompanyId=?", "delete * from CityMaster where CompanyId=:a",
             "delete * from CityMaster where CompanyId=@a", "delete * from CityMaster where CompanyId=$a",
             "delete * from `CityMaster`", "delete * from [CityMaster",
             "delete * from CityMaster where CompanyId=1x"})
        ExpectRefused(QString::fromUtf8(statement));
}

TEST_F(HostileTextTest, RunsNoStatementOfTheEnginesOwn)
{
    for (const char* statement :
        {"pragma journal_mode=delete", "attach 'x.db' as x", "detach main", "vacuum", "begin", "commit",
            "rollback", "savepoint a", "release a", "reindex", "analyze", "explain delete from CityMaster",
            "replace into CityMaster values(1,'a')", "insert or replace into CityMaster values(1,'a')",
            "update or ignore CityMaster set CompanyId=2", "alter table CityMaster rename to X",
            "create index i on CityMaster(CompanyId)", "create view v as select 1", "drop view MRView",
            "create trigger t after insert on CityMaster begin delete from CityMaster; end",
            "create temp table x(a)", "drop table CityMaster", "create table Towns(A TEXT)",
            "create virtual table x using fts4(a)", "drop index MilkCollectionsByShift",
            "with x as (select 1) delete from CityMaster", "values(1)", "delete from sqlite_master",
            "update sqlite_master set sql=''", "insert into sqlite_master values('a','b','c',1,'d')"})
        ExpectRefused(QString::fromUtf8(statement));
}

TEST_F(HostileTextTest, TakesNoCharacterOfCodeNought)
{
    const QString head = "delete * from CityMaster";
    ExpectRefused(head + QChar::Null);
    ExpectRefused(head + QChar::Null + " where CompanyId=2");
    ExpectRefused(head + " where CityName<>'a" + QChar::Null + u'\'');
    for (char16_t mark = 1; mark <= 3; ++mark)
        ExpectRefused(head + " where CityName<>" + QChar(mark));
}

TEST_F(HostileTextTest, IsDoneWithAMegabyteQuickly)
{
    constexpr int Megabyte = 1 << 20;
    const auto repeated = [](const char* piece) {
        return QString::fromUtf8(piece).repeated(Megabyte / int(qstrlen(piece)));
    };
    const QString select = "select * from CityMaster where CityName=";
    const QStringList statements = {select + u'\'' + repeated("x") + u'\'', select + u'\'' + repeated("x"),
        repeated("("), repeated("'"), repeated("#"), select + repeated("(") + u'1',
        select + repeated("1 or 1="), repeated("select "), "select " + repeated("*,") + "* from CityMaster",
        "select * from " + repeated("a,") + u'a', select + repeated("trim("), select + repeated("- "),
        select + "1 and CityName in (" + repeated("+ ") + u')',
        "insert into CityMaster values(" + repeated("1,") + "1)",
        "update CityMaster set " + repeated("CompanyId=1,"), repeated("x"), "delete * from " + repeated("x"),
        select + repeated("cstr(max("), repeated("0.")};
    for (const QString& statement : statements) {
        QElapsedTimer timer;
        timer.start();
        ErrorOf(statement);
        EXPECT_LT(timer.elapsed(), 5000) << statement.left(80).toStdString();
        EXPECT_EQ(One("select count(*) from CityMaster"), "1");
    }
}

TEST_F(HostileTextTest, ShowsALongStatementCut)
{
    try {
        connection.Execute("select * from Nowhere where A='" + QString(5000, u'x') + u'\'');
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Statement().size(), 501);
    }
}

TEST_F(HostileTextTest, OutlivesTwentyThousandMutations)
{
    std::mt19937 dice(20260415);
    const auto upTo = [&dice](std::size_t n) { return static_cast<qsizetype>(dice() % n); };
    const std::vector<const char*>& statements = SystemStatements();
    const QString pieces = "'\"#;()*,.-+/=<>[]? \t0159aZ%&|!@$:~^\\{}" + QChar(0x917) + QChar(0xD83D)
        + QChar(0xFEFF) + QChar(1) + QChar::Null;
    int done = 0;
    int refused = 0;
    for (int i = 0; i < 20000; ++i) {
        QString text = QString::fromUtf8(statements[static_cast<std::size_t>(upTo(statements.size()))]);
        for (qsizetype changes = 1 + upTo(3); changes > 0 && !text.isEmpty(); --changes) {
            const qsizetype at = upTo(static_cast<std::size_t>(text.size()));
            switch (upTo(6)) {
            case 0:
                text.remove(at, 1 + upTo(8));
                break;
            case 1:
                text.insert(at, pieces[upTo(static_cast<std::size_t>(pieces.size()))]);
                break;
            case 2:
                text[at] = pieces[upTo(static_cast<std::size_t>(pieces.size()))];
                break;
            case 3:
            case 4:
                text[at] = text[at].isUpper() ? text[at].toLower() : text[at].toUpper();
                break;
            default:
                text.insert(at, text.mid(upTo(static_cast<std::size_t>(text.size())), 1 + upTo(20)));
            }
        }
        ErrorOf(text) == 0 ? ++done : ++refused;
    }
    EXPECT_GT(done, 1000);
    EXPECT_GT(refused, 1000);
    EXPECT_TRUE(IsSound(connection));
}

}
