#include "backups/BooksCopies.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/RunTimeError.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"
#include "tests/support/FaultyDisk.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

// Copying the books and bringing a copy back, with the disk failing at each of the writes: the older copy or
// the new one, the books or the copy of them, never neither. The older copies are the books of no member.
class BackupPowerCutTest : public ProgramTest, public ::testing::WithParamInterface<Action> {
protected:
    void SetUp() override
    {
        FaultyDisk::Reset();
        FaultyDisk::InstallForCopies();
        gCn.Close();
        m_older = Bytes(Books);
        m_olderRows = RowsOfBooks();
        Reopen();
        FillBooks();
        gCn.Close();
        m_newer = Bytes(Books);
        m_newerRows = RowsOfBooks();
        Renew();
        Start([this](Clerk& clerk) {
            clerk.Type(OpeningKeys() + GetParam().way);
            FaultyDisk::Reset();
            clerk.Type(GetParam().keys);
            m_writes = FaultyDisk::Count();
        });
        FaultyDisk::Reset();
        ASSERT_TRUE(IsDone());
        ASSERT_GE(m_writes, 4);
    }

    void TearDown() override { FaultyDisk::Reset(); }

    bool IsRestore() const { return GetParam().name == u"Restore"; }

    static QByteArray Bytes(const QString& name)
    {
        QFile file(LocalAppFile(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void Put(const QString& name, const QByteArray& bytes)
    {
        QFile file(LocalAppFile(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QStringList Copies() { return QDir(LocalAppFile(u"Backup")).entryList({"*.mdb"}, QDir::Files); }

    QStringList RowsOfBooks()
    {
        Reopen();
        EXPECT_EQ(Integrity(), "ok");
        QStringList rows = AllRows();
        gCn.Close();
        TheBox.Shown.clear();
        return rows;
    }

    // The books with their rows, and older copies under all names.
    void Renew()
    {
        gCn.Close();
        for (const QString& name : QDir(LocalPath(Paths::AppFolder)).entryList({"Morvelta*"}, QDir::Files))
            ASSERT_TRUE(QFile::remove(FolderFile(name)));
        QDir backup(LocalAppFile(u"Backup"));
        for (const QString& name : backup.entryList(QDir::Files))
            ASSERT_TRUE(backup.remove(name));
        Put(Books, m_newer);
        for (const char* copy : {"Morvelta.mdb", "Morvelta On 15 April 2026.mdb", "Y2026-2027C1.mdb"})
            Put(QStringLiteral("Backup/") + copy, m_older);
    }

    int MembersIn(const QString& copy)
    {
        try {
            return static_cast<int>(
                BooksCopies::Check(LocalAppFile(QString("Backup/" + copy)), gAppState.gDbPassword).members);
        } catch (const RunTimeError& error) {
            ADD_FAILURE() << copy.toStdString() << ": " << error.what();
            return -1;
        }
    }

    // Looks at books and copies, all of which must be whole; returns whether the action is done.
    bool IsDone()
    {
        const QStringList rows = RowsOfBooks();
        const bool areOlder = rows == m_olderRows;
        EXPECT_EQ(Difference(areOlder ? m_olderRows : m_newerRows, rows), "");
        EXPECT_TRUE(IsRestore() || !areOlder);
        bool isCopied = false;
        bool isKept = false;
        for (const QString& copy : Copies()) {
            const int members = MembersIn(copy);
            EXPECT_TRUE(members == 0 || members == 3) << copy.toStdString();
            (copy.contains("Before") ? isKept : isCopied) |= members == 3;
        }
        EXPECT_GE(Copies().size(), 3);
        EXPECT_TRUE(!areOlder || isKept) << "the books that were replaced are kept";
        return IsRestore() ? areOlder : isCopied;
    }

    void PlayAndDie(int n)
    {
        const auto other = Processes::Start("other_process", {Drives(), GetParam().name, QString::number(n)});
        ASSERT_TRUE(Processes::WaitForEnd(*other));
        EXPECT_EQ(other->exitCode(), SIGKILL)
            << other->readAllStandardOutput().toStdString() << other->readAllStandardError().toStdString();
    }

    // Plays it on a disk that fails from the n-th write on; returns the exit code.
    int PlayOnDisk(void (*fail)(int), int n)
    {
        const int exitCode = Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + GetParam().way);
            FaultyDisk::Reset();
            fail(n);
            clerk.Type(GetParam().keys);
        });
        FaultyDisk::Reset();
        return exitCode;
    }

    const QString Books = QStringLiteral("Morvelta.mdb");
    int m_writes = 0;

private:
    QByteArray m_older;
    QByteArray m_newer;
    QStringList m_olderRows;
    QStringList m_newerRows;
};

TEST_P(BackupPowerCutTest, KilledAtAnyWriteItIsDoneWholeOrNotAtAll)
{
    int done = 0;
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("killed at write " + std::to_string(n));
        Renew();
        PlayAndDie(n);
        done += IsDone() ? 1 : 0;
    }
    EXPECT_GT(done, 0) << "killed behind the renaming it is done";
    EXPECT_LT(done, m_writes);
}

TEST_P(BackupPowerCutTest, OnADiskThatIsFullOrPulledOutTheProgramSaysSoAndNothingIsLost)
{
    const int noting = IsRestore() ? 0 : 3; // writes at the end of a backup, which note where it lies
    int done = 0;
    for (int n = 1; n <= m_writes && !HasFailure(); ++n)
        for (const auto fail : {FaultyDisk::FullFrom, FaultyDisk::BrokenFrom}) {
            SCOPED_TRACE("failing from write " + std::to_string(n));
            Renew();
            TheBox.Shown.clear();
            const int exitCode = PlayOnDisk(fail, n);
            EXPECT_EQ(Boxes("Run-time error"), exitCode);
            const bool isDone = IsDone();
            EXPECT_TRUE(isDone || exitCode == 1) << "what failed is told";
            if (n > m_writes - noting)
                EXPECT_TRUE(isDone) << "a note that fails takes no backup away";
            else
                done += isDone ? 1 : 0;
        }
    EXPECT_LE(done, 2) << "behind the renaming, where only the folder is synced";
}

INSTANTIATE_TEST_SUITE_P(Copyings, BackupPowerCutTest, testing::ValuesIn(Copyings()),
    [](const testing::TestParamInfo<Action>& played) { return played.param.name.toStdString(); });

}
