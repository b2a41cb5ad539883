// FrameMilkCollection: one member's collection over a period. While it is open the copy holds that period.

#include "collection/frmMilkCollections.h"
#include "collection/CopySums.h"
#include "collection/Counter.h"
#include "core/menu/ScreenDirectory.h"
#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/ModalStack.h"
#include "platform/text/Dates.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Wanted.h"

#include <algorithm>
#include <array>

using namespace Counter;

namespace {

constexpr QStringView SumFormat = u"#######0.000";
constexpr QStringView BuffAverageFormat = u"########0.0";

}

// The rest of the counter waits for the frame. The copy has the member's period then, numbered anew: number 2
// of the shift would find the member's second delivery there, and saving it would write his milk over the
// delivery that has number 2 in the books; a number that isn't in the period would be stored a second time.
void frmMilkCollections::ShowMemberFrame()
{
    SkipMemberChecks = true;
    ShowFrame(true);
    maskFromDate.SetFocus();
    LightMemberKeys();
    const std::vector<Control*> frame = FrameControls();
    for (Control* control : Controls()) {
        if (!control->Enabled() || std::find(frame.begin(), frame.end(), control) != frame.end())
            continue;
        control->SetEnabled(false);
        m_heldBack.push_back(control);
    }
}

void frmMilkCollections::maskFromDate_LostFocus()
{
    maskFromDate.InsistOnDate(Wanted::Date());
}

void frmMilkCollections::maskToDate_LostFocus()
{
    HoldPeriod();
}

// Sends the focus back to a date that is none; true if both are good.
bool frmMilkCollections::HoldPeriod()
{
    return maskFromDate.InsistOnDate(Wanted::Date()) && maskToDate.InsistOnDate(Wanted::Date());
}

void frmMilkCollections::txtAccountId_LostFocus()
{
    const Recordset member(gCn, Sql(u"Select * from MembersMaster Where MemberNo=", txtAccountId.Value()));
    if (!member.Eof())
        ShowAccount(member);
}

// The names are added to those that are there already.
void frmMilkCollections::cmbAccountName_GotFocus()
{
    cmbAccountName.AddNames(MemberNames());
    SendKeys(QStringLiteral("%{Down}"));
}

void frmMilkCollections::cmbAccountName_LostFocus()
{
    if (IsNameOf(cmbAccountName, txtAccountId.Value()))
        return;
    Recordset member(
        gCn, Sql(u"Select * from MembersMaster Where MemberName=", Quoted(cmbAccountName.Text())));
    while (!member.Eof() && !cmbAccountName.MayMean(member[u"MemberNo"].Text()))
        member.MoveNext();
    if (member.Eof())
        member = MemberOfName(cmbAccountName);
    if (!member.Eof())
        ShowAccount(member);
}

void frmMilkCollections::ShowAccount(const Recordset& member)
{
    txtAccountId.SetText(member[u"MemberNo"].Text());
    ShowMember(cmbAccountName, member);
}

// The rows of the member in the period.
QString frmMilkCollections::InPeriod() const
{
    return Sql(u" from MilkCollections where CollectionDate>=", SqlDay(maskFromDate.Date()),
        u" and CollectionDate<=", SqlDay(maskToDate.Date()), u" And MemberNo = ", txtAccountId.Value(),
        u" and companyid=", gAppState.gCompanyId);
}

void frmMilkCollections::cmdGoOn_Click()
{
    if (!HoldPeriod())
        return;
    if (!Finds(u"Select *" + InPeriod())) {
        ShowPlain(QStringLiteral("No Records"));
        txtAccountId.SetFocus();
        return;
    }
    Transaction fill(gCn);
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    gCn.Execute(u"insert into MilkCollectionsTemp select *" + InPeriod());
    RenumberTemp();
    TidyFilledCopy();
    fill.Commit();

    MemberLitersAndAmounts();
    MemberAverageFat();
    ShowMemberGrid();
}

// The copy then reads as one running list of the period. The numbers are for display.
void frmMilkCollections::RenumberTemp()
{
    std::int16_t k = 1;
    for (Recordset row(gCn,
             QStringLiteral(
                 "Select * From MilkCollectionsTemp Order By CollectionDate,CollectionTime,CollectionNo"));
         !row.Eof(); row.MoveNext()) {
        gCn.Execute(Sql(u"Update MilkCollectionsTemp Set CollectionNo=", k, u" Where CollectionDate=",
            SqlDay(row[u"CollectionDate"].Date()), u" And CollectionTime=",
            Quoted(row[u"CollectionTime"].Text()), u" And CollectionNo=", row[u"CollectionNo"].Number()));
        k = ToInt16(k + 1);
    }
}

