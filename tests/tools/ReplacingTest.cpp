#include "platform/text/PasswordItems.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/FaultyDisk.h"
#include "tests/tools/SetupSupport.h"
#include "tests/tools/TestDisk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <memory>

namespace {

const QString KeptDatabase = "Morvelta-2026-04-01-101530.mdb";
const QString KeptPassword = "PWD-2026-04-01-101530.TXT";
const QString NewPassword = "another";

SocietyPlan Replacing()
{
    SocietyPlan plan = GoodPlan();
    plan.password = NewPassword;
    plan.replace = true;
    return plan;
}

// What a database answers with the log beside it, asked for on a copy, so that it stays as it is.
QStringList Ask(const QString& database, const QString& password, const QString& statements)
{
    const QTemporaryDir copy;
    const QString file = copy.filePath(DatabaseFileName.toString());
    if (!QFile::copy(database, file))
        return {"Error: no database"};
    for (const QStringView ending : {u"-wal", u"-journal"})
        QFile::copy(database % ending, file % ending);
    return Shell(copy.path(), password, statements);
}

// Whether a database is the old society, sound and with its last writing.
bool IsOld(const QString& database, const QString& password)
{
    return Ask(database, password,
               "select count(*) from CityMaster where CityName='masaUr';"
               "pragma integrity_check;")
        == QStringList{"1", "ok"};
}

bool IsNew(const QString& database, const QString& password)
{
    return Ask(database, password,
               "select count(*) from CityMaster where CityName='masaUr';"
               "select count(*) from rswords; pragma integrity_check;")
        == QStringList{"0", "99", "ok"};
}

// An old society whose last writing is in its log, and another one that is put in its place.
class ReplacingTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_old = std::make_unique<QTemporaryDir>();
        const QString running = s_old->filePath("running");
        MakeSociety(running, GoodPlan());
        LeaveAsAfterAPowerCut(running, s_old->filePath("cut"));
    }
    static void TearDownTestSuite() { s_old.reset(); }

    void SetUp() override { RenewFolder(); }

    void RenewFolder() const
    {
        QDir(Folder()).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(Folder()));
        const QDir old(s_old->filePath("cut"));
        for (const QString& name : old.entryList(QDir::Files))
            ASSERT_TRUE(QFile::copy(old.filePath(name), File(name)));
        ASSERT_GT(QFileInfo(File("Morvelta.mdb-wal")).size(), 0);
    }

    void SpoilThePassword() const
    {
        QFile file(File("PWD.TXT"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write("\"\"\n"), 3);
    }

    QString Folder() const { return m_dir.filePath("books"); }
    QString File(const QString& name) const { return QDir(Folder()).filePath(name); }
    QString Database() const { return File(DatabaseFileName.toString()); }

    QString PasswordIn(const QString& name) const
    {
        return PasswordOfItems(ItemsOf(QString::fromLatin1(FileContent(File(name)))));
    }

    // Everything that replacing changes, in a folder of its own that is begun anew.
    QStringList AllChanges(bool spoiltPassword) const
    {
        if (spoiltPassword)
            SpoilThePassword();
        QStringList done;
        {
            const TestDisk disk;
            MakeSociety(Folder(), Replacing());
            done = disk.Done();
        }
        return done;
    }

    // Another process replaces the society; the power fails in the place of its n-th change.
    void ReplaceWithACutAt(int change) const
    {
        EXPECT_EXIT(
            {
                TestDisk disk;
                disk.CutAt = change;
                MakeSociety(Folder(), Replacing());
            },
            testing::ExitedWithCode(TestDisk::PowerCut), "");
    }

    // Replaces the society with a cut at each change in turn.
    template <typename Check> void CutEverywhere(bool spoiltPassword, Check check) const
    {
        const int changes = static_cast<int>(AllChanges(spoiltPassword).size());
        ASSERT_GT(changes, 10);
        for (int n = 1; n <= changes && !HasFailure(); ++n) {
            SCOPED_TRACE("cut at change " + std::to_string(n));
            RenewFolder();
            if (spoiltPassword)
                SpoilThePassword();
            ReplaceWithACutAt(n);
            check();
        }
    }

    void ExpectNewAfterMakingItAgain() const
    {
        SocietyPlan again = Replacing();
        again.now = again.now.addSecs(600);
        MakeSociety(Folder(), again);
        EXPECT_TRUE(IsNew(Database(), PasswordIn("PWD.TXT")));
        EXPECT_EQ(PasswordIn("PWD.TXT"), NewPassword);
        EXPECT_FALSE(QFile::exists(Database() % QStringLiteral("-wal")));
    }

    // Whether a kept database in the folder is the old society.
    bool IsOldKept() const
    {
        bool kept = false;
        for (const QString& name : QDir(Folder()).entryList({"Morvelta-*.mdb"}))
            kept = kept || IsOld(File(name), GoodPlan().password);
        return kept;
    }

    static std::unique_ptr<QTemporaryDir> s_old;
    QTemporaryDir m_dir;
};

