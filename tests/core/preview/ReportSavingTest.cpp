#include "core/preview/ReportSubject.h"
#include "tests/core/ScreenFace.h"
#include "tests/core/preview/ReportPreviewTest.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <csignal>
#include <sys/resource.h>

namespace {

// A disk on which no file can grow beyond a size.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

const QString PdfKey = "^s";
const QString CsvKey = "^e";

class ReportSavingTest : public ReportPreviewTest {
protected:
    ReportSavingTest()
    {
        AddDeliveries(3, [](int number) {
            return number == 2 ? QStringLiteral("कमल, पाटील") : QStringLiteral("क्षमा द्विवेदी");
        });
        WriteTableTemplate();
    }

    QStringList InFolder() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QByteArray Content(const QString& name) const
    {
        QFile file(Saved(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void Put(const QString& name, const QByteArray& content) const
    {
        QFile file(Saved(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

}

TEST_F(ReportSavingTest, ThePdfReadsAsTheScreenDoes)
{
    Show([this](Clerk& clerk) {
        SaveAs(clerk, PdfKey, "april.pdf");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_EQ(State(clerk), "जतन केले: " + Saved("april.pdf"));
    });
    const QString text = PdfText(Saved("april.pdf"), {"-layout"});
    for (const char* piece : {"श्री गणेश दूध संस्था", "क्षमा द्विवेदी", "कमल, पाटील", "पान 1 / 1", "3.00"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(piece))) << piece << " in " << qPrintable(text);
    EXPECT_EQ(InFolder(), QStringList("april.pdf"));
}

TEST_F(ReportSavingTest, TheCsvIsUnicodeWithItsMarkAndOneRowARecord)
{
    Show([this](Clerk& clerk) { SaveAs(clerk, CsvKey, "april.csv"); });
    EXPECT_EQ(Content("april.csv").toStdString(),
        "\xEF\xBB\xBF"
        "क्र.,नाव,दिनांक,लिटर्स\r\n"
        "1,क्षमा द्विवेदी,05/04/2026,0.50\r\n"
        "2,\"कमल, पाटील\",05/04/2026,1.00\r\n"
        "3,क्षमा द्विवेदी,05/04/2026,1.50\r\n");
}

TEST_F(ReportSavingTest, TheReportsNameAndTheDayAreProposedInTheClerksDocuments)
{
    Show([](Clerk& clerk) {
        clerk.Type(PdfKey);
        EXPECT_EQ(Reads(clerk, "txtFile"), "Deliveries 15-04-2026.pdf");
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        EXPECT_EQ(clerk.Reads("txtFolder"), QDir(documents).exists() ? documents : QDir::homePath());
        clerk.Type("{ESC}" + CsvKey);
        EXPECT_EQ(Reads(clerk, "txtFile"), "Deliveries 15-04-2026.csv");
    });
}

TEST_F(ReportSavingTest, ATitleIsProposedInPlaceOfTheNameWithoutSignsThatNoFileTakes)
{
    WriteTemplate("<report name=\"Deliveries\" title=\"दूध यादी : बँक\" paper=\"A4\">"
                  "<text>एक</text></report>");
    Show([](Clerk& clerk) {
        clerk.Type(PdfKey);
        EXPECT_EQ(Reads(clerk, "txtFile"), "दूध यादी - बँक 15-04-2026.pdf");
    });
}

TEST_F(ReportSavingTest, TheNameCarriesWhatTheReportIsAbout)
{
    ReportControl control = Control();
    control.SetSubject(ReportSubject({"saunaIta paTIla", QString()}, QDate(2026, 4, 1), QDate(2026, 4, 10)));
    Failure = TheClerk.Play([&] { control.Print(); },
        [](Clerk& clerk) {
            clerk.Type(CsvKey);
            EXPECT_EQ(Reads(clerk, "txtFile"), "Deliveries सुनीता पाटील 01-04-2026 ते 10-04-2026.csv");
        });
}

TEST_F(ReportSavingTest, OneDayIsNamedOnceAndWithoutAnyItIsToday)
{
    EXPECT_EQ(ReportSubject({"gaaya"}, QDate(2026, 4, 1), QDate(2026, 4, 1)), "गाय 01-04-2026");
    EXPECT_EQ(ReportSubject({}, QDate(2026, 4, 1)), "01-04-2026");
    EXPECT_EQ(ReportSubject({"puNao"}), "पुणे 15-04-2026");
}

TEST_F(ReportSavingTest, ANameWithoutItsEndingGetsIt)
{
    Show([this](Clerk& clerk) { SaveAs(clerk, PdfKey, "april.2026"); });
    EXPECT_EQ(InFolder(), QStringList("april.2026.pdf"));
}

TEST_F(ReportSavingTest, EscAndTheExitButtonSaveNothing)
{
    Show([this](Clerk& clerk) {
        clerk.Type(PdfKey + "april{ENTER}" + m_folder.path() + "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        clerk.Type(PdfKey + "april{ENTER}" + m_folder.path() + "{ENTER}{TAB}");
        EXPECT_EQ(Focus(clerk), "cmdExit");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_EQ(State(clerk), QString());
    });
    EXPECT_EQ(InFolder(), QStringList());
}

TEST_F(ReportSavingTest, AFileThatIsThereIsOnlyReplacedAfterAYes)
{
    Put("april.csv", "old");
    Show([this](Clerk& clerk) {
        SaveAs(clerk, CsvKey, "april.csv");
        EXPECT_EQ(clerk.Message(), "या नावाची फाइल आधीच आहे. ती बदलायची का?");
        Type(clerk, "%h");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
    });
    EXPECT_TRUE(Content("april.csv").contains("0.50"));
}

TEST_F(ReportSavingTest, ANoLeavesTheFileAndAsksForAnotherName)
{
    Put("april.csv", "old");
    Show([this](Clerk& clerk) {
        SaveAs(clerk, CsvKey, "april.csv");
        Type(clerk, "{ENTER}"); // what replaces a file isn't done by an Enter too many
        EXPECT_EQ(OnTop(clerk), "frmReportFile");
        EXPECT_EQ(Focus(clerk), "txtFile");
        EXPECT_EQ(Content("april.csv").toStdString(), "old");
        Type(clerk, "may{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
    });
    EXPECT_EQ(InFolder(), QStringList({"april.csv", "may.csv"}));
}

TEST_F(ReportSavingTest, AMissingFolderIsToldAndAskedForAgain)
{
    const QString missing = Saved("nowhere");
    Show([&](Clerk& clerk) {
        clerk.Type(PdfKey + "{ENTER}" + missing + "{ENTER}{ENTER}");
        ASSERT_EQ(TheBox.Shown.size(), 1);
        EXPECT_TRUE(TheBox.Shown.first().contains("हा फोल्डर नाही")) << qPrintable(TheBox.Shown.first());
        EXPECT_TRUE(TheBox.Shown.first().contains(missing));
        EXPECT_EQ(OnTop(clerk), "frmReportFile");
        EXPECT_EQ(Focus(clerk), "txtFolder");
    });
    EXPECT_FALSE(QDir(missing).exists());
}

TEST_F(ReportSavingTest, AnEmptyNameOrFolderIsAskedForAgain)
{
    Show([&](Clerk& clerk) {
        clerk.Type(PdfKey + "{DEL}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFile");
        Type(clerk, "april{ENTER}{DEL}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFolder");
        EXPECT_EQ(TheBox.Shown.size(), 1);
    });
}

TEST_F(ReportSavingTest, AFolderOfThatNameIsNotWrittenOver)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("april.pdf"));
    Show([&](Clerk& clerk) {
        SaveAs(clerk, PdfKey, "april");
        EXPECT_EQ(Focus(clerk), "txtFile");
        ASSERT_EQ(TheBox.Shown.size(), 1);
        EXPECT_TRUE(TheBox.Shown.first().contains("या नावाचा फोल्डर आहे"));
    });
}

TEST_F(ReportSavingTest, AFullDiskIsToldAndLeavesTheOldFileAndNothingElse)
{
    for (const QString ending : {"pdf", "csv"}) {
        const QString name = "april." + ending;
        Put(name, "old");
        TheBox.Shown.clear();
        Show([&](Clerk& clerk) {
            WaitForLastPage(clerk);
            SaveAs(clerk, ending == u"pdf" ? PdfKey : CsvKey, name);
            const SmallDisk full(40);
            Type(clerk, "%h");
            ASSERT_EQ(TheBox.Shown.size(), 1);
            EXPECT_TRUE(TheBox.Shown.first().contains("फाइल लिहिता आली नाही"))
                << qPrintable(TheBox.Shown.first());
            EXPECT_EQ(OnTop(clerk), "frmReportPreview");
            EXPECT_EQ(State(clerk), QString());
        });
        EXPECT_EQ(Content(name).toStdString(), "old");
        EXPECT_EQ(InFolder(), QStringList(name));
        QFile::remove(Saved(name));
    }
    EXPECT_EQ(One("select count(*) from MilkCollectionsTemp"), "3");
}
