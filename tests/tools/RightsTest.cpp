#include "tests/tools/SetupRun.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

namespace {

// The installer under a user who lets everybody read what he writes.
class RightsTest : public testing::Test {
protected:
    void SetUp() override { m_mask = umask(022); }
    void TearDown() override { umask(m_mask); }

    QString Folder() const { return m_dir.filePath("books"); }
    QString Home() const { return m_dir.path(); }
    QString ProgramsFolder() const { return m_dir.filePath("vetrolan/drive_c/Tarvel01/Vetrolan"); }

    static QStringList WithoutFolder() { return Arguments({}).mid(0, 6); }

    static mode_t RightsOf(const QString& path)
    {
        struct stat found { };
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &found), 0) << path.toStdString();
        return found.st_mode & 07777;
    }

    static void Give(const QString& path, mode_t rights)
    {
        ASSERT_EQ(chmod(QFile::encodeName(path).constData(), rights), 0) << path.toStdString();
    }

    // What is in a folder and below it that others may do something with.
    static QStringList OpenToOthers(const QString& folder)
    {
        QStringList open;
        for (QDirIterator below(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                 QDirIterator::Subdirectories);
             below.hasNext();) {
            const QString path = below.next();
            if (RightsOf(path) & 077)
                open.append(below.fileName());
        }
        open.sort();
        return open;
    }

private:
    QTemporaryDir m_dir;
    mode_t m_mask = 0;
};

TEST_F(RightsTest, OfANewSocietyAreItsOwnersAlone)
{
    const Ran run = RunSetup(Arguments(Folder()));
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(RightsOf(Folder()), mode_t{0700});
    EXPECT_EQ(RightsOf(QDir(Folder()).filePath("Morvelta.mdb")), mode_t{0600});
    EXPECT_EQ(OpenToOthers(Folder()), QStringList());
}

TEST_F(RightsTest, OfOlderBooksAreNarrowedWithAllThatLiesWhereTheProgramLooks)
{
    ASSERT_EQ(RunSetup(WithoutFolder(), Home()).exitCode, 0);
    const QDir folder(ProgramsFolder());
    Give(folder.path(), 0755);
    for (const char* name : {"Morvelta.mdb", "PWD.TXT", "MilkReceipt1.rpt"})
        Give(folder.filePath(QLatin1String(name)), 0644);
    ASSERT_EQ(RunSetup(WithoutFolder() << QStringLiteral("--replace"), Home()).exitCode, 0);
    EXPECT_EQ(RightsOf(folder.path()), mode_t{0700});
    EXPECT_EQ(folder.entryList({"Morvelta*.mdb"}).size(), 2);
    EXPECT_EQ(OpenToOthers(folder.path()), QStringList());
}

TEST_F(RightsTest, OfWhatElseLiesInANamedFolderStay)
{
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    QFile letter(QDir(Folder()).filePath("letter.txt"));
    ASSERT_TRUE(letter.open(QIODevice::WriteOnly));
    letter.close();
    Give(letter.fileName(), 0644);
    Give(Folder(), 0755);
    for (const char* name : {"Morvelta.mdb", "PWD.TXT"})
        Give(QDir(Folder()).filePath(QLatin1String(name)), 0644);
    Give(QDir(Folder()).filePath("Backup"), 0755);
    ASSERT_EQ(RunSetup(Arguments(Folder()) << QStringLiteral("--replace")).exitCode, 0);
    EXPECT_EQ(RightsOf(Folder()), mode_t{0755});
    EXPECT_EQ(OpenToOthers(Folder()), QStringList("letter.txt"));
}

}
