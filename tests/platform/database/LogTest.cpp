#include "tests/platform/database/DatabaseTest.h"
#include "tests/support/FaultyDisk.h"

#include "platform/database/Transaction.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The log beside the books: how it is folded, whose it is, and what is told when it isn't whole.
class LogTest : public DatabaseTest {
protected:
    LogTest() { connection.Fold(); }

    void Add(const char* town)
    {
        Transaction saving(connection);
        connection.Execute(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                               .arg(QLatin1String(town)));
        saving.Commit();
    }

    QString Towns() { return TownsOf(connection); }

    static QString TownsOf(Connection& books)
    {
        QStringList towns;
        for (Recordset rows(books, QStringLiteral("select CityName from CityMaster")); !rows.Eof();
             rows.MoveNext())
            towns.append(rows.At(0).Text());
        return towns.join(u' ');
    }

    // A fold that another connection's reading breaks off: the marks of its beginning are in the log, and of
    // the pages some have come into the file.
    void BreakOffAFold()
    {
        m_reader.Open(QStringLiteral("dsn=VetrolanDSN;pwd=") + TestPassword);
        m_reading.emplace(m_reader, QStringLiteral("select * from CityMaster"));
        Add("tIna");
        ASSERT_FALSE(connection.Fold());
    }

    // A folder with file, log and index as a killed program or a power cut leaves them; the engine doesn't
    // get to see that they were copied.
    QString Left(const QString& name)
    {
        const QString to = folder.filePath(name);
        EXPECT_TRUE(QDir().mkpath(to));
        for (const char* ending : {"", "-wal", "-shm"}) {
            const QString from = file + QLatin1String(ending);
            EXPECT_TRUE(!QFile::exists(from) || QFile::copy(from, to + Name + QLatin1String(ending)));
        }
        return to + Name;
    }

    QStringList OpenAgain(const QString& books, const OpeningPlan& plan = {})
    {
        DataSource::Register(QStringLiteral("Left"), books);
        return again.Open(QStringLiteral("dsn=Left;pwd=") + TestPassword, plan);
    }

    // What the opening says when it fails.
    QString Failure(const QString& books, const OpeningPlan& plan = {})
    {
        try {
            OpenAgain(books, plan);
        } catch (const RunTimeError& error) {
            return error.Happened();
        }
        ADD_FAILURE() << "it opened";
        return {};
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile read(path);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly)) << path.toStdString();
        return read.readAll();
    }

    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile write(path);
        ASSERT_TRUE(write.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(write.write(bytes), bytes.size());
    }

    // Makes a file so much younger.
    static void Age(const QString& path, int seconds)
    {
        QFile touched(path);
        ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
        ASSERT_TRUE(touched.setFileTime(
            QFileInfo(path).lastModified().addSecs(seconds), QFileDevice::FileModificationTime));
    }

    static QStringList LogsAside(const QString& books)
    {
        return QFileInfo(books).dir().entryList({QStringLiteral("Morvelta-*.mdb-wal")}, QDir::Files);
    }

    const QString Name = QStringLiteral("/Morvelta.mdb");
    Connection again;

private:
    Connection m_reader;
    std::optional<Recordset> m_reading;
};

constexpr int FrameSize = 24 + DatabaseFile::PageSize;

TEST_F(LogTest, FoldingLeavesNothingInTheLogAndAllInTheFile)
{
    Add("gaava");
    EXPECT_GT(connection.LogSize(), 0);
    EXPECT_TRUE(connection.Fold());
    EXPECT_EQ(connection.LogSize(), 0);
    EXPECT_EQ(QFileInfo(file + QStringLiteral("-wal")).size(), 0);
    const QString alone = folder.filePath(QStringLiteral("alone.mdb"));
    ASSERT_TRUE(QFile::copy(file, alone));
    EXPECT_EQ(OpenAgain(alone), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("gaava"));
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
    EXPECT_EQ(Towns(), QStringLiteral("ek dona"));
}

