#include "platform/shell/SingleInstance.h"
#include "tests/tools/SetupRun.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <unistd.h>

namespace {

class SetupProgramTest : public testing::Test {
protected:
    QTemporaryDir m_dir;
    QString Folder() const { return m_dir.filePath("books"); }
};

TEST_F(SetupProgramTest, MakesASociety)
{
    const Ran run = RunSetup(Arguments(Folder()));
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.contains(u"Morvelta.mdb"));
    EXPECT_EQ(Shell(Folder(), "secret", "select count(*) from MembersMaster;").value(0), "0");
}

TEST_F(SetupProgramTest, MakesTheDemonstration)
{
    const Ran run = RunSetup(Arguments(Folder()) << QStringLiteral("--demo"));
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(Shell(Folder(), "secret", "select count(*) from MembersMaster;").value(0), "40");
}

TEST_F(SetupProgramTest, PutsTheBooksWhereTheProgramLooksForThem)
{
    QStringList arguments = Arguments(Folder());
    arguments.resize(6);
    const Ran run = RunSetup(arguments, m_dir.path());
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(QFileInfo::exists(m_dir.filePath("vetrolan/drive_c/Tarvel01/Vetrolan/Morvelta.mdb")));
    EXPECT_TRUE(QFileInfo::exists(m_dir.filePath("vetrolan/drive_c/Tarvel01/Vetrolan/PWD.TXT")));
}

TEST_F(SetupProgramTest, TouchesNoSocietyThatIsThere)
{
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    const QByteArray database = FileContent(QDir(Folder()).filePath(DatabaseFileName.toString()));
    ExpectRefusal(RunSetup(Arguments(Folder())), 1, u"There is a society already");
    EXPECT_EQ(FileContent(QDir(Folder()).filePath(DatabaseFileName.toString())), database);
}

TEST_F(SetupProgramTest, ReplacesWhenToldTo)
{
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    EXPECT_EQ(RunSetup(Arguments(Folder()) << QStringLiteral("--replace")).exitCode, 0);
    EXPECT_EQ(QDir(Folder()).entryList({"Morvelta*.mdb"}).size(), 2);
    EXPECT_EQ(QDir(Folder()).entryList({"PWD*.TXT"}).size(), 2);
}

TEST_F(SetupProgramTest, LeavesBooksAloneThatAreOpen)
{
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    const SingleInstance running(Folder());
    ASSERT_TRUE(running.Taken());
    ExpectRefusal(RunSetup(Arguments(Folder()) << QStringLiteral("--replace")), 1, u"open in the program");
    EXPECT_EQ(QDir(Folder()).entryList({"Morvelta*.mdb"}).size(), 1);
    ASSERT_TRUE(QFile::remove(QDir(Folder()).filePath("Vetrolan.lock")));
    ExpectRefusal(RunSetup(Arguments(Folder()) << QStringLiteral("--replace")), 1, u"open in the program");
    EXPECT_EQ(QDir(Folder()).entryList({"Morvelta*.mdb"}).size(), 1);
}

TEST_F(SetupProgramTest, LeavesTheTemplatesOfBooksAloneThatAreOpen)
{
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    const QString slip = QDir(Folder()).filePath("MilkReceipt1.rpt");
    ASSERT_TRUE(QFile::remove(slip));
    const SingleInstance running(Folder());
    ASSERT_TRUE(running.Taken());
    const QStringList renew{"--templates", "--folder", Folder()};
    ExpectRefusal(RunSetup(renew), 1, u"open in the program");
    EXPECT_FALSE(QFile::exists(slip));
}

TEST_F(SetupProgramTest, IsNotRootBesideTheBooksOfAnotherUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can play root";
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(chown(QFile::encodeName(Folder()).constData(), nobody, nobody), 0);
    const QString slip = QDir(Folder()).filePath("MilkReceipt1.rpt");
    ASSERT_TRUE(QFile::remove(slip));
    const QStringList renew{"--templates", "--folder", Folder()};
    EXPECT_NE(RunSetup(renew).exitCode, 0);
    EXPECT_NE(RunSetup(Arguments(Folder()) << QStringLiteral("--replace")).exitCode, 0);
    EXPECT_FALSE(QFile::exists(slip));
    EXPECT_EQ(QDir(Folder()).entryList({"Morvelta*.mdb"}).size(), 1);
}

