#include "tests/vouchers/VouchersTest.h"

#include "platform/database/Sql.h"
#include "platform/forms/ProgramWindow.h"
#include "vouchers/frmSelectInwards.h"

#include <QTableView>

namespace {

class VouchersLookUpTest : public VouchersTest {
protected:
    VouchersLookUpTest() { gAppState.gReportMode = "U"; }

    void AddVoucher(const char* date, int number, double amount, const char* type, const char* billNo)
    {
        Run(Sql(u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
                u"CAccountName,Amount,BillNo) values(1,",
            Quoted(QString::fromLatin1(date)), u",", number, u",", Quoted(QString::fromLatin1(type)),
            u",'rama','raoK',", amount, u",", Quoted(QString::fromUtf8(billNo)), u")"));
    }
    void AddAdvance(const char* date, int number, double amount)
    {
        AddVoucher(date, number, amount, "pomaonT", "]cala ");
    }

    static DataGrid& ListOf(Clerk& clerk)
    {
        return dynamic_cast<DataGrid&>(*clerk.Top().Find(u"ListViewInwards"));
    }

    static std::string Current(Clerk& clerk)
    {
        const DataGrid& list = ListOf(clerk);
        QStringList cells;
        for (int column = 0; column < 3; ++column)
            cells.append(list.Cell(list.CurrentRow(), column));
        return cells.join(u'|').toStdString();
    }
};

TEST_F(VouchersLookUpTest, WithoutAdvancesItClosesAtOnceAndSetsTheModeToN)
{
    AddVoucher("15/04/2026", 1, 40, "irsaIT", "]cala jamaa");
    On<frmSelectInwards>([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(gAppState.gReportMode, "N");
    EXPECT_EQ(gAppState.gSelectedVoucherNo, 0);
}

TEST_F(VouchersLookUpTest, TwelveSelectsTheFirstVoucherWhoseNumberBeginsWithIt)
{
    AddAdvance("14/04/2026", 112, 5);
    for (const int number : {1, 2, 12, 121})
        AddAdvance("15/04/2026", number, 10.0 * number);
    On<frmSelectInwards>([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "ListViewInwards");
        EXPECT_EQ(Current(clerk), "112|14/04/2026|5.00");
        Press(clerk, "txtNo");
        Type(clerk, "12");
        EXPECT_EQ(Current(clerk), "12|15/04/2026|120.00");
        Type(clerk, "1");
        EXPECT_EQ(Current(clerk), "121|15/04/2026|1210.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersLookUpTest, TheBoxesAreSearchedTogether)
{
    AddAdvance("14/04/2026", 1, 100);
    AddAdvance("15/04/2026", 1, 250);
    AddAdvance("15/04/2026", 2, 100);
    On<frmSelectInwards>([](Clerk& clerk) {
        Press(clerk, "MaskDate");
        Type(clerk, "15");
        EXPECT_EQ(Current(clerk), "1|15/04/2026|250.00");
        Press(clerk, "txtAmount");
        Type(clerk, "100");
        EXPECT_EQ(Current(clerk), "2|15/04/2026|100.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersLookUpTest, EnterOnARowFillsBothGlobals)
{
    AddAdvance("14/04/2026", 7, 100);
    AddAdvance("15/04/2026", 3, 250);
    On<frmSelectInwards>([](Clerk& clerk) {
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(gAppState.gSelectedVoucherNo, 3);
    EXPECT_EQ(gAppState.gSelectedVoucherDate, QDate(2026, 4, 15));
    EXPECT_EQ(gAppState.gReportMode, "U");
}

TEST_F(VouchersLookUpTest, ADoubleClickOnARowFillsBothGlobals)
{
    AddAdvance("14/04/2026", 7, 100);
    AddAdvance("15/04/2026", 3, 250);
    On<frmSelectInwards>([](Clerk& clerk) {
        clerk.Do([&] {
            ListOf(clerk).SetCurrentRow(1);
            auto& view = *static_cast<QTableView*>(ListOf(clerk).Widget());
            view.doubleClicked(view.currentIndex());
        });
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(gAppState.gSelectedVoucherNo, 3);
    EXPECT_EQ(gAppState.gSelectedVoucherDate, QDate(2026, 4, 15));
}

TEST_F(VouchersLookUpTest, TheBoxesStandAboveTheirColumnsInEveryWindow)
{
    AddAdvance("14/04/2026", 7, 100);
    On<frmSelectInwards>([](Clerk& clerk) {
        const auto& view = *static_cast<QTableView*>(ListOf(clerk).Widget());
        for (const QSize size : {QSize(1024, 768), QSize(1920, 1080), QSize(1366, 768)}) {
            clerk.Do([&] { ProgramWindow::Current().resize(size); });
            int column = 0;
            for (const char16_t* name : {u"txtNo", u"MaskDate", u"txtAmount"}) {
                const QWidget& box = *clerk.Top().Find(name)->Widget();
                const int edge = view.mapTo(&clerk.Top(), QPoint(view.frameWidth(), 0)).x();
                EXPECT_EQ(box.mapTo(&clerk.Top(), QPoint()).x(), edge + view.columnViewportPosition(column));
                EXPECT_EQ(box.width(), view.columnWidth(column));
                EXPECT_LT(box.mapTo(&clerk.Top(), QPoint(0, box.height())).y(),
                    view.mapTo(&clerk.Top(), QPoint()).y() + 1);
                ++column;
            }
        }
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersLookUpTest, EscAndExitFillNeither)
{
    AddAdvance("14/04/2026", 7, 100);
    for (const char* way : {"{ESC}", "%b"}) {
        On<frmSelectInwards>([way](Clerk& clerk) { Type(clerk, way); });
        EXPECT_FALSE(Failure);
        EXPECT_EQ(gAppState.gSelectedVoucherNo, 0);
        EXPECT_FALSE(gAppState.gSelectedVoucherDate.isValid());
    }
}

TEST_F(VouchersLookUpTest, AnEarlierPickIsNotTakenAgain)
{
    AddAdvance("14/04/2026", 7, 100);
    gAppState.gSelectedVoucherNo = 7;
    gAppState.gSelectedVoucherDate = QDate(2026, 4, 14);
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ESC}");
        EXPECT_EQ(Focus(clerk), "MaskTranDate");
        EXPECT_EQ(Reads(clerk, "MaskTranDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "txtTranNo"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersLookUpTest, TheDateIsSearchedFromItsFirstFigureOn)
{
    AddAdvance("04/04/2026", 1, 100);
    AddAdvance("15/04/2026", 2, 100);
    AddAdvance("15/05/2026", 3, 100);
    On<frmSelectInwards>([](Clerk& clerk) {
        Press(clerk, "MaskDate");
        const auto picked = [&](const char* keys) {
            Type(clerk, keys);
            return Current(clerk).substr(0, 1);
        };
        EXPECT_EQ(picked(""), "1");
        EXPECT_EQ(picked("1"), "2");
        EXPECT_EQ(picked("5"), "2");
        EXPECT_EQ(picked("05"), "3");
        EXPECT_EQ(picked("{BS}4"), "2");
    });
    EXPECT_FALSE(Failure);
}

// What begins like no row leaves the row that was found last.
TEST_F(VouchersLookUpTest, WhatIsntThereMovesNothing)
{
    AddAdvance("14/04/2026", 1, 100);
    AddAdvance("15/04/2026", 2, 100);
    On<frmSelectInwards>([](Clerk& clerk) {
        Press(clerk, "txtNo");
        Type(clerk, "29");
        EXPECT_EQ(Current(clerk).substr(0, 1), "2");
        Type(clerk, "{BS}{BS}");
        EXPECT_EQ(Current(clerk).substr(0, 1), "1");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersLookUpTest, AVoucherFarDownIsFoundAndPicked)
{
    for (int number = 1; number <= 300; ++number)
        AddAdvance("15/04/2026", number, 10);
    On<frmSelectInwards>([](Clerk& clerk) {
        Press(clerk, "txtNo");
        Type(clerk, "299");
        Press(clerk, "ListViewInwards");
        Type(clerk, "{DOWN}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(gAppState.gSelectedVoucherNo, 300);
}

// The list of both kinds, and of whatever else the books hold.
TEST_F(VouchersLookUpTest, TheTransactionsOfTheBooksHaveTheirOwnTitleAndHeading)
{
    AddVoucher("15/04/2026", 1, 40.5, "irsaIT", "]cala jamaa");
    gAppState.gReportMode = "T";
    On<frmSelectInwards>([](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), "  vyavahar tpSaIla");
        EXPECT_EQ(Label(clerk, "lblFormTitle"), Seen("  vyavahar tpSaIla").toStdString());
        EXPECT_EQ(Label(clerk, "lblInwardNo"), Seen(" vha]car naMbar  r@kma").toStdString());
        EXPECT_EQ(Current(clerk), "1|15/04/2026|40.50");
        Type(clerk, "{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(gAppState.gSelectedVoucherNo, 1);
}

TEST_F(VouchersLookUpTest, EachModeListsItsOwn)
{
    AddAdvance("14/04/2026", 7, 100);
    AddVoucher("15/04/2026", 1, 40, "irsaIT", "]cala jamaa");
    AddVoucher("13/04/2026", 5, 60, "pomaonT", "dUQa");
    const auto rows = [this](const char* mode) {
        int listed = 0;
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<frmSelectInwards>([&](Clerk& clerk) {
            if (OnTop(clerk) == "frmSelectInwards")
                listed = dynamic_cast<DataGrid&>(*clerk.Top().Find(u"ListViewInwards")).Rows();
        });
        EXPECT_FALSE(Failure);
        return listed;
    };
    EXPECT_EQ(rows("U"), 1);
    EXPECT_EQ(rows("UR"), 1);
    EXPECT_EQ(rows("T"), 3);
    EXPECT_EQ(rows("TQ"), 3);
    for (const char* stock : {"I", "O"}) {
        EXPECT_EQ(rows(stock), 0);
        EXPECT_EQ(gAppState.gReportMode, "N");
    }
}

TEST_F(VouchersLookUpTest, ItOpensAtTheDateOfAChangeAndCallsUpWhatIsPicked)
{
    AddAdvance("14/04/2026", 7, 100);
    AddAdvance("15/04/2026", 3, 250);
    Play([](Clerk& clerk) {
        Type(clerk, "%d");
        EXPECT_EQ(OnTop(clerk), "frmSelectInwards");
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
        EXPECT_EQ(Reads(clerk, "MaskTranDate"), "15/04/2026");
        EXPECT_EQ(Reads(clerk, "txtTranNo"), "3");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "250.00");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersLookUpTest, WithNothingToChangeItIsTold)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d");
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
        EXPECT_EQ(Focus(clerk), "MaskTranDate");
        Type(clerk, "%r");
        EXPECT_EQ(Reads(clerk, "cmdMod"), "ba&dla");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(TheBox.Shown.value(0), "Records Not Available");
    EXPECT_EQ(TheBox.Titles.value(0), "Advance Records");
}

}
