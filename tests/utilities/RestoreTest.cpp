#include "tests/utilities/BackupTest.h"

#include "core/start/BooksOpening.h"
#include "core/start/MdlAccounts.h"

#include <QDir>
#include <QFile>

namespace {

class RestoreTest : public BackupTest {
protected:
    // Keeps the books of one member under the year's name; the books get a second member.
    void KeepYear()
    {
        gCn.Close();
        Put(YearCopy, Bytes(Books));
        LoadAppState();
        AddMember(2, "saIta");
    }

    static void Restore(Clerk& clerk) { Press(clerk, "cmdRestore"); }

    // What the guide line says at the button.
    static std::string RestoreGuide(Clerk& clerk)
    {
        clerk.Do([&] { clerk.Top().Find(u"cmdRestore")->SetFocus(); });
        return Label(clerk, "lblGuide");
    }

    const QString Replaced = "Morvelta Before 15 April 2026 060500.mdb";
};

TEST_F(RestoreTest, TheYearsFileComesBackAndTheReplacedBooksAreKept)
{
    KeepYear();
    OnBackup([](Clerk& clerk) {
        Restore(clerk);
        EXPECT_EQ(OnTop(clerk), "frmBackup") << "no question before it, no message after it";
        EXPECT_TRUE(gCn.IsOpen());
        EXPECT_EQ(Label(clerk, "lblContent"), "परत आणलेल्या वहीत : दूध संकलन 0, मेम्बर 1, पेमेंट 0, शेवटचा दिवस नाही");
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
    EXPECT_EQ(Members(), 1);
    EXPECT_EQ(FilesIn(Folder), QStringList({Replaced, "Y2026-2027C1.mdb"}));
    gCn.Close();
    Put(Books, Bytes(qPrintable(QString::fromUtf8(Folder) + '\\' + Replaced)));
    EXPECT_EQ(Members(), 2) << "the log was folded into what is kept";
}

TEST_F(RestoreTest, ItSaysWhatIsDoneWhileItIsDone)
{
    KeepYear();
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(Painted(clerk, "cmdRestore"),
            QStringList({"प्रत करत आहे …", "प्रतीचे प्रत्येक पान वाचून तपासत आहे. थोडे थांबा …",
                "आताची वही बाजूला ठेवत आहे …", "परत आणलेल्या वहीत : दूध संकलन 0, मेम्बर 1, पेमेंट 0, शेवटचा दिवस नाही"}));
    });
}

TEST_F(RestoreTest, FromADriveThatIsGoneItFailsAndTheBooksStay)
{
    KeepYear();
    On<frmBackup>([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        ASSERT_TRUE(QDir(LocalPath(u"D:\\")).removeRecursively());
        Restore(clerk);
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Members(), 2);
    EXPECT_EQ(FilesIn(Folder), QStringList("Y2026-2027C1.mdb"));
}

TEST_F(RestoreTest, NoOtherFileIsRestoredWhateverIsChosen)
{
    KeepYear();
    gCn.Close();
    Put(DatedCopy, "not even books");
    LoadAppState();
    OnBackup([](Clerk& clerk) {
        SetName(clerk, QString::fromUtf8(DatedCopy));
        clerk.Do([&] { dynamic_cast<MenuList*>(clerk.Top().Find(u"File1"))->SetCurrentIndex(0); });
        EXPECT_EQ(Reads(clerk, "File1"), "Morvelta On 15 April 2026.mdb");
        Restore(clerk);
    });
    EXPECT_EQ(Members(), 1);
}

TEST_F(RestoreTest, AtADrivesRootTheYearsFileIsFoundThere)
{
    KeepYear();
    Put("D:\\Y2026-2027C1.mdb", Bytes(YearCopy));
    ASSERT_TRUE(QFile::remove(LocalPath(QString::fromUtf8(YearCopy))));
    OnBackup([](Clerk& clerk) {
        OpenDrive(clerk, "D:\\");
        Restore(clerk);
    });
    EXPECT_EQ(Members(), 1);
    EXPECT_EQ(FilesIn(Folder), QStringList(Replaced)) << "what is replaced stays with the books";
}

// The company is read before the name is made.
TEST_F(RestoreTest, TheFileOfTheBooksYearComesBackNotThatOfTheScreensYear)
{
    KeepYear();
    OnBackup([](Clerk& clerk) {
        gAppState.gCompanyId = 5;
        gAppState.gAccountingYear = "2031-2032";
        Restore(clerk);
        EXPECT_EQ(gAppState.gCompanyId, 1);
        EXPECT_EQ(gAppState.gAccountingYear, "2026-2027");
    });
    EXPECT_EQ(Members(), 1);
}

TEST_F(RestoreTest, TheAnimationAndTheBarAreSeenWhileItCopiesAndOnlyThen)
{
    KeepYear();
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(LooksAtTheCopying(clerk, "cmdRestore"), 4)
            << "the copy, the books that are kept, and the folders of both";
    });
}

