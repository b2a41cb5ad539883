#include "tests/backups/BooksCopiesTest.h"
#include "tools/setup/Copies.h"

#include <csignal>
#include <string>

namespace {

// Which books a copy takes the place of, and how.
enum class Replacing {
    Books, // that are closed and have no log, as the backup screen does
    BooksWithALog, // as the installer does: their log is folded first
    BooksWithALogThatStays, // if nobody can fold it
    DamagedBooks // as the installer does, with a log that can't be folded
};

// A restore on a disk that fails, or that is killed, at each of its writes: there are the old books with
// their log or the copy, whole, and the next try brings the copy back. The copy has two members, the old
// books three, and with their log four.
class RestoreFaultsTest : public BooksCopiesTest, public ::testing::WithParamInterface<Replacing> {
protected:
    void SetUp() override
    {
        BooksCopies::BackUp(Books(), Copy, Password);
        m_copy = Bytes(Copy);
        AddMember();
        m_books = Bytes(Books());
        if (GetParam() != Replacing::Books)
            OnBooks([this](Connection& books) {
                AddMemberTo(books);
                m_books = Bytes(Books());
                m_log = Bytes(Log(Books()));
            });
        if (GetParam() == Replacing::DamagedBooks)
            m_books = "nothing of the books is left";
        FaultyDisk::InstallForCopies();
        Renew();
        FaultyDisk::Reset();
        Restore();
        m_writes = FaultyDisk::Count();
        ASSERT_GT(m_writes, 6);
        ExpectDone();
    }

    static QString Log(const QString& books) { return books + "-wal"; }

    // The old books with their log, written the day before.
    void Renew() const
    {
        for (const QString& name : QDir(In({})).entryList({"Morvelta*"}, QDir::Files))
            ASSERT_TRUE(QFile::remove(In(name)));
        for (const QString& name : InBackup())
            ASSERT_TRUE(QFile::remove(In("Backup/" + name)));
        Put(Books(), m_books);
        SetWritten(Books(), Now.addDays(-1));
        if (m_log.isEmpty())
            return;
        Put(Log(Books()), m_log);
        SetWritten(Log(Books()), Now.addDays(-1));
    }

    void Restore() const
    {
        RestorePlan plan = Plan(Copy);
        plan.replacesDamagedBooks = GetParam() == Replacing::BooksWithALogThatStays;
        if (GetParam() == Replacing::Books || plan.replacesDamagedBooks)
            BooksCopies::Restore(plan);
        else
            RestoreBooks(In({}), Copy, Now);
    }

    bool IsDone() const { return Bytes(Books()) == m_copy; }

    QStringList Kept() const { return QDir(In("Backup")).entryList({"*.mdb"}, QDir::Files); }

    // Opens books with the log that lies beside them, reads each of their pages, and counts. They stay as
    // they are, since it is done with a copy of both that bears their times.
    int MembersIn(const QString& books) const
    {
        QDir(In("looked")).removeRecursively();
        EXPECT_TRUE(QDir().mkpath(In("looked")));
        const QString looked = In("looked/Morvelta.mdb");
        for (const auto& [from, to] : {std::pair(books, looked), std::pair(Log(books), Log(looked))})
            if (QFile::exists(from)) {
                Put(to, Bytes(from));
                SetWritten(to, QFileInfo(from).lastModified());
            }
        DataSource::Register("TestLooked", looked);
        const QString failure = FailureOf([&] {
            Connection opened;
            opened.Open(QStringLiteral("dsn=TestLooked;pwd=") + Password);
            opened.Close();
        });
        EXPECT_EQ(failure, QString()) << books.toStdString();
        return failure.isEmpty() ? static_cast<int>(BooksCopies::Check(looked, Password).members) : -1;
    }

    void ExpectOld(const QString& books) const
    {
        SCOPED_TRACE(books.toStdString());
        if (GetParam() == Replacing::DamagedBooks) {
            EXPECT_TRUE(Bytes(books) == m_books);
            EXPECT_TRUE(Bytes(Log(books)) == m_log);
        } else {
            EXPECT_EQ(MembersIn(books), GetParam() == Replacing::Books ? 3 : 4);
        }
    }

    void ExpectDone() const
    {
        EXPECT_TRUE(IsDone());
        EXPECT_EQ(MembersIn(Books()), 2);
        EXPECT_GE(Kept().size(), 1);
        for (const QString& kept : Kept())
            ExpectOld(In("Backup/" + kept));
    }

    // Returns whether it is done; if not, it is by the next try.
    bool ExpectOldOrDone() const
    {
        const bool isDone = IsDone();
        if (!isDone) {
            ExpectOld(Books());
            for (const QString& kept : Kept())
                ExpectOld(In("Backup/" + kept));
            Restore();
        }
        ExpectDone();
        return isDone;
    }

    const QString Copy = In("copy.mdb");
    int m_writes = 0;

private:
    QByteArray m_copy;
    QByteArray m_books;
    QByteArray m_log;
};

TEST_P(RestoreFaultsTest, OnADiskThatIsFullOrBrokenItIsToldAndTheOldBooksStay)
{
    for (int n = 1; n <= m_writes && !HasFailure(); ++n)
        for (const auto fail : {FaultyDisk::FullFrom, FaultyDisk::BrokenFrom}) {
            SCOPED_TRACE("failing from write " + std::to_string(n));
            Renew();
            FaultyDisk::Reset();
            fail(n);
            const QString told = FailureOf([this] { Restore(); });
            FaultyDisk::Reset();
            for (const QString& folder : {In({}), In("Backup")})
                EXPECT_EQ(QDir(folder).entryList({"*.part"}), QStringList());
            EXPECT_EQ(ExpectOldOrDone(), told.isEmpty()) << told.toStdString();
            EXPECT_EQ(n == m_writes, told.isEmpty()) << "behind the renaming only the folder is synced";
            EXPECT_TRUE(told.isEmpty() || told.contains("काहीही जतन झाले नाही")
                || told.contains("जुनी फाइल आहे तशीच आहे"))
                << told.toStdString();
        }
}

TEST_P(RestoreFaultsTest, KilledAtAnyWriteItIsDoneWholeOrNotAtAll)
{
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("killed at write " + std::to_string(n));
        Renew();
        FaultyDisk::Reset();
        FaultyDisk::KillAt(n);
        EXPECT_EXIT(Restore(), testing::KilledBySignal(SIGKILL), "");
        FaultyDisk::Reset();
        EXPECT_EQ(ExpectOldOrDone(), n == m_writes) << "only behind the renaming it is done";
    }
}

std::string NameOf(const testing::TestParamInfo<Replacing>& replaced)
{
    constexpr const char* names[] = {"Books", "BooksWithALog", "BooksWithALogThatStays", "DamagedBooks"};
    return names[static_cast<int>(replaced.param)];
}

INSTANTIATE_TEST_SUITE_P(Each, RestoreFaultsTest,
    testing::Values(Replacing::Books, Replacing::BooksWithALog, Replacing::BooksWithALogThatStays,
        Replacing::DamagedBooks),
    NameOf);

}
