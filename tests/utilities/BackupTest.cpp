#include "tests/utilities/BackupTest.h"

#include "core/start/BooksKeeper.h"
#include "core/start/BooksOpening.h"
#include "platform/forms/FolderList.h"
#include "platform/forms/ModalStack.h"
#include "platform/report/ReportBooks.h"
#include <QFile>
#include <QKeyEvent>
#include <QLabel>

namespace {

TEST_F(BackupTest, ItOpensOnARegularBackupInTheDefaultFolderWithTheDatedName)
{
    gAppState.gBackupFolder = "D:\\";
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmbBackupType"), "rogyaular");
        EXPECT_EQ(Name(clerk), DatedCopy);
        EXPECT_EQ(gAppState.gBackupFolder.toStdString(), Folder);
        EXPECT_EQ(Reads(clerk, "cmdBackup"), "ba^k Ap\\");
        EXPECT_EQ(Reads(clerk, "cmdRestore"), "rIsTaoAr");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "&baahor");
        EXPECT_EQ(Focus(clerk), "cmbBackupType");
    });
}

TEST_F(BackupTest, ARegularBackupWritesThePlainNameAndLeavesTheConnectionClosed)
{
    OnBackup([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmBackup") << "no question, no message";
        EXPECT_FALSE(gCn.IsOpen());
        EXPECT_TRUE(Bytes(PlainCopy) == Bytes(Books));
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta.mdb"));
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
        EXPECT_TRUE(gCn.IsOpen());
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(BackupTest, ItSaysInOneLineWhatLiesInTheCopy)
{
    AddMember(2, "saIta");
    Run("insert into MilkCollections(CompanyId,CollectionDate,MemberNo) values(1,'14/04/2026',1)");
    Run("insert into MilkPayments(CompanyId,MemberNo) values(1,1)");
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblContent"), "");
        BackUp(clerk);
        EXPECT_EQ(Label(clerk, "lblContent"), "बॅकअपमध्ये : दूध संकलन 1, मेम्बर 2, पेमेंट 1, शेवटचा दिवस 14/04/2026");
    });
}

// The bar stands still while the engine reads the pages.
TEST_F(BackupTest, ItSaysWhatIsDoneWhileItIsDone)
{
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(Painted(clerk, "cmdBackup"),
            QStringList({"प्रत करत आहे …", "प्रतीचे प्रत्येक पान वाचून तपासत आहे. थोडे थांबा …",
                "बॅकअपमध्ये : दूध संकलन 0, मेम्बर 1, पेमेंट 0, शेवटचा दिवस नाही"}));
    });
}

// At the root of a drive that isn't trusted the year's name is put behind the usual folder without a
// backslash, and a name without a drive lies beside the books.
TEST_F(BackupTest, ACopyThatDoesNotLieInTheFolderThatIsShownIsSaidToLieElsewhere)
{
    Drives.Kinds["D:\\"] = FileSystem::DriveKind::Removable;
    MakeFolder("D:\\milk");
    OnBackup([](Clerk& clerk) {
        SetName(clerk, "C:\\Tarvel01\\Vetrolan\\Backup\\another.mdb");
        BackUpAsHistory(clerk);
        EXPECT_TRUE(Label(clerk, "lblContent").starts_with("बॅकअपमध्ये"));
        SetName(clerk, "copy.mdb");
        BackUp(clerk);
        EXPECT_TRUE(Label(clerk, "lblContent").starts_with("C:\\Tarvel01\\Vetrolan\\copy.mdb मध्ये"));
        OpenDrive(clerk, "D:\\");
        OpenFolder(clerk, "milk");
        OpenFolder(clerk, "D:\\");
        BackUp(clerk);
        EXPECT_TRUE(
            Label(clerk, "lblContent").starts_with("C:\\Tarvel01\\Vetrolan\\BackupY2026-2027C1.mdb मध्ये"));
    });
    EXPECT_TRUE(IsThere("C:\\Tarvel01\\Vetrolan\\copy.mdb"));
    EXPECT_TRUE(IsThere("C:\\Tarvel01\\Vetrolan\\BackupY2026-2027C1.mdb"));
    EXPECT_EQ(FilesIn("D:\\"), QStringList());
}

