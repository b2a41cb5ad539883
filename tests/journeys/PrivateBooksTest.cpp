#include "tests/journeys/DeliveredProgram.h"

#include "platform/shell/AppFolder.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#ifdef Q_OS_LINUX
#include <sys/stat.h>

namespace {

class PrivateBooksTest : public DeliveredProgram {
protected:
    void SetUp() override
    {
        m_mask = umask(022);
        DeliveredProgram::SetUp();
    }
    void TearDown() override { umask(m_mask); }

    static mode_t RightsOf(const QString& path)
    {
        struct stat found { };
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &found), 0) << path.toStdString();
        return found.st_mode & 07777;
    }

    static void GiveToAll()
    {
        const QString folder = LocalPath(Paths::AppFolder);
        ASSERT_EQ(chmod(QFile::encodeName(folder).constData(), 0755), 0);
        for (QDirIterator below(folder, QDir::Files, QDirIterator::Subdirectories); below.hasNext();)
            ASSERT_EQ(chmod(QFile::encodeName(below.next()).constData(), 0644), 0);
    }

private:
    mode_t m_mask = 0;
};

}

TEST_F(PrivateBooksTest, WhatLiesBelowTheFolderIsTheOwnersAloneAsSoonAsTheProgramRuns)
{
    GiveToAll();
    const auto program = StartTheProgram();
    EXPECT_EQ(RightsOf(LocalPath(Paths::AppFolder)), mode_t{0700});
    QStringList seen;
    for (QDirIterator below(LocalPath(Paths::AppFolder),
             QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
         below.hasNext();) {
        const QString path = below.next();
        EXPECT_EQ(RightsOf(path), below.fileInfo().isDir() ? mode_t{0700} : mode_t{0600})
            << path.toStdString();
        seen.append(below.fileName());
    }
    for (const char* name : {"Morvelta.mdb", "Morvelta.mdb-wal", "Morvelta.mdb-shm", "PWD.TXT",
             "Vetrolan.lock", "MilkReceipt1.rpt", "Backup"})
        EXPECT_TRUE(seen.contains(QLatin1String(name))) << name;
    Kill(*program);
}

TEST_F(PrivateBooksTest, TheProgramLeavesNoCoreAndNewFilesAreItsOwnersAlone)
{
    const auto program = StartTheProgram();
    const QString process = QStringLiteral("/proc/%1/").arg(program->processId());
    QFile limits(process + "limits");
    ASSERT_TRUE(limits.open(QIODevice::ReadOnly));
    EXPECT_TRUE(
        QString::fromLatin1(limits.readAll()).contains(QRegularExpression("Max core file size +0 +0 ")));
    QFile status(process + "status");
    ASSERT_TRUE(status.open(QIODevice::ReadOnly));
    EXPECT_TRUE(status.readAll().contains("Umask:\t0077\n"));
    Kill(*program);
}
#endif
