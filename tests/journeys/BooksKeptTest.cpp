#include "core/menu/ScreenDirectory.h"
#include "core/preview/ReportHandover.h"
#include "platform/database/DatabaseFile.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/EveryScreen.h"
#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"
#include "tests/support/BooksFile.h"
#include "tests/support/FakePrinter.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

namespace {

// What was keyed stays, whatever is looked at, printed, killed or put in its place meanwhile.
class BooksKeptTest : public ProgramTest {
protected:
    BooksKeptTest()
    {
        FillBooks();
        m_pageOfTheGate = BooksFile::PageOf(gCn.Handle(), "MilkCollectionsTempByAmount");
    }

    void ShowSlips() { Run("update AutoSettings set PrintStatus='f@t sËIna',ReceiptType='Tašp 2'"); }

    const QString Books = "Morvelta.mdb";
    const QString Log = "Morvelta.mdb-wal";

    // Whether the engine's lock stands on the books, for every other program to see.
    bool IsLocked() const { return BooksFile::LocksOn(FolderFile(Books).toStdString()) > 0; }

    // Shows a report from a screen that is opened by name, and takes each of the preview's ways out of the
    // program.
    void ExpectLockBehindEachUseOf(const char* screen, const char* keys)
    {
        const QString name = QString::fromLatin1(screen);
        auto made = std::make_unique<FakePrinter>();
        const FakePrinter& printer = *made;
        const ReportHandover handover(std::move(made));
        const QTemporaryDir folder;
        PlayOn(TheClerk, {name, QString::fromLatin1(keys), [&] { ScreenDirectory::Open(name); }},
            [&](Clerk& clerk) {
                ASSERT_EQ(OnTop(clerk), "frmReportPreview") << screen;
                EXPECT_TRUE(IsLocked()) << screen << " was shown";
                Type(clerk, "^p");
                ASSERT_EQ(printer.Jobs.size(), 1U) << screen;
                EXPECT_TRUE(IsLocked()) << screen << " was printed";
                for (const auto& [key, file] : {std::pair{"^s", "paper.pdf"}, std::pair{"^e", "paper.csv"}}) {
                    Type(clerk, key);
                    clerk.Type("paper{ENTER}" + folder.path() + "{ENTER}{ENTER}");
                    EXPECT_TRUE(QFile::exists(folder.filePath(QString::fromLatin1(file)))) << screen;
                    EXPECT_TRUE(IsLocked()) << screen << " was saved as " << file;
                }
                Type(clerk, "{ESC}");
                EXPECT_EQ(OnTop(clerk), screen);
                EXPECT_TRUE(IsLocked()) << screen << " is there again";
            });
    }

    qint64 LogSize() const { return QFileInfo(FolderFile(Log)).size(); }

    QStringList Deliveries()
    {
        return Rows("select CollectionNo,MemberNo,Liters from MilkCollections where "
                    "CollectionTime='saMQyaakaL' order by CollectionNo");
    }

    // A flipped bit in the index of the gate's list: nothing of the start reads it.
    void DamageAPage() const
    {
        QFile books(FolderFile(Books));
        ASSERT_TRUE(books.open(QIODevice::ReadWrite));
        const qint64 at = qint64{m_pageOfTheGate} * DatabaseFile::PageSize - 500;
        books.seek(at);
        const QByteArray byte = books.read(1);
        books.seek(at);
        books.write(QByteArray(1, static_cast<char>(byte[0] ^ 8)));
    }

    // The program in a process of its own, which can be killed; its books are closed in this one.
    void StartOther()
    {
        gCn.Close();
        m_other = Processes::Start("other_process", {Drives(), "keys"});
    }

    // Types there, and returns the screen that it has led to.
    QString TypeThere(const QString& keys)
    {
        m_other->write(keys.toUtf8() + '\n');
        constexpr int halfMinute = 30000;
        QElapsedTimer waited;
        waited.start();
        while (!m_other->canReadLine() && waited.elapsed() < halfMinute) {
            if (!m_other->waitForReadyRead(halfMinute))
                break;
        }
        const QString said = QString::fromUtf8(m_other->readLine()).trimmed();
        EXPECT_TRUE(said.startsWith("screen ")) << said.toStdString();
        return said.mid(7);
    }