TEST_F(BackupTest, WhatWasSavedLastIsInTheCopyThoughItStandsInTheLog)
{
    AddMember(2, "saIta");
    ASSERT_GT(gCn.LogSize(), 0);
    OnBackup([](Clerk& clerk) { BackUp(clerk); });
    QFile::remove(FolderFile("Morvelta.mdb"));
    ASSERT_TRUE(QFile::copy(FolderFile("Backup/Morvelta.mdb"), FolderFile("Morvelta.mdb")));
    gCn.Close();
    EXPECT_EQ(Members(), 2);
}

TEST_F(BackupTest, TheConnectionOfTheReportsIsClosedToo)
{
    ReportBooks::Current().Prepare(Logon());
    OnBackup([](Clerk& clerk) {
        BackUpAsHistory(clerk);
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta On 15 April 2026.mdb"));
    });
}

TEST_F(BackupTest, AnotherRegularBackupTakesThePlaceOfTheOlder)
{
    OnBackup([this](Clerk& clerk) {
        BackUp(clerk);
        const QByteArray older = Bytes(PlainCopy);
        clerk.Do([this] {
            ReopenBooks();
            AddMember(2, "saIta");
        });
        BackUp(clerk);
        EXPECT_TRUE(Bytes(PlainCopy) == Bytes(Books));
        EXPECT_FALSE(Bytes(PlainCopy) == older);
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta.mdb"));
    });
}

