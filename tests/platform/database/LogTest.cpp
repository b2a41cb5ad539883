#include "tests/platform/database/LogTest.h"

#include <unistd.h>

// How the log is folded, and whose it is.
namespace {

namespace {

void RunRaw(const Connection& books, const char* statement)
{
    ASSERT_EQ(sqlite3_exec(books.Handle(), statement, nullptr, nullptr, nullptr), SQLITE_OK) << statement;
}

}

TEST_F(LogTest, FoldingLeavesNothingInTheLogAndAllInTheFile)
{
    Add("gaava");
    EXPECT_GT(connection.LogSize(), 0);
    EXPECT_TRUE(connection.Fold());
    EXPECT_EQ(connection.LogSize(), 0);
    EXPECT_EQ(QFileInfo(file + "-wal").size(), 0);
    const QString alone = folder.filePath("alone.mdb");
    ASSERT_TRUE(QFile::copy(file, alone));
    EXPECT_EQ(OpenAgain(alone), QStringList());
    EXPECT_EQ(TownsOf(again), "gaava");
}

TEST_F(LogTest, NothingIsFoldedInTheMidstOfATransactionOrOfAReading)
{
    Add("ek");
    {
        Transaction saving(connection);
        Run("insert into CityMaster(CompanyId,CityName) values(1,'dona')");
        EXPECT_FALSE(connection.Fold());
        saving.Commit();
    }
    {
        const Recordset rows = Rows("select * from CityMaster");
        EXPECT_FALSE(connection.Fold());
    }
    EXPECT_TRUE(connection.Fold());
    EXPECT_EQ(Towns(), "ek dona");
}

TEST_F(LogTest, WhileAnotherReadsTheFoldWaitsWithoutWaitingForIt)
{
    Add("ek");
    Connection reader;
    reader.Open("dsn=VetrolanDSN;pwd=" + TestPassword);
    {
        const Recordset rows(reader, "select * from CityMaster");
        Add("dona");
        EXPECT_FALSE(connection.Fold());
        const qint64 size = connection.LogSize();
        EXPECT_FALSE(connection.Fold());
        EXPECT_EQ(connection.LogSize(), size) << "asking again writes nothing";
    }
    EXPECT_TRUE(connection.Fold());
    Add("tIna");
    const QString left = Left("left");
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek dona tIna");
}

TEST_F(LogTest, WhatAKilledProgramLeftIsPlayedInAndFolded)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    Add("tIna");
    const QString left = Left("left");
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek dona tIna");
    EXPECT_EQ(again.LogSize(), 0) << "the start folds what it finds";
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, ACleanEndLeavesNoLog)
{
    Add("ek");
    connection.Close();
    EXPECT_FALSE(QFile::exists(file + "-wal"));
}

TEST_F(LogTest, TheLogOfABackupsSuccessorIsPutAsideAndTold)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("dona");
    connection.Fold();
    Add("tIna");
    const QString left = Left("left");
    Write(left, backup);
    const QStringList notes = OpenAgain(left);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_EQ(LogsAside(left).size(), 1);
    EXPECT_TRUE(notes.first().contains(LogsAside(left).value(0))) << notes.first().toStdString();
    EXPECT_EQ(TownsOf(again), "ek");
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, ABackupOfTheVeryFilePutThereLaterIsTakenAsItIs)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("dona");
    const QString left = Left("left");
    Write(left, backup);
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left).size(), 1);
    EXPECT_EQ(TownsOf(again), "ek");
    EXPECT_EQ(LogsAside(left).size(), 1);
}

// Books that only the installer has written, and the log of a shell that was killed beside them.
TEST_F(LogTest, ABackupWithoutMarksPutBesideALogWithoutMarksLaterIsTakenAsItIs)
{
    MakeUnmarkedBooks();
    RunRaw(connection, "insert into CityMaster(CompanyId,CityName) values(1,'ek')");
    const QString left = Left("left");
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left).size(), 1);
    EXPECT_EQ(TownsOf(again), QString());
    EXPECT_EQ(LogsAside(left).size(), 1);
}

TEST_F(LogTest, ALogWithoutMarksIsPlayedIntoItsBooksWithoutMarks)
{
    MakeUnmarkedBooks();
    RunRaw(connection, "insert into CityMaster(CompanyId,CityName) values(1,'ek')");
    const QString left = Left("left");
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek");
    EXPECT_EQ(LogsAside(left).size(), 0);
}

