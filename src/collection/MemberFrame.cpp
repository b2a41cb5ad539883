#include "collection/MemberFrame.h"

#include "collection/Counter.h"
#include "core/menu/ScreenDirectory.h"
#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Screen.h"
#include "platform/text/Dates.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Wanted.h"

#include <algorithm>
#include <functional>

using namespace Counter;

namespace {

constexpr QStringView SumFormat = u"#######0.000";
constexpr QStringView BuffAverageFormat = u"########0.0";

std::vector<DataGrid::Column> MilkColumns()
{
    return {
        {QStringLiteral("CollectionNo"), Shivaji(u"A.Ë."), Twips(900), {}, false, false},
        {QStringLiteral("CollectionDate"), Shivaji(u"idnaaMk"), Twips(1300), QStringLiteral("dd/MM/yyyy")},
        {QStringLiteral("CollectionTime"), Shivaji(u"vaoL"), 0},
        {QStringLiteral("Animal"), Shivaji(u"dUQa"), Twips(700)},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), Twips(1400), GridPattern::Litres.toString(), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), Twips(1200), GridPattern::Figure.toString(), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), Twips(1200), GridPattern::Figure.toString(), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), Twips(1300), GridPattern::Figure.toString(), true},
    };
}

}

FigureOfHalves::FigureOfHalves(
    Screen* screen, const char* morningName, const char* eveningName, const char* bothName)
    : morning(screen, morningName)
    , evening(screen, eveningName)
    , both(screen, bothName)
{
}

template <class Figure>
void FigureOfHalves::Show(
    const HalfDaySums& sums, Figure figure, QStringView format, QStringView formatOfBoth)
{
    morning.SetFigure(Format(std::invoke(figure, sums.morning), format));
    evening.SetFigure(Format(std::invoke(figure, sums.evening), format));
    both.SetFigure(Format(std::invoke(figure, sums.Both()), formatOfBoth));
}

MemberFrame::MemberFrame(Screen* screen)
    : m_screen(screen)
    , DataGridMilk(screen, "DataGridMilk", MilkColumns())
{
    cmbAccountName.OpenWithMore();
    Command2.SetCancels(true); // the frame is left whatever stands in its dates
    m_panel.SetVisible(false);
}

void MemberFrame::Load()
{
    DataGridMilk.Bind(gCn,
        QStringLiteral("select CompanyId,CollectionNo,CollectionDate,CollectionTime,MemberNo,MemberName,"
                       "Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime from MilkCollectionsTemp "
                       "order by CollectionNo"));
    MemberLitersAndAmounts();
    MemberAverageFat();
}

// Opening and closing

// The rest of the counter must not be entered meanwhile: the copy has the member's period then, numbered
// anew. Number 2 of the shift would find the member's second delivery there, and saving it would write his
// milk over the delivery that has number 2 in the books; a number that isn't in the period would be stored a
// second time.
void MemberFrame::Open()
{
    m_panel.SetVisible(true);
    maskFromDate.SetFocus();
    const std::vector<Control*>& own = m_panel.Controls();
    for (Control* control : m_screen->Controls()) {
        if (!control->Enabled() || std::find(own.begin(), own.end(), control) != own.end())
            continue;
        control->SetEnabled(false);
        m_heldBack.push_back(control);
    }
}

void MemberFrame::Close()
{
    m_panel.SetVisible(false);
    for (Control* control : m_heldBack)
        control->SetEnabled(true);
    m_heldBack.clear();
}

// The reload of the shift goes by the company here.
void MemberFrame::ResetMemberFrame(const Shift& shift)
{
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
}

// Member and period

void MemberFrame::maskFromDate_LostFocus()
{
    maskFromDate.InsistOnDate(Wanted::Date());
}

void MemberFrame::maskToDate_LostFocus()
{
    InsistOnPeriod();
}

// Sends the focus back to a date that is none; true if both are good.
bool MemberFrame::InsistOnPeriod()
{
    return maskFromDate.InsistOnDate(Wanted::Date()) && maskToDate.InsistOnDate(Wanted::Date());
}

void MemberFrame::txtAccountId_LostFocus()
{
    const Recordset member(gCn, Sql(u"Select * from MembersMaster Where MemberNo=", txtAccountId.Value()));
    if (!member.Eof())
        ShowAccount(member);
}

void MemberFrame::cmbAccountName_LostFocus()
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

void MemberFrame::ShowAccount(const Recordset& member)
{
    txtAccountId.SetText(member[u"MemberNo"].Text());
    ShowMember(cmbAccountName, member);
}

// The rows of the member in the period.
SqlText MemberFrame::InPeriod() const
{
    return Sql(u" from MilkCollections where CollectionDate>=", SqlDay(maskFromDate.Date()),
        u" and CollectionDate<=", SqlDay(maskToDate.Date()), u" And MemberNo = ", txtAccountId.Value(),
        u" and companyid=", gAppState.gCompanyId);
}

void MemberFrame::cmdGoOn_Click()
{
    if (!InsistOnPeriod())
        return;
    if (!Finds(Sql(u"Select *", InPeriod()))) {
        ShowPlain(QStringLiteral("No Records"));
        txtAccountId.SetFocus();
        return;
    }
    Transaction fill(gCn);
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    gCn.Execute(Sql(u"insert into MilkCollectionsTemp select *", InPeriod()));
    RenumberTemp();
    TidyFilledCopy();
    fill.Commit();

    MemberLitersAndAmounts();
    MemberAverageFat();
    ShowMemberGrid();
}

// The copy then reads as one running list of the period. The numbers are for display.
void MemberFrame::RenumberTemp()
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

void MemberFrame::ShowMemberGrid()
{
    DataGridMilk.Refresh();
}

void MemberFrame::MemberLitersAndAmounts()
{
    const auto [cow, buff] = WalkCopy();
    m_cowLitres.Show(cow, &MilkSums::liters, SumFormat, SumFormat);
    m_cowAmount.Show(cow, &MilkSums::amount, SumFormat, SumFormat);
    m_buffLitres.Show(buff, &MilkSums::liters, SumFormat, SumFormat);
    m_buffAmount.Show(buff, &MilkSums::amount, SumFormat, SumFormat);
}

void MemberFrame::MemberAverageFat()
{
    const auto [cow, buff] = WalkCopy();
    m_cowFat.Show(cow, &MilkSums::AverageFat, AverageFatFormat, AverageFatFormat);
    m_buffFat.Show(buff, &MilkSums::AverageFat, BuffAverageFormat, AverageFatFormat);
}

// The statement of what lies in the copy.
void MemberFrame::Command1_Click()
{
    if (txtAccountId.Value() == 0) {
        txtAccountId.SetFocus(Plain(u"मेम्बर नंबर टाका"));
        return;
    }
    if (!InsistOnPeriod())
        return;
    // The report's own screen makes the day lines of what lies in the copy, and leaves at once.
    gAppState.gReportMode = QStringLiteral("ShowMilkCollection");
    ScreenDirectory::Open(QStringLiteral("frmReportMilkPS"));
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

void MemberFrame::Command3_Click()
{
    ScreenDirectory::Open(QStringLiteral("frmAbsenseMemberCollection"));
}
