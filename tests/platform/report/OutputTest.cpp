#include "platform/report/PagePainter.h"
#include "platform/report/PrintFiles.h"
#include "platform/text/FileRights.h"
#include "tests/platform/report/ReportTest.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

const QString Conjuncts = "श्री ज्ञानेश्वर क्षीरसागर, राष्ट्रीय विद्यार्थी, कऱ्हाड, पुण्यस्मृती, द्ध्य महादेव शंकर शिंदे "
                          "नामदेव यशवंत काळे शोभा हणमंत साळुंखे शालन जयवंत डुबल तानाजी रघुनाथ देसाई देय रक्कम (लिटर) "
                          "बँक नोंदलेली नाही रु. 148.20 Fat-दर मूळ/एकूण";

// A disk on which no file can grow beyond a size, as long as it stands.
class NarrowDisk {
public:
    explicit NarrowDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit narrow = m_before;
        narrow.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &narrow);
    }
    ~NarrowDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    NarrowDisk(const NarrowDisk&) = delete;
    NarrowDisk& operator=(const NarrowDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

class KeepingPrinter final : public Printer {
public:
    QStringList Names() override { return {"one"}; }
    Outcome Print(const PrintJob& job) override
    {
        QFile file(job.file);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        Content = file.readAll();
        Rights = file.permissions();
        Job = job;
        return Answer;
    }

    QByteArray Content;
    QFile::Permissions Rights;
    PrintJob Job;
    Outcome Answer;
};

// A process that keeps its files private, of a user who doesn't: as long as it stands.
class PrivateProcess {
public:
    explicit PrivateProcess(mode_t ofTheUser) : m_before(umask(ofTheUser)) { FileRights::KeepPrivate(); }
    ~PrivateProcess() { umask(m_before); }
    PrivateProcess(const PrivateProcess&) = delete;
    PrivateProcess& operator=(const PrivateProcess&) = delete;

private:
    mode_t m_before;
};

class OutputTest : public ReportTest {
protected:
    std::unique_ptr<Report> MakeText(const QString& text)
    {
        return Make(Template("<text>" + text + "</text>"));
    }

    // What lies in a folder of its own for the outputs.
    QStringList Outputs() const { return QDir(File("out")).entryList(QDir::Files | QDir::Hidden); }
    QString Output(const QString& name) const
    {
        QDir(folder.path()).mkpath("out");
        return File("out/" + name);
    }
    // The rights of a file as the shell shows them: 0644.
    static unsigned Rights(const QString& file)
    {
        struct stat told { };
        EXPECT_EQ(stat(QFile::encodeName(file).constData(), &told), 0);
        return told.st_mode & 0777;
    }
    static QByteArray Content(const QString& file)
    {
        QFile source(file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        return source.readAll();
    }
};

}

TEST_F(OutputTest, ThePdfReadsAsThePageIsSeenConjunctsIncluded)
{
    AddDelivery(1, "सकाळ", "ज्ञानेश्वर साळुंखे", 12.5, 4, 350.5);
    const std::unique_ptr<Report> report =
        Make(Template("<text>" + Conjuncts + "</text><text bold=\"1\" size=\"15\">" + Conjuncts
            + "</text><table source=\"c\"><col w=\"60\">{MemberName}</col>"
              "<col align=\"right\">{Amount|0.00}</col></table>"));
    const QString file = Output("a.pdf");
    EXPECT_TRUE(report->SavePdf(file).Done());
    const QString seen = Conjuncts + u' ' + Conjuncts + " ज्ञानेश्वर साळुंखे 350.50";
    for (const QStringList& way : {QStringList(), QStringList("-layout")})
        EXPECT_EQ(PdfText(file, way).simplified(), seen) << way.join(u' ').toStdString();
}

TEST_F(OutputTest, ThePdfReadsAsThePageIsSeenWhereATextIsCutOrDrawnNarrower)
{
    AddDelivery(1, "सकाळ", "महादेव नामदेव साळुंखे", 12.5, 4, 123456789.25);
    AddDelivery(2, "सकाळ", "देसाई", 1, 4, 1);
    const std::unique_ptr<Report> report =
        Make(Template("<table source=\"c\"><col w=\"23\">{MemberName}</col>"
                      "<col w=\"14\" align=\"right\">{Amount|0.00} रुपये</col></table>"));
    const QString file = Output("a.pdf");
    EXPECT_TRUE(report->SavePdf(file).Done());
    const QStringList words = WordsOf(PdfText(file));
    EXPECT_EQ(words.size(), 7) << words.join(u'|').toStdString();
    EXPECT_EQ(words.value(0), "महादेव");
    EXPECT_TRUE(words.value(1).endsWith(u'…')) << "what was left out isn't found in it";
    EXPECT_TRUE(QStringLiteral("नामदेव").startsWith(words.value(1).chopped(1)));
    EXPECT_EQ(words.mid(2).join(u' '), "123456789.25 रुपये देसाई 1.00 रुपये");
}

TEST_F(OutputTest, ThePdfHasOnePageASheetAndItsFontsInIt)
{
    const std::unique_ptr<Report> report =
        Make(Template("<text>अ</text><pagebreak/><text>ब</text>", "paper=\"A5\""));
    const QString file = Output("a.pdf");
    EXPECT_TRUE(report->SavePdf(file).Done());
    EXPECT_EQ(PdfText(file, {"-f", "2"}).simplified(), "ब");
    QProcess fonts;
    fonts.start("pdffonts", {file});
    ASSERT_TRUE(fonts.waitForFinished());
    const QStringList lines = QString::fromUtf8(fonts.readAllStandardOutput()).trimmed().split(u'\n');
    ASSERT_EQ(lines.size(), 3) << "two lines of heads and one font";
    EXPECT_TRUE(lines[2].contains("NotoSansDevanagari"));
    EXPECT_TRUE(lines[2].contains(" yes yes yes ")) << "embedded, a subset, with its Unicode";
}

TEST_F(OutputTest, ScreenAndPaperShowTheSameLines)
{
    const std::unique_ptr<Report> report =
        MakeText(QStringLiteral("शेतकरी बांधवांनी दूध स्वच्छ भांड्यात आणावे. ").repeated(12));
    report->Complete();
    const QImage small = report->Image(0, 1);
    const QImage large = report->Image(0, 2);
    EXPECT_EQ(small.width(), 596);
    EXPECT_EQ(large.height(), 1684);
    // The last line with ink, in points.
    const auto lastInk = [](const QImage& image) {
        for (int y = image.height() - 1; y >= 0; --y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 160)
                    return y;
            }
        }
        return -1;
    };
    ASSERT_GT(lastInk(small), 0);
    EXPECT_NEAR(lastInk(small), lastInk(large) / 2.0, 1.5);
    const PlacedItem item = report->PageAt(0).items.front();
    EXPECT_LT(lastInk(small), item.y + item.height);
    EXPECT_GT(lastInk(small), item.y + item.height - 16);
}

