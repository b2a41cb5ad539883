#include "platform/shell/AppFolder.h"
#include "platform/shell/MachineFileSystem.h"
#include "tests/support/FakeFileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString Q(const char* text)
{
    return QString::fromUtf8(text);
}

// The real file system on drives of the test's own: C: with an empty AppFolder, and E:.
class FileSystemTest : public ::testing::Test {
protected:
    FileSystemTest()
    {
        SetDrivesRoot(m_drives.path());
        QDir().mkpath(LocalPath(Paths::AppFolder));
        QDir().mkpath(LocalPath(u"E:\\"));
    }
    ~FileSystemTest() override { SetDrivesRoot({}); }

    static void Write(const char* path, const QByteArray& bytes)
    {
        QFile file(LocalPath(Q(path)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    MachineFileSystem files;

private:
    QTemporaryDir m_drives;
};

TEST_F(FileSystemTest, APathIsMadeWholeFromItsDriveOn)
{
    for (const auto& [path, whole] :
        std::initializer_list<std::pair<const char*, const char*>>{{"c:/Milk/../Backup/", "C:\\Backup"},
            {"c:", "C:\\"}, {"E:\\", "E:\\"}, {"E:\\a\\.\\b", "E:\\a\\b"}, {"E:\\..\\..\\etc", "E:\\etc"},
            {"Backup", "C:\\Tarvel01\\Vetrolan\\Backup"}, {"", "C:\\Tarvel01\\Vetrolan"},
            {"\\Backup", "C:\\Backup"}, {"E:milk", "E:\\milk"}, {"E:\\\\milk.mdb", "E:\\milk.mdb"},
            {"1:\\a", "C:\\Tarvel01\\Vetrolan\\1:\\a"}})
        EXPECT_EQ(FileSystem::AbsolutePath(Q(path)).toStdString(), whole) << path;
}

TEST_F(FileSystemTest, AFolderIsMadeInOneThatIsThere)
{
    EXPECT_TRUE(files.CreateFolder("E:\\Backup"));
    EXPECT_TRUE(files.HasFolder("E:\\Backup"));
    EXPECT_TRUE(files.CreateFolder("E:\\Backup")) << "it is there";
    EXPECT_FALSE(files.CreateFolder("E:\\a\\b"));
    EXPECT_FALSE(files.HasFolder("E:\\a"));
    Write("E:\\file", "x");
    EXPECT_FALSE(files.CreateFolder("E:\\file"));
    EXPECT_FALSE(files.HasFolder("E:\\file"));
    EXPECT_TRUE(files.CreateFolder("E:\\..\\..\\out"));
    EXPECT_TRUE(files.HasFolder("E:\\out")) << "no path leads out of its drive";
}

TEST_F(FileSystemTest, FoldersAndFilesAreListedByTheAlphabet)
{
    for (const char* folder : {"E:\\b", "E:\\A", "E:\\.hidden", "E:\\c"})
        ASSERT_TRUE(files.CreateFolder(Q(folder)));
    for (const char* file : {"E:\\z.mdb", "E:\\Y2026C1.MDB", "E:\\note.txt", "E:\\c\\inner.mdb"})
        Write(file, "x");
    EXPECT_EQ(files.Folders("E:\\"), QStringList({"A", "b", "c"}));
    EXPECT_EQ(files.Files("E:\\", "*.mdb"), QStringList({"Y2026C1.MDB", "z.mdb"}));
    EXPECT_EQ(files.Folders("E:\\nothing"), QStringList());
    EXPECT_EQ(files.Files("E:\\nothing", "*"), QStringList());
}

TEST_F(FileSystemTest, TheDrivesAreThoseThatAreThere)
{
    EXPECT_EQ(files.Drives(), QStringList({"C:\\", "E:\\"}));
    EXPECT_EQ(files.KindOfDrive("X:\\Backup"), FileSystem::DriveKind::Unknown);
    EXPECT_NE(files.KindOfDrive("C:\\no such folder"), FileSystem::DriveKind::Unknown);
}

// What the fake of the screens' tests is asked, the real one answers alike.
std::string Deeds(FileSystem& files)
{
    QStringList said;
    const auto tell = [&](bool answer) { said.append(answer ? Q("yes") : Q("no")); };
    tell(files.CreateFolder("E:\\Backup"));
    tell(files.CreateFolder("E:\\Backup\\b"));
    tell(files.CreateFolder("E:/Backup/A/"));
    tell(files.CreateFolder("E:\\Backup\\b"));
    tell(files.CreateFolder("E:\\none\\b"));
    tell(files.HasFolder("E:\\Backup\\x\\.."));
    tell(files.HasFolder("X:\\"));
    tell(files.CreateFolder("E:\\a.mdb"));
    for (const QStringList& list : {files.Folders("E:\\Backup"), files.Files("E:\\Backup", "*.mdb"),
             files.Files("E:\\", "*"), files.Folders("E:\\none"), files.Drives()})
        said.append(list.join(u'+'));
    tell(files.KindOfDrive("X:\\") == FileSystem::DriveKind::Unknown);
    return said.join(u' ').toStdString();
}

TEST_F(FileSystemTest, TheFakeAnswersAsTheRealOneDoes)
{
    Write("E:\\a.mdb", "a");
    FakeFileSystem fake;
    fake.Kinds["E:\\"] = FileSystem::DriveKind::Removable;
    fake.Contents["E:\\a.mdb"] = "a";
    EXPECT_EQ(Deeds(files), Deeds(fake));
    EXPECT_EQ(fake.KindOfDrive("e:/Backup"), FileSystem::DriveKind::Removable);
}

TEST_F(FileSystemTest, WhatIsMountedSaysWhatKindOfDriveItIs)
{
    using Kind = FileSystem::DriveKind;
    const auto kind = MachineFileSystem::KindOf;
    EXPECT_EQ(kind("ext4", false), Kind::Fixed);
    EXPECT_EQ(kind("ntfs3", false), Kind::Fixed);
    EXPECT_EQ(kind("vfat", true), Kind::Removable);
    EXPECT_EQ(kind("ext4", true), Kind::Removable);
    EXPECT_EQ(kind("nfs4", false), Kind::Network);
    EXPECT_EQ(kind("cifs", false), Kind::Network);
    EXPECT_EQ(kind("tmpfs", false), Kind::Memory);
    EXPECT_EQ(kind("iso9660", true), Kind::Optical);
}

#ifdef Q_OS_LINUX
TEST_F(FileSystemTest, ADriveInMemoryIsFoundThroughItsLink)
{
    if (!QDir("/dev/shm").exists())
        GTEST_SKIP() << "this machine has no disk in memory";
    ASSERT_TRUE(QFile::link("/dev/shm", LocalPath(u"F:").chopped(1)));
    EXPECT_EQ(files.KindOfDrive("F:\\Backup"), FileSystem::DriveKind::Memory);
    EXPECT_TRUE(files.Drives().contains("F:\\"));
}
#endif

}
