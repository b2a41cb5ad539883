// What a kill or a bad disk leaves of copies and of the note where the last one lies.

#include "tests/backups/BooksCopiesTest.h"

#include "platform/database/Disk.h"
#include "tests/support/FaultyDisk.h"

#include <csignal>

namespace {

// A disk that fails at one step of the note where the last backup lies.
class NotelessDisk final : public Disk {
public:
    enum class At { Write, Sync, Move };
    explicit NotelessDisk(At at) : m_at(at) { Use(this); }
    ~NotelessDisk() override { Use(nullptr); }

    std::error_code Write(QFile& file, const QByteArray& bytes) override
    {
        if (!Fails(At::Write, file.fileName()))
            return Disk::Write(file, bytes);
        Disk::Write(file, bytes.left(bytes.size() / 2));
        return std::make_error_code(std::errc::no_space_on_device);
    }
    std::error_code Sync(const QString& path) override
    {
        return Fails(At::Sync, path) ? std::make_error_code(std::errc::io_error) : Disk::Sync(path);
    }
    std::error_code Move(const QString& from, const QString& to) override
    {
        return Fails(At::Move, to) ? std::make_error_code(std::errc::io_error) : Disk::Move(from, to);
    }

private:
    bool Fails(At at, const QString& path) const { return at == m_at && path.contains("LastBackup.txt"); }

    At m_at;
};

TEST_F(BooksCopiesTest, ABackupWhoseNoteCanNotBeWrittenIsMadeAndTheOldNoteStays)
{
    const QString note = In("LastBackup.txt");
    BooksCopies::BackUp(Books(), In("first.mdb"), Password);
    EXPECT_EQ(Bytes(note), In("first.mdb").toUtf8());
    for (const auto at : {NotelessDisk::At::Write, NotelessDisk::At::Sync, NotelessDisk::At::Move}) {
        SCOPED_TRACE(static_cast<int>(at));
        QFile::remove(In("second.mdb"));
        const NotelessDisk disk(at);
        EXPECT_EQ(FailureOf([&] { BooksCopies::BackUp(Books(), In("second.mdb"), Password); }), QString());
        EXPECT_TRUE(Bytes(In("second.mdb")) == Bytes(Books()));
        EXPECT_EQ(Bytes(note), In("first.mdb").toUtf8());
        EXPECT_FALSE(QFile::exists(note + ".part"));
    }
}

TEST_F(BooksCopiesTest, AKillWhileTheNoteIsWrittenLeavesTheOldNote)
{
    const QString note = In("LastBackup.txt");
    FaultyDisk::InstallForCopies();
    FaultyDisk::Reset();
    BooksCopies::BackUp(Books(), In("first.mdb"), Password);
    const int all = FaultyDisk::Count();
    for (int n = 1; n <= all; ++n) {
        FaultyDisk::Reset();
        FaultyDisk::KillAt(n);
        EXPECT_EXIT(
            BooksCopies::BackUp(Books(), In("second.mdb"), Password), testing::KilledBySignal(SIGKILL), "");
        EXPECT_EQ(Bytes(note), In("first.mdb").toUtf8()) << n;
    }
    FaultyDisk::Reset();
    BooksCopies::BackUp(Books(), In("second.mdb"), Password);
    EXPECT_EQ(Bytes(note), In("second.mdb").toUtf8());
    EXPECT_FALSE(QFile::exists(note + ".part"));
}

TEST_F(BooksCopiesTest, WhatAKillHasLeftHalfCopiedIsSwept)
{
    const QString copy = In("copy.mdb");
    for (const bool isRestore : {false, true}) {
        Put(In("Backup/Morvelta On 14 April 2026.mdb.part"), "half");
        Put(In("Backup/Morvelta Before 14 April 2026 183005.mdb-wal.part"), "half");
        Put(In("Backup/Y2026-2027C1.mdb.part"), "half");
        Put(In("Backup/my letter.part"), "letter");
        if (isRestore)
            BooksCopies::Restore(Plan(copy));
        else
            BooksCopies::BackUp(Books(), Copy(), Password);
        EXPECT_EQ(InBackup(),
            isRestore ? QStringList({Replaced, "Morvelta.mdb", "my letter.part"})
                      : QStringList({"Morvelta.mdb", "my letter.part"}));
        ASSERT_TRUE(QFile::exists(copy) || QFile::copy(Copy(), copy));
    }
}

TEST_F(BooksCopiesTest, WhatAKillHasLeftBesideTheBooksIsSwept)
{
    const QString copy = In("copy.mdb");
    for (const bool isRestore : {false, true}) {
        Put(In("Morvelta.mdb.part"), "half");
        Put(In("BackupY2026-2027C1.mdb.part"), "half");
        Put(In("LastBackup.txt.part"), "half");
        Put(In("yearly.mdb.part"), "under a name of the clerk's");
        if (isRestore)
            BooksCopies::Restore(Plan(copy));
        else
            BooksCopies::BackUp(Books(), Copy(), Password);
        EXPECT_EQ(QDir(In({})).entryList({"*.part"}), QStringList("yearly.mdb.part"));
        ASSERT_TRUE(QFile::exists(copy) || QFile::copy(Copy(), copy));
    }
}

// It has the room on the disk that the restore may need.
TEST_F(BooksCopiesTest, WhatAKillHasLeftIsSweptBeforeARestoreWrites)
{
    const QString copy = In("copy.mdb");
    BooksCopies::BackUp(Books(), copy, Password);
    Put(In("Backup/Morvelta Before 14 April 2026 183005.mdb.part"), "half");
    FaultyDisk::InstallForCopies();
    FaultyDisk::Reset();
    FaultyDisk::FullFrom(1);
    EXPECT_TRUE(RestoreFailure(copy).contains("डिस्कवर जागा नाही"));
    FaultyDisk::Reset();
    EXPECT_EQ(InBackup(), QStringList());
}

TEST_F(BooksCopiesTest, AnUnfinishedCopyThatIsToComeBackIsNotSwept)
{
    const QString unfinished = In("Backup/Morvelta On 14 April 2026.mdb.part");
    BooksCopies::BackUp(Books(), unfinished, Password);
    AddMember();
    EXPECT_EQ(BooksCopies::Restore(Plan(unfinished)).members, 2);
    EXPECT_EQ(Members(), 2);
    EXPECT_TRUE(QFile::exists(unfinished));
}

TEST_F(BooksCopiesTest, ACopyUnderAnyNameGoesOverItsUnfinishedOne)
{
    Put(In("Backup/before the bonus.mdb.part"), "half");
    BooksCopies::BackUp(Books(), In("Backup/before the bonus.mdb"), Password);
    EXPECT_EQ(InBackup(), QStringList("before the bonus.mdb"));
}

}