std::unique_ptr<QTemporaryDir> ReplacingTest::s_old;

TEST_F(ReplacingTest, CutAnywhereItLeavesTheOldSocietyOrTheNewOneAndIsDoneByMakingItAgain)
{
    int oldOnes = 0;
    int newOnes = 0;
    int none = 0;
    CutEverywhere(false, [&] {
        const bool stands = QFile::exists(Database());
        if (!stands) {
            ++none;
            EXPECT_TRUE(IsOld(File(KeptDatabase), PasswordIn(KeptPassword)));
        } else if (IsOld(Database(), PasswordIn("PWD.TXT"))) {
            ++oldOnes;
        } else {
            ++newOnes;
            EXPECT_TRUE(IsNew(Database(), PasswordIn("PWD.TXT")));
            EXPECT_TRUE(IsOld(File(KeptDatabase), PasswordIn(KeptPassword)));
        }
        ExpectNewAfterMakingItAgain();
        EXPECT_TRUE(IsOldKept());
    });
    EXPECT_GT(oldOnes, 0);
    EXPECT_GT(newOnes, 0);
    EXPECT_GT(none, 0);
}

TEST_F(ReplacingTest, CutAnywhereWithALogThatCannotBeBroughtInItKeepsDatabaseAndLogTogether)
{
    CutEverywhere(true, [&] {
        const bool isOld = IsOld(Database(), GoodPlan().password);
        EXPECT_TRUE(isOld || IsOld(File(KeptDatabase), GoodPlan().password));
        if (QFile::exists(Database()) && !isOld) {
            EXPECT_TRUE(IsNew(Database(), PasswordIn("PWD.TXT")));
        }
        ExpectNewAfterMakingItAgain();
        EXPECT_TRUE(IsOldKept());
    });
}

// What a cut keeps is what was brought to the disk: so no change of a name may wait for the next one.
TEST_F(ReplacingTest, EveryChangeOfANameIsOnDiskBeforeTheNextIsMade)
{
    QString waiting;
    for (const QString& change : AllChanges(true)) {
        if (change == u"sync books") {
            waiting.clear();
        } else if (change.startsWith(u"link ") || change.startsWith(u"move ")) {
            EXPECT_EQ(waiting, QString()) << "not on disk before " << change.toStdString();
            waiting = change;
        } else if (change.startsWith(u"remove ")) {
            EXPECT_FALSE(waiting.startsWith(u"link ") || waiting.startsWith(u"move "))
                << waiting.toStdString();
            waiting = change;
        }
    }
    EXPECT_EQ(waiting, QString());
}

TEST_F(ReplacingTest, TheNewFilesAreOnDiskBeforeTheOldOnesAreTouched)
{
    const QStringList changes = AllChanges(true);
    const auto first = changes.indexOf(QRegularExpression("^(link|move|remove) .*"));
    ASSERT_GE(first, 0);
    EXPECT_TRUE(changes.mid(0, first).contains("sync Morvelta.mdb.new"));
    EXPECT_TRUE(changes.mid(0, first).contains("sync PWD.TXT.new"));
}