TEST_F(RestoreTest, WithoutTheYearsFileItFailsWithTheConnectionClosed)
{
    bool wasOpen = true;
    Put(PlainCopy, "another name");
    On<frmBackup>([&](Clerk& clerk) {
        Restore(clerk);
        wasOpen = gCn.IsOpen();
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_TRUE(Failure->Happened().contains("\"Y2026-2027C1.mdb\" ही फाइल सापडली नाही"));
    EXPECT_FALSE(wasOpen);
    EXPECT_EQ(Members(), 1);
}

TEST_F(RestoreTest, AFileOfTheYearsNameThatIsSomethingElseIsToldAndTheBooksStay)
{
    KeepYear();
    const QByteArray good = Bytes(YearCopy);
    const std::initializer_list<std::pair<QByteArray, const char*>> bad = {
        {"a letter to the bank", "हिशेबाची वही नाही"}, {"", "रिकामी"}, {good.left(10240), "अपुरी"}};
    for (const auto& [bytes, why] : bad) {
        Put(YearCopy, bytes);
        On<frmBackup>([](Clerk& clerk) { Restore(clerk); });
        ASSERT_TRUE(Failure) << why;
        EXPECT_TRUE(Failure->Happened().contains(QString::fromUtf8(why))) << Failure->what();
        EXPECT_TRUE(Failure->Happened().contains("\"Y2026-2027C1.mdb\"")) << Failure->what();
        EXPECT_EQ(Members(), 2) << why;
        EXPECT_EQ(FilesIn(Folder), QStringList("Y2026-2027C1.mdb")) << why;
    }
    QFile::remove(LocalPath(QString::fromUtf8(YearCopy)));
    MakeFolder(YearCopy);
    On<frmBackup>([](Clerk& clerk) { Restore(clerk); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Members(), 2) << "a folder of that name";
}

TEST_F(RestoreTest, TheYearOfTheRestoredBooksIsReadAtTheNextStartOrBackup)
{
    Run("update CompanySelected set AccountingYear='2025-2026'");
    KeepYear();
    Run("update CompanySelected set AccountingYear='2026-2027'");
    gAppState.gAccountingYear = "2026-2027";
    OnBackup([this](Clerk& clerk) {
        Restore(clerk);
        EXPECT_EQ(gAppState.gAccountingYear, "2026-2027");
        EXPECT_EQ(One("select AccountingYear from CompanySelected"), "2025-2026");
        Press(clerk, "cmdBackup");
        EXPECT_EQ(gAppState.gAccountingYear, "2025-2026");
    });
}

TEST_F(RestoreTest, TheGuideSaysWhichFileIsBroughtBack)
{
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(RestoreGuide(clerk), "Enter : Y2026-2027C1.mdb ही फाइल परत आणा");
        Press(clerk, "cmdBackup");
        OpenFolder(clerk, "C:\\");
        EXPECT_EQ(RestoreGuide(clerk), "Enter : Y2026-2027C1.mdb ही फाइल परत आणा") << "with the books closed";
    });
}

// The press reads the company anew, so that is what the guide goes by.
TEST_F(RestoreTest, TheGuideNamesTheFileOfTheBooksAlsoWhenTheirYearIsAnother)
{
    OnBackup([this](Clerk& clerk) {
        clerk.Do([this] { Run("update CompanySelected set CompanyId=7,AccountingYear='2030-2031'"); });
        Press(clerk, "cmdBackup");
        EXPECT_EQ(RestoreGuide(clerk), "Enter : Y2030-2031C7.mdb ही फाइल परत आणा");
    });
    ReopenBooks();
    gAppState.gAccountingYear = "2020-2021";
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(RestoreGuide(clerk), "Enter : Y2030-2031C7.mdb ही फाइल परत आणा") << "before any press";
    });
}

TEST_F(RestoreTest, AfterBooksOfAnotherYearCameBackTheGuideNamesTheirFile)
{
    Run("update CompanySelected set AccountingYear='2025-2026'");
    KeepYear();
    Run("update CompanySelected set AccountingYear='2026-2027'");
    OnBackup([](Clerk& clerk) {
        EXPECT_EQ(RestoreGuide(clerk), "Enter : Y2026-2027C1.mdb ही फाइल परत आणा");
        Restore(clerk);
        EXPECT_EQ(RestoreGuide(clerk), "Enter : Y2025-2026C1.mdb ही फाइल परत आणा");
    });
}

}
