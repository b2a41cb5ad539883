#include "tests/platform/database/DatabaseTest.h"

#include "platform/database/ConnectionPrivate.h"
#include "platform/database/Transaction.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace {

class ConnectionTest : public DatabaseTest {
protected:
    // Opens, and says how that failed; then nothing in the folder may have changed.
    RunTimeError Failure(const QString& password = TestPassword)
    {
        const QByteArray before = Contents();
        try {
            Open(password);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(Contents(), before);
            EXPECT_FALSE(connection.IsOpen());
            return error;
        }
        ADD_FAILURE() << "it opened";
        return RunTimeError(0, QString());
    }

    // Every file of the folder by name and bytes.
    QByteArray Contents()
    {
        QByteArray contents;
        const QDir dir(folder.path());
        for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
            QFile read(dir.filePath(name));
            EXPECT_TRUE(read.open(QIODevice::ReadOnly));
            contents +=
                name.toUtf8() + QCryptographicHash::hash(read.readAll(), QCryptographicHash::Sha256).toHex();
        }
        return contents;
    }

    QByteArray Bytes()
    {
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }

    void Replace(const QByteArray& bytes)
    {
        QFile write(file);
        ASSERT_TRUE(write.open(QIODevice::WriteOnly | QIODevice::Truncate));
        write.write(bytes);
    }

    void Fill()
    {
        Transaction transaction(connection);
        for (int i = 0; i < 2000; ++i)
            connection.Execute(
                QStringLiteral("insert into CityMaster(CompanyId,CityName) values(%1,'a town')").arg(i));
        transaction.Commit();
    }
};

TEST_F(ConnectionTest, OpensWhatItMade)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'gaava')");
    connection.Close();
    connection.Close();
    EXPECT_FALSE(connection.IsOpen());
    EXPECT_FALSE(Bytes().contains("gaava"));
    EXPECT_FALSE(Bytes().startsWith("SQLite format"));
    connection.Open("DSN=vetrolandsn;PWD=" + TestPassword);
    EXPECT_EQ(One("select CityName from CityMaster"), "gaava");
}

TEST_F(ConnectionTest, IsSafeAgainstPowerCuts)
{
    const StatementGuard::Aside asking(connection.d()->Guard());
    for (const auto& [pragma, value] :
        {std::pair("pragma journal_mode", "wal"), std::pair("pragma synchronous", "2"),
            std::pair("pragma foreign_keys", "0"), std::pair("pragma busy_timeout", "5000")}) {
        sqlite3_stmt* asked = nullptr;
        sqlite3_prepare_v2(connection.Handle(), pragma, -1, &asked, nullptr);
        ASSERT_EQ(sqlite3_step(asked), SQLITE_ROW);
        EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(asked, 0)), value) << pragma;
        sqlite3_finalize(asked);
    }
}

