#include "platform/shell/AppFolder.h"

#include <QStandardPaths>
#include <gtest/gtest.h>

namespace {

class AppFolderTest : public testing::Test {
protected:
    void SetUp() override { SetDrivesRoot("/society/"); }
    void TearDown() override { SetDrivesRoot(QString()); }
};

TEST_F(AppFolderTest, APathUnderADriveLiesInTheFolderOfThatDrive)
{
    EXPECT_EQ(LocalPath(u"C:\\Tarvel01\\Vetrolan\\PWD.TXT"), "/society/drive_c/Tarvel01/Vetrolan/PWD.TXT");
    EXPECT_EQ(LocalPath(u"C:\\Windows\\calc.exe"), "/society/drive_c/Windows/calc.exe");
}

TEST_F(AppFolderTest, TheFolderItselfKeepsItsClosingSeparator)
{
    EXPECT_EQ(LocalPath(Paths::AppFolder), "/society/drive_c/Tarvel01/Vetrolan/");
}

TEST_F(AppFolderTest, TheLetterOfTheDriveIsWrittenSmallAndTheRestStaysAsItIs)
{
    EXPECT_EQ(LocalPath(u"E:\\BACKUP\\a.MDB"), "/society/drive_e/BACKUP/a.MDB");
    EXPECT_EQ(LocalPath(u"e:\\BACKUP\\a.MDB"), "/society/drive_e/BACKUP/a.MDB");
}

TEST_F(AppFolderTest, ADriveAloneAndAPathWithoutALeadingSeparatorStartAtTheDrivesFolder)
{
    EXPECT_EQ(LocalPath(u"D:"), "/society/drive_d/");
    EXPECT_EQ(LocalPath(u"D:milk.txt"), "/society/drive_d/milk.txt");
}

TEST_F(AppFolderTest, APathWithoutADriveComesBackAsItIs)
{
    EXPECT_EQ(LocalPath(u"/tmp/milk\\a.txt"), "/tmp/milk\\a.txt");
    EXPECT_EQ(LocalPath(u"1:\\milk"), "1:\\milk");
    EXPECT_EQ(LocalPath(u"C"), "C");
    EXPECT_EQ(LocalPath(u""), QString());
}

#ifndef Q_OS_WIN
TEST_F(AppFolderTest, WithoutAMovedRootTheDrivesLieInTheUsersSharedDataFolder)
{
    SetDrivesRoot(QString());
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    ASSERT_FALSE(data.isEmpty());
    EXPECT_EQ(LocalPath(Paths::AppFolder), QString(data + "/vetrolan/drive_c/Tarvel01/Vetrolan/"));
}
#endif

}
