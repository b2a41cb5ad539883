// The deliveries of the open shift and their totals. Both go by the copy; a total is walked anew each time.

#include "CounterScreen.h"
#include "Counter.h"
#include "MdlAccounts.h"
#include "Recordset.h"
#include "Sql.h"

using namespace Counter;

namespace {

// Litres of one animal, and what a fat weighted by them is made from.
struct Milk {
    double liters = 0;
    double litersByFat = 0;

    double AverageFat() const { return liters == 0 && litersByFat == 0 ? 0 : litersByFat / liters; }
};

struct ShiftMilk {
    Milk cow;
    Milk buff;
};

ShiftMilk WalkCopy()
{
    ShiftMilk milk;
    for (Recordset row(gCn, Sql(u"select * from MilkCollectionsTemp where CompanyId=", gAppState.gCompanyId));
         !row.Eof(); row.MoveNext()) {
        const QString animal = row[u"Animal"].Text();
        if (animal != u"gaaya" && animal != u"mhOsa")
            continue;
        Milk& sum = animal == u"gaaya" ? milk.cow : milk.buff;
        const double liters = row[u"Liters"].Number();
        sum.liters += liters;
        sum.litersByFat += liters * row[u"Fat"].Number();
    }
    return milk;
}

}

void CounterScreen::ShowInwardsGrid()
{
    DataGridInwards.Refresh();
}

void CounterScreen::ShiftLitersTotal()
{
    const ShiftMilk milk = WalkCopy();
    lblTotalCowLiters.SetFigure(Format(milk.cow.liters, m_kind.totalLitersFormat));
    lblTotalBuffLiters.SetFigure(Format(milk.buff.liters, m_kind.totalLitersFormat));
}

// Weighted by litres: ten litres of thin milk count for more than one of rich.
void CounterScreen::ShiftAverageFat()
{
    const ShiftMilk milk = WalkCopy();
    lblAvgCowFat.SetFigure(Format(milk.cow.AverageFat(), AverageFatFormat));
    lblAvgBuffFat.SetFigure(Format(milk.buff.AverageFat(), AverageFatFormat));
}
