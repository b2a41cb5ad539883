#include "platform/database/Transaction.h"

#include "tests/platform/database/DatabaseTest.h"
#include "tests/support/FaultyDisk.h"

#include <sys/wait.h>
#include <unistd.h>

namespace {

class TransactionTest : public DatabaseTest {
protected:
    TransactionTest()
    {
        FaultyDisk::Reset();
        FaultyDisk::Install();
        connection.Close();
        Open();
    }
    ~TransactionTest() override { FaultyDisk::Reset(); }

    // Five writes into three tables, together.
    static void Save(Connection& books)
    {
        Transaction transaction(books);
        books.Execute("insert into CityMaster(CompanyId,CityName) values(1,'a')");
        books.Execute("insert into BankMaster(CompanyId,BankName) values(1,'b')");
        books.Execute("insert into FatDates(FromDate,FatFileName) values('15/04/2026','f')");
        books.Execute("update CityMaster set CityName='c' where CompanyId=1");
        books.Execute("insert into CityMaster(CompanyId,CityName) values(2,'d')");
        transaction.Commit();
    }

    bool SaveFails(Connection& books)
    {
        try {
            Save(books);
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.Happened().contains("disk is full")
                || error.Happened().contains("transaction was rolled back"))
                << error.what();
            return true;
        }
        return false;
    }

    // 0 or 5: how much of Save is there.
    int Saved()
    {
        const int cities = One("select count(*) from CityMaster").toInt();
        const int changed = One("select count(*) from CityMaster where CityName='c'").toInt();
        return cities + changed + One("select count(*) from BankMaster").toInt()
            + One("select count(*) from FatDates").toInt();
    }

    void Clear()
    {
        Run("delete * from CityMaster");
        Run("delete * from BankMaster");
        Run("delete * from FatDates");
    }

    void Reopen()
    {
        connection.Close();
        Open();
    }
};

TEST_F(TransactionTest, CommitsOrRollsBack)
{
    Save(connection);
    Reopen();
    EXPECT_EQ(Saved(), 5);
    Clear();
    {
        Transaction transaction(connection);
        Run("insert into CityMaster(CompanyId,CityName) values(1,'a')");
        EXPECT_EQ(Saved(), 1);
    }
    EXPECT_EQ(Saved(), 0);
}

TEST_F(TransactionTest, JoinsTheOuterOne)
{
    {
        Transaction outer(connection);
        Save(connection);
    }
    EXPECT_EQ(Saved(), 0);
    {
        Transaction outer(connection);
        Save(connection);
        outer.Commit();
    }
    EXPECT_EQ(Saved(), 5);
}

TEST_F(TransactionTest, AnInnerOneGivenUpGivesUpTheWhole)
{
    Transaction outer(connection);
    Run("insert into CityMaster(CompanyId,CityName) values(1,'a')");
    {
        Transaction inner(connection);
    }
    EXPECT_THROW(outer.Commit(), RunTimeError);
    EXPECT_EQ(Saved(), 0);
    Save(connection);
    EXPECT_EQ(Saved(), 5);
}

TEST_F(TransactionTest, OutlivesItsConnection)
{
    {
        Transaction transaction(connection);
        Run("insert into CityMaster(CompanyId,CityName) values(1,'a')");
        Reopen();
    }
    EXPECT_EQ(Saved(), 0);
    Save(connection);
    EXPECT_EQ(Saved(), 5);
}

TEST_F(TransactionTest, TakesBackATable)
{
    {
        Transaction transaction(connection);
        Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
        Run("insert into Fat150307 values(4,5,6)");
    }
    EXPECT_EQ(ErrorOf("select * from Fat150307"), RunTimeError::DatabaseFailure);
    Run("create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    EXPECT_TRUE(Rows("select * from Fat150307").Eof());
}

TEST_F(TransactionTest, IsAllOrNothingOnAFullDisk)
{
    FaultyDisk::Reset();
    Save(connection);
    const int writes = FaultyDisk::Count();
    ASSERT_GE(writes, 5);
    for (int n = 1; n <= writes + 1; ++n) {
        Clear();
        Reopen();
        FaultyDisk::Reset();
        FaultyDisk::FullFrom(n);
        const bool failed = SaveFails(connection);
        FaultyDisk::Reset();
        EXPECT_EQ(Saved(), failed ? 0 : 5) << "full from " << n;
        Reopen();
        EXPECT_EQ(Saved(), failed ? 0 : 5) << "full from " << n;
        EXPECT_TRUE(IsSound(connection));
        EXPECT_EQ(failed, n <= writes);
    }
}

TEST_F(TransactionTest, ADiskWithoutRoomForTheIndexOfTheLogIsToldAsFullAtTheOpening)
{
    connection.Close();
    FaultyDisk::NoRoomForAnIndex();
    try {
        Open();
        ADD_FAILURE() << "the books were opened";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Happened().contains("The disk is full")) << error.what();
        EXPECT_FALSE(error.Happened().contains("can't be read")) << error.what();
    }
    FaultyDisk::Reset();
    Open();
    Save(connection);
    EXPECT_EQ(Saved(), 5);
}

