#include "reports/frmVadhTootReport.h"

#include "core/preview/ReportSubject.h"
#include "reports/VadhToot.h"
#include "society/Wanted.h"

#include <QLabel>

Keys::Places frmVadhTootReport::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmVadhTootReport"), Shivaji(u"vaaZÀtUT p~k"),
            {Next, Back, Leave, ChooseOption, ExitButton}},
    };
}

frmVadhTootReport::frmVadhTootReport() : SocietyScreen(KeyPlaces(), Shivaji(u" vaaZÀtUT p~k"))
{
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the dates
    LayOut();
}

void frmVadhTootReport::Load()
{
    federationCustomers = VadhToot::FederationCustomers();
    OptionLiters.Choose();
}

void frmVadhTootReport::maskFromDate_LostFocus()
{
    maskFromDate.InsistOnDate(Wanted::Date());
}

void frmVadhTootReport::maskToDate_LostFocus()
{
    maskToDate.InsistOnDate(Wanted::Date());
}

// There are no rows to count beforehand, so there is no bar.
void frmVadhTootReport::cmdPrint_Click()
{
    if (!maskFromDate.InsistOnDate(Wanted::Date()) || !maskToDate.InsistOnDate(Wanted::Date()))
        return;
    lblMessage.SetFigure(QStringLiteral("Generating Report... Please wait "));
    lblMessage.Widget()->repaint(); // what follows may take a while
    if (OptionLiters.Chosen())
        PrintLiters();
    else
        PrintAmounts();
    lblMessage.SetFigure({});
}

void frmVadhTootReport::PrintLiters()
{
    VadhToot::StageLiters(maskFromDate.Date(), maskToDate.Date(), federationCustomers);
    CRVadhTootReport.SetTemplate(u"VadhTootLitersPatrak.rpt");
    CRVadhTootReport.SetSubject(
        ReportSubject({OptionLiters.Shown().Text()}, maskFromDate.Date(), maskToDate.Date()));
    CRVadhTootReport.Print();
}

void frmVadhTootReport::PrintAmounts()
{
    VadhToot::StageAmounts(maskFromDate.Date(), maskToDate.Date());
    CRVadhTootReport.SetTemplate(u"VadhTootAmountPatrak.rpt");
    CRVadhTootReport.SetSubject(
        ReportSubject({OptionAmount.Shown().Text()}, maskFromDate.Date(), maskToDate.Date()));
    CRVadhTootReport.Print();
}
