#include "delivered/Delivered.h"
#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace {

QString FirstLine(const QString& folder, const QString& password, const QString& statement)
{
    return Shell(folder, password, statement).value(0);
}

QString HappenedIn(const QString& folder, const SocietyPlan& plan)
{
    try {
        MakeSociety(folder, plan);
    } catch (const RunTimeError& error) {
        return error.Happened();
    }
    return {};
}

SocietyPlan Replacing()
{
    SocietyPlan plan = GoodPlan();
    plan.password = "another";
    plan.replace = true;
    return plan;
}

class NewSocietyTest : public testing::Test {
protected:
    QTemporaryDir m_dir;
    QString Folder() const { return m_dir.filePath("books"); }
    QString File(QStringView name) const { return QDir(Folder()).filePath(name.toString()); }
};

TEST_F(NewSocietyTest, BeginsTheWeekInWhichItsPagesAreKnownToBeSound)
{
    SocietyPlan plan = GoodPlan();
    plan.now = QDateTime(QDate(2026, 4, 1), QTime(10, 15));
    MakeSociety(Folder(), plan);
    QFile note(File(u"Checked.txt"));
    ASSERT_TRUE(note.open(QIODevice::ReadOnly));
    EXPECT_EQ(note.readAll(), "2026-04-01");
}

TEST_F(NewSocietyTest, HasADatabaseAPasswordABackupFolderTheTemplatesANoteOfSoundPagesAndNothingElse)
{
    MakeSociety(Folder(), GoodPlan());
    EXPECT_EQ(BooksIn(Folder()).join(u' '), "Backup Morvelta.mdb PWD.TXT");
    EXPECT_TRUE(QFile::exists(File(u"Checked.txt")));
    EXPECT_EQ(FilesIn(Folder()).size() - BooksIn(Folder()).size(),
        static_cast<int>(Delivered::Templates().size()) + 1);
    EXPECT_TRUE(QFileInfo(File(BackupFolderName)).isDir());
}

TEST_F(NewSocietyTest, OpensInTheStockShellWithThePasswordAndWithNoOther)
{
    MakeSociety(Folder(), GoodPlan());
    const QString count = "select count(*) from MembersMaster; pragma integrity_check;";
    EXPECT_EQ(Shell(Folder(), GoodPlan().password, count).join(u' '), "0 ok");
    EXPECT_TRUE(FirstLine(Folder(), "wrong", count).startsWith(u"Error"));
    EXPECT_FALSE(FileContent(File(DatabaseFileName)).contains("MembersMaster"));
}

TEST_F(NewSocietyTest, OpensInTheProgramWithThePasswordOfItsFile)
{
    SocietyPlan plan = GoodPlan();
    plan.password = "a=b|(c)!";
    MakeSociety(Folder(), plan);
    DataSource::Register("SetupTest", File(DatabaseFileName));
    Connection connection;
    connection.Open(QStringLiteral("dsn=SetupTest;pwd=") % plan.password);
    const Recordset selected(connection, "SELECT * FROM CompanySelected");
    ASSERT_FALSE(selected.Eof());
    EXPECT_EQ(selected[u"AccountingYear"].Text(), plan.year);
    EXPECT_EQ(selected[u"FromDate"].Date(), QDate(2026, 4, 1));
}

TEST_F(NewSocietyTest, SurvivesACopyMadeForTests)
{
    CopySociety(m_dir.filePath("one"), GoodPlan());
    CopySociety(m_dir.filePath("two"), GoodPlan());
    for (const QString& folder : {m_dir.filePath("one"), m_dir.filePath("two")}) {
        EXPECT_EQ(BooksIn(folder).join(u' '), "Backup Morvelta.mdb PWD.TXT");
        EXPECT_EQ(FirstLine(folder, GoodPlan().password, "select count(*) from rswords;"), "99");
    }
    EXPECT_THROW(CopySociety(m_dir.filePath("one"), GoodPlan()), RunTimeError);
}

TEST_F(NewSocietyTest, AnotherOneIsNotMadeOverIt)
{
    MakeSociety(Folder(), GoodPlan());
    const QByteArray database = FileContent(File(DatabaseFileName));
    const QByteArray password = FileContent(File(PasswordFileName));
    SocietyPlan other = Replacing();
    other.replace = false;
    EXPECT_TRUE(HappenedIn(Folder(), other).startsWith(u"There is a society already: "));
    EXPECT_EQ(FileContent(File(DatabaseFileName)), database);
    EXPECT_EQ(FileContent(File(PasswordFileName)), password);
    EXPECT_EQ(BooksIn(Folder()).join(u' '), "Backup Morvelta.mdb PWD.TXT");
}