TEST_F(TransactionTest, WorksAgainOnceTheDiskHasRoom)
{
    FaultyDisk::FullFrom(2);
    EXPECT_TRUE(SaveFails(connection));
    FaultyDisk::Reset();
    Save(connection);
    EXPECT_EQ(Saved(), 5);
}

TEST_F(TransactionTest, AFailedCommitSaysThatItIsNotKnownWhetherTheEntryWasKept)
{
    Save(connection);
    FaultyDisk::Reset();
    Save(connection);
    const int writes = FaultyDisk::Count();
    for (int n = 1; n <= writes; ++n) {
        FaultyDisk::Reset();
        FaultyDisk::FullFrom(n);
        try {
            Save(connection);
            ADD_FAILURE() << "full from " << n;
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.Happened().contains("It is not known whether the last entry was kept"));
            EXPECT_TRUE(error.Happened().contains("ते माहीत नाही"));
            EXPECT_TRUE(error.Happened().contains("The disk is full"));
            EXPECT_FALSE(error.Happened().contains("nothing was saved"));
        }
    }
    FaultyDisk::Reset();
}

TEST_F(TransactionTest, ASyncThatFailsAtTheCommitSaysToCheckTheDiskAndToLookForTheEntry)
{
    Save(connection);
    FaultyDisk::Reset();
    Save(connection);
    const int lastSync = FaultyDisk::Count();
    for (int n = 1; n <= lastSync; ++n) {
        FaultyDisk::Reset();
        FaultyDisk::BrokenFrom(n);
        try {
            Save(connection);
            ADD_FAILURE() << "broken from " << n;
        } catch (const RunTimeError& error) {
            const QString told = error.Happened();
            EXPECT_TRUE(told.contains("The disk can't be written. It is not known")) << n;
            EXPECT_TRUE(told.contains("डिस्क तपासा")) << n;
            EXPECT_FALSE(told.contains("full")) << n;
        }
    }
    FaultyDisk::Reset();
}

TEST_F(TransactionTest, AFailureInsideLeavesNothingToCommit)
{
    FaultyDisk::FullFrom(1);
    Transaction transaction(connection);
    Run("insert into CityMaster(CompanyId,CityName) values(1,'a')");
    EXPECT_THROW(transaction.Commit(), RunTimeError);
    FaultyDisk::Reset();
    EXPECT_EQ(Saved(), 0);
}

TEST_F(TransactionTest, IsAllOrNothingWhenThePowerFails)
{
    connection.Close();
    // A child counts its writes from the opening to the end of the saving, then a child dies at each of them.
    const auto child = [&](int killAt) {
        const pid_t pid = fork();
        if (pid == 0) {
            FaultyDisk::Reset();
            if (killAt > 0)
                FaultyDisk::KillAt(killAt);
            Connection books;
            books.Open("dsn=VetrolanDSN;pwd=" + TestPassword);
            Save(books);
            books.Close();
            _exit(FaultyDisk::Count());
        }
        int status = 0;
        waitpid(pid, &status, 0);
        return status;
    };
    const int whole = child(0);
    ASSERT_TRUE(WIFEXITED(whole));
    const int writes = WEXITSTATUS(whole);
    ASSERT_GE(writes, 5);
    bool wasNothing = false;
    bool wasAll = false;
    for (int n = 1; n <= writes; ++n) {
        Open();
        Clear();
        connection.Close();
        const int status = child(n);
        ASSERT_TRUE(WIFSIGNALED(status)) << n;
        EXPECT_EQ(WTERMSIG(status), SIGKILL);
        Open();
        const int saved = Saved();
        EXPECT_TRUE(saved == 0 || saved == 5) << "killed at " << n << ": " << saved;
        EXPECT_TRUE(IsSound(connection));
        wasNothing = wasNothing || saved == 0;
        wasAll = wasAll || saved == 5;
        connection.Close();
    }
    EXPECT_TRUE(wasNothing);
    EXPECT_TRUE(wasAll);
}

}
