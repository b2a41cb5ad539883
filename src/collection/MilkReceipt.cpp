#include "MilkReceipt.h"

#include "Dates.h"
#include "MdlAccounts.h"
#include "Recordset.h"
#include "Sql.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<QStringView, QStringView>, 8> Templates = {{
    {u"Tašp 1", u"MilkReceipt1.rpt"},
    {u"Tašp 2", u"MilkReceipt2.rpt"},
    {u"Tašp 3", u"MilkReceiptBhl.rpt"},
    {u"Tašp 4", u"MilkReceiptGhlp.rpt"},
    {u"Tašp 5", u"MilkReceiptAtk.rpt"},
    {u"Tašp 6", u"MilkReceiptShenoli Epson LX 300.rpt"},
    {u"Tašp 7", u"MilkReceiptNerli With Time.rpt"},
    {u"Tašp 8", u"MilkReceiptNerli Minimised With Time XP.rpt"},
}};

}

void MilkReceipt::StageReceipt(const Delivery& d)
{
    gCn.Execute(QStringLiteral("delete * from MilkReceipt"));
    gCn.Execute(QStringLiteral("delete * from MilkReceipt"));
    gCn.Execute(Sql(u"insert into MilkReceipt(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                    u"MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime) values(",
        gAppState.gCompanyId, u",'", DateText(d.shift.date), u"','", d.shift.time, u"',", d.number, u",",
        d.memberNo, u",'", d.memberName, u"','", d.animal, u"',", d.liters, u",", d.fat, u",", d.rate, u",",
        d.amount, u",'", d.actualTime, u"')"));
}

void MilkReceipt::PrintReceipt(QStringView printerButton)
{
    {
        const Recordset settings(gCn, QStringLiteral("SELECT * FROM AutoSettings"));
        if (settings.Eof())
            return;
        const QString printStatus = settings[u"PrintStatus"].Text().trimmed();
        if (printStatus == u"naahI" || printerButton != PrinterOn)
            return;
        // An unknown type leaves the template of the slip before.
        if (const QStringView name = TemplateOf(settings[u"ReceiptType"].Text().trimmed()); !name.isEmpty())
            CRMilkReceipt.SetReportFileName(name);
        if (printStatus == u"f@t sËIna")
            CRMilkReceipt.SetDestination(CounterReport::Destination::Window);
        else if (printStatus == u"haoya")
            CRMilkReceipt.SetDestination(CounterReport::Destination::Printer);
    }
    gCn.Execute(QStringLiteral("delete * from MilkReceipt where CompanyId=0"));
    CRMilkReceipt.Print();
}

QStringView MilkReceipt::TemplateOf(QStringView receiptType)
{
    for (const auto& [type, name] : Templates)
        if (type == receiptType)
            return name;
    return {};
}
