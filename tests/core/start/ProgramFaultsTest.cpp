#include "tests/support/SocietyTest.h"

#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "platform/forms/ModalStack.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/SingleInstance.h"
#include "tests/core/ScreenFace.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

// What stands in a folder: each file's name and content.
QMap<QString, QByteArray> Contents(const QString& folder)
{
    QMap<QString, QByteArray> contents;
    for (const QFileInfo& entry : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
        QFile file(entry.filePath());
        if (file.open(QIODevice::ReadOnly))
            contents.insert(entry.fileName(), file.readAll());
    }
    return contents;
}

class ProgramFaultsTest : public SocietyTest {
protected:
    ProgramFaultsTest() { gCn.Close(); }

    // Starts the program, expects it to fail with one box, and returns the box's text.
    QString FailingStart()
    {
        const QMap<QString, QByteArray> before = Contents(LocalPath(Paths::AppFolder));
        TheBox.Shown.clear();
        int exitCode = -1;
        Failure = TheClerk.Play([&] { exitCode = RunProgram(); }, [](Clerk&) {});
        EXPECT_EQ(exitCode, 1);
        EXPECT_EQ(Contents(LocalPath(Paths::AppFolder)), before)
            << "a failed start leaves the folder as it was";
        return TheBox.Shown.size() == 1 ? TheBox.Shown.first()
                                        : QStringLiteral("%1 boxes").arg(TheBox.Shown.size());
    }

