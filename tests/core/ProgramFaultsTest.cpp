#include "SocietyTest.h"

#include "AppFolder.h"
#include "Program.h"
#include "SingleInstance.h"

#include <QDir>
#include <QFile>

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

class ProgramFaults : public SocietyTest {
protected:
    ProgramFaults() { gCn.Close(); }

    // Starts the program, expects it to fail with one box, and returns the box's text.
    QString FailingStart()
    {
        const QMap<QString, QByteArray> before = Contents(LocalPath(AppFolder));
        int exitCode = -1;
        TheClerk.Play([&] { exitCode = RunProgram(); }, [](Clerk&) {});
        EXPECT_EQ(exitCode, 1);
        EXPECT_EQ(Contents(LocalPath(AppFolder)), before) << "a failed start leaves the folder as it was";
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

    const QString Database = QStringLiteral("Morvelta.mdb");
    const QString Password = QStringLiteral("PWD.TXT");
};

}

TEST_F(ProgramFaults, AMissingPasswordFileIsNamedInTheBox)
{
    ASSERT_TRUE(QFile::remove(FolderFile(Password)));
    EXPECT_TRUE(FailingStart().contains(Password));
}

TEST_F(ProgramFaults, AnEmptyPasswordFileIsNamedInTheBox)
{
    Overwrite(Password, {});
    EXPECT_TRUE(FailingStart().contains(Password));
}

TEST_F(ProgramFaults, AMissingDatabaseIsNamedInTheBox)
{
    ASSERT_TRUE(QFile::remove(FolderFile(Database)));
    EXPECT_TRUE(FailingStart().contains(Database));
}

TEST_F(ProgramFaults, AFolderThatIsMissingIsNotMade)
{
    ASSERT_TRUE(QDir(LocalPath(AppFolder)).removeRecursively());
    EXPECT_TRUE(FailingStart().contains(Password));
    EXPECT_FALSE(QDir(LocalPath(AppFolder)).exists());
}

TEST_F(ProgramFaults, AFileThatIsNoDatabaseIsToldFromABookCutShort)
{
    Overwrite(Database, QByteArray(8192, 'x'));
    const QString noDatabase = FailingStart();
    EXPECT_TRUE(noDatabase.contains(Database)) << qPrintable(noDatabase);
}

TEST_F(ProgramFaults, ABookCutShortIsToldSo)
{
    const QByteArray whole = Read(Database);
    Overwrite(Database, whole.left(whole.size() / 2 + 100));
    const QString cutShort = FailingStart();
    EXPECT_TRUE(cutShort.contains(Database)) << qPrintable(cutShort);
}

TEST_F(ProgramFaults, AWrongPasswordCantOpenTheBooks)
{
    Overwrite(Password, "b\r\nc\r\n!\r\n");
    const QString wrong = FailingStart();
    EXPECT_TRUE(wrong.contains(QStringLiteral("password"), Qt::CaseInsensitive)) << qPrintable(wrong);
}

TEST_F(ProgramFaults, TheFaultsAreToldApart)
{
    Overwrite(Password, "b\r\nc\r\n!\r\n");
    const QString wrongPassword = FailingStart();
    TheBox.Shown.clear();
    ASSERT_TRUE(QFile::remove(FolderFile(Database)));
    EXPECT_NE(FailingStart(), wrongPassword);
}

TEST_F(ProgramFaults, ASecondCopySaysThatTheBooksAreOpenAndEnds)
{
    const SingleInstance first(LocalPath(AppFolder));
    ASSERT_TRUE(first.Taken());
    EXPECT_TRUE(FailingStart().contains(QStringLiteral("open in another window")));
}

TEST_F(ProgramFaults, AnErrorInAHandlerIsShownInABoxAndEndsTheProgramWithOne)
{
    int exitCode = -1;
    TheClerk.Play([&] { exitCode = RunProgram(); },
        [](Clerk& clerk) {
            clerk.Type(QStringLiteral("{ENTER}{ENTER}")); // past the title and the caution
            EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmAppDate"));
            clerk.Type(QStringLiteral("31022026{ENTER}"));
            EXPECT_EQ(clerk.ScreenName(), QString()) << "every screen is gone";
        });
    EXPECT_EQ(exitCode, 1);
    ASSERT_EQ(TheBox.Shown.size(), 1);
    EXPECT_TRUE(TheBox.Shown.first().contains(QStringLiteral("Run-time error '13'")));
    EXPECT_FALSE(gCn.IsOpen());
}
