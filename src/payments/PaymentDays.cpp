#include "payments/PaymentDays.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/Pieces.h"
#include "society/PaymentPeriod.h"
#include "society/Wanted.h"

#include <QHBoxLayout>

namespace {

// On which days of the month a period may begin, for the guide line.
QString FirstDays()
{
    const QString& duration = gAppState.gPaymentDuration;
    if (duration == PaymentPeriod::TenDays)
        return QStringLiteral("01, 11 किंवा 21");
    if (duration == PaymentPeriod::HalfMonth)
        return QStringLiteral("01 किंवा 16");
    return QStringLiteral("01");
}

}

PaymentDays::PaymentDays(Screen* screen) : m_screen(screen)
{
    txtBillNo.SetEnabled(false);
}

// Every period may begin on the first of a month.
bool PaymentDays::IsDerived()
{
    return PaymentPeriod::EndOf(QDate(2000, 1, 1), gAppState.gPaymentDuration).isValid();
}

bool PaymentDays::InsistOnFirstDay(DateField& from)
{
    if (!from.InsistOnDate(Wanted::Date()))
        return false;
    if (!IsDerived() || PaymentPeriod::EndOf(from.Date(), gAppState.gPaymentDuration).isValid())
        return true;
    from.SetFocus(Plain(QStringLiteral("पेमेंटचा पहिला दिवस %1 तारीख असावी    Esc : बाहेर").arg(FirstDays())));
    return false;
}

void PaymentDays::DerivePeriodEnd()
{
    if (IsDerived())
        maskToDate.SetDate(PaymentPeriod::EndOf(maskFromDate.Date(), gAppState.gPaymentDuration));
    MaskBillDate.SetText(maskToDate.Text());
}

void PaymentDays::maskFromDate_LostFocus()
{
    if (InsistOnFirstDay(maskFromDate))
        DerivePeriodEnd();
}

// The two are compared as they are written, not as days: 15/03 stands behind 01/04.
void PaymentDays::maskToDate_LostFocus()
{
    if (maskToDate.InsistOnDate(Wanted::Date()) && maskFromDate.Text() > maskToDate.Text())
        maskToDate.SetFocus(
            Plain(QStringLiteral("शेवटचा दिवस %1 च्या आधीचा नको    Esc : बाहेर").arg(maskFromDate.Text())));
}

void PaymentDays::MaskBillDate_LostFocus()
{
    if (MaskBillDate.InsistOnDate(Wanted::Date()))
        NextBillNo();
}

void PaymentDays::NextBillNo()
{
    const Recordset highest(gCn,
        Sql(u"SELECT max(TranId) as MaxTrId FROM MilkPayments WHERE CompanyId=", gAppState.gCompanyId,
            u" and cstr(PaymentDate)=", Quoted(MaskBillDate.Text())));
    const bool isFirst = highest.Eof() || highest[u"MaxTrId"].IsNull();
    txtBillNo.Show(isFirst ? 1 : ToInt16(highest[u"MaxTrId"].Number() + 1));
}

bool PaymentDays::InsistOnDates()
{
    return maskFromDate.InsistOnDate(Wanted::Date()) && maskToDate.InsistOnDate(Wanted::Date())
        && (!MaskBillDate.Enabled() || MaskBillDate.InsistOnDate(Wanted::Date()));
}

PaymentOf PaymentDays::Of(double memberNo) const
{
    return {memberNo, maskFromDate.Date(), maskToDate.Date(),
        MaskBillDate.HoldsDate() ? MaskBillDate.Date() : QDate()};
}

void PaymentDays::Clear()
{
    for (Field* field : std::initializer_list<Field*>{&maskFromDate, &maskToDate, &MaskBillDate, &txtBillNo})
        field->Clear();
}

QHBoxLayout* PaymentDays::Row()
{
    constexpr int dateWidth = 152;
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(Pieces::InLine(Plain(u"पासून"), maskFromDate, dateWidth));
    row->addLayout(Pieces::InLine(Plain(u"पर्यंत"), maskToDate, dateWidth));
    row->addLayout(Pieces::InLine(Shivaji(u"pomaonT idnaaMk"), MaskBillDate, dateWidth));
    row->addLayout(Pieces::InLine(Plain(u"बिल नं."), txtBillNo, 60));
    return row;
}
