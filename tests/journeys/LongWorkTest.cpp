// What is typed while slips and registers are staged, and deliveries re-rated; and paper that doesn't come.

#include "core/preview/ReportHandover.h"
#include "platform/database/Sql.h"
#include "rates/frmNewFatRates.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"
#include "tests/support/FakePrinter.h"
#include "vouchers/frmUchalVouchers.h"

namespace {

constexpr int Members = 60;

// Everyone is paid for the first ten days of April, and the printer takes nothing.
class LongWorkTest : public ProgramTest {
protected:
    LongWorkTest()
    {
        FillBooks();
        Run("delete * from MilkPayments");
        for (int member = 1; member <= Members; ++member) {
            if (member > 3)
                AddMember(member, "naava");
            Run(Sql(
                u"insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
                u"Animal,Liters,Amount,Kapat,NetAmount,TotalUchal,LitersCow,CowAmount) values(",
                Values(1, u"01/04/2026", u"10/04/2026", u"10/04/2026", member, member, u"naava", u"gaaya", 10,
                    350, 50, 300, 50, 10, 350),
                u")"));
        }
        auto printer = std::make_unique<FakePrinter>();
        printer->Answer = {Refusal};
        m_handover.emplace(std::move(printer));
    }

    // Types ahead into the staging of a report; the preview must be there, and below it the screen as it was.
    void TypeIntoTheStaging(Clerk& clerk, const char* screen)
    {
        clerk.TypeAhead("%i5{ENTER}7{ENTER}%i9{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        Type(clerk, "{ESC}");
        ASSERT_EQ(OnTop(clerk), screen) << "a second report was begun";
        EXPECT_EQ(Reads(clerk, "txtFromNo"), "1");
        EXPECT_EQ(Reads(clerk, "txtToNo"), "60");
        EXPECT_EQ(TheBox.Shown, QStringList());
    }

    int Staged() { return One("select count(*) from MilkPaymentsTemp").toInt(); }

    const QString Refusal = "The printer takes nothing.";

private:
    std::optional<ReportHandover> m_handover;
};

TEST_F(LongWorkTest, KeysTypedWhileTheSlipsAreStagedDoNothing)
{
    On<frmReportMilkPayments>([this](Clerk& clerk) {
        Type(clerk, "10042026{ENTER}1{ENTER}{ENTER}");
        TypeIntoTheStaging(clerk, "frmReportMilkPayments");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(), Members);
}

TEST_F(LongWorkTest, KeysTypedWhileARegisterIsStagedDoNothing)
{
    for (const char* mode : {"PR", "TR", "UR", "UchalBalanceStatement", "ThevBalanceStatement"}) {
        SCOPED_TRACE(mode);
        gAppState.gReportMode = QLatin1String(mode);
        On<frmReportMilkPaymentsRegister>([this](Clerk& clerk) {
            Type(clerk, "01042026{ENTER}10042026{ENTER}1{ENTER}{ENTER}");
            TypeIntoTheStaging(clerk, "frmReportMilkPaymentsRegister");
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(LongWorkTest, KeysTypedWhileDeliveriesAreReRatedWaitForItsEnd)
{
    Run("delete * from MilkPayments");
    Run("update MilkCollections set Rate=1,Amount=Liters");
    On<frmNewFatRates>([this](Clerk& clerk) {
        Type(clerk, "%d15042026{ENTER}%s");
        ASSERT_EQ(OnTop(clerk), "frmMessages");
        clerk.TypeAhead("%h{ESC}%d14042026{ENTER}");
        EXPECT_EQ(OnTop(clerk), "") << "Esc has left the screen, and the rest went nowhere";
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select Rate,Amount from MilkCollections where CollectionDate<#04/15/2026#"),
        QStringList("1|5"));
    EXPECT_EQ(One("select count(*) from MilkCollections where Rate=1"), "1") << "all others were done";
}

TEST_F(LongWorkTest, APrinterThatRefusesAVoucherIsToldAndTheBooksAreRight)
{
    On<frmUchalVouchers>([this](Clerk& clerk) {
        Type(clerk,
            "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}{F4}{ENTER}%hgaNaoSa{ENTER}"
            "{ENTER}");
        ASSERT_EQ(OnTop(clerk), "frmReportPreview");
        Type(clerk, "^p");
        EXPECT_EQ(TheBox.Shown, QStringList(Refusal));
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select Amount,Printname from TransactionsMaster where TranDate=#04/15/2026#"),
        QStringList("100|gaNaoSa"));
    EXPECT_EQ(One("select ClosingUchal from MembersMaster where MemberNo=1"), "100");
}

TEST_F(LongWorkTest, APrinterThatRefusesSlipsIsToldAndTheBooksAreRight)
{
    const QStringList payments = Rows("select * from MilkPayments");
    On<frmReportMilkPayments>([this](Clerk& clerk) {
        Type(clerk, "10042026{ENTER}1{ENTER}{ENTER}%i^p");
        EXPECT_EQ(TheBox.Shown, QStringList(Refusal));
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmReportMilkPayments");
    });
    EXPECT_FALSE(Failure);
    EXPECT_TRUE(Rows("select * from MilkPayments") == payments);
    EXPECT_EQ(Staged(), Members);
}

}
