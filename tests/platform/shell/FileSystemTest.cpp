#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/MachineFileSystem.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"
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

    static QByteArray Read(const char* path)
    {
        QFile file(LocalPath(Q(path)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
    }

    // The number of the error that a copy ends in, or 0.
    int Copy(const char* from, const char* to, const FileSystem::Check& check = {})
    {
        try {
            files.CopyFile(Q(from), Q(to), check);
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    }

    QStringList InE() const { return files.Files("E:\\", "*"); }

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

TEST_F(FileSystemTest, ACopyGoesOverWhatHasItsName)
{
    Write("C:\\Tarvel01\\Vetrolan\\Morvelta.mdb", "the books of today");
    EXPECT_EQ(Copy("Morvelta.mdb", "E:\\Morvelta.mdb"), 0);
    EXPECT_EQ(Read("E:\\Morvelta.mdb"), "the books of today");
    Write("E:\\Morvelta.mdb", "an older copy that is longer than the books of today");
    EXPECT_EQ(Copy("Morvelta.mdb", "E:\\Morvelta.mdb"), 0);
    EXPECT_EQ(Read("E:\\Morvelta.mdb"), "the books of today");
    EXPECT_EQ(Read("C:\\Tarvel01\\Vetrolan\\Morvelta.mdb"), "the books of today");
    EXPECT_EQ(InE(), QStringList("Morvelta.mdb")) << "nothing lies beside it";
}

TEST_F(FileSystemTest, ACopyOfManyMegabytesIsWhole)
{
    QByteArray bytes(5 << 20, 'x');
    for (qsizetype at = 0; at < bytes.size(); at += 4096)
        bytes[at] = static_cast<char>(at / 4096);
    Write("E:\\large", bytes);
    EXPECT_EQ(Copy("E:\\large", "E:\\copy"), 0);
    EXPECT_TRUE(Read("E:\\copy") == bytes);
    Write("E:\\empty", "");
    EXPECT_EQ(Copy("E:\\empty", "E:\\copy"), 0);
    EXPECT_EQ(Read("E:\\copy"), "");
}

TEST_F(FileSystemTest, ACopyThatIsRefusedLeavesThePlaceAsItWas)
{
    Write("E:\\new", "new");
    Write("E:\\kept", "kept");
    QString looked;
    EXPECT_EQ(Copy("E:\\new", "E:\\kept",
                  [&](const QString& copy) {
                      QFile file(copy);
                      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
                      looked = QString::fromUtf8(file.readAll());
                      throw RunTimeError(RunTimeError::DatabaseFailure, "not sound");
                  }),
        RunTimeError::DatabaseFailure);
    EXPECT_EQ(looked, "new") << "the copy is finished when it is looked at";
    EXPECT_EQ(Read("E:\\kept"), "kept");
    EXPECT_EQ(InE(), QStringList({"kept", "new"}));
    EXPECT_EQ(Copy("E:\\new", "E:\\kept", [](const QString&) {}), 0);
    EXPECT_EQ(Read("E:\\kept"), "new");
}

TEST_F(FileSystemTest, WhatAnInterruptedCopyHasLeftIsNoHindrance)
{
    Write("E:\\new", "new");
    Write("E:\\copy.part", "half of an older and longer copy");
    EXPECT_EQ(Copy("E:\\new", "E:\\copy"), 0);
    EXPECT_EQ(Read("E:\\copy"), "new");
    EXPECT_EQ(InE(), QStringList({"copy", "new"}));
}

TEST_F(FileSystemTest, WhatCanNotBeCopiedIsARunTimeError)
{
    Write("E:\\a", "a");
    EXPECT_EQ(Copy("E:\\nothing", "E:\\a"), RunTimeError::FileNotFound);
    EXPECT_EQ(Copy("E:\\", "E:\\a"), RunTimeError::FileNotFound) << "a folder is no file";
    EXPECT_EQ(Copy("E:\\a", "E:\\no folder\\a"), RunTimeError::FileAccess);
    EXPECT_EQ(Copy("E:\\a", "X:\\a"), RunTimeError::FileAccess);
    EXPECT_EQ(Copy("E:\\a", "e:/./a"), RunTimeError::FileAccess) << "onto itself";
    ASSERT_TRUE(files.CreateFolder("E:\\folder"));
    EXPECT_EQ(Copy("E:\\a", "E:\\folder"), RunTimeError::FileAccess);
    EXPECT_EQ(Read("E:\\a"), "a");
    EXPECT_EQ(InE(), QStringList("a"));
}

#ifndef Q_OS_WIN
TEST_F(FileSystemTest, ADiskThatIsFullIsARunTimeErrorAndLeavesNothing)
{
    if (!QFile::exists("/dev/full"))
        GTEST_SKIP() << "this machine has no disk that is always full";
    Write("E:\\a", "a");
    ASSERT_TRUE(QFile::link(Q("/dev/full"), LocalPath(Q("E:\\b.part"))));
    EXPECT_EQ(Copy("E:\\a", "E:\\b"), RunTimeError::FileAccess);
    EXPECT_EQ(InE(), QStringList("a"));
}

TEST_F(FileSystemTest, ACopyIsForItsOwnerAlone)
{
    Write("E:\\a", "a");
    QFile::setPermissions(
        LocalPath(Q("E:\\a")), QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    EXPECT_EQ(Copy("E:\\a", "E:\\b"), 0);
    EXPECT_EQ(QFile::permissions(LocalPath(Q("E:\\b"))) & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
        QFileDevice::Permissions());
}
#endif

TEST_F(FileSystemTest, NothingIsCopiedOutOfOrIntoBooksThatAreOpen)
{
    const QString file = LocalAppFile(u"Morvelta.mdb");
    Write("E:\\copy", "copy");
    Connection books;
    books.Create(file, "word");
    books.RunScript("create table T(A); insert into T values(1)");
    for (const char* name : {"Morvelta.mdb", "c:/tarvel01/../Tarvel01/Vetrolan/Morvelta.mdb",
             "Morvelta.mdb-wal", "Morvelta.mdb-shm"}) {
        EXPECT_EQ(Copy(name, "E:\\b"), RunTimeError::FileAccess) << name;
        EXPECT_EQ(Copy("E:\\copy", name), RunTimeError::FileAccess) << name;
    }
#ifndef Q_OS_WIN
    ASSERT_TRUE(QFile::link(file, LocalPath(Q("E:\\link"))));
    EXPECT_EQ(Copy("E:\\link", "E:\\b"), RunTimeError::FileAccess) << "by another name";
    QFile::remove(LocalPath(Q("E:\\link")));
#endif
    EXPECT_EQ(Recordset(books, u"select A from T").At(0).Number(), 1);
    books.Close();
    EXPECT_EQ(Copy("Morvelta.mdb", "E:\\b"), 0);
    EXPECT_EQ(InE(), QStringList({"b", "copy"}));
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
    const auto copy = [&](const char* from, const char* to, const FileSystem::Check& check = {}) {
        try {
            files.CopyFile(Q(from), Q(to), check);
            said.append("copied");
        } catch (const RunTimeError& error) {
            said.append(QString::number(error.Number()));
        }
    };
    tell(files.CreateFolder("E:\\Backup"));
    tell(files.CreateFolder("E:\\Backup\\b"));
    tell(files.CreateFolder("E:/Backup/A/"));
    tell(files.CreateFolder("E:\\Backup\\b"));
    tell(files.CreateFolder("E:\\none\\b"));
    tell(files.HasFolder("E:\\Backup\\x\\.."));
    tell(files.HasFolder("X:\\"));
    copy("E:\\a.mdb", "E:\\Backup\\b.MDB");
    copy("E:\\a.mdb", "E:\\none\\b.mdb");
    copy("E:\\none.mdb", "E:\\Backup\\b.mdb");
    copy("E:\\a.mdb", "E:\\A\\..\\a.mdb");
    copy("E:\\a.mdb", "E:\\refused.mdb", [](const QString&) { throw RunTimeError(1, "no"); });
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
    fake.Refusal = "the disk is full";
    EXPECT_THROW(fake.CopyFile("E:\\a.mdb", "E:\\c.mdb"), RunTimeError);
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
