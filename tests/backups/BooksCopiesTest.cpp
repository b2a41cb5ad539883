#include "backups/BooksCopies.h"
#include "platform/database/CheckedNote.h"
#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/Disk.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/FaultyDisk.h"
#include "tools/setup/Society.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// A society with two members and three deliveries, its books closed.
class BooksCopiesTest : public ::testing::Test {
protected:
    BooksCopiesTest()
    {
        SocietyPlan plan;
        plan.name = "श्री गणेश दूध संस्था";
        plan.year = "2026-2027";
        plan.password = Password;
        plan.now = Now;
        CopySociety(m_folder.path(), plan);
        DataSource::Register("TestCopies", Books());
        OnBooks([](Connection& books) {
            books.RunScript("begin;insert into MembersMaster(CompanyId,MemberNo) values(1,1),(1,2);"
                            "insert into MilkCollections(CompanyId,CollectionDate) "
                            "values(1,'2026-04-14'),(1,'2026-04-15'),(1,'2026-04-13');"
                            "insert into MilkPayments(CompanyId,MemberNo) values(1,1);commit");
        });
    }
    ~BooksCopiesTest() override { FaultyDisk::Reset(); }

    QString In(const QString& name) const { return m_folder.filePath(name); }
    QString Books() const { return In("Morvelta.mdb"); }
    QString Copy() const { return In("Backup/Morvelta.mdb"); }

    template <class Act> void OnBooks(Act act) const
    {
        Connection books;
        books.Open(QStringLiteral("dsn=TestCopies;pwd=") + Password);
        act(books);
    }

    void AddMember() const
    {
        OnBooks([](Connection& books) {
            books.RunScript("insert into MembersMaster(CompanyId,MemberNo) values(1,3)");
        });
    }

    int Members() const
    {
        int members = 0;
        OnBooks([&](Connection& books) {
            members =
                static_cast<int>(Recordset(books, u"select count(*) from MembersMaster").At(0).Number());
        });
        return members;
    }

    RestorePlan Plan(const QString& copy) const
    {
        RestorePlan plan;
        plan.copy = copy;
        plan.books = Books();
        plan.keptFolder = In("Backup");
        plan.password = Password;
        plan.now = Now;
        return plan;
    }

    QStringList InBackup() const { return QDir(In("Backup")).entryList(QDir::Files); }

