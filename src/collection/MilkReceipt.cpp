#include "collection/MilkReceipt.h"

#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Queries.h"
#include "society/ReceiptLayouts.h"
#include "society/Words.h"

void MilkReceipt::StageReceipt(const Delivery& d)
{
    gCn.Execute(QStringLiteral("delete * from MilkReceipt"));
    gCn.Execute(QStringLiteral("delete * from MilkReceipt"));
    gCn.Execute(Sql(u"insert into MilkReceipt(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                    u"MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime) values(",
        Values(gAppState.gCompanyId, d.shift.date, d.shift.time, d.number, d.memberNo, d.memberName, d.animal,
            d.liters, d.fat, d.rate, d.amount, d.actualTime),
        u")"));
}

QString MilkReceipt::Subject()
{
    const Recordset slip(gCn, QStringLiteral("select * from MilkReceipt"));
    if (slip.Eof())
        return {};
    return ReportSubject({slip[u"MemberName"].Text(), slip[u"Animal"].Text(), slip[u"CollectionTime"].Text()},
        slip[u"CollectionDate"].Date());
}

void MilkReceipt::Prepare()
{
    if (Setting(u"PrintStatus") == Word::No)
        return;
    TemplateReport slip;
    slip.SetTemplate(ReceiptLayoutOf(Setting(u"ReceiptType")).counterTemplate);
    slip.Prepare();
}

void MilkReceipt::PrintReceipt(QStringView printerButton)
{
    const QString printStatus = Setting(u"PrintStatus");
    if (printStatus == Word::No || printerButton != PrinterOn)
        return;
    // An unknown type leaves the template of the slip before.
    const ReceiptLayout layout = ReceiptLayoutOf(Setting(u"ReceiptType"));
    if (!layout.counterTemplate.isEmpty())
        CRMilkReceipt.SetTemplate(layout.counterTemplate);
    if (printStatus == u"f@t sËIna")
        CRMilkReceipt.SetDestination(ReportDestination::Window);
    else if (printStatus == Word::Yes)
        CRMilkReceipt.SetDestination(ReportDestination::Printer);
    gCn.Execute(QStringLiteral("delete * from MilkReceipt where CompanyId=0"));
    CRMilkReceipt.SetSubject(Subject());
    CRMilkReceipt.Print();
}
