#include "platform/shell/Privacy.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class PrivacyTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_dir.isValid()); }

    QString Path(const char* name) const { return m_dir.filePath(QString::fromUtf8(name)); }

    void MakeFile(const char* name, mode_t rights) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(chmod(Name(name).constData(), rights), 0);
    }

    void MakeFolder(const char* name, mode_t rights) const
    {
        ASSERT_TRUE(QDir().mkpath(Path(name)));
        ASSERT_EQ(chmod(Name(name).constData(), rights), 0);
    }

    mode_t RightsOf(const char* name) const
    {
        struct stat found { };
        EXPECT_EQ(stat(Name(name).constData(), &found), 0) << name;
        return found.st_mode & 07777;
    }

    QByteArray Name(const char* name) const { return QFile::encodeName(Path(name)); }

private:
    QTemporaryDir m_dir;
};

TEST_F(PrivacyTest, TakesTheRightsOfOthersFromAFolderAndAllBelowIt)
{
    MakeFolder("books", 0755);
    MakeFolder("books/Backup", 0777);
    MakeFile("books/Morvelta.mdb", 0644);
    MakeFile("books/.hidden", 0666);
    MakeFile("books/Backup/वही.mdb", 0664);
    Privacy::KeepToOwner(Path("books"));
    EXPECT_EQ(RightsOf("books"), mode_t{0700});
    EXPECT_EQ(RightsOf("books/Backup"), mode_t{0700});
    EXPECT_EQ(RightsOf("books/Morvelta.mdb"), mode_t{0600});
    EXPECT_EQ(RightsOf("books/.hidden"), mode_t{0600});
    EXPECT_EQ(RightsOf("books/Backup/वही.mdb"), mode_t{0600});
}

TEST_F(PrivacyTest, LeavesTheOwnersRightsAsTheyAre)
{
    MakeFolder("books", 0700);
    MakeFile("books/calc.EXE", 0755);
    MakeFile("books/kept.mdb", 0444);
    Privacy::KeepToOwner(Path("books"));
    EXPECT_EQ(RightsOf("books/calc.EXE"), mode_t{0700});
    EXPECT_EQ(RightsOf("books/kept.mdb"), mode_t{0400});
}

TEST_F(PrivacyTest, WhatALinkLeadsToIsLeftAlone)
{
    MakeFolder("books", 0755);
    MakeFolder("elsewhere", 0755);
    MakeFile("elsewhere/device", 0666);
    ASSERT_EQ(symlink(Name("elsewhere").constData(), Name("books/folder").constData()), 0);
    ASSERT_EQ(symlink(Name("elsewhere/device").constData(), Name("books/com1").constData()), 0);
    Privacy::KeepToOwner(Path("books"));
    EXPECT_EQ(RightsOf("elsewhere"), mode_t{0755});
    EXPECT_EQ(RightsOf("elsewhere/device"), mode_t{0666});
    EXPECT_EQ(RightsOf("books"), mode_t{0700});
}

TEST_F(PrivacyTest, TakesTheRightsOfOthersFromASingleFile)
{
    MakeFile("PWD.TXT", 0644);
    MakeFile("beside", 0644);
    Privacy::KeepToOwner(Path("PWD.TXT"));
    EXPECT_EQ(RightsOf("PWD.TXT"), mode_t{0600});
    EXPECT_EQ(RightsOf("beside"), mode_t{0644});
}

TEST_F(PrivacyTest, AFolderThatIsNotThereIsNotMade)
{
    Privacy::KeepToOwner(Path("none"));
    EXPECT_FALSE(QFile::exists(Path("none")));
}

[[noreturn]] void ForbidCoresAndEnd()
{
    Privacy::ForbidCores();
    rlimit core{1, 1};
    const bool none = getrlimit(RLIMIT_CORE, &core) == 0 && core.rlim_cur == 0 && core.rlim_max == 0;
    _exit(none && prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) == 0 ? 7 : 1);
}

// In a process of its own: this one is to be debugged.
TEST_F(PrivacyTest, NoCoreIsWrittenOrTakenOnceItIsForbidden)
{
    EXPECT_EXIT(ForbidCoresAndEnd(), testing::ExitedWithCode(7), "");
}

}
#endif
