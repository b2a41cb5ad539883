#include "reports/TransactionDays.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/FieldRoutines.h"
#include "society/Wanted.h"

namespace {

bool HoldDay(DateField& field)
{
    if (!field.HoldsDate())
        ClearDateField(field);
    return field.InsistOnDate(Wanted::Date());
}

}

TransactionDays::TransactionDays(Screen* screen) : m_screen(screen)
{
    maskToDate.GotFocus = [this] { maskToDate_GotFocus(); };
}

bool TransactionDays::Hold()
{
    return HoldDay(maskFromDate) && HoldDay(maskToDate);
}

void TransactionDays::maskFromDate_LostFocus()
{
    HoldDay(maskFromDate);
}

// Proposes the day of the newest transaction.
void TransactionDays::maskToDate_GotFocus()
{
    if (!maskToDate.IsEmptyMask())
        return;
    const Recordset newest(gCn,
        Sql(u"select TranDate from TransactionsMaster where CompanyId=", gAppState.gCompanyId,
            u" order by TranDate desc"));
    if (newest.Eof())
        return;
    maskToDate.SetDate(newest[u"TranDate"].Date());
    maskToDate.SelectAll();
}

void TransactionDays::maskToDate_LostFocus()
{
    HoldDay(maskToDate);
}

void TransactionDays::AddTo(Layout::Form& form)
{
    form.Row(Shivaji(u"pasaUna"), maskFromDate, Layout::DateWidth);
    form.Row(Shivaji(u"pya-nt"), maskToDate, Layout::DateWidth);
}