TEST_F(LogTest, ALogWithoutMarksWhoseFoldWasCutOffIsStillItsBooks)
{
    MakeUnmarkedBooks();
    RunRaw(connection, "insert into CityMaster(CompanyId,CityName) values(1,'ek')");
    const QString left = Left("left");
    FoldAsTheShellDoes();
    QByteArray books = Bytes(left);
    const QByteArray folded = Bytes(file);
    ASSERT_EQ(books.size(), folded.size());
    constexpr int page = 4096;
    int changed = 0;
    for (int at = page; at < books.size() && changed == 0; at += page) {
        if (books.mid(at, page) == folded.mid(at, page))
            continue;
        books.replace(at, page, folded.mid(at, page));
        ++changed;
    }
    ASSERT_EQ(changed, 1);
    Write(left, books);
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek");
}

TEST_F(LogTest, ALogThatIsInTheBooksAlreadyButWasNotEmptiedIsTheirs)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    const QString left = Left("left");
    connection.Fold();
    Write(left, Bytes(file));
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek dona");
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, BooksWhoseClockWentBackAreTheirLogsAllTheSame)
{
    Add("ek");
    connection.Fold();
    Age(file, 1000000);
    connection.Close();
    Open();
    Add("dona");
    const QString left = folder.filePath("left");
    ASSERT_TRUE(QDir().mkdir(left));
    const QString books = left + Name;
    ASSERT_EQ(link(file.toLocal8Bit().constData(), books.toLocal8Bit().constData()), 0);
    ASSERT_TRUE(QFile::copy(file + "-wal", books + "-wal"));
    EXPECT_EQ(OpenAgain(books), QStringList());
    EXPECT_EQ(TownsOf(again), "ek dona");
}

TEST_F(LogTest, TheLogOfAnotherSocietyIsPutAside)
{
    Add("ek");
    const QString left = Left("left");
    Connection other;
    const QString stranger = folder.filePath("stranger.mdb");
    other.Create(stranger, TestPassword);
    other.RunScript("create table CityMaster(CompanyId INTEGER, CityName TEXT)");
    other.Close();
    ASSERT_TRUE(QFile::remove(left));
    ASSERT_TRUE(QFile::copy(stranger, left));
    EXPECT_EQ(OpenAgain(left).size(), 1);
    EXPECT_EQ(TownsOf(again), QString());
}

TEST_F(LogTest, AfterAFoldThatWasInterruptedTheLogIsStillTheBooks)
{
    Add("ek");
    connection.Fold();
    const QByteArray before = Bytes(file);
    Add("dona");
    BreakOffAFold();
    const QString left = Left("left");
    const QByteArray after = Bytes(left);
    for (int page = 0; page * DatabaseFile::PageSize < after.size(); ++page) {
        const QString part = Left(QStringLiteral("left%1").arg(page));
        QByteArray mixed = after;
        mixed.replace(page * DatabaseFile::PageSize, DatabaseFile::PageSize,
            before.mid(page * DatabaseFile::PageSize, DatabaseFile::PageSize));
        Write(part, mixed);
        Age(part, 3600);
        EXPECT_EQ(OpenAgain(part), QStringList()) << "without page " << page + 1;
        EXPECT_EQ(TownsOf(again), "ek dona tIna");
    }
}

TEST_F(LogTest, ABackupThatALogBeingFoldedGoesOnFromIsBroughtToItsEnd)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("dona");
    BreakOffAFold();
    const QString left = Left("left");
    Write(left, backup);
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left), QStringList()) << "half folded books look the same, so nothing may be dropped";
    EXPECT_EQ(TownsOf(again), "ek dona tIna");
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, AnOlderBackupIsTakenAsItIsThoughTheLogWasBeingFolded)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("caar");
    connection.Fold();
    Add("dona");
    BreakOffAFold();
    const QString left = Left("left");
    Write(left, backup);
    EXPECT_EQ(OpenAgain(left).size(), 1);
    EXPECT_EQ(TownsOf(again), "ek");
    EXPECT_EQ(LogsAside(left).size(), 1);
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, ALogThatWasPutAsideIsToldThoughTheBooksTurnOutToBeDamaged)
{
    connection.Execute(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                           .arg(QString(100 * DatabaseFile::PageSize, u'a')));
    connection.Fold();
    QByteArray backup = Bytes(file);
    Add("dona");
    connection.Fold();
    Add("tIna");
    const QString left = Left("left");
    const qsizetype at = backup.size() - 50 * DatabaseFile::PageSize;
    backup[at] = static_cast<char>(backup[at] ^ 4);
    Write(left, backup);
    const QString told = Failure(left);
    EXPECT_TRUE(told.contains("damaged")) << told.toStdString();
    ASSERT_EQ(LogsAside(left).size(), 1);
    EXPECT_TRUE(told.contains(LogsAside(left).value(0))) << told.toStdString();
}

}
