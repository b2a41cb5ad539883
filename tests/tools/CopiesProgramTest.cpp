#include "platform/shell/SingleInstance.h"
#include "platform/text/RunTimeError.h"
#include "tests/tools/SetupRun.h"
#include "tests/tools/SetupSupport.h"
#include "tools/setup/Copies.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

// Copies of the books from the shell: looked into, and brought back.
class CopiesProgramTest : public testing::Test {
protected:
    CopiesProgramTest() { EXPECT_EQ(RunSetup(Arguments(Folder())).exitCode, 0); }

    QString Folder() const { return m_dir.filePath("books"); }
    QString Books() const { return QDir(Folder()).filePath(DatabaseFileName.toString()); }
    QString Copy() const { return m_dir.filePath("Morvelta On 15 April 2026.mdb"); }

    Ran Check(const QString& file) const { return RunSetup({"--check", file, "--folder", Folder()}); }
    Ran Restore(const QString& file) const { return RunSetup({"--restore", file, "--folder", Folder()}); }

    QString Members() const
    {
        return Shell(Folder(), "secret", "select count(*) from MembersMaster;").value(0);
    }

    // One member more, written by another program.
    void AddMember() const
    {
        Shell(Folder(), "secret", "insert into MembersMaster(CompanyId,MemberNo) values(1,1);");
    }

    static void Put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QStringList Kept() const { return QDir(QDir(Folder()).filePath("Backup")).entryList(QDir::Files); }

private:
    QTemporaryDir m_dir;
};

TEST_F(CopiesProgramTest, ACheckTellsWhatLiesInACopy)
{
    AddMember();
    Shell(
        Folder(), "secret", "insert into MilkCollections(CompanyId,CollectionDate) values(1,'2026-04-15');");
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    const Ran run = Check(Copy());
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.contains("is whole: 1 deliveries, 1 members, 0 payments, newest day 15/04/2026\n"))
        << run.out.toStdString();
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(CopiesProgramTest, ACopyOfOtherBooksIsCheckedWithItsOwnPassword)
{
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    EXPECT_EQ(RunSetup({"--check", Copy(), "--password", "secret"}, Folder()).exitCode, 0);
    ExpectRefusal(RunSetup({"--check", Copy(), "--password", "other"}, Folder()), 1, u"another password");
    ExpectRefusal(RunSetup({"--check", Copy()}, Folder()), 1, u"PWD.TXT");
}

TEST_F(CopiesProgramTest, ACheckSaysWhatIsWrongWithACopy)
{
    const QByteArray good = FileContent(Books());
    QByteArray bad = good;
    bad[bad.size() - 512] = static_cast<char>(bad[bad.size() - 512] ^ 8);
    const std::initializer_list<std::pair<QByteArray, QStringView>> copies = {{bad, u"is damaged"},
        {good.chopped(1024), u"cut short"}, {"a letter", u"isn't a database"}, {"", u"is empty"}};
    for (const auto& [bytes, why] : copies) {
        Put(Copy(), bytes);
        ExpectRefusal(Check(Copy()), 1, why);
        ExpectRefusal(Restore(Copy()), 1, why);
        EXPECT_TRUE(FileContent(Books()) == good);
        EXPECT_EQ(Kept(), QStringList());
    }
    ExpectRefusal(Check(Copy() + "x"), 1, u"was not found");
    ExpectRefusal(Restore(Copy() + "x"), 1, u"is not there");
}

TEST_F(CopiesProgramTest, ARestoreBringsAnyCopyBackAndKeepsWhatItReplaces)
{
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    AddMember();
    const Ran run = Restore(Copy());
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.contains("is back: 0 deliveries, 0 members")) << run.out.toStdString();
    EXPECT_EQ(Members(), "0");
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_TRUE(Kept()[0].startsWith("Morvelta Before "));
    EXPECT_EQ(Restore(QDir(Folder()).filePath("Backup/" + Kept()[0])).exitCode, 0);
    EXPECT_EQ(Members(), "1") << "what was replaced can be brought back as well";
}

// By the program and by what it calls.
TEST_F(CopiesProgramTest, TheLogOfTheReplacedBooksIsFoldedIntoWhatIsKept)
{
    const QString made = Folder() + ".made";
    const auto towns = [&] {
        return Shell(Folder(), "Gokul#2026", "select count(*) from CityMaster where CityName='masaUr';")
            .value(0);
    };
    for (const bool isProgram : {true, false}) {
        QDir(Folder()).removeRecursively();
        QDir(made).removeRecursively();
        QFile::remove(Copy());
        MakeSociety(made, GoodPlan());
        ASSERT_TRUE(QFile::copy(made + "/Morvelta.mdb", Copy()));
        LeaveAsAfterAPowerCut(made, Folder());
        ASSERT_GT(QFileInfo(Books() + "-wal").size(), 0);
        if (isProgram)
            EXPECT_EQ(Restore(Copy()).exitCode, 0);
        else
            RestoreBooks(Folder(), Copy(), QDateTime(QDate(2026, 4, 15), QTime(18, 30)));
        EXPECT_FALSE(QFile::exists(Books() + "-wal"));
        EXPECT_EQ(towns(), "0");
        ASSERT_EQ(Kept().size(), 1);
        EXPECT_EQ(Restore(QDir(Folder()).filePath("Backup/" + Kept()[0])).exitCode, 0);
        EXPECT_EQ(towns(), "1");
    }
}

