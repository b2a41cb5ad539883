#include "reports/frmReportMilkCollections.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/preview/TemplateReport.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/ReportRun.h"
#include "society/Wanted.h"
#include "society/Words.h"

Keys::Places frmReportMilkCollections::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportMilkCollections"), Shivaji(u"dUQa saMklana irpaoT-"),
            {Next, Back, Leave, {QStringLiteral("Alt+S"), Shivaji(Word::Morning)},
                {QStringLiteral("Alt+K"), Shivaji(Word::Evening)},
                {QStringLiteral("Alt+D"), Shivaji(Word::Both)}, ListOfNames, PrintReport, ExitButton}},
    };
}

frmReportMilkCollections::frmReportMilkCollections()
    : SocietyScreen(KeyPlaces(), Shivaji(u" dUQa saMklana irpaoT-"))
{
    ComboAnimal.OpenOnFocus();
    ComboAnimal.SetItems({Word::Cow.toString(), Word::Buffalo.toString(), Word::Both.toString()});
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the date
    LayOut();
}

void frmReportMilkCollections::Load()
{
    OptionBoth.Choose();
}

void frmReportMilkCollections::MaskUserDate_LostFocus()
{
    HoldDate();
}

bool frmReportMilkCollections::HoldDate()
{
    if (MaskUserDate.HoldsDate())
        return true;
    ShowNotice(Shivaji(u"idnaaMk vyavaisqat Ta[-p kra"));
    MaskUserDate.SetFocus(Wanted::Date());
    return false;
}

void frmReportMilkCollections::ComboAnimal_LostFocus()
{
    HoldAnimal();
}

// Completes what was typed to one of the words; a text that begins none of them is emptied.
bool frmReportMilkCollections::HoldAnimal()
{
    if (ComboAnimal.IsEmpty())
        ComboAnimal.SetText(Word::Both.toString());
    ComboAnimal.TakeMatch();
    if (ComboAnimal.Items().contains(ComboAnimal.Text()))
        return true;
    ComboAnimal.Clear();
    ComboAnimal.SetFocus(Plain(u"↓ ने यादीतून निवडा    Esc : बाहेर"));
    return false;
}

// The day is compared as text, and in every company.
QString frmReportMilkCollections::Selection() const
{
    SqlText statement =
        Sql(u"insert into MilkCollectionsTemp select * from MilkCollections where CStr(CollectionDate)=",
            Quoted(MaskUserDate.Text()));
    const bool oneShift = !OptionBoth.Chosen();
    if (oneShift)
        statement = Sql(statement, u" and CollectionTime=",
            Quoted(OptionMorning.Chosen() ? Word::Morning : Word::Evening));
    if (ComboAnimal.Text() != Word::Both)
        statement = Sql(statement, oneShift ? u" and  Animal=" : u" and Animal=", Quoted(ComboAnimal.Text()));
    return statement;
}

QString frmReportMilkCollections::Subject() const
{
    QStringList choices;
    if (ComboAnimal.Text() != Word::Both)
        choices.append(ComboAnimal.Text());
    if (!OptionBoth.Chosen())
        choices.append(OptionMorning.Chosen() ? Word::Morning.toString() : Word::Evening.toString());
    return ReportSubject(choices, MaskUserDate.Date());
}

void frmReportMilkCollections::cmdReport_Click()
{
    if (!HoldDate() || !HoldAnimal())
        return;
    Transaction staging(gCn);
    gCn.Execute(u"delete * from MilkCollectionsTemp");
    gCn.Execute(u"delete * from ReportDates");
    gCn.Execute(Selection());
    ReportRun::StageDates(MaskUserDate.Text(), MaskUserDate.Text());
    ReportRun::Tidy(u"MilkCollectionsTemp");
    staging.Commit();
    TemplateReport report(u"MilkCollectionsReport.rpt");
    report.SetSubject(Subject());
    report.Print();
}
