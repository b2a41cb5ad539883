// A sale saved: Enter on the button, until it is on the disk, in the list and in the sums of the shift.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorSale.h"
#include "bench/Traces.h"
#include "bench/Work.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "sales/SalesShift.h"

namespace {

constexpr int Turns = 9;
constexpr int SalesBefore = 40; // of the shift
constexpr int SalesAfter = 60;

const SalesShift Shift{SavingDay, QStringLiteral("sakaL")};

const FloorSale::Row NewSale{.day = Iso(SavingDay),
    .time = "sakaL",
    .customer = "dukanaac",
    .animal = "gaaya",
    .liters = 12.5,
    .fat = 4.1,
    .rate = 48,
    .amount = 600};

// The last five mornings of the year in one.
constexpr const char* ShiftRows = R"sql(
insert into MilkSales
    select CompanyId,'%1',SalesTime,SalesType,(strftime('%d',SalesDate)-27)*8+SalesNo,CustomerNo,CustomerName,
        Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount
    from MilkSales where SalesDate>='2027-03-27' and SalesTime='sakaL';
)sql";

class SavedSale final : public Work {
public:
    SavedSale()
    {
        gAppState.gAppDate = SavingDay;
        Transaction filling(gCn);
        gCn.RunScript(QString::fromUtf8(ShiftRows).replace(QStringLiteral("%1"), Day()));
        filling.Commit();
        Require(Shift.NextNumber() == SalesBefore + 1, "The shift has its sales.");
    }
    ~SavedSale() override
    {
        gCn.RunScript(QStringLiteral("delete from MilkSales where SalesDate='%1'").arg(Day()));
        gCn.Fold();
    }
    SavedSale(const SavedSale&) = delete;
    SavedSale& operator=(const SavedSale&) = delete;

    double ByScreen() override
    {
        return OfTheShift([](Clerk& clerk, int) {
            clerk.Type(QStringLiteral("{ENTER}%1{ENTER}1{ENTER}%2{ENTER}%3{ENTER}{ENTER}{ENTER}")
                           .arg(QString::fromStdString(NewSale.customer), QString::number(NewSale.liters),
                               QString::number(NewSale.fat)));
            double seconds = 0;
            clerk.Do([&] {
                RequireFocus(u"cmdGo");
                Paint();
                seconds = SecondsOf([] { Type(QStringLiteral("{ENTER}")); });
                RequireFocus(u"txtSalesNo");
            });
            return seconds;
        });
    }

    // Meanwhile the screen takes a key, too, so that both ways find the same disk.
    double ByFloor() override
    {
        return OfTheShift([this](Clerk& clerk, int number) {
            clerk.Type(QStringLiteral("{ENTER}+{TAB}"));
            FloorSale::Row row = NewSale;
            row.number = number;
            double seconds = 0;
            clerk.Do([&] {
                Paint();
                double next = 0;
                seconds = SecondsOf([&] { next = m_floor.Save(row); });
                Require(next == number + 1, "The floor's number steps on.");
            });
            return seconds;
        });
    }

private:
    // Opens the shift on the screen, saves the new sales one after the other, and takes them back. Returns
    // the median of their seconds.
    double OfTheShift(const std::function<double(Clerk&, int)>& save)
    {
        Samples seconds;
        Play("frmMilkSales", [&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{ENTER}1{ENTER}"));
            for (int number = SalesBefore + 1; number <= SalesAfter; ++number)
                seconds.Add(save(clerk, number));
            clerk.Do([&] { m_traces = ReadTraces(); });
        });
        TakeBack();
        RequireSame();
        return seconds.Quantile(0.5);
    }

    // What this way has left, beside what the one before it has.
    void RequireSame()
    {
        if (!m_before.empty())
            RequireSameTraces(m_traces, m_before);
        m_before = m_traces;
    }

    static QString Day() { return SavingDay.toString(Qt::ISODate); }

    static Traces ReadTraces()
    {
        const auto sums = [](QStringView table) {
            return Sql(u"select count(*),sum(SalesNo),sum(CustomerNo),sum(Liters),sum(Fat),sum(Rate),"
                       u"sum(Amount),sum(OurLiters),sum(OurAmount) from ",
                table, Shift.Condition());
        };
        Traces traces = TracesOf({sums(u"MilkSales"), sums(u"MilkSalesTemp"),
            QStringLiteral("select CowClosingLits from CustomersMaster where CustomerNo=2")});
        Require(traces.front() == SalesAfter, "The sales are in the books.");
        return traces;
    }

    static void TakeBack()
    {
        Transaction takingBack(gCn);
        gCn.Execute(Sql(u"delete * from MilkSales", Shift.Condition(), u" and SalesNo>", SalesBefore));
        gCn.Execute(u"update CustomersMaster set CowClosingLits=0 where CustomerNo=2");
        takingBack.Commit();
        gCn.Fold();
    }

    FloorSale m_floor;
    Traces m_traces;
    Traces m_before;
};

}

void RegisterSalesCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "sales/save",
            .what = "a sale saved",
            .turns = Turns,
            .target = {.ratio = 1.5, .below = 5.0},
            .hasYears = true,
            .make = [] { return std::make_unique<SavedSale>(); }});
}
