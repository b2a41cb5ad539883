#include "collection/Counter.h"

#include "core/messages/Messages.h"
#include "society/Wanted.h"

bool Counter::InsistOnShift(DateField& date, ShiftField& time)
{
    if (!date.InsistOnDate(Wanted::Date()))
        return false;
    if (!time.HoldsShift())
        time.SetFocus(Wanted::Shift());
    return time.HoldsShift();
}

bool Counter::InsistOnName(NameCombo& name)
{
    if (!name.Text().trimmed().isEmpty())
        return true;
    ShowNotice(Shivaji(u"maombarcao naaMva vyavaisqat Ta[-p kra"));
    name.SetFocus(Wanted::Name());
    return false;
}

Shift Counter::ShiftOf(const DateField& date, const ShiftField& time)
{
    return {date.Date(), time.Text()};
}
