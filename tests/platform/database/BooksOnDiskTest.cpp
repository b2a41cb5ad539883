#include "tests/platform/database/DatabaseTest.h"
#include "tests/support/BooksFile.h"

#include "platform/database/Transaction.h"

#include <QFile>

#include <cstdio>

namespace {

// What happens to books and log from outside while they are open.
class BooksOnDiskTest : public DatabaseTest {
protected:
    void Add(int number)
    {
        connection.Execute(
            QStringLiteral("insert into CityMaster(CompanyId,CityName) values(%1,'a')").arg(number));
    }

    // What a save says now; empty if it goes well.
    QString Refusal()
    {
        try {
            Transaction saving(connection);
            Add(99);
            saving.Commit();
        } catch (const RunTimeError& error) {
            return error.Happened();
        }
        return {};
    }

    // The next save says that the log was removed; what was saved before, two rows, is in the books.
    void ExpectToldAndBothRowsKept()
    {
        EXPECT_TRUE(Refusal().contains("log beside the database file was removed"));
        connection.Close();
        Open();
        EXPECT_EQ(One("select count(*) from CityMaster"), "2");
        EXPECT_TRUE(IsSound(connection));
    }

    QByteArray Bytes()
    {
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }

    // As a copy over the file does it: the same file, other bytes.
    void Overwrite(const QByteArray& bytes)
    {
        QFile write(file);
        ASSERT_TRUE(write.open(QIODevice::ReadWrite));
        ASSERT_EQ(write.write(bytes), bytes.size());
    }

    // A backup, and behind it two rounds of which one is folded. Books and backup are of one size, so that it
    // isn't the size that tells them apart.
    QByteArray BackupBehindTwoFolds()
    {
        Add(1);
        connection.Fold();
        const QByteArray backup = Bytes();
        Add(2);
        connection.Fold();
        Add(3);
        EXPECT_EQ(Bytes().size(), backup.size());
        return backup;
    }

