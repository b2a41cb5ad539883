#include "tools/setup/SafeFiles.h"
#include "platform/text/RunTimeError.h"
#include "tests/tools/SetupSupport.h"
#include "tests/tools/TestDisk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <functional>

namespace {

class SafeFilesTest : public testing::Test {
protected:
    QString File(const char* name) const { return m_dir.filePath(QString::fromLatin1(name)); }

    void Put(const char* name, const QByteArray& content) const
    {
        QFile file(File(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QStringList Done() const
    {
        QStringList done = m_disk.Done();
        const QString folder = QFileInfo(m_dir.path()).fileName();
        return done.replaceInStrings(folder, "FOLDER");
    }

    // What an error says that the disk's n-th change failing leads to; an empty text without an error.
    QString HappenedWhenFailing(int change, const std::function<void()>& act)
    {
        m_disk.FailAt = m_disk.Count() + change;
        try {
            act();
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), RunTimeError::FileAccess);
            return error.Happened();
        }
        return {};
    }

    QTemporaryDir m_dir;
    TestDisk m_disk;
};

TEST_F(SafeFilesTest, AWrittenFileAndItsNameAreOnDisk)
{
    SafeFiles::Write(File("a"), "content");
    EXPECT_EQ(FileContent(File("a")), QByteArray("content"));
    EXPECT_EQ(Done().join(u", "), "sync a, sync FOLDER");
}

TEST_F(SafeFilesTest, AMovedFileReplacesTheOtherAndItsNameIsOnDisk)
{
    Put("a", "new");
    Put("b", "old");
    SafeFiles::MoveInto(File("a"), File("b"));
    EXPECT_EQ(FileContent(File("b")), QByteArray("new"));
    EXPECT_FALSE(QFile::exists(File("a")));
    EXPECT_EQ(Done().join(u", "), "move a b, sync FOLDER");
}

TEST_F(SafeFilesTest, AKeptFileHasBothNames)
{
    Put("a", "content");
    SafeFiles::Keep(File("a"), File("b"));
    EXPECT_EQ(FileContent(File("a")), QByteArray("content"));
    EXPECT_EQ(FileContent(File("b")), QByteArray("content"));
    EXPECT_EQ(Done().join(u", "), "link a b, sync FOLDER");
}

TEST_F(SafeFilesTest, WhereTheDiskKnowsNoSecondNamesAKeptFileIsCopiedAndOnDisk)
{
    m_disk.KnowsSecondNames = false;
    Put("a", "content");
    SafeFiles::Keep(File("a"), File("b"));
    EXPECT_EQ(FileContent(File("a")), QByteArray("content"));
    EXPECT_EQ(FileContent(File("b")), QByteArray("content"));
    EXPECT_EQ(Done().join(u", "), "copy a b, sync b, sync FOLDER");
}

TEST_F(SafeFilesTest, AFileIsNotKeptOverAnother)
{
    Put("a", "content");
    Put("b", "other");
    EXPECT_THROW(SafeFiles::Keep(File("a"), File("b")), RunTimeError);
    EXPECT_EQ(FileContent(File("b")), QByteArray("other"));
}

TEST_F(SafeFilesTest, EveryFolderThatIsMadeIsOnDisk)
{
    SafeFiles::MakeFolder(File("one/two"));
    EXPECT_TRUE(QDir(File("one/two")).exists());
    EXPECT_EQ(Done().join(u", "), "sync one, sync FOLDER");
    SafeFiles::MakeFolder(File("one/two"));
    EXPECT_EQ(Done().size(), 2);
}

TEST_F(SafeFilesTest, WhatCannotBeBroughtToTheDiskIsAnErrorThatNamesIt)
{
    const QString file = QDir::toNativeSeparators(File("a"));
    const QString folder = QDir::toNativeSeparators(m_dir.path());
    const QString why = ": Input/output error.";
    const auto write = [&] { SafeFiles::Write(File("a"), "content"); };
    EXPECT_EQ(HappenedWhenFailing(1, write), QStringLiteral("Can't bring to the disk ") % file % why);
    EXPECT_EQ(HappenedWhenFailing(2, write), QStringLiteral("Can't bring to the disk ") % folder % why);
    EXPECT_EQ(HappenedWhenFailing(1, [&] { SafeFiles::Sync(File("a")); }),
        QStringLiteral("Can't bring to the disk ") % file % why);
    EXPECT_EQ(HappenedWhenFailing(2, [&] { SafeFiles::MoveInto(File("a"), File("b")); }),
        QStringLiteral("Can't bring to the disk ") % folder % why);
    EXPECT_EQ(HappenedWhenFailing(1, [&] { SafeFiles::Remove(File("b")); }),
        QStringLiteral("Can't remove ") % QDir::toNativeSeparators(File("b")) % why);
}

TEST_F(SafeFilesTest, WhatIsNotThereCannotBeBroughtToTheDisk)
{
    EXPECT_THROW(SafeFiles::Sync(File("nowhere")), RunTimeError);
    EXPECT_THROW(SafeFiles::SyncFolder(File("nowhere")), RunTimeError);
}

}
