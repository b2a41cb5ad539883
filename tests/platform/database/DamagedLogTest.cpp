#include "tests/platform/database/LogTest.h"
#include "tests/support/FaultyDisk.h"

#include <csignal>
#include <sys/resource.h>

namespace {

// What is mended and what is told when books or log aren't whole, or can't be read or written.
class DamagedLogTest : public LogTest { };

constexpr int FrameSize = 24 + DatabaseFile::PageSize;

TEST_F(DamagedLogTest, ATornFirstPageIsMendedFromTheLog)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    for (const int torn : {16, 512, DatabaseFile::PageSize}) {
        const QString left = Left(QStringLiteral("left%1").arg(torn));
        QByteArray bytes = Bytes(left);
        Write(left, bytes.replace(0, torn, QByteArray(torn, char(0x5A))));
        EXPECT_EQ(OpenAgain(left).size(), 1) << torn;
        EXPECT_EQ(TownsOf(again), "ek dona");
        EXPECT_TRUE(IsSound(again));
        again.Close();
        EXPECT_EQ(OpenAgain(left), QStringList());
    }
}

TEST_F(DamagedLogTest, WithoutALogATornFirstPageIsToldAndNothingIsTouched)
{
    Add("ek");
    connection.Close();
    const QByteArray torn = Bytes(file).replace(0, 512, QByteArray(512, '\x5A'));
    Write(file, torn);
    EXPECT_TRUE(Failure(file).contains("not a database"));
    EXPECT_EQ(Bytes(file), torn);
}

TEST_F(DamagedLogTest, BooksOfAnotherPasswordAreNotMendedWithTheLogBesideThem)
{
    Add("ek");
    const QString left = Left("left");
    Connection other;
    const QString stranger = folder.filePath("stranger.mdb");
    other.Create(stranger, "another");
    other.RunScript("create table CityMaster(CompanyId INTEGER, CityName TEXT)");
    other.Close();
    const QByteArray bytes = Bytes(stranger);
    Write(left, bytes);
    EXPECT_TRUE(Failure(left).contains("password is wrong"));
    EXPECT_EQ(Bytes(left), bytes);
}

// Each flipped bit behind which a commit stands is told; the entries before it are there.
TEST_F(DamagedLogTest, ADamagedPlaceInTheLogIsToldWithTheEntriesBehindIt)
{
    const QStringList towns = {"ek", "dona", "tIna", "caar", "paaca"};
    QList<qint64> ends = {0};
    for (const QString& town : towns) {
        Add(town.toLatin1().constData());
        ends.append(connection.LogSize());
    }
    for (int hit = 0; hit < towns.size(); ++hit) {
        const QString left = Left(QStringLiteral("left%1").arg(hit));
        QByteArray log = Bytes(left + "-wal");
        const qint64 at = (ends[hit] == 0 ? 32 : ends[hit]) + FrameSize / 2;
        log[at] = static_cast<char>(log[at] ^ 0x10);
        Write(left + "-wal", log);
        const QStringList notes = OpenAgain(left);
        ASSERT_EQ(notes.size(), 1) << hit;
        EXPECT_EQ(TownsOf(again), towns.mid(0, hit).join(u' '));
        const auto lost = QStringLiteral("About %1 entries").arg(towns.size() - hit);
        EXPECT_TRUE(notes.first().contains(lost)) << notes.first().toStdString();
        EXPECT_TRUE(notes.first().contains(QFileInfo(left).lastModified().toString("dd/MM/yyyy HH")));
        EXPECT_EQ(LogsAside(left).size(), 1) << "for whoever can read more of it";
    }
}