TEST_F(LogTest, WhileAnotherReadsTheFoldWaitsWithoutWaitingForIt)
{
    Add("ek");
    Connection reader;
    reader.Open(QStringLiteral("dsn=VetrolanDSN;pwd=") + TestPassword);
    {
        const Recordset rows(reader, QStringLiteral("select * from CityMaster"));
        Add("dona");
        EXPECT_FALSE(connection.Fold());
        const qint64 size = connection.LogSize();
        EXPECT_FALSE(connection.Fold());
        EXPECT_EQ(connection.LogSize(), size) << "asking again writes nothing";
    }
    EXPECT_TRUE(connection.Fold());
    Add("tIna");
    const QString left = Left(QStringLiteral("left"));
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona tIna"));
}

TEST_F(LogTest, WhatAKilledProgramLeftIsPlayedInAndFolded)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    Add("tIna");
    const QString left = Left(QStringLiteral("left"));
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona tIna"));
    EXPECT_EQ(again.LogSize(), 0) << "the start folds what it finds";
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, ACleanEndLeavesNoLog)
{
    Add("ek");
    connection.Close();
    EXPECT_FALSE(QFile::exists(file + QStringLiteral("-wal")));
}

TEST_F(LogTest, TheLogOfABackupsSuccessorIsPutAsideAndTold)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("dona");
    connection.Fold();
    Add("tIna");
    const QString left = Left(QStringLiteral("left"));
    Write(left, backup);
    const QStringList notes = OpenAgain(left);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_EQ(LogsAside(left).size(), 1);
    EXPECT_TRUE(notes.first().contains(LogsAside(left).value(0))) << notes.first().toStdString();
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek"));
    EXPECT_TRUE(IsSound(again));
}

TEST_F(LogTest, ABackupOfTheVeryFilePutThereLaterIsTakenAsItIs)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("dona");
    const QString left = Left(QStringLiteral("left"));
    Write(left, backup);
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left).size(), 1);
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek"));
    EXPECT_EQ(LogsAside(left).size(), 1);
}

TEST_F(LogTest, ALogThatIsInTheBooksAlreadyButWasNotEmptiedIsTheirs)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    const QString left = Left(QStringLiteral("left"));
    connection.Fold();
    Write(left, Bytes(file));
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona"));
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
    const QString left = folder.filePath(QStringLiteral("left"));
    ASSERT_TRUE(QDir().mkdir(left));
    const QString books = left + Name;
    ASSERT_EQ(link(file.toLocal8Bit().constData(), books.toLocal8Bit().constData()), 0);
    ASSERT_TRUE(QFile::copy(file + QStringLiteral("-wal"), books + QStringLiteral("-wal")));
    EXPECT_EQ(OpenAgain(books), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona"));
}

TEST_F(LogTest, TheLogOfAnotherSocietyIsPutAside)
{
    Add("ek");
    const QString left = Left(QStringLiteral("left"));
    Connection other;
    const QString stranger = folder.filePath(QStringLiteral("stranger.mdb"));
    other.Create(stranger, TestPassword);
    other.RunScript(QStringLiteral("create table CityMaster(CompanyId INTEGER, CityName TEXT)"));
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
    const QString left = Left(QStringLiteral("left"));
    const QByteArray after = Bytes(left);
    for (int page = 0; page * DatabaseFile::PageSize < after.size(); ++page) {
        const QString part = Left(QStringLiteral("left%1").arg(page));
        QByteArray mixed = after;
        mixed.replace(page * DatabaseFile::PageSize, DatabaseFile::PageSize,
            before.mid(page * DatabaseFile::PageSize, DatabaseFile::PageSize));
        Write(part, mixed);
        Age(part, 3600);
        EXPECT_EQ(OpenAgain(part), QStringList()) << "without page " << page + 1;
        EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona tIna"));
    }
}