TEST_F(CopiesProgramTest, BooksThatCanNotBeOpenedAreKeptWithTheirLog)
{
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    const QDir backup(QDir(Folder()).filePath("Backup"));
    for (const bool isProgram : {true, false}) {
        Put(Books(), "nothing is left");
        Put(Books() + "-wal", "nor here");
        if (isProgram)
            EXPECT_EQ(Restore(Copy()).exitCode, 0);
        else
            RestoreBooks(Folder(), Copy(), QDateTime(QDate(2026, 4, 15), QTime(18, 30)));
        EXPECT_EQ(Members(), "0");
        ASSERT_EQ(Kept().size(), 2);
        EXPECT_EQ(FileContent(backup.filePath(Kept()[0])), "nothing is left");
        EXPECT_EQ(FileContent(backup.filePath(Kept()[1])), "nor here");
        for (const QString& name : Kept())
            QFile::remove(backup.filePath(name));
    }
}

// Another program that has books with the password "secret" open.
class OtherReader {
public:
    explicit OtherReader(const QString& books)
    {
        m_shell.start("sqlcipher", {"-batch", books});
        Ask("PRAGMA key='secret';");
    }
    ~OtherReader()
    {
        m_shell.closeWriteChannel();
        m_shell.waitForFinished();
    }

    // Runs statements, the last of which answers with the number of members.
    void Ask(const QByteArray& statements)
    {
        m_shell.write(statements + "select 'members '||count(*) from MembersMaster;\n");
        QByteArray told;
        while (!told.contains("members ") && m_shell.waitForReadyRead())
            told += m_shell.readAllStandardOutput();
        EXPECT_TRUE(told.contains("members ")) << m_shell.readAllStandardError().toStdString();
    }

private:
    QProcess m_shell;
};

// What is read can't be folded, so the log stays. By the program and by what it calls.
TEST_F(CopiesProgramTest, SoundBooksThatAnotherProgramReadsAreNotReplaced)
{
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    {
        OtherReader reader(Books());
        AddMember();
        reader.Ask("begin;");
        const QByteArray log = FileContent(Books() + "-wal");
        ASSERT_FALSE(log.isEmpty());
        ExpectRefusal(Restore(Copy()), 1, u"another program has the books open");
        try {
            RestoreBooks(Folder(), Copy(), QDateTime(QDate(2026, 4, 15), QTime(18, 30)));
            ADD_FAILURE() << "the books were replaced";
        } catch (const RunTimeError& refused) {
            EXPECT_TRUE(refused.Happened().contains("another program has the books open"));
        }
        EXPECT_TRUE(FileContent(Books() + "-wal").startsWith(log));
        EXPECT_TRUE(QFile::exists(Books() + "-shm"));
        EXPECT_EQ(Kept(), QStringList());
        reader.Ask("commit;");
    }
    EXPECT_EQ(Members(), "1");
    EXPECT_EQ(Restore(Copy()).exitCode, 0) << "when the reader has gone";
    EXPECT_EQ(Members(), "0");
}

TEST_F(CopiesProgramTest, TheBooksAreNotRestoredFromThemselves)
{
    ExpectRefusal(Restore(Books()), 1, u"its own target");
    EXPECT_EQ(Members(), "0");
}

TEST_F(CopiesProgramTest, BooksThatAreOpenAreNotReplaced)
{
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    AddMember();
    const SingleInstance running(Folder());
    ASSERT_TRUE(running.Taken());
    ExpectRefusal(Restore(Copy()), 1, u"open in the program");
    EXPECT_EQ(Members(), "1");
    EXPECT_EQ(Check(Copy()).exitCode, 0) << "looking does no harm";
}

TEST_F(CopiesProgramTest, ALogBesideACopyIsTold)
{
    ASSERT_TRUE(QFile::copy(Books(), Copy()));
    EXPECT_FALSE(Check(Copy()).out.contains("A log"));
    EXPECT_FALSE(HasOwnLog(Copy()));
    Put(Copy() + "-wal", "the last saves");
    EXPECT_TRUE(Check(Copy()).out.contains("A log lies beside it"));
    EXPECT_TRUE(HasOwnLog(Copy()));
}

TEST_F(CopiesProgramTest, OptionsThatDoNotGoTogetherAreRefused)
{
    ExpectRefusal(
        RunSetup({"--check", Copy(), "--restore", Copy()}), 2, u"--restore doesn't go with --check");
    ExpectRefusal(RunSetup({"--templates", "--check", Copy()}), 2, u"--check doesn't go with --templates");
    ExpectRefusal(
        RunSetup({"--restore", Copy(), "--password", "x"}), 2, u"--password doesn't go with --restore");
    ExpectRefusal(RunSetup({"--check", Copy(), "--society", "x"}), 2, u"--society doesn't go with --check");
    ExpectRefusal(RunSetup({"--restore", Copy(), "--demo"}), 2, u"--demo doesn't go with --restore");
    ExpectRefusal(RunSetup({"--check", Copy(), "--federation", "x"}), 2, u"--federation doesn't go with");
}

}
