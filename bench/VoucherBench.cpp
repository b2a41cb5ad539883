// The look-up of vouchers, with more of them than a society gives out in years: until its list can be used,
// and the keys of a search for a voucher that isn't there.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorStatement.h"
#include "bench/Outcomes.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/ProgramWindow.h"
#include "platform/text/RunTimeError.h"
#include "vouchers/VoucherKind.h"
#include "vouchers/frmSelectInwards.h"

#include <QTimer>

#include <exception>

namespace {

constexpr int Vouchers = 20000;
constexpr int VouchersOfADay = 60;
constexpr int OpeningTurns = 21;
constexpr int KeyTurns = 100;

void FillVouchers()
{
    Transaction filling(gCn);
    gCn.Execute(QStringLiteral("delete * from TransactionsMaster"));
    for (int at = 0; at < Vouchers; ++at)
        gCn.Execute(Sql(u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
                        u"CAccountName,Amount,BillNo,Narration) values(",
            Values(gAppState.gCompanyId, QDate(2026, 4, 1).addDays(at / VouchersOfADay),
                at % VouchersOfADay + 1, AdvanceVoucher.type, u"rama paaTIla", Word::Cash,
                100 + at % 5000 * 0.25, AdvanceVoucher.billNo, AdvanceVoucher.narration),
            u")"));
    filling.Commit();
}

// A screen for the look-up to stand on, which does the measuring and closes.
class Beneath final : public Screen {
public:
    explicit Beneath(std::function<void()> work) : Screen("Beneath"), m_work(std::move(work)) { }

private:
    void Shown() override
    {
        After(0, [this] {
            m_work();
            Close();
        });
    }

    std::function<void()> m_work;
};

DataGrid& List()
{
    return dynamic_cast<DataGrid&>(*ModalStack::Current().Top()->Find(u"ListViewInwards"));
}

// Opens the look-up over another screen, runs `work` on it as soon as the list has the focus and all its
// rows, and leaves it. Returns the seconds until then.
double Open(const std::function<void()>& work)
{
    std::exception_ptr failure;
    double seconds = 0;
    const auto from = std::chrono::steady_clock::now();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        const Screen* top = ModalStack::Current().Top();
        if (!top->FocusHolder() || top->FocusHolder()->Name() != u"ListViewInwards")
            return;
        look.stop();
        try {
            Paint();
            Require(List().Rows() == Vouchers, "All vouchers are listed.");
            seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        Type(QStringLiteral("{ESC}"));
    });
    look.start(0);
    gAppState.gReportMode = AdvanceVoucher.reportMode.toString();
    frmSelectInwards lookUp;
    lookUp.ShowModal();
    if (failure)
        std::rethrow_exception(failure);
    return seconds;
}

// Reads the same rows straight from the engine.
int ReadAll(FloorStatement& floor)
{
    int rows = 0;
    for (; floor.Step(); ++rows) {
        benchmark::DoNotOptimize(floor.TextAt(0));
        benchmark::DoNotOptimize(floor.NumberAt(1));
        benchmark::DoNotOptimize(floor.NumberAt(2));
    }
    floor.Reset();
    return rows;
}

void MeasureOpening(benchmark::State& state, Pair& pair)
{
    FloorStatement floor{"select TranDate,TranId,Amount from TransactionsMaster where CompanyId=1 and "
                         "TranType='pomaonT' and trim(BillNo)=']cala' order by TranDate,TranId"};
    Open([] {}); // the first has the window to make
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn([] { return Open([] {}); },
            [&] {
                int rows = 0;
                const double seconds = SecondsOf([&] { rows = ReadAll(floor); });
                Require(rows == Vouchers, "The floor reads all vouchers.");
                return seconds;
            });
        state.SetIterationTime(pair.Measured.Last());
    }
}

// A key in one of the boxes, behind what no voucher begins with, so that the walk goes to the end. The floor
// looks at as many texts that are ready.
void MeasureKey(benchmark::State& state, Pair& pair, QStringView box, const QString& before)
{
    const QStringList texts(Vouchers, QStringLiteral("15/04/2026"));
    Open([&] {
        ModalStack::Current().Top()->Find(box)->SetFocus();
        Type(before);
        for ([[maybe_unused]] auto _ : state) {
            pair.Turn(
                [] {
                    return SecondsOf([] {
                        Type(QStringLiteral("9"));
                        Paint();
                    });
                },
                [&] {
                    return SecondsOf([&] {
                        benchmark::DoNotOptimize(std::any_of(texts.begin(), texts.end(),
                            [](const QString& text) { return text.startsWith(u"99"); }));
                    });
                });
            state.SetIterationTime(pair.Measured.Last());
            Type(QStringLiteral("{BS}"));
            Paint();
        }
        Require(List().CurrentRow() == 0, "No voucher was found.");
    });
}

struct LookUpCase {
    const char* what;
    std::function<void(benchmark::State&, Pair&)> measure;
    double below; // milliseconds
};

void Run(benchmark::State& state, const QString& drives, const LookUpCase& which)
{
    Pair pair;
    try {
        const BooksOfSociety books(drives);
        FillVouchers();
        ProgramWindow::SetPlace(QRect(0, 0, 1024, 768));
        Beneath beneath([&] { which.measure(state, pair); });
        beneath.ShowModal();
        ProgramWindow::Leave();
        Outcomes::Add(state, which.what, pair, Milliseconds, {.below = which.below});
        gCn.Execute(QStringLiteral("delete * from TransactionsMaster"));
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, which.what, error.Text().toStdString());
    }
}

void Register(const char* name, const QString& drives, int turns, const LookUpCase& which)
{
    benchmark::RegisterBenchmark(name, Run, drives, which)
        ->UseManualTime()
        ->Iterations(turns)
        ->Unit(benchmark::kMillisecond);
}

}

void RegisterVoucherCases(const QString& drives)
{
    constexpr double forAKey = 16; // a frame
    const auto key = [](QStringView box, const char* before) {
        return [box, before](benchmark::State& state, Pair& pair) {
            MeasureKey(state, pair, box, QString::fromLatin1(before));
        };
    };
    Register(
        "vouchers/open", drives, OpeningTurns, {"a look-up of 20,000 vouchers: opened", MeasureOpening, 100});
    Register("vouchers/number", drives, KeyTurns, {"a key in its number", key(u"txtNo", "0"), forAKey});
    Register("vouchers/date", drives, KeyTurns, {"a key in its date", key(u"MaskDate", "9"), forAKey});
    Register("vouchers/amount", drives, KeyTurns, {"a key in its amount", key(u"txtAmount", "0"), forAKey});
}
