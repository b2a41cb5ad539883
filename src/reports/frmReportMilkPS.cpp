#include "reports/frmReportMilkPS.h"

#include "core/preview/ReportSubject.h"
#include "core/preview/TemplateReport.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "reports/MilkStatement.h"
#include "society/FieldRoutines.h"
#include "society/Wanted.h"

Keys::Places frmReportMilkPS::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportMilkPS"), Shivaji(u"dUQa saMklana À ivaËI irpaoT-"),
            {Next, Back, Leave, ChooseOption, ListOfNames, PrintReport, ExitButton}},
    };
}

frmReportMilkPS::frmReportMilkPS() : SocietyScreen(KeyPlaces(), Shivaji(u" dUQa saMklana À ivaËI irpaoT-"))
{
    ComboAccountName.OpenOnFocus();
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the dates
    LayOut();
}

void frmReportMilkPS::Load()
{
    // The mode is for this opening only; the next may come from the menu.
    if (gAppState.gReportMode == u"ShowMilkCollection") {
        gAppState.gReportMode.clear();
        MilkStatement::StageCopy();
        SendKeys(QStringLiteral("{ESC}"));
        return;
    }
    OptionCollections.Choose();
    ListAccounts();
}

void frmReportMilkPS::maskFromDate_LostFocus()
{
    maskFromDate.InsistOnDate(Wanted::Date());
}

void frmReportMilkPS::maskToDate_LostFocus()
{
    maskToDate.InsistOnDate(Wanted::Date());
}

void frmReportMilkPS::Option_Click()
{
    ComboAccountName.Clear();
    ListAccounts();
}

void frmReportMilkPS::ListAccounts()
{
    if (OptionSales.Chosen())
        FillCombo(ComboAccountName, u"CustomersMaster", u"CustomerName",
            Sql(u"where CompanyId=", gAppState.gCompanyId, u" ORDER BY CustomerName"));
    else
        FillCombo(ComboAccountName, u"MembersMaster", u"MemberName",
            Sql(u"where CompanyId=", gAppState.gCompanyId, u" ORDER BY MemberName"));
}

void frmReportMilkPS::ComboAccountName_LostFocus()
{
    ComboAccountName.TakeMatch();
}

void frmReportMilkPS::cmdReport_Click()
{
    if (!maskFromDate.InsistOnDate(Wanted::Date()) || !maskToDate.InsistOnDate(Wanted::Date()))
        return;
    MilkStatement::Stage(
        {OptionSales.Chosen() ? MilkStatement::Kind::Sales : MilkStatement::Kind::Collections,
            ComboAccountName.Text().trimmed(), maskFromDate.Date(), maskToDate.Date()});
    TemplateReport report(u"MilkPSReport.rpt");
    report.SetSubject(ReportSubject({ComboAccountName.Text()}, maskFromDate.Date(), maskToDate.Date()));
    report.Print();
}