TEST_F(OutputTest, ATableForASpreadsheetHasItsMarkItsHeadsAndItsQuotes)
{
    connection->RunScript("insert into MembersListReport(Crieteria,MemberNo,MemberName,City) "
                          "values('He said \"no\"',1,'A,B','C')");
    const std::unique_ptr<Report> report = Make(
        "<report name=\"T\" paper=\"A4\"><source name=\"m\" table=\"MembersListReport\"/>"
        "<table source=\"m\"><col head=\"क्र.\">{MemberNo|000}</col><col head=\"नाव\">{MemberName|plain}</col>"
        "<col head=\"टीप\">{Crieteria|plain}</col><group by=\"plain(City)\"/></table></report>");
    const QString file = Output("a.csv");
    EXPECT_TRUE(report->SaveCsv(file).Done());
    const QByteArray content = Content(file);
    EXPECT_TRUE(content.startsWith("\xEF\xBB\xBF"));
    EXPECT_EQ(QString::fromUtf8(content.mid(3)),
        "plain(City),क्र.,नाव,टीप\r\nC,001,\"A,B\",\"He said \"\"no\"\"\"\r\n");
}

TEST_F(OutputTest, ATableForASpreadsheetNamesItsGroupsAndWhatItsHeadsStandUnder)
{
    AddDelivery(7, "सकाळ", "विठ्ठल", 12.5, 4.2, 437.5);
    const std::unique_ptr<Report> report =
        Make(Template("<table source=\"c\"><heads><head/><head span=\"2\">दूध</head></heads>"
                      "<col head=\"नाव\">{MemberName}</col><col head=\"लिटर\">{Liters|0.00}</col>"
                      "<col head=\"फॅट\">{Fat|0.0}</col><col head=\"सही\"></col>"
                      "<group by=\"CollectionTime\" label=\"वेळ\"/></table>"));
    const QString file = Output("a.csv");
    EXPECT_TRUE(report->SaveCsv(file).Done());
    EXPECT_EQ(QString::fromUtf8(Content(file).mid(3)), "वेळ,नाव,दूध लिटर,दूध फॅट\r\nसकाळ,विठ्ठल,12.50,4.2\r\n")
        << "a column without anything in it is for the pen";
}

