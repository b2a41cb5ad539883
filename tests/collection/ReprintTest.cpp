// Printing a slip again.

#include "tests/collection/SearchCollectionsTest.h"

#include "platform/report/ReportControl.h"
#include "platform/shell/AppFolder.h"

#include <QFile>

namespace {

class ReprintTest : public SearchCollectionsTest {
protected:
    QStringList Receipt()
    {
        return Rows("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                    "MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime "
                    "from MilkReceipt");
    }
};

// Who prints when no test stands in for him.
const std::function<void(const TemplateReport::Run&)> ThePrinting = TemplateReport::Engine();

}

TEST_F(ReprintTest, OfTwoRowsOfAMemberTheOneUnderTheCursorIsPrintedWithoutItsClock)
{
    After(1, [this](Clerk& clerk) {
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5|4.5|35|175|NULL"}));
        clerk.Press("DataGridInwards");
        Type(clerk, "{UP}%p");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|3|1|rama|mhOsa|1.5|8|49|73.5|NULL"}));
    });
    EXPECT_EQ(Printed.size(), 2U);
}

TEST_F(ReprintTest, ItShowsOnTheScreenWhateverTheSettingsSay)
{
    for (const char* status : {"naahI", "haoya"}) {
        Set("PrintStatus", status);
        Printed.clear();
        After(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}"); });
        ASSERT_EQ(Printed.size(), 1U) << status;
        EXPECT_EQ(Printed[0].destination, ReportDestination::Window);
        EXPECT_TRUE(Printed[0].subject.endsWith(" 15-04-2026")) << status;
        EXPECT_EQ(Printed[0].logon, "dsn=VetrolanDSN;pwd=Doodh#26");
    }
}

TEST_F(ReprintTest, ARowOfAnotherCompanyOrOfNoneBecomesOneOfThisForTheSlip)
{
    for (const char* company : {"2", "0"}) {
        Run(QStringLiteral("update MilkCollections set CompanyId=%1 where MemberNo=2")
                .arg(QString::fromLatin1(company)));
        After(2, [this](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}");
            EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|2|2|saIta|mhOsa|2|8|49|98|NULL"}));
        });
        EXPECT_EQ(One("select CompanyId from MilkCollections where MemberNo=2"), QString::fromLatin1(company))
            << "the books keep what they have";
    }
}

TEST_F(ReprintTest, ASocietyThatIsNoneLeavesNoSlip)
{
    Run("delete * from AutoSettings");
    gAppState.gCompanyId = 0;
    After(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_TRUE(Receipt().isEmpty());
    });
}

TEST_F(ReprintTest, EachTypeHasItsTemplateHere)
{
    const std::pair<const char*, const char*> types[] = {
        {"Tašp 1", "C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt"},
        {"Tašp 2", "C:\\Tarvel01\\Vetrolan\\MilkReceipt2.rpt"},
        {"Tašp 3", "C:\\Tarvel01\\Vetrolan\\MilkReceiptBhl.rpt"},
        {"Tašp 4", "C:\\Tarvel01\\Vetrolan\\MilkReceiptGhlp.rpt"},
        {"Tašp 5", "C:\\Tarvel01\\Sorvelan\\MilkReceiptAtk.rpt"},
        {" Tašp 6 ", "C:\\Tarvel01\\Vetrolan\\MilkReceiptShenoli.rpt"},
    };
    for (const auto& [type, path] : types) {
        Run(QStringLiteral("update AutoSettings set ReceiptType='%1'").arg(QString::fromUtf8(type)));
        Printed.clear();
        After(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}"); });
        ASSERT_EQ(Printed.size(), 1U) << type;
        EXPECT_EQ(Printed[0].fileName, QString::fromLatin1(path)) << type;
    }
}

TEST_F(ReprintTest, WithoutATemplateTheSlipIsStagedAndTheClerkIsTold)
{
    for (const char* type : {"Tašp 7", "Tašp 8", "Tašp 9"}) {
        Run(QStringLiteral("update AutoSettings set ReceiptType='%1'").arg(QString::fromUtf8(type)));
        TheBox.Shown.clear();
        After(1, [this](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}");
            EXPECT_EQ(clerk.ScreenName(), "frmSearchCollections");
            EXPECT_EQ(Receipt().size(), 1);
        });
        EXPECT_TRUE(Printed.empty()) << type;
        EXPECT_EQ(TheBox.Shown.size(), 1) << type;
    }
}

TEST_F(ReprintTest, ATypeWithoutATemplateKeepsThatOfTheSlipBefore)
{
    After(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        Run(QString::fromUtf8("update AutoSettings set ReceiptType='Tašp 8'"));
        Type(clerk, "{ENTER}");
        ASSERT_EQ(Printed.size(), 2U);
        EXPECT_EQ(Printed[1].fileName, "C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt");
    });
}

TEST_F(ReprintTest, AMissingTemplateOfTheSiblingFolderEndsTheProgramWithTheSlipStaged)
{
    ReportSurroundings::Current().localPath = [](const QString& path) { return LocalPath(path); };
    TemplateReport::Engine() = ThePrinting;
    Run(QString::fromUtf8("update AutoSettings set ReceiptType='Tašp 5'"));
    QFile here(FolderFile("MilkReceiptAtk.rpt"));
    ASSERT_TRUE(here.open(QIODevice::WriteOnly))
        << "the one of this program's folder isn't taken in its place";
    After(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}"); });
    ReportControl::CloseConnections();
    ReportSurroundings::Current() = {};
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), int(RunTimeError::FileNotFound));
    EXPECT_TRUE(Failure->Text().contains(u"Sorvelan")) << Failure->Text().toStdString();
    EXPECT_EQ(Receipt().size(), 1);
}