void frmMilkCollections::ShowMemberGrid()
{
    DataGridMilk.Refresh();
}

void frmMilkCollections::MemberLitersAndAmounts()
{
    const auto [cow, buff] = WalkCopy();
    const MilkSums cowTotal = cow.Both();
    const MilkSums buffTotal = buff.Both();
    for (const auto& [label, sum] : std::initializer_list<std::pair<Label*, double>>{
             {&lblCowLitM, cow.morning.liters}, {&lblCowLitE, cow.evening.liters},
             {&lblCowTotalLiters, cowTotal.liters}, {&lblCowTotalM, cow.morning.amount},
             {&lblCowTotalE, cow.evening.amount}, {&lblCowTotal, cowTotal.amount},
             {&lblBuffLitM, buff.morning.liters}, {&lblBuffLitE, buff.evening.liters},
             {&lblBuffTotalLiters, buffTotal.liters}, {&lblBuffTotalM, buff.morning.amount},
             {&lblBuffTotalE, buff.evening.amount}, {&lblBuffTotal, buffTotal.amount}})
        label->SetFigure(Format(sum, SumFormat));
}

void frmMilkCollections::MemberAverageFat()
{
    const auto [cow, buff] = WalkCopy();
    lblCowAvgFatM.SetFigure(Format(cow.morning.AverageFat(), AverageFatFormat));
    lblCowAvgFatE.SetFigure(Format(cow.evening.AverageFat(), AverageFatFormat));
    lblCowTotalAvgFat.SetFigure(Format(cow.Both().AverageFat(), AverageFatFormat));
    lblBuffAvgFatM.SetFigure(Format(buff.morning.AverageFat(), BuffAverageFormat));
    lblBuffAvgFatE.SetFigure(Format(buff.evening.AverageFat(), BuffAverageFormat));
    lblBuffTotalAvgFat.SetFigure(Format(buff.Both().AverageFat(), AverageFatFormat));
}

// The statement of what lies in the copy.
void frmMilkCollections::Command1_Click()
{
    if (txtAccountId.Value() == 0) {
        txtAccountId.SetFocus(Plain(u"मेम्बर नंबर टाका"));
        return;
    }
    if (!HoldPeriod())
        return;
    // The report's own screen makes the day lines of what lies in the copy, and leaves at once.
    gAppState.gReportMode = QStringLiteral("ShowMilkCollection");
    ScreenDirectory::Open(QStringLiteral("frmReportMilkPS"), Shivaji(u"dUQa saMklana À ivaËI irpaoT-"));
    Transaction staging(gCn);
    gCn.Execute(QStringLiteral("Delete * From ReportDates"));
    gCn.Execute(Sql(u"Insert Into ReportDates(CompanyId,FromDate,Todate) Values(",
        Values(gAppState.gCompanyId, maskFromDate.Text(), maskToDate.Text()), u")"));
    gCn.Execute(QStringLiteral("Delete * From MilkCollectionsTemp where companyId=0"));
    gCn.Execute(QStringLiteral("Delete * From ReportDates Where CompanyId=0"));
    staging.Commit();
    CRMilkPayments.SetTemplate(u"MilkPSReport.rpt");
    CRMilkPayments.SetSubject(ReportSubject({cmbAccountName.Text()}, maskFromDate.Date(), maskToDate.Date()));
    CRMilkPayments.Print();
}

void frmMilkCollections::Command2_Click()
{
    ShowFrame(false);
    ResetMemberFrame();
    SendKeys(QStringLiteral("{TAB}{TAB}{TAB}")); // over date and shift to the entry line
}

void frmMilkCollections::Command3_Click()
{
    ScreenDirectory::Open(
        QStringLiteral("frmAbsenseMemberCollection"), Shivaji(u"dUQa saMklana nasaNaaro saBaasad"));
}

// Empties the frame and gives the copy back to the shift, this time by its company.
void frmMilkCollections::ResetMemberFrame()
{
    const Shift shift = TheShift();
    Transaction reload(gCn);
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    ShowMemberGrid();
    for (Field* field :
        std::initializer_list<Field*>{&maskFromDate, &maskToDate, &txtAccountId, &cmbAccountName})
        field->Clear();
    MemberLitersAndAmounts();
    MemberAverageFat();
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    gCn.Execute(Sql(u"Insert Into MilkCollectionsTemp Select * From MilkCollections Where CompanyId=",
        gAppState.gCompanyId, u" And CollectionDate=", shift.Day(), u" And CollectionTime=",
        Quoted(shift.time)));
    TidyFilledCopy();
    reload.Commit();
    ShowInwardsGrid();
}
