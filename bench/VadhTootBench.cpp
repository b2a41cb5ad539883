// The gain and loss of milk between collection and sale, of a month and of a year: its staging.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/FloorVadhToot.h"
#include "bench/StagingWork.h"

namespace {

constexpr int Turns = 5;

struct Days {
    QDate from, to;
};
const Days Month{QDate(2027, 1, 1), QDate(2027, 1, 31)};
const Days Year{YearBegins, YearBegins.addYears(1).addDays(-1)};

std::vector<std::string> DaysOf(const Days& range)
{
    std::vector<std::string> days;
    for (QDate day = range.from; day <= range.to; day = day.addDays(1))
        days.push_back(Iso(day));
    return days;
}

class GainAndLoss final : public StagingWork {
public:
    explicit GainAndLoss(const Days& range)
        : StagingWork("frmVadhTootReport", {},
            Typed(range.from) + QStringLiteral("{ENTER}") + Typed(range.to)
                + QStringLiteral("{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}"))
        , m_floor(DaysOf(range))
    {
    }

private:
    void StageByFloor() override { m_floor.Stage(); }

    Traces ReadTraces() const override
    {
        return TracesOf({QStringLiteral("select count(*),sum(LitersIn),sum(LitersLocal),sum(LitersSangh),"
                                        "sum(LitersOut),sum(OurLiters) from VadhTootReport group by "
                                        "CollectionTime,Animal"),
            QStringLiteral("select count(*) from ReportDates")});
    }

    FloorVadhToot m_floor;
};

}

void RegisterVadhTootCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "vadhtoot/month",
            .what = "gain and loss of a month: staged",
            .turns = Turns,
            .target = {.ratio = 1.4},
            .hasYears = true,
            .make = [] { return std::make_unique<GainAndLoss>(Month); }});
    RegisterWork(drives,
        {.name = "vadhtoot/year",
            .what = "gain and loss of a year: staged",
            .turns = Turns,
            .target = {.ratio = 1.4, .below = 1000.0},
            .hasGaps = true,
            .hasYears = true,
            .make = [] { return std::make_unique<GainAndLoss>(Year); }});
}
