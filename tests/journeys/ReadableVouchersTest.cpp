// The vouchers and their look-up, with the largest amounts that the fields take and a long name.

#include "platform/database/Sql.h"
#include "platform/forms/DataGrid.h"
#include "tests/journeys/ReadableTest.h"
#include "vouchers/frmSelectInwards.h"
#include "vouchers/frmUchalVouchers.h"

namespace {

// Of each kind so many vouchers of member 3 that their list is scrolled; the last of them is the largest.
class ReadableVouchersTest : public ReadableTest {
protected:
    ReadableVouchersTest()
    {
        constexpr int largest = 999999999;
        const QString name = One("select MemberName from MembersMaster where MemberNo=3");
        for (int number = largest - 39; number <= largest; ++number) {
            const double amount = number == largest ? 9999999999.99 : 1234567.89;
            AddVoucher(Values(1, u"14/04/2026", number, u"pomaonT", name, u"raoK", amount, u"]cala"));
            AddVoucher(Values(1, u"13/04/2026", number, u"irsaIT", u"raoK", name, amount, u"]cala jamaa"));
        }
        for (const char* head : {"']cala',9999999990", "'ikraNaa maalaÀroSana',9.99"})
            Run(QStringLiteral("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,"
                               "AdvanceType,Amount) values(1,'14/04/2026',999999999,3,%1)")
                    .arg(QString::fromUtf8(head)));
        Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'13/04/2026',999999999,3,'Uchal Receipt',9999999999.99)");
    }

    static int RowsOf(Clerk& clerk, const char* grid)
    {
        return dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(grid))).Rows();
    }

    // The largest voucher, picked from the list in one of the modes. `toKind` chooses the panel.
    static void PickTheLargest(Clerk& clerk, const char* toKind, const char* mode)
    {
        Type(clerk, toKind);
        Type(clerk, mode);
        EXPECT_EQ(OnTop(clerk), "frmSelectInwards");
        TypeAndLook(clerk, {"", "^{END}", "{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
    }

private:
    void AddVoucher(const SqlText& values)
    {
        Run(Sql(u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
                u"CAccountName,Amount,BillNo) values(",
            values, u")"));
    }
};

}

TEST_F(ReadableVouchersTest, BothPanelsAtRest)
{
    On<frmUchalVouchers>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        Type(clerk, "{DOWN}");
        Press(clerk, "Command1");
        EXPECT_FALSE(clerk.Top().Find(u"MaskTranDate")->Visible());
        EXPECT_TRUE(clerk.Top().Find(u"MaskTranDate1")->Visible());
        ExpectReadable(clerk, "with the receipts");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableVouchersTest, AnAdvanceOfEachHeadFromTheDateToItsPrinting)
{
    On<frmUchalVouchers>([](Clerk& clerk) {
        TypeAndLook(clerk, {"%n", "15042026{ENTER}", "999999999%s"});
        EXPECT_EQ(Focus(clerk), "txtMemberNo") << "it is told what is missing";
        TypeAndLook(clerk, {"3{ENTER}", "{ENTER}", "{ENTER}", "]cala{ENTER}", "9999999999.99%s"});
        EXPECT_EQ(Focus(clerk), "cmdGo") << "it is told that the head isn't taken yet";
        TypeAndLook(clerk, {"{ENTER}"});
        for (const char* head : {"KaV{ENTER}", "ikraNaa maalaÀroSana{ENTER}", "[tr{ENTER}"})
            TypeAndLook(clerk, {head, "9999999999.99{ENTER}", "{ENTER}"});
        EXPECT_EQ(RowsOf(clerk, "DataGridUchals"), 4);
        EXPECT_EQ(Reads(clerk, "txtAmount"), "39999999999.96");
        TypeAndLook(clerk, {"{F4}"});
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        TypeAndLook(clerk, {"{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        TypeAndLook(clerk, {"%h"});
        EXPECT_EQ(OnTop(clerk), "frmNarrations");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableVouchersTest, AReceiptFromTheDateToItsPrinting)
{
    On<frmUchalVouchers>([](Clerk& clerk) {
        TypeAndLook(clerk,
            {"{DOWN}", "%n", "15042026{ENTER}", "999999999{ENTER}", "3{ENTER}", "{ENTER}", "%s",
                "9999999999.99{ENTER}"});
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtAmount1"), "9999999999.99");
        TypeAndLook(clerk, {"{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmMessages");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableVouchersTest, AnAdvanceThatGetsAnotherMemberAndTheQuestion)
{
    On<frmUchalVouchers>([](Clerk& clerk) {
        PickTheLargest(clerk, "", "%d");
        EXPECT_EQ(RowsOf(clerk, "DataGridUchals"), 2);
        EXPECT_EQ(Reads(clerk, "txtAmount"), "9999999999.99");
        TypeAndLook(clerk, {"1{ENTER}", "{ENTER}", "ikraNaa maalaÀroSana{ENTER}", "{F4}"});
        EXPECT_EQ(Focus(clerk), "cmdMod");
        EXPECT_NE(Label(clerk, "lblGuide").find("मेम्बर बदलला"), std::string::npos);
        TypeAndLook(clerk, {"{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmMessages");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableVouchersTest, AReceiptToChangeAndTheQuestion)
{
    On<frmUchalVouchers>([](Clerk& clerk) {
        PickTheLargest(clerk, "{DOWN}", "%d");
        EXPECT_EQ(Reads(clerk, "txtAmount1"), "9999999999.99");
        TypeAndLook(clerk, {"{ENTER}", "{ENTER}", "{ENTER}"});
        EXPECT_EQ(Focus(clerk), "cmdMod");
        TypeAndLook(clerk, {"{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmMessages");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableVouchersTest, AVoucherToDeleteAndTheQuestion)
{
    for (const char* toKind : {"", "{DOWN}"}) {
        On<frmUchalVouchers>([toKind](Clerk& clerk) {
            PickTheLargest(clerk, toKind, "%k");
            EXPECT_EQ(Focus(clerk), "cmdDel");
            TypeAndLook(clerk, {"{ENTER}"});
            EXPECT_EQ(OnTop(clerk), "frmMessages");
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(ReadableVouchersTest, TheLookUpOfEachKindSearched)
{
    for (const char* kind : {"U", "UR"}) {
        gAppState.gReportMode = QString::fromLatin1(kind);
        On<frmSelectInwards>([](Clerk& clerk) {
            EXPECT_EQ(RowsOf(clerk, "ListViewInwards"), 41);
            ExpectReadable(clerk, "as it opens");
            Press(clerk, "txtNo");
            TypeAndLook(clerk, {"999999999", "{TAB}1404", "2026", "{TAB}9999999999.99", "{TAB}{END}"});
        });
        EXPECT_FALSE(Failure);
    }
}