    void FoldByAnother(const char* way = "restart") const
    {
        sqlite3* other = nullptr;
        ASSERT_EQ(sqlite3_open(file.toUtf8().constData(), &other), SQLITE_OK);
        const QByteArray statements = "pragma key='" + TestPassword.toUtf8().replace("'", "''")
            + "'; pragma cipher_page_size=1024; pragma wal_checkpoint(" + QByteArray(way) + ")";
        ASSERT_EQ(sqlite3_exec(other, statements.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(other);
    }

    int LocksOn() const { return BooksFile::LocksOn(file.toStdString()); }
    QString Log() const { return file + "-wal"; }
};

TEST_F(BooksOnDiskTest, TheEnginesLockStandsWhileAnotherConnectionComesAndGoes)
{
    Add(1);
    ASSERT_EQ(LocksOn(), 1);
    for (int i = 0; i < 3; ++i) {
        {
            Connection reader;
            reader.Open("dsn=VetrolanDSN;pwd=" + TestPassword);
            EXPECT_FALSE(Recordset(reader, "select * from CityMaster").Eof());
            EXPECT_EQ(LocksOn(), 1);
        }
        EXPECT_EQ(LocksOn(), 1);
    }
    connection.Fold();
    EXPECT_EQ(LocksOn(), 1);
    connection.Close();
    EXPECT_EQ(LocksOn(), 0);
}

TEST_F(BooksOnDiskTest, ARemovedLogIsToldAndWhatItHeldIsInTheBooks)
{
    Add(1);
    Add(2);
    ASSERT_TRUE(QFile::remove(Log()));
    ExpectToldAndBothRowsKept();
}

TEST_F(BooksOnDiskTest, ALogThatIsRemovedDuringASaveIsToldAndTheSaveIsInTheBooks)
{
    Add(1);
    Transaction saving(connection);
    Add(2);
    ASSERT_TRUE(QFile::remove(Log()));
    saving.Commit();
    ExpectToldAndBothRowsKept();
}

TEST_F(BooksOnDiskTest, ALogThatIsMadeAnewByAnotherProgramDuringASaveIsTold)
{
    Add(1);
    Transaction saving(connection);
    Add(2);
    ASSERT_TRUE(QFile::remove(Log()));
    QFile made(Log());
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.close();
    saving.Commit();
    ExpectToldAndBothRowsKept();
}

TEST_F(BooksOnDiskTest, BooksThatWereReplacedAreToldAndLeftAsTheyAre)
{
    Add(1);
    connection.Fold();
    const QByteArray backup = Bytes();
    Add(2);
    const QString other = folder.filePath("other");
    QFile made(other);
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.write(backup);
    made.close();
    ASSERT_EQ(rename(other.toLocal8Bit().constData(), file.toLocal8Bit().constData()), 0);
    EXPECT_TRUE(Refusal().contains("was replaced"));
    connection.Close();
    EXPECT_EQ(Bytes(), backup);
}

TEST_F(BooksOnDiskTest, BooksThatWereOverwrittenAreToldAndLeftAsTheyAre)
{
    const QByteArray backup = BackupBehindTwoFolds();
    Overwrite(backup);
    EXPECT_TRUE(Refusal().contains("was replaced"));
    connection.Close();
    EXPECT_EQ(Bytes(), backup);
}

TEST_F(BooksOnDiskTest, AFoldGoesIntoNoBooksThatWereOverwritten)
{
    const QByteArray backup = BackupBehindTwoFolds();
    Overwrite(backup);
    EXPECT_FALSE(connection.Fold());
    connection.Close();
    EXPECT_EQ(Bytes(), backup);
}

TEST_F(BooksOnDiskTest, NorDoesTheFoldOfTheConnectionThatReportsAreReadOn)
{
    Connection reader;
    reader.Open("dsn=VetrolanDSN;pwd=" + TestPassword);
    const QByteArray backup = BackupBehindTwoFolds();
    Overwrite(backup);
    EXPECT_TRUE(Refusal().contains("was replaced"));
    reader.Close();
    connection.Close();
    EXPECT_EQ(Bytes(), backup);
}

// A report is the first to open a second connection, and doesn't write.
TEST_F(BooksOnDiskTest, BooksThatWereOverwrittenBeforeASecondConnectionCameAreTold)
{
    const QByteArray backup = BackupBehindTwoFolds();
    Overwrite(backup);
    Connection reader;
    EXPECT_THROW(reader.Open("dsn=VetrolanDSN;pwd=" + TestPassword), RunTimeError);
    EXPECT_TRUE(Refusal().contains("was replaced"));
    connection.Close();
    EXPECT_EQ(Bytes(), backup);
}

TEST_F(BooksOnDiskTest, ALogThatWasRemovedBeforeASecondConnectionCameIsTold)
{
    Add(1);
    Add(2);
    ASSERT_TRUE(QFile::remove(Log()));
    Connection reader;
    EXPECT_THROW(reader.Open("dsn=VetrolanDSN;pwd=" + TestPassword), RunTimeError);
    ExpectToldAndBothRowsKept();
}

TEST_F(BooksOnDiskTest, ARemovedLogThatAnotherProgramMadeAnewIsToldAllTheSame)
{
    Add(1);
    ASSERT_TRUE(QFile::remove(Log()));
    QFile made(Log());
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.close();
    connection.Fold();
    EXPECT_TRUE(Refusal().contains("log beside the database file was removed"));
    const QString alone = folder.filePath("alone.mdb");
    ASSERT_TRUE(QFile::copy(file, alone));
    DataSource::Register("Alone", alone);
    Connection again;
    again.Open("dsn=Alone;pwd=" + TestPassword);
    EXPECT_EQ(Recordset(again, "select count(*) from CityMaster").At(0).Text(), "1")
        << "what is said to be kept is in the file already";
}

TEST_F(BooksOnDiskTest, ALogThatWasEmptiedIsToldBehindAFoldToo)
{
    Add(1);
    ASSERT_TRUE(QFile::resize(Log(), 0));
    EXPECT_FALSE(connection.Fold());
    EXPECT_TRUE(Refusal().contains("was replaced"));
}

TEST_F(BooksOnDiskTest, BooksThatWereCutShortAreToldAndLeftAsTheyAre)
{
    Add(1);
    connection.Fold();
    Add(2);
    const qint64 size = QFileInfo(file).size() - DatabaseFile::PageSize;
    ASSERT_TRUE(QFile::resize(file, size));
    EXPECT_TRUE(Refusal().contains("was replaced"));
    connection.Close();
    EXPECT_EQ(QFileInfo(file).size(), size);
}

TEST_F(BooksOnDiskTest, ALogThatWasCutShortIsTold)
{
    Add(1);
    connection.Fold();
    const qint64 size = QFileInfo(file).size();
    Add(2);
    ASSERT_TRUE(QFile::resize(Log(), 100));
    EXPECT_TRUE(Refusal().contains("was replaced"));
    connection.Close();
    EXPECT_EQ(QFileInfo(file).size(), size);
}

TEST_F(BooksOnDiskTest, BooksThatAreGoneAreTold)
{
    Add(1);
    ASSERT_TRUE(QFile::rename(file, file + ".away"));
    EXPECT_TRUE(Refusal().contains("was replaced"));
    connection.Close();
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(BooksOnDiskTest, BooksThatWereGoneAreNotTrustedWhenTheyComeBack)
{
    Add(1);
    ASSERT_TRUE(QFile::rename(file, file + ".away"));
    EXPECT_NE(Refusal(), QString());
    ASSERT_TRUE(QFile::rename(file + ".away", file));
    EXPECT_TRUE(Refusal().contains("was replaced")) << "nobody knows what was done to them meanwhile";
}

// The checkpoints that another program may run beside this one.
class OtherFoldTest : public BooksOnDiskTest, public ::testing::WithParamInterface<const char*> { };

INSTANTIATE_TEST_SUITE_P(Ways, OtherFoldTest, ::testing::Values("passive", "full", "restart", "truncate"),
    [](const auto& way) { return std::string(way.param); });

TEST_P(OtherFoldTest, IsNoHarm)
{
    Add(1);
    Add(2);
    FoldByAnother(GetParam());
    EXPECT_EQ(Refusal(), QString());
    Add(3);
    EXPECT_EQ(One("select count(*) from CityMaster"), "4");
    const QString left = folder.filePath("left.mdb");
    ASSERT_TRUE(QFile::copy(file, left));
    ASSERT_TRUE(QFile::copy(Log(), left + "-wal"));
    DataSource::Register("Left", left);
    Connection again;
    EXPECT_EQ(again.Open("dsn=Left;pwd=" + TestPassword), QStringList());
    EXPECT_EQ(Recordset(again, "select count(*) from CityMaster").At(0).Text(), "4");
}

TEST_F(BooksOnDiskTest, AfterAFoldByAnotherProgramTheLogStillBelongsToItsOwnBooksOnly)
{
    Add(1);
    FoldByAnother();
    Add(2);
    const QString restored = folder.filePath("restored.mdb");
    ASSERT_TRUE(QFile::copy(file, restored));
    connection.Fold();
    Add(3);
    ASSERT_TRUE(QFile::copy(Log(), restored + "-wal"));
    DataSource::Register("Restored", restored);
    Connection again;
    const QStringList notes = again.Open("dsn=Restored;pwd=" + TestPassword);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes.first().contains("log of other books")) << notes.first().toStdString();
    EXPECT_EQ(Recordset(again, "select count(*) from CityMaster").At(0).Text(), "1");
}

TEST_F(BooksOnDiskTest, ALogThatWentAfterAFoldByAnotherProgramIsTold)
{
    Add(1);
    Add(2);
    FoldByAnother();
    ASSERT_TRUE(QFile::remove(Log()));
    ExpectToldAndBothRowsKept();
}

}