TEST_F(OutputTest, AReportWithoutATableGivesTheRowOfItsSource)
{
    AddDelivery(7, "सकाळ", "विठ्ठल", 12.5, 4.2, 437.5);
    const std::unique_ptr<Report> report = MakeText("{MemberName} {Liters|0.000}");
    const QString file = Output("a.csv");
    EXPECT_TRUE(report->SaveCsv(file).Done());
    EXPECT_EQ(QString::fromUtf8(Content(file).mid(3)), "MemberName,Liters\r\nविठ्ठल,12.5\r\n");
}

TEST_F(OutputTest, APartThatComesOnceARowGivesARowEachToASpreadsheet)
{
    AddDelivery(1, "सकाळ", "अशोक", 1.5, 4, 30);
    AddDelivery(2, "सकाळ", "बाबू", 2, 4, 60);
    AddDelivery(3, "सकाळ", "कमल", 0, 4, 60);
    const QString file = Output("a.csv");
    for (const char* attributes : {"", "keep=\"1\"", "newpage=\"1\""}) {
        const std::unique_ptr<Report> report = Make(
            Template(QStringLiteral("<text>{$society}</text><each source=\"c\" only=\"Liters &gt; 0\" %1>"
                                    "<columns><column><text>{MemberName}</text></column>"
                                    "<column><text>{Liters|0.00}</text></column></columns><rule/></each>")
                         .arg(QLatin1String(attributes))));
        EXPECT_TRUE(report->SaveCsv(file).Done());
        EXPECT_EQ(QString::fromUtf8(Content(file).mid(3)), "Liters,MemberName\r\n1.5,अशोक\r\n2,बाबू\r\n")
            << attributes;
    }
}

TEST_F(OutputTest, ARowOfATableInsideAPartThatComesOnceARowSaysWhoseItIs)
{
    AddDelivery(1, "सकाळ", "अशोक", 1, 4, 30);
    AddDelivery(2, "सकाळ", "बाबू", 2, 4, 60);
    for (const char* pair : {"1,'A',5", "1,'B',6", "2,'C',7"})
        Run(QStringLiteral("insert into KapatDetails(MemberNo,Label1,Value1) values(%1)")
                .arg(QString::fromLatin1(pair)));
    const std::unique_ptr<Report> report = Make(
        Template("<source name=\"k\" table=\"KapatDetails\" link=\"MemberNo\" to=\"c\" order=\"Label1\"/>"
                 "<each source=\"c\"><columns><column><text>{MemberNo} {MemberName}</text></column>"
                 "<column><table source=\"k\"><col head=\"कपात\">{Label1|plain}</col>"
                 "<col head=\"रक्कम\">{Value1|0.00}</col></table></column></columns></each>"));
    const QString file = Output("a.csv");
    EXPECT_TRUE(report->SaveCsv(file).Done());
    EXPECT_EQ(QString::fromUtf8(Content(file).mid(3)),
        "MemberNo,MemberName,कपात,रक्कम\r\n1,अशोक,A,5.00\r\n1,अशोक,B,6.00\r\n2,बाबू,C,7.00\r\n");
}

TEST_F(OutputTest, ARecordIsntLostWhereItsPartIsTallerThanAPage)
{
    for (const int number : {1, 2, 3})
        AddDelivery(number, "सकाळ", "अशोक", 1, 4, 30);
    const std::unique_ptr<Report> report = Make(
        Template(QStringLiteral("<each source=\"c\"><columns><column><text>{CollectionNo}</text>%1</column>"
                                "<column><text>y</text></column></columns></each>")
                     .arg(QStringLiteral("<text>x</text>").repeated(80))));
    const QString file = Output("a.csv");
    EXPECT_TRUE(report->SaveCsv(file).Done());
    EXPECT_GT(report->PageCount(), 3U);
    EXPECT_EQ(WordsOf(QString::fromUtf8(Content(file).mid(3))).join(u' '), "CollectionNo 1 2 3");
}

