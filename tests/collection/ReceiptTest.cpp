#include "CounterTest.h"

#include "MilkReceipt.h"

namespace {

class ReceiptTest : public CounterTest {
protected:
    QStringList Receipt()
    {
        return Rows(QStringLiteral("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                                   "MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime "
                                   "from MilkReceipt"));
    }
    void PrintTo(const char* status) { Set("PrintStatus", status); }
};

TEST_F(ReceiptTest, SavingStagesTheOneDelivery)
{
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "5.25", "4.5");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5.25|4.5|35|183.75|6.05"}));
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|2|2|saIta|mhOsa|2|8|49|98|6.05"}));
    });
}

TEST_F(ReceiptTest, WithSaveOnlyNothingIsPrintedAndTheRowStillChanges)
{
    PrintTo(" naahI ");
    InTheMorning([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr sau$");
        Deliver(clerk, 1, "5.25", "4.5");
        EXPECT_TRUE(Printed.empty());
        EXPECT_EQ(Receipt().size(), 1);
    });
}

TEST_F(ReceiptTest, OnScreenItGoesToTheWindowAndOnPaperToThePrinter)
{
    InTheMorning([this](Clerk& clerk) {
        gCn.Execute(QString::fromUtf8("update AutoSettings set PrintStatus='f@t sËIna'"));
        Deliver(clerk, 1, "1", "4.5");
        PrintTo("haoya");
        Deliver(clerk, 2, "2", "8");
    });
    ASSERT_EQ(Printed.size(), 2U);
    EXPECT_EQ(Printed[0].destination, CounterReport::Destination::Window);
    EXPECT_EQ(Printed[1].destination, CounterReport::Destination::Printer);
    for (const CounterReport::Run& run : Printed) {
        EXPECT_EQ(run.fileName, QStringLiteral("C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt"));
        EXPECT_EQ(run.logon, QStringLiteral("dsn=VetrolanDSN;pwd=Doodh#26"));
    }
}

TEST_F(ReceiptTest, WithThePrinterOffNothingIsPrintedUntilItIsOnAgain)
{
    PrintTo("haoya");
    InTheMorning([this](Clerk& clerk) {
        clerk.Press(QStringLiteral("cmdPrinterOnOff"));
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr baMd");
        clerk.Press(QStringLiteral("txtCollectionNo"));
        Deliver(clerk, 1, "1", "4.5");
        EXPECT_TRUE(Printed.empty());
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_EQ(Receipt().size(), 1);
        clerk.Press(QStringLiteral("cmdPrinterOnOff"));
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr sau$");
        clerk.Press(QStringLiteral("txtCollectionNo"));
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(Printed.size(), 1U);
    });
}

TEST_F(ReceiptTest, ThePrinterIsOnAgainWhenTheCounterIsOpenedAnew)
{
    AtTheCounter([](Clerk& clerk) {
        clerk.Press(QStringLiteral("cmdPrinterOnOff"));
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr baMd");
    });
    AtTheCounter([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr sau$"); });
}

TEST_F(ReceiptTest, AChangedRowPrintsItsNewFigures)
{
    PrintTo("haoya");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Type(clerk, "1{ENTER}{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Printed.size(), 2U);
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|4|4.5|35|140|6.05"}));
    });
}

TEST_F(ReceiptTest, ADeletionLeavesTheLastSlipAndPrintsNothing)
{
    PrintTo("haoya");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        const QStringList before = Receipt();
        Type(clerk, "1{ENTER}{F10}");
        EXPECT_EQ(Receipt(), before);
        EXPECT_EQ(Printed.size(), 1U);
    });
}

TEST_F(ReceiptTest, ARefusedSaveStagesAndPrintsNothing)
{
    PrintTo("haoya");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Deliver(clerk, 1, "3", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|2|4.5|35|70|6.05"}));
    });
}

TEST_F(ReceiptTest, AnUnknownTypeKeepsTheTemplateOfTheSlipBefore)
{
    PrintTo("haoya");
    gCn.Execute(QString::fromUtf8("update AutoSettings set ReceiptType=' Tašp 6 '"));
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Set("ReceiptType", "Tap 9");
        Deliver(clerk, 2, "2", "8");
    });
    ASSERT_EQ(Printed.size(), 2U);
    for (const CounterReport::Run& run : Printed)
        EXPECT_EQ(
            run.fileName, QStringLiteral("C:\\Tarvel01\\Vetrolan\\MilkReceiptShenoli Epson LX 300.rpt"));
}