    void KillOther()
    {
        m_other->kill();
        EXPECT_TRUE(Processes::WaitForEnd(*m_other));
        m_other.reset();
    }

    // What the stock shell prints for a query.
    QString AskShell(const QString& query) const
    {
        QProcess shell;
        shell.start("sqlcipher", {FolderFile(Books)});
        EXPECT_TRUE(shell.waitForStarted()) << "the package sqlcipher is needed";
        shell.write("pragma key='Doodh#26';\n" + query.toUtf8() + "\n.quit\n");
        EXPECT_TRUE(Processes::WaitForEnd(shell));
        return QString::fromUtf8(shell.readAllStandardOutput()).trimmed();
    }

    std::unique_ptr<QProcess> m_other;

private:
    int m_pageOfTheGate = 0; // of that index
};

const QString ToTheEvening = "{DOWN}{ENTER}{ENTER}{ENTER}2{ENTER}";

QString Delivery(const char* member, const char* litres, const char* fat)
{
    return QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}{ENTER}{ENTER}")
        .arg(QLatin1String(member), QLatin1String(litres), QLatin1String(fat));
}

}

TEST_F(BooksKeptTest, ALookWithTheShellAfterASlipAndAKillLoseNothing)
{
    ShowSlips();
    StartOther();
    EXPECT_EQ(TypeThere(OpeningKeys() + ToTheEvening + Delivery("1", "6", "4.1")), "frmReportPreview");
    EXPECT_EQ(TypeThere("{ESC}"), "frmMilkCollections");
    EXPECT_TRUE(AskShell("select count(*) from MilkCollections;").endsWith(u'4'));
    for (const char* member : {"2", "3"}) {
        TypeThere(Delivery(member, member[0] == '2' ? "4" : "1{ENTER}5", "7.1"));
        TypeThere("{ESC}");
    }
    KillOther();
    Reopen();
    EXPECT_EQ(Deliveries(), Lines({"1|1|6", "2|2|4", "3|3|5"}));
    EXPECT_EQ(Integrity(), "ok");
}

TEST_F(BooksKeptTest, ABackupPutOverTheBooksOfAKilledProgramIsWhatOpens)
{
    gCn.Close();
    const QString backup = FolderFile("Backup/kept.mdb");
    ASSERT_TRUE(QFile::copy(FolderFile(Books), backup));
    StartOther();
    TypeThere(OpeningKeys() + ToTheEvening + Delivery("1", "6", "4.1"));
    EXPECT_EQ(TypeThere("{ESC}"), "MainMenuFrm");
    TypeThere("{ENTER}{ENTER}2{ENTER}" + Delivery("2", "4", "7.1"));
    KillOther();
    ASSERT_GT(LogSize(), 0);
    ASSERT_TRUE(QFile::remove(FolderFile(Books)));
    ASSERT_TRUE(QFile::copy(backup, FolderFile(Books)));
    Reopen();
    EXPECT_EQ(Deliveries(), QStringList());
    EXPECT_EQ(TheBox.Shown.size(), 1);
    EXPECT_EQ(Boxes("log of other books"), 1);
    EXPECT_EQ(Integrity(), "ok");
}

TEST_F(BooksKeptTest, TheEnginesLockStandsAfterEachSlipPreviewFileAndScreen)
{
    const QString folder = FolderFile("Saved");
    ASSERT_TRUE(QDir().mkdir(folder));
    ShowSlips();
    Start([&](Clerk& clerk) {
        clerk.Type(OpeningKeys());
        EXPECT_TRUE(IsLocked());
        clerk.Type(ToTheEvening + Delivery("1", "6", "4.1"));
        ASSERT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_TRUE(IsLocked()) << "a slip";
        for (const char* key : {"^s", "^e"}) {
            Type(clerk, key);
            clerk.Type("slip{ENTER}" + folder + "{ENTER}{ENTER}");
            ASSERT_EQ(OnTop(clerk), "frmReportPreview");
            EXPECT_TRUE(IsLocked()) << "a PDF, a CSV";
        }
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), Lines({"slip.csv", "slip.pdf"}));
        Type(clerk, "{ESC}");
        EXPECT_TRUE(IsLocked());
        Type(clerk, "{ESC}");
        ASSERT_EQ(OnTop(clerk), "MainMenuFrm");
        EXPECT_TRUE(IsLocked()) << "the counter is left";
        EXPECT_EQ(LogSize(), 0);
    });
    EXPECT_FALSE(IsLocked());
}