TEST_F(NewSocietyTest, ReplacedIsKeptUnderADateAndOpensWithItsOwnPassword)
{
    MakeSociety(Folder(), GoodPlan());
    MakeSociety(Folder(), Replacing());
    EXPECT_EQ(BooksIn(Folder()).join(u' '),
        "Backup Morvelta-2026-04-01-101530.mdb Morvelta.mdb PWD-2026-04-01-101530.TXT PWD.TXT");
    EXPECT_EQ(FirstLine(Folder(), "another", "select count(*) from rswords;"), "99");
    ASSERT_TRUE(QFile::remove(File(DatabaseFileName)));
    ASSERT_TRUE(QFile::rename(File(u"Morvelta-2026-04-01-101530.mdb"), File(DatabaseFileName)));
    EXPECT_EQ(FirstLine(Folder(), GoodPlan().password, "select count(*) from rswords;"), "99");
}

TEST_F(NewSocietyTest, ReplacedTwiceInASecondKeepsBoth)
{
    MakeSociety(Folder(), GoodPlan());
    MakeSociety(Folder(), Replacing());
    MakeSociety(Folder(), Replacing());
    EXPECT_EQ(BooksIn(Folder()).join(u' '),
        "Backup Morvelta-2026-04-01-101530-2.mdb Morvelta-2026-04-01-101530.mdb Morvelta.mdb "
        "PWD-2026-04-01-101530-2.TXT PWD-2026-04-01-101530.TXT PWD.TXT");
}

TEST_F(NewSocietyTest, ReplacedAfterAPowerCutKeepsItsLastWriting)
{
    const QString running = m_dir.filePath("running");
    MakeSociety(running, GoodPlan());
    LeaveAsAfterAPowerCut(running, Folder());
    ASSERT_GT(QFileInfo(File(u"Morvelta.mdb-wal")).size(), 0);
    MakeSociety(Folder(), Replacing());
    EXPECT_FALSE(QFileInfo::exists(File(u"Morvelta.mdb-wal")));
    EXPECT_EQ(FirstLine(Folder(), "another", "select count(*) from CityMaster;"), "2");
    ASSERT_TRUE(QFile::remove(File(DatabaseFileName)));
    ASSERT_TRUE(QFile::rename(File(u"Morvelta-2026-04-01-101530.mdb"), File(DatabaseFileName)));
    EXPECT_EQ(
        FirstLine(Folder(), GoodPlan().password, "select count(*) from CityMaster where CityName='masaUr';"),
        "1");
}

TEST_F(NewSocietyTest, ReplacedWithoutItsPasswordTakesItsJournalAlong)
{
    const QString running = m_dir.filePath("running");
    MakeSociety(running, GoodPlan());
    LeaveAsAfterAPowerCut(running, Folder());
    ASSERT_TRUE(QFile::remove(File(PasswordFileName)));
    const QByteArray database = FileContent(File(DatabaseFileName));
    const QByteArray journal = FileContent(File(u"Morvelta.mdb-wal"));
    ASSERT_FALSE(journal.isEmpty());
    MakeSociety(Folder(), Replacing());
    EXPECT_EQ(FileContent(File(u"Morvelta-2026-04-01-101530.mdb")), database);
    EXPECT_EQ(FileContent(File(u"Morvelta-2026-04-01-101530.mdb-wal")), journal);
    EXPECT_EQ(FirstLine(Folder(), "another", "select count(*) from CityMaster;"), "2");
}

TEST_F(NewSocietyTest, ReplacedWhenDamagedIsKeptByteForByte)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    QFile damaged(File(DatabaseFileName));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("not a database any more");
    damaged.close();
    MakeSociety(Folder(), Replacing());
    EXPECT_EQ(FileContent(File(u"Morvelta-2026-04-01-101530.mdb")), QByteArray("not a database any more"));
    EXPECT_EQ(FirstLine(Folder(), "another", "select count(*) from rswords;"), "99");
}

TEST_F(NewSocietyTest, APasswordFileWithoutADatabaseIsKept)
{
    MakeSociety(Folder(), GoodPlan());
    const QByteArray password = FileContent(File(PasswordFileName));
    ASSERT_TRUE(QFile::remove(File(DatabaseFileName)));
    SocietyPlan plan = Replacing();
    plan.replace = false;
    MakeSociety(Folder(), plan);
    EXPECT_EQ(FileContent(File(u"PWD-2026-04-01-101530.TXT")), password);
    EXPECT_NE(FileContent(File(PasswordFileName)), password);
}