TEST_F(BackupTest, AHistoryBackupWritesTheDatedNameAndOpensTheConnection)
{
    OnBackup([this](Clerk& clerk) {
        BackUpAsHistory(clerk);
        EXPECT_EQ(OnTop(clerk), "frmBackup");
        EXPECT_TRUE(gCn.IsOpen());
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta On 15 April 2026.mdb"));
        EXPECT_EQ(Reads(clerk, "File1"), "Morvelta On 15 April 2026.mdb");
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(BackupTest, TheSameDaysSecondHistoryBackupGoesOverTheFirst)
{
    OnBackup([this](Clerk& clerk) {
        BackUpAsHistory(clerk);
        EXPECT_EQ(Label(clerk, "lblContent"), "बॅकअपमध्ये : दूध संकलन 0, मेम्बर 1, पेमेंट 0, शेवटचा दिवस नाही");
        const QByteArray first = Bytes(DatedCopy);
        clerk.Do([this] { AddMember(2, "saIta"); });
        BackUp(clerk);
        EXPECT_EQ(Label(clerk, "lblContent"), "बॅकअपमध्ये : दूध संकलन 0, मेम्बर 2, पेमेंट 0, शेवटचा दिवस नाही");
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta On 15 April 2026.mdb"));
        EXPECT_FALSE(Bytes(DatedCopy) == first);
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(BackupTest, AnEmptyNameIsRefusedOnceAndThenWorksSinceItWasMadeAnew)
{
    OnBackup([this](Clerk& clerk) {
        SetName(clerk, {});
        BackUp(clerk);
        EXPECT_EQ(TheBox.Shown, QStringList("Please check the filename"));
        EXPECT_EQ(Name(clerk), DatedCopy);
        EXPECT_EQ(FilesIn(Folder), QStringList());
        BackUp(clerk);
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta.mdb"));
        EXPECT_EQ(TheBox.Shown.size(), 1);
    });
}

TEST_F(BackupTest, AnyTypeButHistoryIsRegular)
{
    OnBackup([](Clerk& clerk) {
        Type(clerk, "{BS}");
        EXPECT_EQ(Reads(clerk, "cmbBackupType"), "");
        BackUp(clerk);
        EXPECT_EQ(Reads(clerk, "cmbBackupType"), "rogyaular");
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta.mdb"));
    });
}

TEST_F(BackupTest, OnlyAFixedDiskOrANetworkFolderGetsARegularBackup)
{
    using Kind = FileSystem::DriveKind;
    for (const Kind kind :
        {Kind::Fixed, Kind::Network, Kind::Removable, Kind::Optical, Kind::Memory, Kind::Unknown}) {
        Drives.Kinds["D:\\"] = kind;
        const bool isTrusted = kind == Kind::Fixed || kind == Kind::Network;
        OnBackup([&](Clerk& clerk) {
            OpenDrive(clerk, "D:\\");
            EXPECT_EQ(gAppState.gBackupFolder, "D:\\");
            BackUp(clerk);
            EXPECT_EQ(gAppState.gBackupFolder.toStdString(), isTrusted ? "D:\\" : Folder);
            EXPECT_EQ(Name(clerk), "D:\\") << "the name isn't changed";
            EXPECT_EQ(Label(clerk, "lblContent").starts_with(isTrusted ? "बॅकअपमध्ये" : Folder), true);
            EXPECT_EQ(Reads(clerk, "File1"), isTrusted ? "Morvelta.mdb" : "");
            Type(clerk, "{ESC}");
        });
        EXPECT_EQ(IsThere("D:\\Morvelta.mdb"), isTrusted) << static_cast<int>(kind);
        EXPECT_EQ(IsThere(PlainCopy), !isTrusted) << static_cast<int>(kind);
        for (const char* copy : {"Backup/Morvelta.mdb", "../../../drive_d/Morvelta.mdb"})
            QFile::remove(FolderFile(copy));
    }
}

// A history backup goes by the name alone, which isn't changed.
TEST_F(BackupTest, AHistoryBackupGoesWhereItsNameSays)
{
    Drives.Kinds["D:\\"] = FileSystem::DriveKind::Removable;
    MakeFolder("D:\\milk");
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        OpenFolder(clerk, "milk");
        BackUpAsHistory(clerk);
    });
    EXPECT_EQ(FilesIn("D:\\milk"), QStringList("Morvelta On 15 April 2026.mdb"));
}

TEST_F(BackupTest, AtADrivesRootAHistoryBackupGetsTheYearsName)
{
    MakeFolder("D:\\milk");
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        OpenFolder(clerk, "milk");
        OpenFolder(clerk, "D:\\");
        EXPECT_EQ(Name(clerk), "D:\\\\Morvelta On 15 April 2026.mdb");
        BackUpAsHistory(clerk);
    });
    EXPECT_EQ(FilesIn("D:\\"), QStringList("Y2026-2027C1.mdb"));
}

// The company is read before the name is made.
TEST_F(BackupTest, TheYearsNameAtADrivesRootIsThatOfTheBooksNotThatOfTheScreen)
{
    MakeFolder("D:\\milk");
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        OpenFolder(clerk, "milk");
        OpenFolder(clerk, "D:\\");
        gAppState.gCompanyId = 5;
        gAppState.gAccountingYear = "2031-2032";
        BackUpAsHistory(clerk);
    });
    EXPECT_EQ(FilesIn("D:\\"), QStringList("Y2026-2027C1.mdb"));
}

TEST_F(BackupTest, AtADrivesRootARegularBackupHasThePlainName)
{
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        BackUp(clerk);
    });
    EXPECT_EQ(FilesIn("D:\\"), QStringList("Morvelta.mdb"));
}

TEST_F(BackupTest, TheCompanyAndTheYearOfTheBooksAreReadAnew)
{
    Run("update CompanySelected set CompanyId=7,AccountingYear='2030-2031'");
    EXPECT_EQ(gAppState.gCompanyId, 1);
    OnBackup([](Clerk& clerk) {
        BackUp(clerk);
        EXPECT_EQ(gAppState.gCompanyId, 7);
        EXPECT_EQ(gAppState.gAccountingYear, "2030-2031");
    });
}