// The page that says that a fold begins holds no entry. A power cut while it was written, without an index
// that knows of it, has lost nothing; once it was committed, a broken one is damage like any other.
TEST_F(DamagedLogTest, AFoldWhoseBeginningIsHalfWrittenIsNoLostEntry)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    const qint64 entries = connection.LogSize();
    Connection reader;
    reader.Open("dsn=VetrolanDSN;pwd=" + TestPassword);
    const Recordset rows(reader, "select * from CityMaster");
    Add("tIna");
    const qint64 withTheLast = connection.LogSize();
    ASSERT_FALSE(connection.Fold());
    ASSERT_EQ(connection.LogSize(), withTheLast + FrameSize);
    const auto broken = [&](const QString& left, qint64 at) {
        QByteArray bytes = Bytes(left + "-wal");
        bytes[at] = static_cast<char>(bytes[at] ^ 0x10);
        Write(left + "-wal", bytes);
    };

    const QString cut = Left("cut");
    ASSERT_TRUE(QFile::remove(cut + "-shm"));
    broken(cut, withTheLast + FrameSize / 2);
    EXPECT_EQ(OpenAgain(cut), QStringList());
    EXPECT_EQ(TownsOf(again), "ek dona tIna");

    const QString damaged = Left("damaged");
    broken(damaged, withTheLast + FrameSize / 2);
    EXPECT_EQ(OpenAgain(damaged).size(), 1) << "the index knows of it";
    EXPECT_EQ(TownsOf(again), "ek dona tIna");

    const QString lost = Left("lost");
    ASSERT_TRUE(QFile::remove(lost + "-shm"));
    broken(lost, entries + FrameSize / 2);
    const QStringList notes = OpenAgain(lost);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes.first().contains("About 1 entries")) << notes.first().toStdString();
}

TEST_F(DamagedLogTest, SinceWhenEntriesAreMissingIsToldByTheFileUnlessAFoldWasCutOff)
{
    const auto cutShort = [&](const QString& name, int seconds) {
        const QString left = Left(name);
        QByteArray log = Bytes(left + "-wal");
        log.chop(1);
        Write(left + "-wal", log);
        Age(left, seconds);
        return OpenAgain(left).join(u'\n');
    };
    Add("ek");
    const QString plain = cutShort("plain", 0);
    EXPECT_TRUE(plain.contains("made after")) << plain.toStdString();
    EXPECT_TRUE(plain.contains("नंतरच्या")) << plain.toStdString();

    BreakOffAFold();
    Add("caar");
    const QString cutOff = cutShort("cutOff", 3600);
    EXPECT_TRUE(cutOff.contains("entries may be missing")) << cutOff.toStdString();
    EXPECT_FALSE(cutOff.contains("made after")) << cutOff.toStdString();
    EXPECT_FALSE(cutOff.contains("नंतरच्या")) << cutOff.toStdString();
    EXPECT_EQ(TownsOf(again), "ek tIna");
}

TEST_F(DamagedLogTest, AFoldThatWasCutOffIsKnownByItsPagesThoughTheWordOfItIsLost)
{
    Run("insert into BankMaster(CompanyId,BankName) values(1,'a bank')"); // the page that comes into the file
    Add("ek");
    BreakOffAFold();
    const QString left = Left("left");
    QByteArray log = Bytes(left + "-wal");
    log.chop(FrameSize + 1);
    Write(left + "-wal", log);
    Age(left, 3600);
    const QStringList notes = OpenAgain(left);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes.first().contains("entries may be missing")) << notes.first().toStdString();
    EXPECT_EQ(LogsAside(left).size(), 1) << "the damaged log is kept";
    EXPECT_EQ(TownsOf(again), "ek");
}

TEST_F(DamagedLogTest, ADamagedHeadOfTheLogIsToldWithAllItsEntries)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    Add("tIna");
    const QString left = Left("left");
    QByteArray log = Bytes(left + "-wal");
    log[20] = static_cast<char>(log[20] ^ 1);
    Write(left + "-wal", log);
    const QStringList notes = OpenAgain(left);
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes.first().contains("About 2 entries")) << notes.first().toStdString();
    EXPECT_EQ(TownsOf(again), "ek");
}

TEST_F(DamagedLogTest, ALogThatWasCutShortIsToldByTheIndexBesideIt)
{
    for (const char* town : {"ek", "dona", "tIna", "caar"})
        Add(town);
    const qint64 whole = connection.LogSize();
    for (const qint64 size : {whole - 1, whole - FrameSize, whole / 2, qint64(32 + FrameSize)}) {
        const QString left = Left(QStringLiteral("left%1").arg(size));
        ASSERT_TRUE(QFile::resize(left + "-wal", size));
        EXPECT_EQ(OpenAgain(left).size(), 1) << size;
        EXPECT_TRUE(IsSound(again));
    }
}

