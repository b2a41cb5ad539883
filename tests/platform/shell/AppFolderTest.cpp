#include "platform/shell/AppFolder.h"

#include <QStandardPaths>
#include <gtest/gtest.h>

namespace {

class AppFolderTest : public testing::Test {
protected:
    void SetUp() override { SetDrivesRoot(QStringLiteral("/society/")); }
    void TearDown() override { SetDrivesRoot(QString()); }
};

TEST_F(AppFolderTest, APathUnderADriveLiesInTheFolderOfThatDrive)
{
    EXPECT_EQ(LocalPath(u"C:\\Tarvel01\\Vetrolan\\PWD.TXT"),
        QStringLiteral("/society/drive_c/Tarvel01/Vetrolan/PWD.TXT"));
    EXPECT_EQ(LocalPath(u"C:\\Windows\\calc.exe"), QStringLiteral("/society/drive_c/Windows/calc.exe"));
}

TEST_F(AppFolderTest, TheFolderItselfKeepsItsClosingSeparator)
{
    EXPECT_EQ(LocalPath(AppFolder), QStringLiteral("/society/drive_c/Tarvel01/Vetrolan/"));
}

TEST_F(AppFolderTest, TheLetterOfTheDriveIsWrittenSmallAndTheRestStaysAsItIs)
{
    EXPECT_EQ(LocalPath(u"E:\\BACKUP\\a.MDB"), QStringLiteral("/society/drive_e/BACKUP/a.MDB"));
    EXPECT_EQ(LocalPath(u"e:\\BACKUP\\a.MDB"), QStringLiteral("/society/drive_e/BACKUP/a.MDB"));
}

TEST_F(AppFolderTest, ADriveAloneAndAPathWithoutALeadingSeparatorStartAtTheDrivesFolder)
{
    EXPECT_EQ(LocalPath(u"D:"), QStringLiteral("/society/drive_d/"));
    EXPECT_EQ(LocalPath(u"D:milk.txt"), QStringLiteral("/society/drive_d/milk.txt"));
}

TEST_F(AppFolderTest, APathWithoutADriveComesBackAsItIs)
{
    EXPECT_EQ(LocalPath(u"/tmp/milk\\a.txt"), QStringLiteral("/tmp/milk\\a.txt"));
    EXPECT_EQ(LocalPath(u"1:\\milk"), QStringLiteral("1:\\milk"));
    EXPECT_EQ(LocalPath(u"C"), QStringLiteral("C"));
    EXPECT_EQ(LocalPath(u""), QString());
}

#ifndef Q_OS_WIN
TEST_F(AppFolderTest, WithoutAMovedRootTheDrivesLieInTheUsersSharedDataFolder)
{
    SetDrivesRoot(QString());
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    ASSERT_FALSE(data.isEmpty());
    EXPECT_EQ(LocalPath(AppFolder), QString(data + QStringLiteral("/vetrolan/drive_c/Tarvel01/Vetrolan/")));
}
#endif

}