TEST_F(BackupTest, EveryWayOutOpensTheConnection)
{
    for (const char* way : {"{ESC}", "%b", "close box"}) {
        OnBackup([way](Clerk& clerk) {
            BackUp(clerk);
            EXPECT_FALSE(gCn.IsOpen());
            if (way[0] == 'c')
                clerk.CloseBox();
            else
                Type(clerk, way);
            EXPECT_EQ(OnTop(clerk), "") << way;
        });
        EXPECT_TRUE(gCn.IsOpen()) << way;
    }
}

// A table that only the connection has which made it tells an old one from a new one.
TEST_F(BackupTest, ANewConnectionIsOpenedOnLeavingWhetherOrNotOneWasOpen)
{
    const auto expectNew = [this](const char* when) {
        EXPECT_TRUE(gCn.IsOpen()) << when;
        EXPECT_EQ(One("select count(*) from sqlite_temp_master"), "0") << when;
        EXPECT_EQ(One("select count(*) from MembersMaster"), "1") << when;
    };
    gCn.RunScript("create temp table OfThisConnection(A)");
    ASSERT_EQ(One("select count(*) from sqlite_temp_master"), "1");
    OnBackup([](Clerk& clerk) { Type(clerk, "{ESC}"); });
    expectNew("while one was open");
    OnBackup([](Clerk& clerk) {
        BackUp(clerk);
        EXPECT_FALSE(gCn.IsOpen());
        Type(clerk, "{ESC}");
    });
    expectNew("after a copy that left none open");
}

// What is saved after a backup is folded as before it.
TEST_F(BackupTest, TheKeeperOfTheBooksGoesOnWithTheNewConnection)
{
    const BooksKeeper keeper;
    int saves = 0;
    gCn.SetWritten([&] { ++saves; });
    OnBackup([](Clerk& clerk) {
        BackUp(clerk);
        Type(clerk, "{ESC}");
    });
    AddMember(2, "saIta");
    EXPECT_EQ(saves, 1);
}

TEST_F(BackupTest, TheAnimationAndTheBarAreSeenWhileItCopiesAndOnlyThen)
{
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(LooksAtTheCopying(clerk, "cmdBackup"), 3) << "the copy, the folder and the note of it";
    });
}

TEST_F(BackupTest, DrivesFoldersAndFilesAreReadAnewBehindAHistoryBackup)
{
    OnBackup([](Clerk& clerk) {
        const auto entries = [&](const char* list) {
            return dynamic_cast<MenuList*>(clerk.Top().Find(QString::fromLatin1(list)))->Entries().size();
        };
        EXPECT_EQ(entries("Drive1"), 2U);
        const LookingDisk disk([] {
            MakeFolder("E:\\");
            MakeFolder("C:\\Tarvel01\\Vetrolan\\Backup\\new");
        });
        BackUpAsHistory(clerk);
        EXPECT_EQ(entries("Drive1"), 3U);
        EXPECT_EQ(entries("Dir1"), 5U);
        EXPECT_EQ(entries("File1"), 1U);
        EXPECT_EQ(Reads(clerk, "Drive1"), "C:\\");
        EXPECT_EQ(Name(clerk), DatedCopy);
    });
}

// Esc comes to the screen when the copy is done.
TEST_F(BackupTest, NoKeyGetsInWhileItCopies)
{
    OnBackup([](Clerk& clerk) {
        const Screen* screen = &clerk.Top();
        const LookingDisk disk([&] {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::postEvent(screen->KeyTarget(), escape.clone());
            EXPECT_TRUE(ModalStack::Current().Top() == screen);
        });
        BackUp(clerk);
        EXPECT_EQ(FilesIn(Folder), QStringList("Morvelta.mdb"));
    });
}

}