TEST_F(DamagedLogTest, AnUnfinishedEntryAtTheEndIsNoDamage)
{
    Add("ek");
    const qint64 first = connection.LogSize();
    const QString whole = Left("whole");
    Add("dona");
    const QByteArray log = Bytes(file + "-wal");
    for (qint64 size = first; size < log.size(); size += FrameSize / 3) {
        const QString left = folder.filePath(QStringLiteral("left%1").arg(size));
        ASSERT_TRUE(QDir().mkdir(left));
        ASSERT_TRUE(QFile::copy(whole, left + Name));
        ASSERT_TRUE(QFile::copy(whole + "-shm", left + Name + "-shm"));
        Write(left + Name + "-wal", log.left(size));
        EXPECT_EQ(OpenAgain(left + Name), QStringList()) << size;
        EXPECT_EQ(TownsOf(again), "ek");
    }
}

TEST_F(DamagedLogTest, ADamagedPageIsFoundAfterAnUncleanEndAndItsTableNamed)
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
    plan.newestBackup = "D:/Backup/2026.mdb";
    int checks = 0;
    plan.checking = [&] { ++checks; };
    int named = 0;
    for (qint64 at = sound.size() * 3 / 4; at > sound.size() / 2; at -= 3 * DatabaseFile::PageSize + 100) {
        const QString left = Left(QStringLiteral("left%1").arg(at));
        Write(left, QByteArray(sound).replace(at, 1, QByteArray(1, static_cast<char>(sound[at] ^ 4))));
        const QByteArray log = Bytes(left + "-wal");
        const QString told = Failure(left, plan);
        named += told.contains("CityMaster") ? 1 : 0;
        EXPECT_TRUE(told.contains(plan.newestBackup));
        EXPECT_EQ(Bytes(left + "-wal"), log) << "nothing is folded into damaged books";
    }
    EXPECT_GT(named, 3);
    EXPECT_GE(checks, named);
}

TEST_F(DamagedLogTest, AfterACleanEndThePagesAreReadOnlyWhenAsked)
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

TEST_F(DamagedLogTest, WithNoRoomToLookAtItTheRightfulLogStaysWhereItIs)
{
    Add("ek");
    connection.Fold();
    Add("dona");
    const QString left = Left("left");
    // No file can grow any more, as on a full disk.
    signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit none{0, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    const QString told = Failure(left);
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_TRUE(told.contains("disk is full")) << told.toStdString();
    EXPECT_EQ(LogsAside(left), QStringList());
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek dona");
}

TEST_F(DamagedLogTest, AFullDiskIsNoDamagedPage)
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
    EXPECT_TRUE(told.contains("disk is full")) << told.toStdString();
    EXPECT_EQ(OpenAgain(file, plan), QStringList());
}

TEST_F(DamagedLogTest, WhatAFullDiskKeepsFromBeingFoldedStaysInTheLogAtTheEndToo)
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
    const QString left = Left("left");
    EXPECT_EQ(OpenAgain(left), QStringList());
    EXPECT_EQ(TownsOf(again), "ek");
}

TEST_F(DamagedLogTest, BooksThatMayNotBeWrittenAreRefusedAtTheStart)
{
    connection.Close();
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const QByteArray before = Bytes(file);
    EXPECT_TRUE(Failure(file).contains("can't be written"));
    EXPECT_EQ(Bytes(file), before);
    EXPECT_FALSE(QFile::exists(file + "-wal"));
}

TEST_F(DamagedLogTest, ALogThatMayNotBeWrittenIsRefusedAtTheStartAndStaysAsItIs)
{
    Add("ek");
    for (const char* ending : {"-wal", "-shm"}) {
        const QString left = Left(QLatin1String(ending));
        const QString log = left + QLatin1String(ending);
        const QByteArray before = Bytes(log);
        ASSERT_TRUE(QFile::setPermissions(log, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        EXPECT_TRUE(Failure(left).contains("can't be written")) << ending;
        EXPECT_EQ(Bytes(log), before) << ending;
    }
}

}