TEST_F(ReplacingTest, AFailureAnywhereIsToldAndLosesNothing)
{
    const int changes = static_cast<int>(AllChanges(true).size());
    for (int n = 1; n <= changes && !HasFailure(); ++n) {
        SCOPED_TRACE("failure of change " + std::to_string(n));
        RenewFolder();
        SpoilThePassword();
        bool copied = false;
        {
            TestDisk disk;
            disk.FailAt = n;
            try {
                MakeSociety(Folder(), Replacing());
                copied = disk.Done().filter("copy ").size() == 1;
                EXPECT_TRUE(copied) << "only a refused second name can be made up for";
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.Number(), RunTimeError::FileAccess);
                EXPECT_EQ(!QFile::exists(Database()), error.Happened().endsWith(u"make the new one again."))
                    << error.Happened().toStdString();
            }
        }
        EXPECT_TRUE(IsOld(Database(), GoodPlan().password) || IsOldKept());
        EXPECT_EQ(FilesIn(Folder()).filter(".new"), QStringList());
    }
}

TEST_F(ReplacingTest, AFullDiskWhileTheLogIsBroughtInEndsItAndTheOldSocietyStays)
{
    FaultyDisk::Install();
    FaultyDisk::Reset();
    MakeSociety(Folder(), Replacing());
    const int writes = FaultyDisk::Count();
    RenewFolder();
    // The last writings are those of the log that is brought in.
    FaultyDisk::Reset();
    FaultyDisk::FullFrom(writes - 2);
    QString failed;
    try {
        MakeSociety(Folder(), Replacing());
    } catch (const RunTimeError& error) {
        failed = error.Statement();
    }
    EXPECT_TRUE(failed.contains(u"wal_checkpoint")) << failed.toStdString();
    FaultyDisk::Reset();
    EXPECT_TRUE(IsOld(Database(), PasswordIn("PWD.TXT")));
    EXPECT_FALSE(QFile::exists(File(KeptDatabase)));
}

TEST_F(ReplacingTest, APasswordFileThatCannotBeReadEndsItAndTheOldSocietyStays)
{
    ASSERT_TRUE(QFile::remove(File("PWD.TXT")));
    ASSERT_TRUE(QDir(Folder()).mkdir("PWD.TXT"));
    EXPECT_THROW(MakeSociety(Folder(), Replacing()), RunTimeError);
    EXPECT_TRUE(IsOld(Database(), GoodPlan().password));
}

TEST_F(ReplacingTest, ALogLeftWithoutItsDatabaseIsKeptAsideAndNeverReadIntoTheNewBooks)
{
    const QByteArray log = FileContent(File("Morvelta.mdb-wal"));
    ASSERT_TRUE(QFile::remove(Database()));
    ASSERT_TRUE(QFile::copy(File("PWD.TXT"), File("Morvelta.mdb-journal")));
    ASSERT_TRUE(QFile::copy(File("PWD.TXT"), File("Morvelta.mdb-shm")));
    SocietyPlan plan = GoodPlan(); // the password of the log, which could be read with it
    MakeSociety(Folder(), plan);
    EXPECT_EQ(BooksIn(Folder()).join(u' '),
        QStringList({"Backup", KeptDatabase % QStringLiteral("-journal"),
                        KeptDatabase % QStringLiteral("-wal"), "Morvelta.mdb", KeptPassword, "PWD.TXT"})
            .join(u' '));
    EXPECT_EQ(FileContent(File(KeptDatabase % QStringLiteral("-wal"))), log);
    EXPECT_TRUE(IsNew(Database(), plan.password));
}

TEST_F(ReplacingTest, NothingIsKeptUnderTheDateOfAnOlderLog)
{
    SpoilThePassword();
    QFile older(File(KeptDatabase % QStringLiteral("-wal")));
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.close();
    MakeSociety(Folder(), Replacing());
    EXPECT_FALSE(QFile::exists(File(KeptDatabase)));
    EXPECT_TRUE(IsOld(File("Morvelta-2026-04-01-101530-2.mdb"), GoodPlan().password));
    EXPECT_TRUE(QFile::exists(File("PWD-2026-04-01-101530-2.TXT")));
}

}
