#include "reports/frmReportPurchaseSales.h"

#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "platform/forms/Layout.h"
#include "reports/MilkBooks.h"
#include "reports/PurchaseSales.h"

Keys::Places frmReportPurchaseSales::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportPurchaseSales"), Plain(u"दूध खरेदी आणि विक्री रिपोर्ट"),
            {Next, Back, Leave, PrintReport, ExitButton}},
    };
}

frmReportPurchaseSales::Mode frmReportPurchaseSales::ModeOf(QStringView word)
{
    if (word == u"MP")
        return Mode::MP;
    return word == u"MS" ? Mode::MS : Mode::PS;
}

// The menu gives the lists the same titles.
Caption frmReportPurchaseSales::TitleOf(Mode mode)
{
    switch (mode) {
    case Mode::PS:
        return Shivaji(u"  dUQa KrodI À ivaËI irpaoT-");
    case Mode::MP:
        return Shivaji(u"  dUQa KrodI irpaoT-");
    case Mode::MS:
        break;
    }
    return Shivaji(u"  dUQa ivaËI irpaoT-");
}

frmReportPurchaseSales::frmReportPurchaseSales() : frmReportPurchaseSales(ModeOf(gAppState.gReportMode)) { }

frmReportPurchaseSales::frmReportPurchaseSales(Mode mode)
    : SocietyScreen(KeyPlaces(), TitleOf(mode))
    , m_mode(mode)
{
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the dates
    LayOut();
}

void frmReportPurchaseSales::Stage()
{
    switch (m_mode) {
    case Mode::PS:
        return PurchaseSales::StageAccounts(Days.From(), Days.To(), Staging);
    case Mode::MP:
        return PurchaseSales::StageMilk(CollectionBooks, Days.From(), Days.To());
    case Mode::MS:
        return PurchaseSales::StageMilk(SalesBooks, Days.From(), Days.To());
    }
}

QStringView frmReportPurchaseSales::Template() const
{
    switch (m_mode) {
    case Mode::PS:
        return u"PurchaseSalesReport.rpt";
    case Mode::MP:
        return u"MilkPurchaseReport.rpt";
    case Mode::MS:
        break;
    }
    return u"MilkSalesReport.rpt";
}

void frmReportPurchaseSales::cmdPrint_Click()
{
    if (!Days.Hold())
        return;
    Stage();
    CRPurchaseSales.SetTemplate(Template());
    CRPurchaseSales.SetSubject(ReportSubject({}, Days.From(), Days.To()));
    CRPurchaseSales.Print();
}

void frmReportPurchaseSales::LayOut()
{
    Layout::Form form;
    lblGuide.Widget()->setMinimumWidth(Layout::LineWidth); // two dates alone leave it no room
    form.Row(lblGuide);
    Days.AddTo(form);
    form.Grid()->addLayout(Staging.Line(), form.Grid()->rowCount(), 0, 1, 2);
    Stack(Layout::InTheMiddle(form, {&cmdPrint, &cmdExit}));
}
