// The deliveries of the open shift and their totals. Both go by the copy; a total is walked anew each time.

#include "collection/CounterScreen.h"
#include "collection/CopySums.h"
#include "collection/Counter.h"
#include "platform/text/Numbers.h"

using namespace Counter;

void CounterScreen::ShowInwardsGrid()
{
    DataGridInwards.Refresh();
}

void CounterScreen::ShiftLitersTotal()
{
    const CopySums sums = WalkCopy();
    lblTotalCowLiters.SetFigure(Format(sums.cow.Both().liters, m_kind.liters.total));
    lblTotalBuffLiters.SetFigure(Format(sums.buff.Both().liters, m_kind.liters.total));
}

void CounterScreen::ShiftAverageFat()
{
    const CopySums sums = WalkCopy();
    lblAvgCowFat.SetFigure(Format(sums.cow.Both().AverageFat(), AverageFatFormat));
    lblAvgBuffFat.SetFigure(Format(sums.buff.Both().AverageFat(), AverageFatFormat));
}