TEST_F(BooksKeptTest, TheEnginesLockStandsAfterEveryScreen)
{
    gAppState.gAppDate = QDate(2026, 4, 15);
    ASSERT_FALSE(ScreenDirectory::Names().isEmpty());
    for (const QString& screen : ScreenDirectory::Names()) {
        Failure = TheClerk.Play([&] { ScreenDirectory::Open(screen); },
            [&](Clerk& clerk) {
                EXPECT_EQ(clerk.ScreenName(), screen);
                Type(clerk, "{ENTER}{ESC}");
            });
        EXPECT_FALSE(Failure) << screen.toStdString();
        EXPECT_TRUE(IsLocked()) << screen.toStdString();
    }
}

TEST_F(BooksKeptTest, TheEnginesLockStandsAfterEachReportThatIsShownPrintedAndSaved)
{
    gAppState.gAppDate = QDate(2026, 4, 15);
    ShowSlips();
    for (const auto& [screen, keys] : std::initializer_list<std::pair<const char*, const char*>>{
             {"frmMilkCollections", "{ENTER}2{ENTER}{ENTER}1{ENTER}6{ENTER}4.1{ENTER}{ENTER}{ENTER}"},
             {"frmMilkCollections", "{ENTER}1{ENTER}{ENTER}1{F7}14042026{ENTER}15042026{ENTER}1{ENTER}%i"},
             {"frmCollectionGate", "{ENTER}2{ENTER}{ENTER}2{ENTER}4{ENTER}7.1{ENTER}{ENTER}{ENTER}"},
             {"frmSearchCollections", "15042026{ENTER}1{ENTER}1{ENTER}{ENTER}{ENTER}{ENTER}"},
             {"frmAutoSettings", "+{TAB}{ENTER}"},
             {"frmReportMilkPS", "14042026{ENTER}15042026{ENTER}{ENTER}rama%i"},
             {"frmReportMilkCollections", "15042026{ENTER}{ENTER}%i"},
             {"frmReportMembersList", "%i"},
             {"frmReportPaymentList", "11042026{ENTER}%i"},
         })
        ExpectLockBehindEachUseOf(screen, keys);
}

TEST_F(BooksKeptTest, TheEnginesLockStandsAfterASlipThatGoesToThePrinterAtOnce)
{
    gAppState.gAppDate = QDate(2026, 4, 15);
    Run("update AutoSettings set PrintStatus='haoya',ReceiptType='Tašp 2'");
    auto made = std::make_unique<FakePrinter>();
    const FakePrinter& printer = *made;
    const ReportHandover handover(std::move(made));
    const QString counter = "frmMilkCollections";
    PlayOn(
        TheClerk, {counter, "{ENTER}2{ENTER}", [&] { ScreenDirectory::Open(counter); }}, [&](Clerk& clerk) {
            for (const std::size_t jobs : {1U, 2U}) {
                clerk.Type(Delivery(jobs == 1 ? "1" : "2", "6", "4.1"));
                EXPECT_EQ(OnTop(clerk), "frmMilkCollections");
                EXPECT_EQ(printer.Jobs.size(), jobs);
                EXPECT_TRUE(IsLocked()) << jobs;
            }
        });
}

TEST_F(BooksKeptTest, LeavingAScreenFoldsTheLogIntoTheBooks)
{
    Start([&](Clerk& clerk) {
        clerk.Type(OpeningKeys() + ToTheEvening + Delivery("1", "6", "4.1"));
        EXPECT_GT(LogSize(), 0);
        Type(clerk, "{ESC}");
        ASSERT_EQ(OnTop(clerk), "MainMenuFrm");
        EXPECT_EQ(LogSize(), 0);
    });
    EXPECT_FALSE(QFile::exists(FolderFile(Log))) << "a clean end leaves no log";
}