TEST_F(ReceiptTest, AnUnknownStatusPrintsWhereTheSlipBeforeWent)
{
    const std::pair<const char*, CounterReport::Destination> slips[] = {
        {"kahI", CounterReport::Destination::Window}, // the first of the day goes to the screen
        {"haoya", CounterReport::Destination::Printer},
        {"", CounterReport::Destination::Printer},
        {"kahI", CounterReport::Destination::Printer},
        {"f@t s\xCBIna", CounterReport::Destination::Window},
        {"kahI", CounterReport::Destination::Window},
    };
    Set("RepeatCollection", "haoya");
    InTheMorning([&](Clerk& clerk) {
        for (const auto& [status, destination] : slips) {
            PrintTo(status);
            Deliver(clerk, 1, "2", "4.5");
        }
    });
    ASSERT_EQ(Printed.size(), std::size(slips));
    for (std::size_t at = 0; at < Printed.size(); ++at)
        EXPECT_EQ(Printed[at].destination, slips[at].second) << at;
}

// Books that can't be opened for the slips tell whether they were to be opened.
TEST_F(ReceiptTest, TheFirstSlipIsMadeReadyUnlessTheSettingsWantNone)
{
    gAppState.gDbPassword = QStringLiteral("wrong");
    for (const char* status : {"haoya", "", "kahI"}) {
        PrintTo(status);
        AtTheCounter([](Clerk&) {});
        EXPECT_TRUE(Failure) << status;
    }
    PrintTo(" naahI ");
    AtTheCounter([](Clerk& clerk) { EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMilkCollections")); });
    EXPECT_FALSE(Failure);
}

TEST_F(ReceiptTest, ARowWithoutACompanyNeverReachesTheSlip)
{
    PrintTo("haoya");
    InTheMorning([this](Clerk& clerk) {
        gAppState.gCompanyId = 0;
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_TRUE(Receipt().isEmpty());
    });
}

TEST_F(ReceiptTest, TheDeliveryIsOnDiskAndTheNumberHasSteppedOnBeforeTheSlipIsPrinted)
{
    PrintTo("haoya");
    QStringList atPrinting;
    InTheMorning([&](Clerk& clerk) {
        CounterReport::Engine() = [&](const CounterReport::Run& run) {
            Connection other;
            other.Open(run.logon);
            for (const char* table : {"MilkCollections", "MilkCollectionsTemp", "MilkReceipt"})
                atPrinting.append(Recordset(
                    other, QStringLiteral("select MemberName from %1").arg(QString::fromLatin1(table)))
                                      .At(0)
                                      .Text());
            atPrinting.append(clerk.Reads(QStringLiteral("txtCollectionNo")));
            atPrinting.append(clerk.Reads(QStringLiteral("txtMemberNo")));
        };
        Deliver(clerk, 1, "2", "4.5");
    });
    EXPECT_EQ(atPrinting, Of({"rama", "rama", "rama", "2", ""}));
}

TEST_F(ReceiptTest, ATemplateThatFailsLosesNothing)
{
    PrintTo("haoya");
    InTheMorning([](Clerk& clerk) {
        CounterReport::Engine() = [](const CounterReport::Run&) {
            throw RunTimeError(RunTimeError::DatabaseFailure, QStringLiteral("no template"));
        };
        Deliver(clerk, 1, "2", "4.5");
    });
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|2|4.5|35|70"}));
    EXPECT_EQ(Copy(), Books());
    EXPECT_EQ(Receipt().size(), 1);
}

TEST_F(ReceiptTest, AFailureOfTheStagingTakesTheWholeSaveBack)
{
    InTheMorning([](Clerk& clerk) {
        gCn.RunScript(QStringLiteral("create trigger NoRoom before insert on MilkReceipt "
                                     "begin select raise(abort, 'no room'); end"));
        Deliver(clerk, 1, "2", "4.5");
    });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Books().isEmpty());
    EXPECT_TRUE(Copy().isEmpty());
}

}
