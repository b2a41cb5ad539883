// A backup that can't be made: it is said, and nothing is lost.

#include "tests/utilities/BackupTest.h"

#include "core/start/BooksOpening.h"
#include "platform/database/DatabaseFile.h"
#include "tests/support/BooksFile.h"

#include <QDir>
#include <QFile>

namespace {

TEST_F(BackupTest, TheWorkingBooksAreNoTarget)
{
    for (const bool isHistory : {false, true}) {
        const QByteArray books = Bytes(Books);
        On<frmBackup>([&](Clerk& clerk) {
            OpenFolder(clerk, "Vetrolan");
            SetName(clerk, QString::fromUtf8(Books));
            if (isHistory)
                BackUpAsHistory(clerk);
            else
                BackUp(clerk);
        });
        ASSERT_TRUE(Failure);
        EXPECT_TRUE(Failure->Happened().contains("स्वतःच्या जागी"));
        EXPECT_EQ(Members(), 1);
        EXPECT_FALSE(books.isEmpty());
    }
}

TEST_F(BackupTest, ANameInAFolderThatIsNotThereIsARunTimeErrorThatSaysSo)
{
    for (const char* name : {"C:\\Tarvel01\\Vetrolan\\Backup\\15/04/2026.mdb", "X:\\Backup\\copy.mdb"}) {
        On<frmBackup>([&](Clerk& clerk) {
            SetName(clerk, QString::fromUtf8(name));
            BackUpAsHistory(clerk);
        });
        ASSERT_TRUE(Failure) << name;
        EXPECT_TRUE(Failure->Happened().contains("फोल्डर सापडले नाही")) << name;
        EXPECT_EQ(Members(), 1);
    }
}

TEST_F(BackupTest, AFolderOrADriveThatIsGoneIsARunTimeErrorThatSaysSo)
{
    for (const char* gone : {"D:\\milk", "D:\\"}) {
        MakeFolder("D:\\milk");
        On<frmBackup>([&](Clerk& clerk) {
            OpenDrive(clerk, "D:\\");
            if (QLatin1String(gone) == u"D:\\milk")
                OpenFolder(clerk, "milk");
            ASSERT_TRUE(QDir(LocalPath(QString::fromUtf8(gone))).removeRecursively());
            BackUp(clerk);
        });
        ASSERT_TRUE(Failure) << gone;
        EXPECT_TRUE(Failure->Happened().contains("फोल्डर सापडले नाही")) << gone;
        EXPECT_EQ(Members(), 1) << gone;
    }
}

TEST_F(BackupTest, AFolderWithoutRightsIsARunTimeErrorThatSaysSo)
{
    MakeFolder("D:\\closed");
    QFile::setPermissions(LocalPath(u"D:\\closed"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    On<frmBackup>([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        OpenFolder(clerk, "closed");
        BackUp(clerk);
    });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Failure->Happened().contains("लिहिता येत नाही"));
    EXPECT_EQ(FilesIn("D:\\closed"), QStringList());
    EXPECT_EQ(Members(), 1);
}

TEST_F(BackupTest, OnlyABackupMayGoOverAFile)
{
    const QByteArray password = Bytes("C:\\Tarvel01\\Vetrolan\\PWD.TXT");
    OnBackup([](Clerk& clerk) {
        SetName(clerk, "C:\\Tarvel01\\Vetrolan\\PWD.TXT");
        BackUpAsHistory(clerk);
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "Text1");
    });
    EXPECT_TRUE(Bytes("C:\\Tarvel01\\Vetrolan\\PWD.TXT") == password);
}

// A flipped bit in the index of the gate's list, which nothing else of the screen reads.
TEST_F(BackupTest, DamagedBooksAreARunTimeErrorAndTheOlderBackupStays)
{
    Put(PlainCopy, "the older backup");
    const qsizetype page = BooksFile::PageOf(gCn.Handle(), "MilkCollectionsTempByAmount");
    gCn.Close();
    QByteArray books = Bytes(Books);
    const qsizetype at = page * DatabaseFile::PageSize - 500;
    books[at] = static_cast<char>(books[at] ^ 8);
    Put(Books, books);
    ReopenBooks();
    On<frmBackup>([](Clerk& clerk) { BackUp(clerk); });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Failure->Happened().contains("\"Morvelta.mdb\" ही फाइल बिघडली आहे (MilkCollectionsTemp)"))
        << Failure->what();
    EXPECT_EQ(Bytes(PlainCopy), "the older backup");
}

}
