// The cash book of 20,000 transactions: its staging, and with it the first page on the screen.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FirstPage.h"
#include "bench/FloorLedger.h"
#include "bench/PaintGaps.h"
#include "bench/StagingWork.h"
#include "core/state/AppState.h"
#include "platform/database/Transaction.h"

namespace {

constexpr int Turns = 7;
constexpr int Transactions = 20000;
constexpr int TransactionsOfADay = 60;

// After the year of the society.
const QDate From = YearBegins.addYears(1);
const QDate To = From.addDays((Transactions - 1) / TransactionsOfADay);

constexpr const char* Cash = "raoK";

constexpr const char* CashRows = R"sql(
insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount,Narration)
    with recursive Numbers(No) as (select 0 union all select No + 1 from Numbers where No + 1<%1)
    select 1, date('%2', '+' || (No / %3) || ' day'), No % %3 + 1, case No % 3 when 0 then 'jamaa' else 'Kaca-' end,
        case No % 3 when 0 then 'raoK' else 'rama paaTIla' end, case No % 3 when 0 then 'dUQa saMGa' else 'raoK' end,
        case No % 3 when 0 then 2000 else 950 end + No % 400 * 0.25, 'saMsqaocyaa kamaasaazI'
    from Numbers;
)sql";

// The transactions of the cash book, in the books as long as it lives.
class CashTransactions {
public:
    CashTransactions()
    {
        Transaction filling(gCn);
        gCn.RunScript(QString::fromUtf8(CashRows).arg(
            QString::number(Transactions), From.toString(Qt::ISODate), QString::number(TransactionsOfADay)));
        filling.Commit();
        gCn.Fold();
    }
    ~CashTransactions()
    {
        gCn.RunScript(
            QStringLiteral("delete from TransactionsMaster where TranDate>='%1';delete from LedgersMaster;")
                .arg(From.toString(Qt::ISODate)));
        gCn.Fold();
    }
    CashTransactions(const CashTransactions&) = delete;
    CashTransactions& operator=(const CashTransactions&) = delete;
};

const QString CashBook = QStringLiteral("C");

QString Keys()
{
    return Typed(From) + QStringLiteral("{ENTER}") + Typed(To) + QStringLiteral("{ENTER}");
}

class StagedCashBook final : public StagingWork {
public:
    StagedCashBook() : StagingWork("frmReportCashBook", CashBook, Keys()) { }

private:
    void StageByFloor() override { m_floor.Stage(); }

    Traces ReadTraces() const override
    {
        return TracesOf(
            {QStringLiteral("select count(*),sum(TranId),sum(DAmount),sum(CAmount),sum(OpeningBalance),"
                            "sum(ClosingBalance),sum(Total) from LedgersMaster group by OpeningDorC,"
                            "ClosingDorC")});
    }

    const CashTransactions m_transactions;
    FloorLedger m_floor{Cash, Iso(From), Iso(To)};
};

class ShownCashBook final : public FirstPage {
public:
    ShownCashBook() : FirstPage("frmReportCashBook", CashBook, Keys()) { }

    double ByScreen() override
    {
        const Times times = ShowPage();
        gCn.Fold();
        return times.staging + times.page;
    }

    // What is staged, and the pause that nobody notices.
    double ByFloor() override
    {
        const double seconds = SecondsOf([&] { m_floor.Stage(); });
        gCn.Fold();
        return seconds + LongestPaintGap;
    }

private:
    const CashTransactions m_transactions;
    FloorLedger m_floor{Cash, Iso(From), Iso(To)};
};

}

void RegisterLedgerCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "ledger/staged",
            .what = "the cash book of 20,000: staged",
            .turns = Turns,
            .target = {.below = 1000.0},
            .hasGaps = true,
            .hasYears = true,
            .make = [] { return std::make_unique<StagedCashBook>(); }});
    RegisterWork(drives,
        {.name = "ledger/first",
            .what = "the same with its first page shown",
            .turns = Turns,
            .target = {.below = 1000.0},
            .hasYears = true,
            .make = [] { return std::make_unique<ShownCashBook>(); }});
}
