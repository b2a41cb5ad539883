#include "tests/vouchers/VouchersTest.h"

#include <QFile>

namespace {

class VouchersPrintTest : public VouchersTest {
protected:
    QString ReportText() const
    {
        QStringList texts;
        Report& report = *TheWindow.Shown.at(0);
        report.Complete();
        EXPECT_EQ(report.PageCount(), 1U);
        for (const PlacedItem& item : report.PageAt(0).items)
            if (item.kind == PlacedItem::Kind::Text)
                texts.append(item.text);
        return texts.join(u'\n');
    }
};

TEST_F(VouchersPrintTest, AnAdvanceIsPrintedWithItsHeadsAndItsAmountInWords)
{
    Play([](Clerk& clerk) {
        Type(clerk,
            "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}1000{ENTER}{ENTER}"
            "]cala{ENTER}250.5{ENTER}{ENTER}{F4}{ENTER}%h");
        EXPECT_EQ(OnTop(clerk), "frmNarrations");
        EXPECT_EQ(clerk.Top().Title().Text(), "pavatI ilahUna doNaar ");
        Type(clerk, "gaNaoSa{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
    });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    const QString words = Seen(One("select RsInWords from TransactionsMaster"));
    EXPECT_EQ(words, "एक हजार दोनशे पन्नास रुपये  पन्नास पैसे");
    EXPECT_EQ(One("select Printname from TransactionsMaster"), "gaNaoSa");
    EXPECT_EQ(Rows("select * from TransactionsMasterTemp"), Rows("select * from TransactionsMaster"));
    ASSERT_EQ(TheWindow.Shown.size(), 1U);
    const QString text = ReportText();
    for (const char* part : {"खाद्य", "उचल", "1000.00", "250.50", "1250.50", "15/04/2026"})
        EXPECT_TRUE(text.contains(part)) << part << "\n" << text.toStdString();
    EXPECT_TRUE(text.contains(Seen("rama"))) << text.toStdString();
    EXPECT_TRUE(text.contains(Seen("gaNaoSa")));
}

TEST_F(VouchersPrintTest, AReceiptIsPrintedOnItsOwnTemplate)
{
    Play([](Clerk& clerk) {
        ToReceipts(clerk);
        KeyReceipt(clerk, "15042026", 2, "40");
        Type(clerk, "%hgaNaoSa{ENTER}{ENTER}");
    });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    EXPECT_EQ(TheWindow.Titles(), QStringList("उचल जमा पावती"));
    const QString text = ReportText();
    EXPECT_TRUE(text.contains("40.00")) << text.toStdString();
    EXPECT_TRUE(text.contains(Seen("saIta")));
    EXPECT_TRUE(text.contains("चाळीस रुपये")) << text.toStdString();
}

TEST_F(VouchersPrintTest, OfTwoVouchersTheSecondAloneIsStaged)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%hgaNaoSa{ENTER}{ENTER}");
        KeyAdvance(clerk, "15042026", 2, "KaV", "50");
        Type(clerk, "%h{ENTER}{ENTER}");
    });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    EXPECT_EQ(Rows("select TranId,DAccountName,Amount,Printname from TransactionsMasterTemp"),
        QStringList("2|saIta|50|"));
    EXPECT_EQ(Rows("select Printname from TransactionsMaster order by TranId"), (QStringList{"gaNaoSa", ""}));
}

TEST_F(VouchersPrintTest, OfTwoVouchersOfOneNumberOnlyThatOfTheDateIsNamedAndStaged)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%hgaNaoSa{ENTER}{ENTER}");
        KeyAdvance(clerk, "16042026", 2, "KaV", "50");
        Type(clerk, "%hgaIta{ENTER}{ENTER}");
    });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    EXPECT_EQ(Rows("select TranDate,TranId,Printname from TransactionsMaster order by TranDate"),
        (QStringList{"15/04/2026|1|gaNaoSa", "16/04/2026|1|gaIta"}));
    EXPECT_EQ(Rows("select TranDate,Printname from TransactionsMasterTemp"), QStringList("16/04/2026|gaIta"));
}

TEST_F(VouchersPrintTest, TheVoucherIsInTheBooksBeforeItIsAskedAbout)
{
    Play([this](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        EXPECT_EQ(Closing(1), "900|300");
    }); // and then the power fails
    EXPECT_EQ(Rows("select Amount,RsInWords from TransactionsMaster"), (QStringList{"100|NULL"}));
    EXPECT_EQ(Rows("select Amount from TransactionsDetails"), (QStringList{"100"}));
}

TEST_F(VouchersPrintTest, AMissingTemplateIsToldAndTheVoucherIsInTheBooks)
{
    ASSERT_TRUE(QFile::remove(FolderFile("PaymentVoucher.rpt")));
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%h{ENTER}{ENTER}");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Closing(1), "900|300");
    EXPECT_EQ(Rows("select Amount from TransactionsMaster"), (QStringList{"100"}));
}

TEST_F(VouchersPrintTest, AQuestionClosedByItsBoxIsANo)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
    });
    EXPECT_FALSE(Failure);
    EXPECT_TRUE(TheWindow.Shown.empty());
    EXPECT_EQ(Closing(1), "900|300");
}

}
