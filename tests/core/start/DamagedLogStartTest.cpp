// What the clerk is told before the first screen when the log of the last saves is damaged.

#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "platform/database/Transaction.h"
#include "platform/forms/ModalStack.h"
#include "tests/core/ScreenFace.h"
#include "tests/support/SocietyTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

class DamagedLogStartTest : public SocietyTest {
protected:
    DamagedLogStartTest() { gCn.Fold(); }

    void Add(const char* town)
    {
        Transaction saving(gCn);
        Run(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                .arg(QLatin1String(town)));
        saving.Commit();
    }

    // Books and log as they are left when the power fails now.
    void LeaveBehind()
    {
        const QStringList endings = {QString(), "-wal", "-shm"};
        for (const QString& ending : endings)
            ASSERT_TRUE(QFile::copy(Books + ending, m_left.filePath("left" + ending)));
        gCn.Close();
        for (const QString& ending : endings) {
            QFile::remove(Books + ending);
            ASSERT_TRUE(QFile::copy(m_left.filePath("left" + ending), Books + ending));
        }
    }

    void DamageLog(qint64 at) const
    {
        QFile log(Books + "-wal");
        ASSERT_TRUE(log.open(QIODevice::ReadWrite) && log.seek(at));
        const char byte = log.read(1).at(0);
        ASSERT_TRUE(log.seek(at));
        log.write(QByteArray(1, static_cast<char>(byte ^ 0x10)));
    }

    QString Towns()
    {
        return Rows("select CityName from CityMaster where CityName like 'Lost%' or "
                    "CityName like 'Kept%'")
            .join(u' ');
    }

    const QString Books = FolderFile("Morvelta.mdb");

private:
    QTemporaryDir m_left;
};

}

TEST_F(DamagedLogStartTest, TheClerkReadsHowManyEntriesMayBeMissingAndSinceWhenBeforeTheMenu)
{
    Add("Kept");
    const qint64 kept = gCn.LogSize();
    for (const char* town : {"Lost1", "Lost2", "Lost3"})
        Add(town);
    LeaveBehind();
    DamageLog(kept + 500);
    const QString since = QFileInfo(Books).lastModified().toString("dd/MM/yyyy HH");
    ShowBoxesInTheWindow();
    int exitCode = -1;
    Failure = TheClerk.Play([&] { exitCode = RunProgram(); },
        [&](Clerk& clerk) {
            World::Current().messageBox = &TheBox; // a box that ends the program waits for nobody
            ASSERT_EQ(OnTop(clerk), "frmPlainBox");
            EXPECT_EQ(ModalStack::Current().Open().size(), 1) << "no screen is there yet";
            const QString text = LabelOf(clerk, "lblText");
            EXPECT_TRUE(text.contains("सुमारे 3 नोंदी गेल्या असण्याची शक्यता")) << qPrintable(text);
            EXPECT_TRUE(text.contains(since)) << qPrintable(text);
            EXPECT_TRUE(text.contains("पुन्हा भरा")) << qPrintable(text);
            EXPECT_TRUE(text.contains("About 3 entries")) << qPrintable(text);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "frmAbout");
            Type(clerk, "{ENTER}{ENTER}15042026{ENTER}{ENTER}");
            EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
            EXPECT_EQ(Towns(), "Kept");
            clerk.CloseBox();
        });
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(TheBox.Shown, QStringList()) << "it is told once";
}

TEST_F(DamagedLogStartTest, ASoundLogThatWasLeftBehindOpensTheProgramWithoutAWord)
{
    Add("Kept1");
    Add("Kept2");
    LeaveBehind();
    Failure = TheClerk.Play([] { RunProgram(); },
        [&](Clerk& clerk) {
            EXPECT_EQ(OnTop(clerk), "frmAbout");
            EXPECT_EQ(Towns(), "Kept1 Kept2");
            EXPECT_EQ(TheBox.Shown, QStringList());
        });
}
