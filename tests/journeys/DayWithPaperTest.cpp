#include "collection/frmSearchCollections.h"
#include "platform/forms/DataGrid.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"

#include <QDeadlineTimer>
#include <QFile>

namespace {

// Three members come for the first time; what they bring is shown on paper.
class DayWithPaperTest : public ProgramTest {
protected:
    DayWithPaperTest()
    {
        InsertMember(1, "rama", "gaaya");
        InsertMember(2, "saIta", "mhOsa");
        InsertMember(3, "gaNaoSa", "daonhI");
    }

    // The paper on the screen is of one page, holds the text so many times, and goes with Esc.
    static void ReadPaper(Clerk& clerk, const char* stored, int times, const char* below)
    {
        ASSERT_EQ(OnTop(clerk), "frmReportPreview");
        Type(clerk, "{END}^f");
        clerk.Type(QString::fromUtf8(stored) + "{ENTER}");
        EXPECT_EQ(Label(clerk, "lblPages"), "1 / 1");
        EXPECT_EQ(Label(clerk, "lblState"), "सापडले: 1 / " + std::to_string(times)) << stored;
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), below);
    }

    QStringList Slip()
    {
        return Rows("select CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
                    "Liters,Fat,Rate,Amount,ActualCollectionTime from MilkReceipt");
    }

    QStringList Deliveries()
    {
        return Rows("select CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
                    "Liters,Fat,Rate,Amount,ActualCollectionTime from MilkCollections "
                    "order by CollectionDate,CollectionTime,CollectionNo");
    }

    // Slips on the screen, of the second layout, and a delivery goes onto the balance.
    void Set(Clerk& clerk)
    {
        Type(clerk, "{F7}");
        ASSERT_EQ(OnTop(clerk), "frmAutoSettings");
        Type(clerk, "{ENTER}{ENTER}2{ENTER}45{ENTER}46{ENTER}2{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboPaymentDuration");
        clerk.Press("CheckCNP");
        Type(clerk, "%s");
        EXPECT_EQ(
            Rows("select PrintStatus,CanLimitCow,CanLimitBuff,ReceiptType,PurchaseEntry from AutoSettings"),
            QStringList("f@t sËIna|45.000|46.000|Tašp 2|Collection"));
        Type(clerk, "%b");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    }

    void TakeTheMorning(Clerk& clerk)
    {
        Type(clerk, "{F8}{ENTER}1{ENTER}");
        ASSERT_EQ(OnTop(clerk), "frmCollectionGate");
        Type(clerk, "{ENTER}1{ENTER}12.5{ENTER}4.2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Slip(), Lines({"15/04/2026|sakaL|1|1|rama|gaaya|12.5|4.2|34.64|433|6.05"}));
        ReadPaper(clerk, "rama", 1, "frmCollectionGate");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");

        Type(clerk, "{ENTER}2{ENTER}8.25{ENTER}7.1{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Slip(), Lines({"15/04/2026|sakaL|2|2|saIta|mhOsa|8.25|7.1|47.65|393.11|6.05"}));
        ReadPaper(clerk, "393.11", 1, "frmCollectionGate");

        Type(clerk, "{ENTER}3{ENTER}1{ENTER}4{ENTER}4.3{ENTER}{ENTER}{ENTER}");
        ReadPaper(clerk, "139.04", 1, "frmCollectionGate");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    }

    // One member's own collection, and its statement, at the other counter.
    static void LookAtMember(Clerk& clerk)
    {
        Type(clerk, "{HOME}{DOWN}{ENTER}{ENTER}{ENTER}1{ENTER}{ENTER}1{F7}");
        ASSERT_EQ(OnTop(clerk), "frmMilkCollections");
        Type(clerk, "01042026{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}");
        const auto& milk = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridMilk"));
        EXPECT_EQ(milk.Rows(), 1);
        EXPECT_EQ(Label(clerk, "lblCowTotalM"), "433.000");
        Type(clerk, "%i");
        ReadPaper(clerk, "rama", 1, "frmMilkCollections");
        Type(clerk, "%b");
        EXPECT_EQ(dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridInwards")).Rows(), 3)
            << "the shift is there again";
    }

    // The slip of the second delivery once more, from its row at the counter.
    void PrintAgain(Clerk& clerk)
    {
        clerk.Press("txtMemberNo");
        Type(clerk, "2{F9}");
        ASSERT_EQ(OnTop(clerk), "frmSearchCollections");
        const QDeadlineTimer limit(10000);
        while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
            clerk.Do([] {});
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Slip(), Lines({"15/04/2026|sakaL|2|2|saIta|mhOsa|8.25|7.1|47.65|393.11|NULL"}));
        ReadPaper(clerk, "393.11", 1, "frmSearchCollections");
        Type(clerk, "{ESC}{ESC}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    }

    static void ListTheDay(Clerk& clerk)
    {
        Type(clerk, "{ESC}{HOME}{DOWN}{DOWN}{ENTER}{ENTER}");
        ASSERT_EQ(OnTop(clerk), "frmReportMilkCollections");
        Type(clerk, "15042026{ENTER}{ENTER}%i");
        ReadPaper(clerk, "433.00", 1, "frmReportMilkCollections");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    }

    static void Leave(Clerk& clerk)
    {
        clerk.AskToLeave();
        EXPECT_EQ(clerk.Message(), "saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ");
        Type(clerk, "%h");
        EXPECT_EQ(OnTop(clerk), "");
    }

    void TakeTemplate(const char* name) { ASSERT_TRUE(QFile::remove(FolderFile(QString::fromLatin1(name)))); }

    void SpoilTemplate(const char* name)
    {
        QFile file(FolderFile(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("<report name=\"MilkReceipt1\" paper=\"A4\"><text>{Liters");
    }

    // The first delivery of the day at a counter, which ends the program.
    void SaveIntoTheEnd(const char* counter)
    {
        const int exitCode = Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + QString::fromLatin1(counter));
            Type(clerk, "{ENTER}1{ENTER}{ENTER}1{ENTER}12.5{ENTER}4.2{ENTER}{ENTER}");
            EXPECT_EQ(Focus(clerk), "cmdGo");
            EXPECT_TRUE(Deliveries().isEmpty());
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "") << "no screen is left";
        });
        EXPECT_EQ(exitCode, 1);
        EXPECT_EQ(TheBox.Shown.size(), 1);
        EXPECT_EQ(Boxes("Run-time error"), 1);
        EXPECT_EQ(Boxes("MilkReceipt1.rpt"), 1) << TheBox.Shown.join(u'\n').toStdString();
        TheBox.Shown.clear();
    }

    // After the next start the delivery is in the books, at the counter and in the member's figures, once.
    void ExpectTheDeliveryIsThere()
    {
        const int exitCode = Start([this](Clerk& clerk) {
            clerk.Type(OpeningKeys() + "{F8}{ENTER}1{ENTER}");
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
            EXPECT_EQ(dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridInwards")).Rows(), 1);
            Type(clerk, "{ESC}");
            EXPECT_TRUE(TheBox.Shown.isEmpty());
            Leave(clerk);
        });
        EXPECT_EQ(exitCode, 0);
        Reopen();
        const QStringList one = Lines({"15/04/2026|sakaL|1|1|rama|gaaya|12.5|4.2|34.64|433|6.05"});
        EXPECT_EQ(Deliveries(), one);
        EXPECT_EQ(Slip(), one);
        EXPECT_EQ(Rows("select ClosingBalance,CowClosingLits from MembersMaster where MemberNo=1"),
            Lines({"433|12.5"}));
        EXPECT_EQ(Integrity(), "ok");
    }

    void ShowSlips() { Run("update AutoSettings set PrintStatus='f@t sËIna',PurchaseEntry='Collection'"); }
};

}

TEST_F(DayWithPaperTest, ADayWithSlipsAReprintAStatementAndAListIsInTheBooks)
{
    const int exitCode = Start([this](Clerk& clerk) {
        clerk.Type(OpeningKeys());
        Set(clerk);
        TakeTheMorning(clerk);
        LookAtMember(clerk);
        PrintAgain(clerk);
        ListTheDay(clerk);
        EXPECT_TRUE(TheBox.Shown.isEmpty()) << TheBox.Shown.join(u'\n').toStdString();
        Leave(clerk);
    });
    EXPECT_EQ(exitCode, 0);
    Reopen();
    const QStringList day = Lines({"15/04/2026|sakaL|1|1|rama|gaaya|12.5|4.2|34.64|433|6.05",
        "15/04/2026|sakaL|2|2|saIta|mhOsa|8.25|7.1|47.65|393.11|6.05",
        "15/04/2026|sakaL|3|3|gaNaoSa|gaaya|4|4.3|34.76|139.04|6.05"});
    EXPECT_EQ(Deliveries(), day);
    EXPECT_EQ(Rows("select CollectionNo,MemberNo,Amount from MilkCollectionsTemp order by "
                   "CollectionNo"),
        Lines({"1|1|433", "2|2|393.11", "3|3|139.04"}))
        << "the list has staged the day";
    EXPECT_EQ(Rows("select MemberNo,ClosingBalance,ClosingDorC,CowClosingLits,BuffClosingLits "
                   "from MembersMaster order by MemberNo"),
        Lines({"1|433|C|12.5|0", "2|393.11|C|0|8.25", "3|139.04|C|4|0"}));
    EXPECT_EQ(Integrity(), "ok");
}

TEST_F(DayWithPaperTest, ALostTemplateEndsTheProgramAfterTheDeliveryAtTheGateIsSafe)
{
    ShowSlips();
    TakeTemplate("MilkReceipt1.rpt");
    SaveIntoTheEnd("{F8}");
    ExpectTheDeliveryIsThere();
}

TEST_F(DayWithPaperTest, ASpoiltTemplateEndsTheProgramAfterTheDeliveryAtTheCounterIsSafe)
{
    ShowSlips();
    SpoilTemplate("MilkReceipt1.rpt");
    SaveIntoTheEnd("{DOWN}{ENTER}{ENTER}");
    ExpectTheDeliveryIsThere();
}

TEST_F(DayWithPaperTest, ALostTemplateOfAListEndsTheProgramAndTheBooksStay)
{
    TakeTemplate("MilkCollectionsReport.rpt");
    const QStringList before = AllRows();
    const int exitCode = Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys() + "{DOWN}{DOWN}{ENTER}{ENTER}15042026{ENTER}{ENTER}%i");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(exitCode, 1);
    EXPECT_EQ(Boxes("MilkCollectionsReport.rpt"), 1);
    Reopen();
    EXPECT_EQ(Difference(before, AllRows()), "+ ReportDates|1|15/04/2026|15/04/2026\n")
        << "what was staged for it";
}