TEST_F(OutputTest, AFullDiskLeavesWhatWasThereBeforeAndNothingElse)
{
    connection->RunScript("with recursive n(i) as (select 1 union all select i+1 from n where i<2000) "
                          "insert into MilkCollectionsTemp(CollectionNo,MemberName) select i,'A' from n");
    const std::unique_ptr<Report> report =
        Make(Template("<table source=\"c\"><col>{CollectionNo}</col><col>{MemberName}</col></table>"));
    report->Complete();
    const QString old = Output("old.pdf");
    QFile before(old);
    ASSERT_TRUE(before.open(QIODevice::WriteOnly));
    before.write("before");
    before.close();
    {
        const NarrowDisk disk(4096);
        const Outcome pdf = report->SavePdf(old);
        EXPECT_FALSE(pdf.Done());
        EXPECT_TRUE(pdf.fault.contains("old.pdf"));
        EXPECT_FALSE(report->SavePdf(Output("new.pdf")).Done());
        EXPECT_FALSE(report->SaveCsv(Output("new.csv")).Done());
        KeepingPrinter printer;
        EXPECT_FALSE(report->Print(printer).Done());
        EXPECT_TRUE(printer.Content.isEmpty()) << "half a file never goes to the paper";
    }
    EXPECT_EQ(Outputs(), QStringList({"old.pdf"}));
    EXPECT_EQ(Content(old), QByteArray("before"));
    EXPECT_TRUE(report->SavePdf(old).Done()) << "with room on the disk it works";
    EXPECT_TRUE(Content(old).startsWith("%PDF"));
}

TEST_F(OutputTest, AFolderThatIsntThereIsTold)
{
    const Outcome outcome = MakeText("अ")->SavePdf(File("missing/a.pdf"));
    EXPECT_FALSE(outcome.Done());
    EXPECT_TRUE(outcome.fault.contains("a.pdf"));
}

TEST_F(OutputTest, ThePrinterGetsThePdfAndItsAnswerIsPassedOn)
{
    KeepingPrinter printer;
    const std::unique_ptr<Report> report = MakeText("अ");
    EXPECT_TRUE(report->Print(printer, "one").Done());
    EXPECT_TRUE(printer.Content.startsWith("%PDF"));
    EXPECT_EQ(printer.Job.title, "Test") << "its name, since it has no title";
    EXPECT_EQ(printer.Job.printer, "one");
    EXPECT_NEAR(printer.Job.paper.width(), 595.3, 0.1);
    EXPECT_FALSE(QFileInfo::exists(printer.Job.file)) << "nothing is left behind";
    printer.Answer = {"no paper"};
    EXPECT_EQ(report->Print(printer).fault, "no paper");
}

TEST_F(OutputTest, WhatTheClerkSavesHasTheRightsOfTheUsersOwnMask)
{
    const std::unique_ptr<Report> report = MakeText("अ");
    for (const auto& [mask, rights] :
        {std::pair(022U, 0644U), std::pair(027U, 0640U), std::pair(002U, 0664U)}) {
        const PrivateProcess process(mask);
        const QString pdf = Output(QStringLiteral("%1.pdf").arg(mask));
        const QString csv = Output(QStringLiteral("%1.csv").arg(mask));
        EXPECT_TRUE(report->SavePdf(pdf).Done() && report->SaveCsv(csv).Done());
        EXPECT_EQ(Rights(pdf), rights);
        EXPECT_EQ(Rights(csv), rights);
        ASSERT_EQ(chmod(QFile::encodeName(pdf).constData(), 0600), 0);
        EXPECT_TRUE(report->SavePdf(pdf).Done());
        EXPECT_EQ(Rights(pdf), 0600U) << "a file that was there keeps its own";
    }
}