TEST_F(ConnectionTest, SaysThatThePasswordIsWrong)
{
    connection.Close();
    const QStringList others = {"other", QString(), TestPassword + " "};
    for (const QString& password : others) {
        const RunTimeError error = Failure(password);
        EXPECT_EQ(error.Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(error.Happened().contains("password is wrong")) << error.what();
    }
}

TEST_F(ConnectionTest, SaysThatTheFileIsMissing)
{
    connection.Close();
    QFile::remove(file);
    EXPECT_EQ(Failure().Number(), RunTimeError::FileNotFound);
    DataSource::Register("VetrolanDSN", folder.path());
    EXPECT_EQ(Failure().Number(), RunTimeError::FileAccess);
}

TEST_F(ConnectionTest, SaysThatTheNameIsUnknown)
{
    connection.Close();
    for (const char* text : {"dsn=Nobody;pwd=x", "pwd=x", "", "dsn=VetrolanDSN"})
        EXPECT_THROW(connection.Open(QString::fromUtf8(text)), RunTimeError) << text;
}

TEST_F(ConnectionTest, SaysThatTheFileIsNoDatabase)
{
    connection.Close();
    Replace({});
    EXPECT_TRUE(Failure().Happened().contains("is empty"));
    QByteArray noise;
    for (int i = 0; i < 10000; ++i)
        noise += static_cast<char>((i * 7919 + i / 13) & 0xFF);
    Replace(noise);
    EXPECT_TRUE(Failure().Happened().contains("is not a database, or it is cut short"));
    Replace(noise.left(8192));
    EXPECT_TRUE(Failure().Happened().contains("is not a database"));
    Replace("SQLite format 3");
    EXPECT_TRUE(Failure().Happened().contains("is not a database"));
}

TEST_F(ConnectionTest, SaysThatTheFileIsCutShort)
{
    Fill();
    connection.Close();
    const QByteArray whole = Bytes();
    ASSERT_GT(whole.size(), 5 * 4096);
    for (const qsizetype size : {whole.size() - 1, whole.size() - 4096, whole.size() / 2, qsizetype(4096)}) {
        Replace(whole.left(size));
        const RunTimeError error = Failure();
        EXPECT_EQ(error.Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(error.Happened().contains("is cut short")) << error.what();
    }
    Replace(whole);
    Open();
    EXPECT_EQ(One("select count(*) from CityMaster"), "2000");
}

TEST_F(ConnectionTest, TakesTheLogIntoAccount)
{
    // A copy of the file and its log as a power cut would leave them: the last pages are in the log alone.
    Fill();
    const QString log = file + "-wal";
    const QString left = folder.filePath("left");
    ASSERT_TRUE(QDir().mkdir(left));
    const QString copy = left + "/Morvelta.mdb";
    ASSERT_TRUE(QFile::copy(file, copy));
    ASSERT_TRUE(QFile::copy(log, copy + "-wal"));
    connection.Close();
    DataSource::Register("VetrolanDSN", copy);
    EXPECT_TRUE(Failure("other").Happened().contains("password is wrong"));
    EXPECT_EQ(QDir(left).entryList(QDir::Files).size(), 2);
    Open();
    EXPECT_EQ(One("select count(*) from CityMaster"), "2000");
    EXPECT_TRUE(IsSound(connection));
}

TEST_F(ConnectionTest, OpensThoughTheFirstPageIsInTheLogAlone)
{
    Fill();
    const QString left = folder.filePath("left");
    ASSERT_TRUE(QDir().mkdir(left));
    const QString copy = left + "/Morvelta.mdb";
    QByteArray torn = Bytes();
    torn.replace(2048, 2048, QByteArray(2048, '\0'));
    QFile write(copy);
    ASSERT_TRUE(write.open(QIODevice::WriteOnly));
    write.write(torn);
    write.close();
    ASSERT_TRUE(QFile::copy(file + "-wal", copy + "-wal"));
    connection.Close();
    DataSource::Register("VetrolanDSN", copy);
    Open();
    EXPECT_EQ(One("select count(*) from CityMaster"), "2000");
    EXPECT_TRUE(IsSound(connection));
}

TEST_F(ConnectionTest, MakesNoFileOverAnother)
{
    connection.Close();
    const QByteArray before = Bytes();
    EXPECT_THROW(connection.Create(file, TestPassword), RunTimeError);
    EXPECT_EQ(Bytes(), before);
    EXPECT_THROW(connection.Create(folder.filePath("new.mdb"), QString()), RunTimeError);
    EXPECT_FALSE(QFile::exists(folder.filePath("new.mdb")));
}

TEST_F(ConnectionTest, CountsTheRowsThatItChanges)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Run("insert into CityMaster(CompanyId,CityName) values(1,'a')"), 1);
    EXPECT_EQ(Run("update CityMaster set CityName='b' where CompanyId=1"), 3);
    EXPECT_EQ(Run("select * from CityMaster"), 0);
    EXPECT_EQ(Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)"), 0);
    EXPECT_EQ(Run("delete * from CityMaster where CompanyId=2"), 0);
    EXPECT_EQ(Run("Delete * From CityMaster;"), 3);
}

TEST_F(ConnectionTest, WhoeverListensToTheSavesStillDoesWhenItIsOpenedAgain)
{
    int saves = 0;
    connection.SetWritten([&] { ++saves; });
    Run("insert into CityMaster(CompanyId,CityName) values(1,'a')");
    EXPECT_EQ(saves, 1);
    connection.Close();
    Open();
    Run("insert into CityMaster(CompanyId,CityName) values(1,'b')");
    EXPECT_EQ(saves, 2);
    connection.SetWritten({});
    Run("insert into CityMaster(CompanyId,CityName) values(1,'c')");
    EXPECT_EQ(saves, 2);
}

TEST_F(ConnectionTest, CarriesTheFailedStatementInTheError)
{
    try {
        connection.Execute("insert into CityMaster(CompanyId,CityName) values(1,'O'Brien')");
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(error.Statement().endsWith("'O'Brien')"));
    }
    EXPECT_EQ(One("select count(*) from CityMaster"), "0");
}

}