    void Overwrite(const QString& name, const QByteArray& content)
    {
        QFile file(FolderFile(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }

    QByteArray Read(const QString& name)
    {
        QFile file(FolderFile(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    const QString Database = "Morvelta.mdb";
    const QString Password = "PWD.TXT";
    const QByteArray OtherPassword = "b\r\nc\r\n!\r\n";
    static constexpr int PageSize = 1024; // of the books
};

}

TEST_F(ProgramFaultsTest, AMissingPasswordFileIsNamedInTheBox)
{
    ASSERT_TRUE(QFile::remove(FolderFile(Password)));
    EXPECT_TRUE(FailingStart().contains(Password));
}

TEST_F(ProgramFaultsTest, AnEmptyPasswordFileIsNamedInTheBox)
{
    Overwrite(Password, {});
    EXPECT_TRUE(FailingStart().contains(Password));
}

TEST_F(ProgramFaultsTest, APasswordFileWithAByteOrderMarkOpensTheBooks)
{
    Overwrite(Password, "\xEF\xBB\xBF" + Read(Password));
    EXPECT_NO_THROW(EXPECT_TRUE(LoadAppState()));
    EXPECT_EQ(gAppState.gCompanyId, 1);
}

TEST_F(ProgramFaultsTest, APasswordFileOfAMegabyteIsNamedInTheBox)
{
    Overwrite(Password, Read(Password).repeated(1'000'000 / Read(Password).size()));
    const QString box = FailingStart();
    EXPECT_TRUE(box.contains("PWD.TXT is too long")) << qPrintable(box);
}

TEST_F(ProgramFaultsTest, AMissingDatabaseIsNamedInTheBox)
{
    ASSERT_TRUE(QFile::remove(FolderFile(Database)));
    EXPECT_TRUE(FailingStart().contains(Database));
}

TEST_F(ProgramFaultsTest, AFolderThatIsMissingIsNotMade)
{
    ASSERT_TRUE(QDir(LocalPath(Paths::AppFolder)).removeRecursively());
    EXPECT_TRUE(FailingStart().contains(Password));
    EXPECT_FALSE(QDir(LocalPath(Paths::AppFolder)).exists());
}

TEST_F(ProgramFaultsTest, AFileThatIsNoDatabaseIsToldFromABookCutShort)
{
    for (const int size : {5000, 8 * PageSize}) {
        Overwrite(Database, QByteArray(size, 'x'));
        const QString box = FailingStart();
        EXPECT_TRUE(box.contains(Database)) << qPrintable(box);
        EXPECT_TRUE(box.contains("is not a database")) << qPrintable(box);
        EXPECT_FALSE(box.contains("a part of it is missing")) << qPrintable(box);
    }
}

TEST_F(ProgramFaultsTest, ABookCutShortIsToldSoWhetherTheCutFallsOnAPageOrWithinOne)
{
    const QByteArray whole = Read(Database);
    const qsizetype half = whole.size() / 2 / PageSize * PageSize;
    for (const qsizetype left : {half, half + 100, whole.size() - PageSize, whole.size() - 1}) {
        Overwrite(Database, whole.left(left));
        const QString box = FailingStart();
        EXPECT_TRUE(box.contains(Database)) << qPrintable(box);
        EXPECT_TRUE(box.contains("is cut short")) << left << qPrintable(box);
        EXPECT_FALSE(box.contains("password")) << qPrintable(box);
    }
}

TEST_F(ProgramFaultsTest, AWrongPasswordCantOpenTheBooks)
{
    Overwrite(Password, OtherPassword);
    const QString wrong = FailingStart();
    EXPECT_TRUE(wrong.contains("The password is wrong")) << qPrintable(wrong);
}

TEST_F(ProgramFaultsTest, TheFaultsAreToldApartAndEachInMarathi)
{
    const QByteArray books = Read(Database);
    const QByteArray password = Read(Password);
    const std::pair<const char*, std::function<void()>> faults[] = {
        {"missing password file", [&] { QFile::remove(FolderFile(Password)); }},
        {"empty password file", [&] { Overwrite(Password, {}); }},
        {"long password file", [&] { Overwrite(Password, QByteArray(1'000'000, 'x')); }},
        {"missing database", [&] { QFile::remove(FolderFile(Database)); }},
        {"empty database", [&] { Overwrite(Database, {}); }},
        {"no database", [&] { Overwrite(Database, QByteArray(5000, 'x')); }},
        {"cut short", [&] { Overwrite(Database, books.left(4 * PageSize)); }},
        {"wrong password", [&] { Overwrite(Password, OtherPassword); }},
    };
    QStringList boxes;
    for (const auto& [name, fault] : faults) {
        Overwrite(Database, books);
        Overwrite(Password, password);
        fault();
        const QString box = FailingStart();
        EXPECT_TRUE(box.contains(QRegularExpression("[\\x{0900}-\\x{097F}]{3}")))
            << name << ": " << qPrintable(box);
        EXPECT_FALSE(boxes.contains(box)) << name << ": " << qPrintable(box);
        boxes.append(box);
    }
}

TEST_F(ProgramFaultsTest, ASecondCopySaysThatTheBooksAreOpenAndEnds)
{
    const SingleInstance first(LocalPath(Paths::AppFolder));
    ASSERT_TRUE(first.Taken());
    EXPECT_TRUE(FailingStart().contains("open in another window"));
}

TEST_F(ProgramFaultsTest, AnErrorInAHandlerIsShownInABoxAndEndsTheProgramWithOne)
{
    int exitCode = -1;
    Failure = TheClerk.Play([&] { exitCode = RunProgram(); },
        [](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}"); // past the title and the caution
            EXPECT_EQ(OnTop(clerk), "frmAppDate");
            Type(clerk, "31022026{ENTER}");
            EXPECT_EQ(OnTop(clerk), "") << "every screen is gone";
        });
    EXPECT_EQ(exitCode, 1);
    ASSERT_EQ(TheBox.Shown.size(), 1);
    EXPECT_TRUE(TheBox.Shown.first().contains("Run-time error '13'"));
    EXPECT_FALSE(gCn.IsOpen());
}

TEST_F(ProgramFaultsTest, AnErrorIsReadOnACardOfTheWindowBeforeTheFirstScreenAndAfterTheLast)
{
    ShowBoxesInTheWindow();
    const auto readAndClose = [](Clerk& clerk, const char* text) {
        EXPECT_EQ(OnTop(clerk), "frmPlainBox");
        EXPECT_TRUE(LabelOf(clerk, "lblText").contains(QString::fromLatin1(text)));
        EXPECT_EQ(ModalStack::Current().Open().size(), 1) << "it stands alone";
        EXPECT_FALSE(gCn.IsOpen());
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    };
    int exitCode = -1;
    Failure = TheClerk.Play([&] { exitCode = RunProgram(); },
        [&](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}31022026{ENTER}");
            readAndClose(clerk, "Run-time error '13'");
        });
    EXPECT_EQ(exitCode, 1);
    ASSERT_TRUE(QFile::remove(FolderFile(Password)));
    Failure = TheClerk.Play(
        [&] { exitCode = RunProgram(); }, [&](Clerk& clerk) { readAndClose(clerk, "PWD.TXT"); });
    EXPECT_EQ(exitCode, 1);
}