TEST_F(OutputTest, WhatIsPrintedLiesInTheGivenFolderForItsOwnerAloneAndIsSweptWhenItWasLeft)
{
    const QString left = Output(".print-aB3xyZ.pdf");
    for (const QString& name : {left, Output("list.pdf"), Output("print-a.pdf")})
        EXPECT_TRUE(QFile(name).open(QIODevice::WriteOnly));
    PrintFiles::KeepIn(Output({}));
    EXPECT_EQ(Outputs(), QStringList({"list.pdf", "print-a.pdf"}));
    KeepingPrinter printer;
    EXPECT_TRUE(MakeText("अ")->Print(printer).Done());
    EXPECT_TRUE(printer.Content.startsWith("%PDF"));
    EXPECT_EQ(QFileInfo(printer.Job.file).path(), QFileInfo(left).path());
    EXPECT_TRUE(QDir::match(".print-??????.pdf", QFileInfo(printer.Job.file).fileName()))
        << "it would be swept: " << printer.Job.file.toStdString();
    constexpr auto OfOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(printer.Rights.testAnyFlags(OfOthers));
    PrintFiles::KeepIn(QDir::tempPath());
}

TEST_F(OutputTest, PaperAndPdfAreNamedByTheTitle)
{
    KeepingPrinter printer;
    const std::unique_ptr<Report> report = Make(Template("<text>अ</text>", "title=\"दूध यादी\" paper=\"A6\""));
    EXPECT_TRUE(report->Print(printer).Done());
    EXPECT_EQ(printer.Job.title, "दूध यादी");
    const QString file = Output("a.pdf");
    EXPECT_TRUE(report->SavePdf(file).Done());
    QProcess info;
    info.start("pdfinfo", {file});
    ASSERT_TRUE(info.waitForFinished());
    const QString told = QString::fromUtf8(info.readAllStandardOutput());
    EXPECT_TRUE(told.contains("दूध यादी")) << told.toStdString();
}

TEST(MediaNamesTest, EveryPaperOfTheTemplatesHasTheNameThatPrintersKnow)
{
    const std::pair<const char16_t*, const char*> papers[] = {{u"A4", "A4"}, {u"A5", "A5"}, {u"A6", "A6"},
        {u"105x148mm", "A6"}, {u"120x90mm", "Custom.120x90mm"}, {u"10x12in", "Custom.254x304.8mm"},
        {u"9.5x4in", "Custom.241.3x101.6mm"}};
    for (const auto& [name, media] : papers) {
        const std::optional<Paper> paper = ReadPaper(name);
        ASSERT_TRUE(paper) << media;
        EXPECT_EQ(MediaName(QSizeF(paper->width, paper->height)), QLatin1String(media));
    }
    EXPECT_EQ(MediaName(QSizeF(ReadPaper(u"A5")->height, ReadPaper(u"A5")->width)), "A5")
        << "lying on its side";
    for (const auto& [roll, media] :
        {std::pair(u"58mm", "Custom.58x93.4mm"), std::pair(u"80mm", "Custom.80x93.4mm")})
        EXPECT_EQ(MediaName(QSizeF(ReadPaper(roll)->width, 93.4 * Paper::PointsPerMillimetre)),
            QLatin1String(media))
            << "as long as what stands on it";
}

TEST_F(OutputTest, SearchingFindsPageAndPlace)
{
    AddDelivery(7, "सकाळ", "विठ्ठल शिंदे", 12.5, 4.2, 437.5);
    const std::unique_ptr<Report> report =
        Make(Template("<text>Abc</text><pagebreak/><text>abc {MemberName}</text>"));
    report->Complete();
    EXPECT_EQ(report->Search("ABC").size(), 2U);
    const std::vector<Report::Found> found = report->Search("शिंदे");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].page, 1U);
    EXPECT_EQ(found[0].rect, report->PageAt(1).items.front().Rect());
    EXPECT_TRUE(report->Search("गोविंद").empty());
    EXPECT_TRUE(report->Search(QString()).empty());
}

TEST_F(OutputTest, APageThatCantBeDrawnIsTold)
{
    FontTable fonts;
    Page page;
    page.width = page.height = 100;
    PlacedItem item;
    item.font = fonts.Add({"Noto Sans Devanagari", 10, false});
    item.fit = Fit::Shrink;
    item.width = 50;
    item.text = "1234.50";
    page.items.push_back(item);
    PagePainter painter(fonts);
    const auto isWritten = [&] {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        return painter.WritePdf(pdf, {}, 1, [&](std::size_t) -> const Page& { return page; });
    };
    EXPECT_TRUE(isWritten());
    page.items.front().width = 0;
    EXPECT_FALSE(isWritten());
}