TEST_F(SetupProgramTest, TellsWhatItTakes)
{
    const Ran run = RunSetup({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    for (const QStringView option : {u"--society", u"--year", u"--password", u"--demo", u"--replace",
             u"--folder", u"--federation", u"--check", u"--restore"})
        EXPECT_TRUE(run.out.contains(option)) << option.toString().toStdString();
}

TEST_F(SetupProgramTest, RefusesBadArgumentsInOneLine)
{
    const QStringList good = Arguments(Folder());
    ExpectRefusal(RunSetup({}), 2, u"--society is missing");
    ExpectRefusal(RunSetup(good.mid(2)), 2, u"--society is missing");
    ExpectRefusal(RunSetup(good.mid(0, 4)), 2, u"password is empty");
    ExpectRefusal(RunSetup(QStringList(good) << QStringLiteral("--nonsense")), 2, u"nonsense");
    ExpectRefusal(RunSetup(QStringList(good) << QStringLiteral("stray")), 2, u"stray");
    ExpectRefusal(RunSetup(With(good, u"--year", "2026")), 2, u"2026-2027");
    ExpectRefusal(RunSetup(With(good, u"--year", "2026-2028")), 2, u"year");
    ExpectRefusal(RunSetup(With(good, u"--password", QString())), 2, u"password is empty");
    ExpectRefusal(RunSetup(With(good, u"--password", "two words")), 2, u"password");
    ExpectRefusal(RunSetup(With(good, u"--society", "गो'कुळ")), 2, u"apostrophe");
    EXPECT_FALSE(QFileInfo::exists(Folder()));
}

TEST_F(SetupProgramTest, SaysWhenTheFolderCannotBe)
{
    QFile inTheWay(Folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    ExpectRefusal(RunSetup(Arguments(Folder())), 1, u"folder");
}

TEST_F(SetupProgramTest, WritesOnlyTheTemplatesBesideTheBooks)
{
    const QStringList renew{"--templates", "--folder", Folder()};
    ExpectRefusal(RunSetup(renew), 1, u"no society");
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    const QString slip = QDir(Folder()).filePath("MilkReceipt1.rpt");
    const QByteArray delivered = FileContent(slip);
    const QByteArray books = FileContent(QDir(Folder()).filePath("Morvelta.mdb"));
    ASSERT_TRUE(QFile::remove(slip));
    const Ran run = RunSetup(renew);
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(FileContent(slip), delivered);
    EXPECT_EQ(FileContent(QDir(Folder()).filePath("Morvelta.mdb")), books);
    ExpectRefusal(RunSetup(Arguments(Folder()) << QStringLiteral("--templates")), 2, u"--templates");
}

TEST_F(SetupProgramTest, WritesTheSlipOfTheSearchIntoTheOlderFolderOnlyWhereTheProgramLooks)
{
    QStringList arguments = Arguments(Folder());
    ASSERT_EQ(RunSetup(arguments, m_dir.path()).exitCode, 0);
    EXPECT_EQ(FilesIn(m_dir.path()).join(u' '), "books");
    arguments.remove(arguments.size() - 2, 2);
    const Ran run = RunSetup(arguments, m_dir.path());
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QDir tarvel(m_dir.filePath("vetrolan/drive_c/Tarvel01"));
    EXPECT_EQ(FilesIn(tarvel.filePath("Sorvelan")).join(u' '), "MilkReceiptAtk.rpt");
    EXPECT_EQ(FileContent(tarvel.filePath("Sorvelan/MilkReceiptAtk.rpt")),
        FileContent(tarvel.filePath("Vetrolan/MilkReceiptAtk.rpt")));
}

}
