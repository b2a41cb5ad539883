#include "tests/backups/BooksCopiesTest.h"

#include "platform/database/CheckedNote.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/Disk.h"
#include "tests/support/FaultyDisk.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

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
    const int renaming = FaultyDisk::Count() - 4; // behind it the folder and the note
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

TEST_F(BooksCopiesTest, ACopyWithoutOneOfTheTablesThatTheProgramNeedsIsRefused)
{
    BooksCopies::BackUp(Books(), Copy(), Password);
    const QByteArray good = Bytes(Copy());
    DataSource::Register("TestLacking", Copy());
    for (const char* table : {"CompanySelected", "AutoSettings", "MenuAccessTable", "MembersMaster",
             "CustomersMaster", "AccountsMaster", "FatDates", "MilkCollections", "MilkSales", "MilkPayments",
             "MilkPaymentsDetails", "TransactionsMaster", "TransactionsDetails", "AdvanceReceipt", "YearSums",
             "AccountYearSums"}) {
        Put(Copy(), good);
        Connection copy;
        copy.Open("dsn=TestLacking;pwd=" + Password);
        copy.RunScript(QString("drop table ") + table);
        copy.Close();
        const QString told = RestoreFailure(Copy());
        EXPECT_TRUE(told.contains("या कार्यक्रमाच्या हिशेबाची नाही")) << table;
        EXPECT_TRUE(told.contains(QString("it has no table ") + table)) << told.toStdString();
        EXPECT_EQ(FailureOf([&] { BooksCopies::Check(Copy(), Password); }), told) << table;
    }
    EXPECT_EQ(Members(), 2);
}

TEST_F(BooksCopiesTest, AMissingCopyOrTheBooksThemselvesAreNotRestored)
{
    const QByteArray books = Bytes(Books());
    EXPECT_TRUE(RestoreFailure(In("Y2026-2027C1.mdb")).contains("\"Y2026-2027C1.mdb\" ही फाइल सापडली नाही"));
    EXPECT_TRUE(RestoreFailure(Books()).contains("स्वतःच्या जागी"));
    EXPECT_TRUE(Bytes(Books()) == books);
    EXPECT_EQ(InBackup(), QStringList());
}

// Books that nothing can be read from are replaced, too, when that is wanted.
TEST_F(BooksCopiesTest, DamagedBooksAreKeptWithTheirLog)
{
    const QString copy = In("copy.mdb");
    BooksCopies::BackUp(Books(), copy, Password);
    Put(Books(), "nothing of the books is left");
    Put(Books() + "-wal", "the last saves");
    const QDateTime written(QDate(2026, 4, 14), QTime(7, 15));
    SetWritten(Books(), written);
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
