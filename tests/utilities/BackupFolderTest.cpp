#include "tests/utilities/BackupTest.h"

#include "platform/forms/FolderList.h"

#include <QDir>
#include <QLabel>
#include <QMenu>

namespace {

class BackupFolderTest : public BackupTest {
protected:
    static QStringList Entries(Clerk& clerk, const char* list)
    {
        QStringList texts;
        for (const Caption& entry :
            dynamic_cast<MenuList*>(clerk.Top().Find(QString::fromLatin1(list)))->Entries())
            texts.append(entry.Seen().trimmed());
        return texts;
    }

    // Chooses the entry of the menu that hangs on the folders.
    static void ChooseCreateFolder(Clerk& clerk)
    {
        clerk.Do([&] {
            auto* menu = clerk.Top().Find(u"Dir1")->Widget()->findChild<QMenu*>();
            ASSERT_TRUE(menu);
            ASSERT_EQ(menu->actions().size(), 1);
            EXPECT_EQ(menu->actions()[0]->text(), "&Create Folder");
            menu->actions()[0]->trigger();
        });
    }
};

TEST_F(BackupFolderTest, TheFolderThatIsChosenIsThatOfTheNameAndOfTheFiles)
{
    MakeFolder("C:\\Tarvel01\\Vetrolan\\Backup\\old");
    Put("C:\\Tarvel01\\Vetrolan\\Backup\\old\\Morvelta.MDB", "x");
    Put("C:\\Tarvel01\\Vetrolan\\Backup\\old\\note.txt", "x");
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(Entries(clerk, "Dir1"), QStringList({"C:\\", "Tarvel01", "Vetrolan", "Backup", "old"}));
        EXPECT_EQ(Entries(clerk, "File1"), QStringList());
        OpenFolder(clerk, "old");
        EXPECT_EQ(gAppState.gBackupFolder, "C:\\Tarvel01\\Vetrolan\\Backup\\old");
        EXPECT_EQ(Name(clerk), "C:\\Tarvel01\\Vetrolan\\Backup\\old\\Morvelta On 15 April 2026.mdb");
        EXPECT_EQ(Entries(clerk, "File1"), QStringList("Morvelta.MDB"));
    });
}

TEST_F(BackupFolderTest, ADriveThatIsChosenMovesTheFoldersAndShowsTheFolderAsTheName)
{
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(Entries(clerk, "Drive1"), QStringList({"C:\\", "D:\\"}));
        EXPECT_EQ(Reads(clerk, "Drive1"), "C:\\");
        OpenDrive(clerk, "D:\\");
        EXPECT_EQ(Entries(clerk, "Dir1"), QStringList("D:\\"));
        EXPECT_EQ(gAppState.gBackupFolder, "D:\\");
        EXPECT_EQ(Name(clerk), "D:\\");
    });
}

// The clerk who takes the name as the drive left it.
TEST_F(BackupFolderTest, AFolderWithItsBackslashTakesTheCopyUnderThePlainName)
{
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        BackUpAsHistory(clerk);
    });
    EXPECT_EQ(FilesIn("D:\\"), QStringList("Morvelta.mdb"));
}

TEST_F(BackupFolderTest, ADefaultFolderThatIsGoneIsMade)
{
    ASSERT_TRUE(QDir(LocalPath(QString::fromUtf8(Folder))).removeRecursively());
    OnBackup([](Clerk& clerk) { BackUp(clerk); });
    EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta.mdb"));
}

TEST_F(BackupFolderTest, AFolderIsMadeInTheOneThatIsChosen)
{
    TheInputBox.Answers = QStringList{"milk"};
    OnBackup([this](Clerk& clerk) {
        ChooseCreateFolder(clerk);
        EXPECT_EQ(TheInputBox.Asked, QStringList("Enter Folder Name|Backup"));
        EXPECT_EQ(gAppState.gBackupFolder, "C:\\Tarvel01\\Vetrolan\\Backup\\milk");
        EXPECT_EQ(Entries(clerk, "Dir1").last(), "milk");
        EXPECT_TRUE(IsThere("C:\\Tarvel01\\Vetrolan\\Backup\\milk"));
    });
}

TEST_F(BackupFolderTest, AtADrivesRootTheFolderHasNoSecondBackslash)
{
    TheInputBox.Answers = QStringList{"milk"};
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        ChooseCreateFolder(clerk);
        EXPECT_EQ(gAppState.gBackupFolder, "D:\\milk");
        EXPECT_EQ(Name(clerk), "D:\\milk\\Morvelta On 15 April 2026.mdb");
    });
}

TEST_F(BackupFolderTest, AFolderThatIsThereAlreadyIsOnlyOpened)
{
    MakeFolder("C:\\Tarvel01\\Vetrolan\\Backup\\milk");
    Put("C:\\Tarvel01\\Vetrolan\\Backup\\milk\\Morvelta.mdb", "x");
    TheInputBox.Answers = QStringList{"milk"};
    OnBackup([](Clerk& clerk) {
        ChooseCreateFolder(clerk);
        EXPECT_EQ(OnTop(clerk), "frmBackup");
        EXPECT_EQ(gAppState.gBackupFolder, "C:\\Tarvel01\\Vetrolan\\Backup\\milk");
        EXPECT_EQ(Entries(clerk, "File1"), QStringList("Morvelta.mdb"));
    });
}

TEST_F(BackupFolderTest, AnUnansweredPromptMakesNothing)
{
    OnBackup([](Clerk& clerk) {
        ChooseCreateFolder(clerk);
        EXPECT_EQ(gAppState.gBackupFolder.toStdString(), Folder);
        EXPECT_EQ(OnTop(clerk), "frmBackup");
    });
}

TEST_F(BackupFolderTest, ANameThatCanBeNoFolderIsToldAndNothingIsMade)
{
    Put("C:\\Tarvel01\\Vetrolan\\Backup\\file", "x");
    for (const char* name : {"15/04", "a\\b", "..\\..", "file", ".", "..", "...", " .. ", "  "}) {
        TheInputBox.Answers = QStringList{QString::fromUtf8(name)};
        OnBackup([name](Clerk& clerk) {
            ChooseCreateFolder(clerk);
            EXPECT_EQ(OnTop(clerk), "frmMessages") << name;
            Type(clerk, "{ENTER}");
            EXPECT_EQ(gAppState.gBackupFolder.toStdString(), Folder) << name;
            EXPECT_EQ(Entries(clerk, "Dir1").last(), "Backup") << name;
        });
    }
}

}