    template <class Act> static QString FailureOf(Act act)
    {
        try {
            act();
        } catch (const RunTimeError& error) {
            return error.Happened();
        }
        return {};
    }
    QString BackUpFailure() const
    {
        return FailureOf([&] { BooksCopies::BackUp(Books(), Copy(), Password); });
    }
    QString RestoreFailure(const QString& copy) const
    {
        return FailureOf([&] { BooksCopies::Restore(Plan(copy)); });
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void Put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    const QString Password = QStringLiteral("Doodh#26");
    const QDateTime Now{QDate(2026, 4, 15), QTime(18, 30, 5)};
    const QString Replaced = QStringLiteral("Morvelta Before 15 April 2026 183005.mdb");

private:
    QTemporaryDir m_folder;
};

TEST_F(BooksCopiesTest, ABackupIsTheBooksAndTellsWhatLiesInIt)
{
    const BooksContent content = BooksCopies::BackUp(Books(), Copy(), Password);
    EXPECT_EQ(content.deliveries, 3);
    EXPECT_EQ(content.members, 2);
    EXPECT_EQ(content.payments, 1);
    EXPECT_EQ(content.newestDay, QDate(2026, 4, 15));
    EXPECT_TRUE(Bytes(Copy()) == Bytes(Books()));
    EXPECT_EQ(InBackup(), QStringList("Morvelta.mdb"));
}

TEST_F(BooksCopiesTest, ItTellsWhatItBeginsAndHowFarItIsUpToTheEnd)
{
    using BooksCopies::Work;
    std::vector<std::pair<Work, int>> begun;
    std::vector<int> percents;
    const auto tell = [&](Work work, int percent) {
        if (begun.empty() || begun.back().first != work)
            begun.emplace_back(work, percent);
        percents.push_back(percent);
    };
    const auto expectTold = [&](const std::vector<std::pair<Work, int>>& wanted) {
        EXPECT_EQ(begun, wanted);
        EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
        EXPECT_EQ(percents.back(), 100);
        begun.clear();
        percents.clear();
    };
    BooksCopies::BackUp(Books(), Copy(), Password, tell);
    expectTold({{Work::Copying, 50}, {Work::Checking, 50}});
    BooksCopies::Check(Copy(), Password, tell);
    expectTold({{Work::Checking, 50}});
    BooksCopies::Restore(Plan(Copy()), tell);
    expectTold({{Work::Copying, 50}, {Work::Checking, 50}, {Work::Keeping, 90}});
}

TEST_F(BooksCopiesTest, BooksWhoseLogIsNotFoldedAreNotCopied)
{
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray older = Bytes(Copy());
    Put(Books() + "-wal", "the last saves");
    EXPECT_TRUE(BackUpFailure().contains("दुसरा प्रोग्राम वापरत आहे"));
    EXPECT_TRUE(Bytes(Copy()) == older);
    EXPECT_TRUE(RestoreFailure(Copy()).contains("दुसरा प्रोग्राम वापरत आहे"));
    EXPECT_EQ(Bytes(Books() + "-wal"), "the last saves");
    EXPECT_EQ(InBackup(), QStringList("Morvelta.mdb"));
}

// The page of the copy that goes bad is one that no opening reads.
TEST_F(BooksCopiesTest, DamagedBooksDoNotTakeThePlaceOfAnOlderBackup)
{
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray older = Bytes(Copy());
    QByteArray bytes = Bytes(Books());
    const qsizetype at = bytes.size() - DatabaseFile::PageSize / 2;
    bytes[at] = static_cast<char>(bytes[at] ^ 8);
    Put(Books(), bytes);
    EXPECT_TRUE(BackUpFailure().contains("बिघडली आहे")) << BackUpFailure().toStdString();
    EXPECT_TRUE(Bytes(Copy()) == older);
    EXPECT_EQ(InBackup(), QStringList("Morvelta.mdb"));
}

// A disk that brings another file back than was written.
class SwappingDisk final : public Disk {
public:
    explicit SwappingDisk(QByteArray bytes) : m_bytes(std::move(bytes)) { Use(this); }
    ~SwappingDisk() override { Use(nullptr); }