TEST_F(NewSocietyTest, LeftoversOfAnInterruptedMakingAreNoHindrance)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    for (const QStringView name : {u"Morvelta.mdb.new", u"Morvelta.mdb.new-wal"}) {
        QFile leftover(File(name));
        ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));
        leftover.write("half");
    }
    MakeSociety(Folder(), GoodPlan());
    EXPECT_EQ(BooksIn(Folder()).join(u' '), "Backup Morvelta.mdb PWD.TXT");
}

TEST_F(NewSocietyTest, WhereNoFolderCanBeNothingIsMade)
{
    QFile inTheWay(Folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    EXPECT_TRUE(HappenedIn(Folder(), GoodPlan()).startsWith(u"Can't make the folder "));
    EXPECT_EQ(FilesIn(m_dir.path()).join(u' '), "books");
}

TEST_F(NewSocietyTest, WhenTheBackupFolderCannotBeTheOldBooksStayAndNoHalfOnesAreLeft)
{
    MakeSociety(Folder(), GoodPlan());
    const QByteArray database = FileContent(File(DatabaseFileName));
    ASSERT_TRUE(QDir(Folder()).rmdir(BackupFolderName.toString()));
    QFile inTheWay(File(BackupFolderName));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    EXPECT_THROW(MakeSociety(Folder(), Replacing()), RunTimeError);
    EXPECT_EQ(BooksIn(Folder()).join(u' '), "Backup Morvelta.mdb PWD.TXT");
    EXPECT_EQ(FileContent(File(DatabaseFileName)), database);
}

TEST(SocietyPlansTest, AreRefusedInOneSentence)
{
    const auto refusal = [](auto change) {
        SocietyPlan plan = GoodPlan();
        change(plan);
        return WhyRefused(plan);
    };
    EXPECT_EQ(WhyRefused(GoodPlan()), QString());
    EXPECT_TRUE(refusal([](SocietyPlan& p) { p.name = "  "; }).contains(u"name is empty"));
    EXPECT_TRUE(refusal([](SocietyPlan& p) { p.name = "दूध'संस्था"; }).contains(u"apostrophe"));
    EXPECT_TRUE(refusal([](SocietyPlan& p) { p.name = "Gokul"; }).contains(u"write it in Devanagari"));
    EXPECT_EQ(refusal([](SocietyPlan& p) { p.name = "गोकुळ (नं. 1)"; }), QString());
    EXPECT_TRUE(refusal([](SocietyPlan& p) { p.name = QString(101, u'अ'); }).contains(u"longer than"));
    EXPECT_TRUE(refusal([](SocietyPlan& p) { p.password = QString(); }).contains(u"password is empty"));
    for (const char* year : {"", "2026", "2026-27", "26-27", "2026-2027 ", "२०२६-२०२७"})
        EXPECT_TRUE(
            refusal([&](SocietyPlan& p) { p.year = QString::fromUtf8(year); }).contains(u"of the form"))
            << year;
    for (const char* year : {"2026-2026", "2026-2028", "2027-2026"})
        EXPECT_TRUE(
            refusal([&](SocietyPlan& p) { p.year = QString::fromUtf8(year); }).contains(u"must end in"))
            << year;
    for (const char* year : {"1999-2000", "2099-2100"})
        EXPECT_TRUE(
            refusal([&](SocietyPlan& p) { p.year = QString::fromUtf8(year); }).contains(u"must begin"))
            << year;
}

TEST_F(NewSocietyTest, IsNotMadeOfARefusedPlan)
{
    SocietyPlan plan = GoodPlan();
    plan.year = "2026-2028";
    plan.demo = true;
    EXPECT_EQ(HappenedIn(Folder(), plan), WhyRefused(plan));
    EXPECT_FALSE(QFileInfo::exists(Folder()));
}

TEST_F(NewSocietyTest, LargeHasACanForEveryMemberInEveryShift)
{
    MakeLargeSociety(Folder(), GoodPlan(), 45, 3);
    EXPECT_EQ(Shell(Folder(), GoodPlan().password,
                  "select count(*),count(distinct CollectionDate),max(CollectionNo),count(distinct "
                  "MemberName),max(CollectionDate) from MilkCollections;"
                  "select count(*) from MilkCollections c left join Fat010426 f on f.Fat=rtrim("
                  "rtrim(cast(c.Fat as text),'0'),'.') where f.Fat is null or Rate<>case Animal when "
                  "'gaaya' then f.CowRate else f.BuffRate end+0 or abs(Amount-Liters*Rate)>0.00501;"
                  "select count(*) from MembersMaster where CowClosingLits+BuffClosingLits<>(select "
                  "round(sum(Liters),3) from MilkCollections c where c.MemberNo=MembersMaster.MemberNo);"
                  "pragma integrity_check;")
                  .join(u'\n'),
        "270|3|45|45|2026-04-03\n0\n0\nok");
}

}
