#include "tests/collection/EachCounterTest.h"

#include "collection/MilkReceipt.h"
#include "platform/report/ReportControl.h"

namespace {

// What is staged and sent to the printer by each counter.
class ReceiptTest : public EachCounterTest {
protected:
    QStringList Receipt()
    {
        return Rows("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                    "MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime "
                    "from MilkReceipt");
    }
    void PrintTo(const char* status) { Set("PrintStatus", status); }

    // Plays on the counter as it opens.
    void AtTheDoor(const std::function<void(Clerk&)>& script)
    {
        if (IsGate())
            On<frmCollectionGate>(script);
        else
            AtTheCounter(script);
    }
};

INSTANTIATE_TEST_SUITE_P(AtEach, ReceiptTest, Counters(), CounterName);

TEST_P(ReceiptTest, SavingStagesTheOneDelivery)
{
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "5.25", "4.5");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5.25|4.5|35|183.75|6.05"}));
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|2|2|saIta|mhOsa|2|8|49|98|6.05"}));
    });
}

TEST_P(ReceiptTest, WithSaveOnlyNothingIsPrintedAndTheRowStillChanges)
{
    PrintTo(" naahI ");
    InTheShift([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr sau$");
        Deliver(clerk, 1, "5.25", "4.5");
        EXPECT_TRUE(Printed.empty());
        EXPECT_EQ(Receipt().size(), 1);
    });
}

TEST_P(ReceiptTest, OnScreenItGoesToTheWindowAndOnPaperToThePrinter)
{
    InTheShift([this](Clerk& clerk) {
        gCn.Execute(QString::fromUtf8("update AutoSettings set PrintStatus='f@t sËIna'"));
        Deliver(clerk, 1, "1", "4.5");
        PrintTo("haoya");
        Deliver(clerk, 2, "2", "8");
    });
    ASSERT_EQ(Printed.size(), 2U);
    EXPECT_EQ(Printed[0].destination, ReportDestination::Window);
    EXPECT_EQ(Printed[1].destination, ReportDestination::Printer);
    EXPECT_EQ(Printed[0].subject, "राम गाय सकाळ 15-04-2026");
    EXPECT_EQ(Printed[1].subject, "सीता म्हैस सकाळ 15-04-2026");
    for (const TemplateReport::Run& run : Printed) {
        EXPECT_EQ(run.fileName, "C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt");
        EXPECT_EQ(run.logon, "dsn=VetrolanDSN;pwd=Doodh#26");
    }
}

TEST_P(ReceiptTest, WithThePrinterOffNothingIsPrintedUntilItIsOnAgain)
{
    PrintTo("haoya");
    InTheShift([this](Clerk& clerk) {
        clerk.Press("cmdPrinterOnOff");
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr baMd");
        clerk.Press("txtCollectionNo");
        Deliver(clerk, 1, "1", "4.5");
        EXPECT_TRUE(Printed.empty());
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_EQ(Receipt().size(), 1);
        clerk.Press("cmdPrinterOnOff");
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr sau$");
        clerk.Press("txtCollectionNo");
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(Printed.size(), 1U);
    });
}

TEST_P(ReceiptTest, ThePrinterIsOnAgainWhenTheCounterIsOpenedAnew)
{
    AtTheDoor([](Clerk& clerk) {
        clerk.Press("cmdPrinterOnOff");
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr baMd");
    });
    AtTheDoor([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr sau$"); });
}

TEST_P(ReceiptTest, AChangedRowPrintsItsNewFigures)
{
    PrintTo("haoya");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Type(clerk, "1{ENTER}{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Printed.size(), 2U);
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|4|4.5|35|140|6.05"}));
    });
}

TEST_P(ReceiptTest, ADeletionLeavesTheLastSlipAndPrintsNothing)
{
    PrintTo("haoya");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        const QStringList before = Receipt();
        Type(clerk, "1{ENTER}{F10}");
        EXPECT_EQ(Receipt(), before);
        EXPECT_EQ(Printed.size(), 1U);
    });
}

TEST_P(ReceiptTest, ARefusedSaveStagesAndPrintsNothing)
{
    PrintTo("haoya");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Deliver(clerk, 1, "3", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|2|4.5|35|70|6.05"}));
    });
}

TEST_P(ReceiptTest, AnUnknownTypeKeepsTheTemplateOfTheSlipBefore)
{
    PrintTo("haoya");
    gCn.Execute(QString::fromUtf8("update AutoSettings set ReceiptType=' Tašp 6 '"));
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Set("ReceiptType", "Tap 9");
        Deliver(clerk, 2, "2", "8");
    });
    ASSERT_EQ(Printed.size(), 2U);
    for (const TemplateReport::Run& run : Printed)
        EXPECT_EQ(run.fileName, "C:\\Tarvel01\\Vetrolan\\MilkReceiptShenoli Epson LX 300.rpt");
}