    std::error_code Sync(const QString& path) override
    {
        QFile file(path);
        if (path.endsWith(".part") && file.open(QIODevice::WriteOnly))
            file.write(m_bytes);
        return Disk::Sync(path);
    }

private:
    QByteArray m_bytes;
};

TEST_F(BooksCopiesTest, ACopyWithOtherRowsThanItsOriginalReplacesNothing)
{
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray older = Bytes(Copy());
    AddMember();
    const QByteArray books = Bytes(Books());
    {
        const SwappingDisk disk(older);
        EXPECT_TRUE(BackUpFailure().contains("\"Morvelta.mdb\" ची प्रत मूळ फाइलशी जुळत नाही"));
    }
    EXPECT_TRUE(Bytes(Copy()) == older);
    {
        const SwappingDisk disk(books);
        EXPECT_TRUE(RestoreFailure(Copy()).contains("\"Morvelta.mdb\" ची प्रत मूळ फाइलशी जुळत नाही"));
    }
    EXPECT_TRUE(Bytes(Books()) == books);
    EXPECT_EQ(InBackup(), QStringList("Morvelta.mdb"));
}

TEST_F(BooksCopiesTest, AFullOrBrokenDiskLeavesTheOlderBackup)
{
    FaultyDisk::InstallForCopies();
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray older = Bytes(Copy());
    AddMember();
    FaultyDisk::Reset();
    ASSERT_EQ(FailureOf([&] { BooksCopies::BackUp(Books(), In("Backup/other.mdb"), Password); }), QString());
    const int renaming = FaultyDisk::Count() - 1;
    ASSERT_GE(renaming, 3);
    for (int n = 1; n <= renaming; ++n)
        for (const auto fail : {FaultyDisk::FullFrom, FaultyDisk::BrokenFrom}) {
            FaultyDisk::Reset();
            fail(n);
            EXPECT_TRUE(BackUpFailure().contains("जुनी फाइल आहे तशीच आहे")) << n;
            FaultyDisk::Reset();
            EXPECT_TRUE(Bytes(Copy()) == older) << n;
            EXPECT_EQ(InBackup(), QStringList({"Morvelta.mdb", "other.mdb"})) << n;
        }
    EXPECT_EQ(BackUpFailure(), QString());
    EXPECT_TRUE(Bytes(Copy()) == Bytes(Books()));
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

TEST_F(BooksCopiesTest, AFolderOfTheReplacedBooksThatIsGoneIsMade)
{
    const QString copy = In("copy.mdb");
    BooksCopies::BackUp(Books(), copy, Password);
    ASSERT_TRUE(QDir(In("Backup")).removeRecursively());
    BooksCopies::Restore(Plan(copy));
    EXPECT_EQ(InBackup(), QStringList(Replaced));
}

TEST_F(BooksCopiesTest, ARestoreBringsTheCopyBackAndKeepsTheBooksThatItReplaces)
{
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray old = Bytes(Copy());
    AddMember();
    const QByteArray replaced = Bytes(Books());
    CheckedNote::WriteDue(In({}));
    const BooksContent content = BooksCopies::Restore(Plan(Copy()));
    EXPECT_EQ(content.members, 2);
    EXPECT_TRUE(Bytes(Books()) == old);
    EXPECT_TRUE(Bytes(In("Backup/" + Replaced)) == replaced);
    EXPECT_EQ(InBackup(), QStringList({Replaced, "Morvelta.mdb"}));
    EXPECT_FALSE(CheckedNote::IsDue(In({}), Now.date())) << "every page was read";
    EXPECT_EQ(Members(), 2);
    EXPECT_EQ(BooksCopies::Restore(Plan(In("Backup/" + Replaced))).members, 3) << "it can be taken back";
    EXPECT_EQ(Members(), 3);
    EXPECT_EQ(InBackup().size(), 3) << "another second number in the same second";
}

TEST_F(BooksCopiesTest, ABrokenOrForeignCopyIsToldAndTheBooksStay)
{
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray good = Bytes(Copy());
    AddMember();
    const QByteArray books = Bytes(Books());
    const auto expectRefused = [&](const char* why) {
        const QString told = RestoreFailure(Copy());
        EXPECT_TRUE(told.contains(QString::fromUtf8(why))) << why << ": " << told.toStdString();
        EXPECT_TRUE(told.contains("\"Morvelta.mdb\"")) << told.toStdString();
        EXPECT_TRUE(Bytes(Books()) == books) << why;
        EXPECT_EQ(InBackup(), QStringList("Morvelta.mdb")) << why << ": nothing needs keeping";
        EXPECT_EQ(QDir(In({})).entryList({"*.part"}), QStringList());
    };
    QByteArray bad = good;
    const qsizetype at = bad.size() - DatabaseFile::PageSize / 2;
    bad[at] = static_cast<char>(bad[at] ^ 8);
    Put(Copy(), bad);
    expectRefused("बिघडली आहे");
    Put(Copy(), good.chopped(DatabaseFile::PageSize));
    expectRefused("अपुरी");
    Put(Copy(), "a letter");
    expectRefused("हिशेबाची वही नाही");
    Put(Copy(), {});
    expectRefused("रिकामी");
    QFile::remove(Copy());
    Connection other;
    other.Create(Copy(), "another password");
    other.RunScript("create table T(A)");
    other.Close();
    expectRefused("पासवर्ड वेगळा");
    QFile::remove(Copy());
    other.Create(Copy(), Password);
    other.RunScript("create table MembersMaster(MemberNo INTEGER)");
    other.Close();
    expectRefused("या कार्यक्रमाच्या हिशेबाची नाही");
}

TEST_F(BooksCopiesTest, AMissingCopyOrTheBooksThemselvesAreNotRestored)
{
    const QByteArray books = Bytes(Books());
    EXPECT_TRUE(RestoreFailure(In("Y2026-2027C1.mdb")).contains("\"Y2026-2027C1.mdb\" ही फाइल सापडली नाही"));
    EXPECT_TRUE(RestoreFailure(Books()).contains("स्वतःच्या जागी"));
    EXPECT_TRUE(Bytes(Books()) == books);
    EXPECT_EQ(InBackup(), QStringList());
}

// What is replaced is kept before it is.
TEST_F(BooksCopiesTest, AFullOrBrokenDiskInARestoreLeavesTheBooks)
{
    FaultyDisk::InstallForCopies();
    const QString copy = In("copy.mdb");
    BooksCopies::BackUp(Books(), copy, Password);
    AddMember();
    const QByteArray books = Bytes(Books());
    FaultyDisk::Reset();
    BooksCopies::Restore(Plan(copy));
    const int renaming = FaultyDisk::Count() - 1;
    ASSERT_GT(renaming, 6);
    for (int n = 1; n <= renaming; ++n)
        for (const auto fail : {FaultyDisk::FullFrom, FaultyDisk::BrokenFrom}) {
            FaultyDisk::Reset();
            Put(Books(), books);
            for (const QString& name : InBackup())
                QFile::remove(In("Backup/" + name));
            fail(n);
            const QString told = RestoreFailure(copy);
            FaultyDisk::Reset();
            if (n + 1 == renaming && told.isEmpty())
                continue; // the folder of the kept books couldn't be synced, which isn't waited for
            EXPECT_TRUE(told.contains("जुनी फाइल आहे तशीच आहे")) << n << ": " << told.toStdString();
            EXPECT_TRUE(Bytes(Books()) == books) << n;
            for (const QString& kept : InBackup())
                EXPECT_TRUE(Bytes(In("Backup/" + kept)) == books) << n;
        }
}

// Books that nothing can be read from are replaced, too, when that is wanted.
TEST_F(BooksCopiesTest, DamagedBooksAreKeptWithTheirLog)
{
    const QString copy = In("copy.mdb");
    BooksCopies::BackUp(Books(), copy, Password);
    Put(Books(), "nothing of the books is left");
    Put(Books() + "-wal", "the last saves");
    QFile books(Books());
    const QDateTime written(QDate(2026, 4, 14), QTime(7, 15));
    ASSERT_TRUE(books.open(QIODevice::ReadWrite));
    ASSERT_TRUE(books.setFileTime(written, QFileDevice::FileModificationTime));
    books.close();
    RestorePlan plan = Plan(copy);
    plan.replacesDamagedBooks = true;
    EXPECT_EQ(BooksCopies::Restore(plan).members, 2);
    EXPECT_EQ(Bytes(In("Backup/" + Replaced)), "nothing of the books is left");
    EXPECT_EQ(QFileInfo(In("Backup/" + Replaced)).lastModified(), written) << "no younger than its log";
    EXPECT_EQ(Bytes(In("Backup/" + Replaced) + "-wal"), "the last saves");
    EXPECT_FALSE(QFile::exists(Books() + "-wal"));
    EXPECT_EQ(Members(), 2);
}

TEST_F(BooksCopiesTest, WithoutBooksTheCopyTakesTheirPlace)
{
    const QString copy = In("copy.mdb");
    BooksCopies::BackUp(Books(), copy, Password);
    ASSERT_TRUE(QFile::remove(Books()));
    ASSERT_TRUE(QDir(In("Backup")).removeRecursively());
    EXPECT_EQ(BooksCopies::Restore(Plan(copy)).members, 2);
    EXPECT_EQ(Members(), 2);
    EXPECT_EQ(InBackup(), QStringList());
}

TEST_F(BooksCopiesTest, TheNewestBackupMayLieElsewhereAndReplacedBooksAreNone)
{
    EXPECT_EQ(BooksCopies::Newest(In({})), QString());
    const auto put = [&](const QString& name, int day) {
        Put(In(name), "a copy");
        QFile file(In(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime(QDate(2026, 4, day), QTime(18, 0)), QFileDevice::FileModificationTime);
    };
    put("Backup/" + Replaced, 15);
    EXPECT_EQ(BooksCopies::Newest(In({})), QString());
    put("Backup/first.mdb", 9);
    put("Backup/second.mdb", 10);
    EXPECT_EQ(BooksCopies::Newest(In({})), In("Backup/second.mdb"));
    ASSERT_TRUE(QDir().mkpath(In("stick")));
    BooksCopies::BackUp(Books(), In("stick/Morvelta.mdb"), Password);
    EXPECT_EQ(BooksCopies::Newest(In({})), In("stick/Morvelta.mdb"));
    ASSERT_TRUE(QFile::remove(In("stick/Morvelta.mdb")));
    EXPECT_EQ(BooksCopies::Newest(In({})), In("Backup/second.mdb")) << "the stick is gone";
}

}