TEST_F(BooksKeptTest, KeysThatRestFoldTheLogToo)
{
    Start([&](Clerk& clerk) {
        clerk.Type(OpeningKeys() + ToTheEvening + Delivery("1", "6", "4.1"));
        ASSERT_EQ(OnTop(clerk), "frmMilkCollections");
        EXPECT_GT(LogSize(), 0);
        const QDeadlineTimer patience(30000);
        while (LogSize() > 0 && !patience.hasExpired())
            clerk.Do([] {});
        EXPECT_EQ(LogSize(), 0);
    });
}

TEST_F(BooksKeptTest, BooksReplacedUnderTheRunningProgramEndItWithAWordAndStayAsTheyAre)
{
    gCn.Close();
    const QString backup = FolderFile("Backup/kept.mdb");
    ASSERT_TRUE(QFile::copy(FolderFile(Books), backup));
    const int exitCode = Start([&](Clerk& clerk) {
        clerk.Type(OpeningKeys() + ToTheEvening);
        ASSERT_TRUE(QFile::remove(FolderFile(Books)));
        ASSERT_TRUE(QFile::copy(backup, FolderFile(Books)));
        clerk.Type(Delivery("1", "6", "4.1"));
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(exitCode, 1);
    EXPECT_EQ(Boxes("was replaced"), 1);
    Reopen();
    EXPECT_EQ(Deliveries(), QStringList());
    EXPECT_EQ(Integrity(), "ok");
}

TEST_F(BooksKeptTest, AfterAWeekThePagesAreReadAndDamageIsNamedWithTheNewestBackup)
{
    gCn.Close();
    ASSERT_TRUE(QFile::copy(FolderFile(Books), FolderFile("Backup/kept.mdb")));
    DamageAPage();
    EXPECT_NO_THROW(Reopen());
    gCn.Close();
    TheClock.Time = TheClock.Time.addDays(7);
    try {
        Reopen();
        FAIL() << "it opened";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Happened().contains("is damaged in the tables")) << error.what();
        EXPECT_TRUE(error.Happened().contains("kept.mdb")) << error.what();
    }
}

TEST_F(BooksKeptTest, AfterAnEndThatLeftItsLockThePagesAreReadToo)
{
    gCn.Close();
    DamageAPage();
    QFile lock(FolderFile("Vetrolan.lock"));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.close();
    EXPECT_EQ(Start([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); }), 1);
    EXPECT_EQ(Boxes("is damaged in the tables"), 1);
}

TEST_F(BooksKeptTest, DamagedBooksAreRefusedAtEveryStart)
{
    gCn.Close();
    DamageAPage();
    QFile lock(FolderFile("Vetrolan.lock"));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.close();
    for (int start = 1; start <= 3; ++start) {
        EXPECT_EQ(Start([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); }), 1) << start;
        EXPECT_EQ(Boxes("is damaged in the tables"), start);
        // Neither lock nor log tells of it any more, as when the log was put aside.
        for (const char* ending : {"-wal", "-shm"})
            QFile::remove(FolderFile(QStringLiteral("Morvelta.mdb") + QLatin1String(ending)));
    }
}

TEST_F(BooksKeptTest, BooksWithoutAWordOfWhenTheyWereReadAreReadAtOnce)
{
    gCn.Close();
    ASSERT_TRUE(QFile::remove(FolderFile("Checked.txt")));
    DamageAPage();
    try {
        Reopen();
        FAIL() << "it opened";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Happened().contains("is damaged in the tables")) << error.what();
    }
}

TEST_F(BooksKeptTest, SoundBooksAreReadOnceAWeek)
{
    const QString checked = FolderFile("Checked.txt");
    const auto day = [&] {
        QFile file(checked);
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    };
    EXPECT_EQ(day(), "2026-04-15") << "the day on which the books were made";
    TheClock.Time = TheClock.Time.addDays(6);
    Reopen();
    EXPECT_EQ(day(), "2026-04-15");
    TheClock.Time = TheClock.Time.addDays(1);
    Reopen();
    EXPECT_EQ(day(), "2026-04-22");
}