TEST_P(ReceiptTest, AnUnknownStatusPrintsWhereTheSlipBeforeWent)
{
    const std::pair<const char*, ReportDestination> slips[] = {
        {"kahI", ReportDestination::Window}, // the first of the day goes to the screen
        {"haoya", ReportDestination::Printer},
        {"", ReportDestination::Printer},
        {"kahI", ReportDestination::Printer},
        {"f@t s\xCBIna", ReportDestination::Window},
        {"kahI", ReportDestination::Window},
    };
    Set("RepeatCollection", "haoya");
    InTheShift([&](Clerk& clerk) {
        for (const auto& [status, destination] : slips) {
            PrintTo(status);
            Deliver(clerk, 1, "2", "4.5");
        }
    });
    ASSERT_EQ(Printed.size(), std::size(slips));
    for (std::size_t at = 0; at < Printed.size(); ++at)
        EXPECT_EQ(Printed[at].destination, slips[at].second) << at;
}

TEST_P(ReceiptTest, TheFirstSlipIsMadeReadyUnlessTheSettingsWantNone)
{
    QStringList asked;
    ReportSurroundings::Current().localPath = [&](const QString& path) {
        asked.append(path);
        return QString();
    };
    for (const char* status : {"haoya", "", "kahI", " naahI "}) {
        PrintTo(status);
        AtTheDoor([](Clerk&) {});
    }
    ReportSurroundings::Current() = {};
    const QString slip = "C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt";
    EXPECT_EQ(asked, QStringList({slip, slip, slip}));
}

TEST_P(ReceiptTest, ACounterOpensEvenIfTheBooksCannotBeOpenedForItsSlips)
{
    PrintTo("haoya");
    gAppState.gDbPassword = "wrong";
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|2|4.5|35|70"}));
    });
    EXPECT_EQ(Error(), "");
}

TEST_P(ReceiptTest, TheFirstSettingsCountWhosesoeverTheyAre)
{
    PrintTo("haoya");
    Run("update AutoSettings set CompanyId=7");
    InTheShift([](Clerk& clerk) { Deliver(clerk, 1, "2", "4.5"); });
    ASSERT_EQ(Printed.size(), 1U);
    EXPECT_EQ(Printed[0].fileName, "C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt");
    EXPECT_EQ(Printed[0].destination, ReportDestination::Printer);
}

TEST_P(ReceiptTest, WithoutSettingsASlipIsToldToHaveNoLayout)
{
    Run("delete * from AutoSettings");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(TheBox.Shown, QStringList("निवडलेल्या पावती प्रकाराचा नमुना येथे नाही."));
    });
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|2|4.5|35|70"}));
    EXPECT_TRUE(Printed.empty());
}

TEST_P(ReceiptTest, ARowWithoutACompanyNeverReachesTheSlip)
{
    PrintTo("haoya");
    InTheShift([this](Clerk& clerk) {
        gAppState.gCompanyId = 0;
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_TRUE(Receipt().isEmpty());
    });
}

TEST_P(ReceiptTest, TheDeliveryIsOnDiskAndTheNumberHasSteppedOnBeforeTheSlipIsPrinted)
{
    PrintTo("haoya");
    QStringList atPrinting;
    InTheShift([&](Clerk& clerk) {
        TemplateReport::Engine() = [&](const TemplateReport::Run& run) {
            Connection other;
            other.Open(run.logon);
            for (const char* table : {"MilkCollections", "MilkCollectionsTemp", "MilkReceipt"})
                atPrinting.append(Recordset(
                    other, QStringLiteral("select MemberName from %1").arg(QString::fromLatin1(table)))
                                      .At(0)
                                      .Text());
            atPrinting.append(clerk.Reads("txtCollectionNo"));
            atPrinting.append(clerk.Reads("txtMemberNo"));
        };
        Deliver(clerk, 1, "2", "4.5");
    });
    EXPECT_EQ(atPrinting, Of({"rama", "rama", "rama", "2", ""}));
}

TEST_P(ReceiptTest, ATemplateThatFailsLosesNothing)
{
    PrintTo("haoya");
    InTheShift([](Clerk& clerk) {
        TemplateReport::Engine() = [](const TemplateReport::Run&) {
            throw RunTimeError(RunTimeError::DatabaseFailure, "no template");
        };
        Deliver(clerk, 1, "2", "4.5");
    });
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|2|4.5|35|70"}));
    EXPECT_EQ(Copy(), Books());
    EXPECT_EQ(Receipt().size(), 1);
}

TEST_P(ReceiptTest, AFailureOfTheStagingTakesTheWholeSaveBack)
{
    InTheShift([](Clerk& clerk) {
        gCn.RunScript("create trigger NoRoom before insert on MilkReceipt "
                      "begin select raise(abort, 'no room'); end");
        Deliver(clerk, 1, "2", "4.5");
    });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Books().isEmpty());
    EXPECT_TRUE(Copy().isEmpty());
}

}