TEST_F(LogTest, ABackupThatALogBeingFoldedGoesOnFromIsBroughtToItsEnd)
{
    Add("ek");
    connection.Fold();
    const QByteArray backup = Bytes(file);
    Add("dona");
    BreakOffAFold();
    const QString left = Left(QStringLiteral("left"));
    Write(left, backup);
    Age(left, 3600);
    EXPECT_EQ(OpenAgain(left), QStringList()) << "half folded books look the same, so nothing may be dropped";
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona tIna"));
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
    const QString left = Left(QStringLiteral("left"));
    Write(left, backup);
    EXPECT_EQ(OpenAgain(left).size(), 1);
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek"));
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
    const QString left = Left(QStringLiteral("left"));
    const qsizetype at = backup.size() - 50 * DatabaseFile::PageSize;
    backup[at] = static_cast<char>(backup[at] ^ 4);
    Write(left, backup);
    const QString told = Failure(left);
    EXPECT_TRUE(told.contains(QStringLiteral("damaged"))) << told.toStdString();
    ASSERT_EQ(LogsAside(left).size(), 1);
    EXPECT_TRUE(told.contains(LogsAside(left).value(0))) << told.toStdString();
}

TEST_F(LogTest, ATornFirstPageIsMendedFromTheLog)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    for (const int torn : {16, 512, DatabaseFile::PageSize}) {
        const QString left = Left(QStringLiteral("left%1").arg(torn));
        QByteArray bytes = Bytes(left);
        Write(left, bytes.replace(0, torn, QByteArray(torn, char(0x5A))));
        EXPECT_EQ(OpenAgain(left).size(), 1) << torn;
        EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona"));
        EXPECT_TRUE(IsSound(again));
        again.Close();
        EXPECT_EQ(OpenAgain(left), QStringList());
    }
}

TEST_F(LogTest, WithoutALogATornFirstPageIsToldAndNothingIsTouched)
{
    Add("ek");
    connection.Close();
    const QByteArray torn = Bytes(file).replace(0, 512, QByteArray(512, '\x5A'));
    Write(file, torn);
    EXPECT_TRUE(Failure(file).contains(QStringLiteral("not a database")));
    EXPECT_EQ(Bytes(file), torn);
}

TEST_F(LogTest, BooksOfAnotherPasswordAreNotMendedWithTheLogBesideThem)
{
    Add("ek");
    const QString left = Left(QStringLiteral("left"));
    Connection other;
    const QString stranger = folder.filePath(QStringLiteral("stranger.mdb"));
    other.Create(stranger, QStringLiteral("another"));
    other.RunScript(QStringLiteral("create table CityMaster(CompanyId INTEGER, CityName TEXT)"));
    other.Close();
    const QByteArray bytes = Bytes(stranger);
    Write(left, bytes);
    EXPECT_TRUE(Failure(left).contains(QStringLiteral("password is wrong")));
    EXPECT_EQ(Bytes(left), bytes);
}

// Each flipped bit behind which a commit stands is told; the entries before it are there.
TEST_F(LogTest, ADamagedPlaceInTheLogIsToldWithTheEntriesBehindIt)
{
    const QStringList towns = {QStringLiteral("ek"), QStringLiteral("dona"), QStringLiteral("tIna"),
        QStringLiteral("caar"), QStringLiteral("paaca")};
    QList<qint64> ends = {0};
    for (const QString& town : towns) {
        Add(town.toLatin1().constData());
        ends.append(connection.LogSize());
    }
    for (int hit = 0; hit < towns.size(); ++hit) {
        const QString left = Left(QStringLiteral("left%1").arg(hit));
        QByteArray log = Bytes(left + QStringLiteral("-wal"));
        const qint64 at = (ends[hit] == 0 ? 32 : ends[hit]) + FrameSize / 2;
        log[at] = static_cast<char>(log[at] ^ 0x10);
        Write(left + QStringLiteral("-wal"), log);
        const QStringList notes = OpenAgain(left);
        ASSERT_EQ(notes.size(), 1) << hit;
        EXPECT_EQ(TownsOf(again), towns.mid(0, hit).join(u' '));
        const auto lost = QStringLiteral("About %1 entries").arg(towns.size() - hit);
        EXPECT_TRUE(notes.first().contains(lost)) << notes.first().toStdString();
        EXPECT_TRUE(
            notes.first().contains(QFileInfo(left).lastModified().toString(QStringLiteral("dd/MM/yyyy HH"))));
        EXPECT_EQ(LogsAside(left).size(), 1) << "for whoever can read more of it";
    }
}

