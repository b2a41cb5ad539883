#include "sales/SaleReceipt.h"

#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "sales/Sale.h"
#include "society/Queries.h"

namespace {

// What the settings say of it (MSRPrintStatus).
constexpr QStringView SaveOnly = u"saovh"; // सेव्ह
constexpr QStringView SaveAndShow = u"saovh va sËIna"; // सेव्ह व स्क्रीन
constexpr QStringView SaveAndPrint = u"saovh va ip`MT"; // सेव्ह व प्रिंट

}

bool SaleReceipt::IsWanted()
{
    return Setting(u"MSRPrintStatus") != SaveOnly;
}

void SaleReceipt::Stage(const Sale& sale)
{
    gCn.Execute(u"delete * from MilkSalesReceipt");
    gCn.Execute(u"delete * from MilkSalesReceipt");
    gCn.Execute(Sql(u"insert into MilkSalesReceipt select * from MilkSalesTemp", sale.OfItself()));
    gCn.Execute(u"delete * from MilkSalesReceipt where CompanyId=0");
}

void SaleReceipt::Prepare() const
{
    if (IsWanted())
        CRMilkSalesReceipt.Prepare();
}

// Another word leaves the receipt where the one before it went.
void SaleReceipt::Print(const Sale& sale)
{
    const QString status = Setting(u"MSRPrintStatus");
    if (status == SaveAndShow)
        CRMilkSalesReceipt.SetDestination(ReportDestination::Window);
    else if (status == SaveAndPrint)
        CRMilkSalesReceipt.SetDestination(ReportDestination::Printer);
    CRMilkSalesReceipt.SetSubject(
        ReportSubject({sale.customerName, sale.animal, sale.shift.time}, sale.shift.date));
    CRMilkSalesReceipt.Print();
}