// The page that says that a fold begins holds no entry. A power cut while it was written, without an index
// that knows of it, has lost nothing; once it was committed, a broken one is damage like any other.
TEST_F(LogTest, AFoldWhoseBeginningIsHalfWrittenIsNoLostEntry)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    const qint64 entries = connection.LogSize();
    Connection reader;
    reader.Open(QStringLiteral("dsn=VetrolanDSN;pwd=") + TestPassword);
    const Recordset rows(reader, QStringLiteral("select * from CityMaster"));
    Add("tIna");
    const qint64 withTheLast = connection.LogSize();
    ASSERT_FALSE(connection.Fold());
    ASSERT_EQ(connection.LogSize(), withTheLast + FrameSize);
    const auto broken = [&](const QString& left, qint64 at) {
        QByteArray bytes = Bytes(left + QStringLiteral("-wal"));
        bytes[at] = static_cast<char>(bytes[at] ^ 0x10);
        Write(left + QStringLiteral("-wal"), bytes);
    };

    const QString cut = Left(QStringLiteral("cut"));
    ASSERT_TRUE(QFile::remove(cut + QStringLiteral("-shm")));
    broken(cut, withTheLast + FrameSize / 2);
    EXPECT_EQ(OpenAgain(cut), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona tIna"));

    const QString damaged = Left(QStringLiteral("damaged"));
    broken(damaged, withTheLast + FrameSize / 2);
    EXPECT_EQ(OpenAgain(damaged).size(), 1) << "the index knows of it";
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona tIna"));

    const QString lost = Left(QStringLiteral("lost"));
    ASSERT_TRUE(QFile::remove(lost + QStringLiteral("-shm")));
    broken(lost, entries + FrameSize / 2);
    const QStringList notes = OpenAgain(lost);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes.first().contains(QStringLiteral("About 1 entries"))) << notes.first().toStdString();
}

TEST_F(LogTest, ADamagedHeadOfTheLogIsToldWithAllItsEntries)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    Add("tIna");
    const QString left = Left(QStringLiteral("left"));
    QByteArray log = Bytes(left + QStringLiteral("-wal"));
    log[20] = static_cast<char>(log[20] ^ 1);
    Write(left + QStringLiteral("-wal"), log);
    const QStringList notes = OpenAgain(left);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes.first().contains(QStringLiteral("About 2 entries"))) << notes.first().toStdString();
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek"));
}

TEST_F(LogTest, ALogThatWasCutShortIsToldByTheIndexBesideIt)
{
    for (const char* town : {"ek", "dona", "tIna", "caar"})
        Add(town);
    const qint64 whole = connection.LogSize();
    for (const qint64 size : {whole - 1, whole - FrameSize, whole / 2, qint64(32 + FrameSize)}) {
        const QString left = Left(QStringLiteral("left%1").arg(size));
        ASSERT_TRUE(QFile::resize(left + QStringLiteral("-wal"), size));
        EXPECT_EQ(OpenAgain(left).size(), 1) << size;
        EXPECT_TRUE(IsSound(again));
    }
}

TEST_F(LogTest, AnUnfinishedEntryAtTheEndIsNoDamage)
{
    Add("ek");
    const qint64 first = connection.LogSize();
    const QString whole = Left(QStringLiteral("whole"));
    Add("dona");
    const QByteArray log = Bytes(file + QStringLiteral("-wal"));
    for (qint64 size = first; size < log.size(); size += FrameSize / 3) {
        const QString left = folder.filePath(QStringLiteral("left%1").arg(size));
        ASSERT_TRUE(QDir().mkdir(left));
        ASSERT_TRUE(QFile::copy(whole, left + Name));
        ASSERT_TRUE(QFile::copy(whole + QStringLiteral("-shm"), left + Name + QStringLiteral("-shm")));
        Write(left + Name + QStringLiteral("-wal"), log.left(size));
        EXPECT_EQ(OpenAgain(left + Name), QStringList()) << size;
        EXPECT_EQ(TownsOf(again), QStringLiteral("ek"));
    }
}

TEST_F(LogTest, ADamagedPageIsFoundAfterAnUncleanEndAndItsTableNamed)
{
    {
        Transaction filling(connection);
        for (int i = 0; i < 3000; ++i)
            connection.Execute(
                QStringLiteral("insert into CityMaster(CompanyId,CityName) values(%1,'a town')").arg(i));
        filling.Commit();
    }
    connection.Fold();
    const QByteArray sound = Bytes(file);
    Add("ek");
    OpeningPlan plan;
    plan.newestBackup = QStringLiteral("D:/Backup/2026.mdb");
    int checks = 0;
    plan.checking = [&] { ++checks; };
    int named = 0;
    for (qint64 at = sound.size() * 3 / 4; at > sound.size() / 2; at -= 3 * DatabaseFile::PageSize + 100) {
        const QString left = Left(QStringLiteral("left%1").arg(at));
        Write(left, QByteArray(sound).replace(at, 1, QByteArray(1, static_cast<char>(sound[at] ^ 4))));
        const QByteArray log = Bytes(left + QStringLiteral("-wal"));
        const QString told = Failure(left, plan);
        named += told.contains(QStringLiteral("CityMaster")) ? 1 : 0;
        EXPECT_TRUE(told.contains(plan.newestBackup));
        EXPECT_EQ(Bytes(left + QStringLiteral("-wal")), log) << "nothing is folded into damaged books";
    }
    EXPECT_GT(named, 3);
    EXPECT_GE(checks, named);
}

TEST_F(LogTest, AfterACleanEndThePagesAreReadOnlyWhenAsked)
{
    Add("ek");
    connection.Close();
    int checks = 0;
    OpeningPlan plan;
    plan.checking = [&] { ++checks; };
    OpenAgain(file, plan);
    EXPECT_EQ(checks, 0);
    plan.checksPages = true;
    OpenAgain(file, plan);
    EXPECT_EQ(checks, 1);
}

TEST_F(LogTest, WithNoRoomToLookAtItTheRightfulLogStaysWhereItIs)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    const QString left = Left(QStringLiteral("left"));
    // No file can grow any more, as on a full disk.
    signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit none{0, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    const QString told = Failure(left);
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_TRUE(told.contains(QStringLiteral("disk is full"))) << told.toStdString();
    EXPECT_EQ(LogsAside(left), QStringList());
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek dona"));
}

TEST_F(LogTest, AFullDiskIsNoDamagedPage)
{
    Add("ek");
    connection.Close();
    OpeningPlan plan;
    plan.checksPages = true;
    FaultyDisk::Reset();
    FaultyDisk::Install();
    FaultyDisk::NoRoomForAnIndex();
    const QString told = Failure(file, plan);
    FaultyDisk::Reset();
    EXPECT_TRUE(told.contains(QStringLiteral("disk is full"))) << told.toStdString();
    EXPECT_EQ(OpenAgain(file, plan), QStringList());
}

TEST_F(LogTest, WhatAFullDiskKeepsFromBeingFoldedStaysInTheLogAtTheEndToo)
{
    connection.Close();
    FaultyDisk::Reset();
    FaultyDisk::Install();
    Open();
    Add("ek");
    FaultyDisk::FullFrom(1);
    EXPECT_FALSE(connection.Fold());
    const QByteArray before = Bytes(file);
    connection.Close();
    FaultyDisk::Reset();
    EXPECT_EQ(Bytes(file), before) << "a closing that breaks off must not leave books that no log names";
    const QString left = Left(QStringLiteral("left"));
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), QStringLiteral("ek"));
}

TEST_F(LogTest, BooksThatMayNotBeWrittenAreRefusedAtTheStart)
{
    connection.Close();
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const QByteArray before = Bytes(file);
    EXPECT_TRUE(Failure(file).contains(QStringLiteral("can't be written")));
    EXPECT_EQ(Bytes(file), before);
    EXPECT_FALSE(QFile::exists(file + QStringLiteral("-wal")));
}

}
