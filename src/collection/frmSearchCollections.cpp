#include "collection/frmSearchCollections.h"

#include "collection/Counter.h"
#include "collection/MilkReceipt.h"
#include "core/menu/Keys.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/shell/AppFolder.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/ReceiptLayouts.h"
#include "society/Wanted.h"

using namespace Counter;

namespace {

// Where an earlier program of the society left its templates; one slip is still printed from there.
constexpr QStringView SiblingFolder = u"C:\\Tarvel01\\Sorvelan\\";

std::vector<DataGrid::Column> FoundColumns()
{
    return {
        {QStringLiteral("CollectionNo"), Shivaji(u"saMklana Ë."), 140, {}, false, false},
        {QStringLiteral("Animal"), Shivaji(u"dUQa"), 0},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), 170, GridPattern::Litres.toString(), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), 140, GridPattern::Figure.toString(), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), 150, GridPattern::Figure.toString(), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 180, GridPattern::Figure.toString(), true},
    };
}

// The template of a slip that is printed again; empty if it can't be.
QString ReprintTemplate(QStringView receiptType)
{
    const ReceiptLayout layout = ReceiptLayoutOf(receiptType);
    if (layout.reprint == ReceiptLayout::Reprint::None)
        return {};
    const bool isHere = layout.reprint == ReceiptLayout::Reprint::InAppFolder;
    return (isHere ? Paths::AppFolder : SiblingFolder).toString() + layout.sampleTemplate;
}

}

Keys::Places frmSearchCollections::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmSearchCollections"), Shivaji(u"dUQa saMklana pavatI"),
            {Next, Back, {QStringLiteral("Alt+P"), Plain(u"पावती पुन्हा दाखवा")}, Leave, CalculatorKey(),
                TutorKey(), OneOfTwo, ListOfNames}},
    };
}

frmSearchCollections::frmSearchCollections(std::optional<Handover> handover)
    : SocietyScreen(KeyPlaces(), Shivaji(u"dUQa saMklana pavatI"), {.guide = "lblFooter"})
    , DataGridInwards(this, "DataGridInwards", FoundColumns())
    , m_handover(std::move(handover))
{
    When(maskDate.GotFocus, &frmSearchCollections::maskDate_GotFocus);
    When(txtTime.GotFocus, &frmSearchCollections::txtTime_GotFocus);
    for (Field* field : std::initializer_list<Field*>{&maskDate, &txtTime, &txtMemberNo, &ComboMemberName})
        When(field->TextChanged, &frmSearchCollections::ForgetFound);
    maskDate.KeepForMending();
    DataGridInwards.SetGuide(Plain(u"↑ ↓ : पावतीची नोंद निवडा"));
    ComboMemberName.OpenWithout(txtMemberNo);
    EnableFound(false);
    LayOut();
}

void frmSearchCollections::Load()
{
    DataGridInwards.Bind(gCn, QStringLiteral("select * from MilkCollectionsTemp order by CollectionNo desc"));
    EmptyShiftCopy();
    DataGridInwards.Refresh();
    maskDate.SetDate(gAppState.gAppDate);
    ComboMemberName.LoadMemberNames();
    TimerStart = true;
    After(50, [this] { TimerStart_Timer(); });
}

// From a counter it goes on with the member in the line there. From the menu it leaves the clerk where he is:
// at the date, or further on if he has typed faster than the timer ticks.
void frmSearchCollections::TimerStart_Timer()
{
    TimerStart = false;
    if (!m_handover)
        return;
    const auto& [shift, memberNo, memberName] = *m_handover;
    maskDate.SetDate(shift.date);
    txtTime.SetText(shift.time);
    txtMemberNo.SetText(memberNo);
    ComboMemberName.SetEntry({memberName, ShortestDecimal(txtMemberNo.Value())});
    EnableMember(true);
    ComboMemberName.SetFocus();
}

// Date and shift

void frmSearchCollections::maskDate_GotFocus()
{
    EnableMember(false);
    EnableFound(false);
}

void frmSearchCollections::maskDate_LostFocus()
{
    maskDate.InsistOnDate(Wanted::Date());
}

void frmSearchCollections::txtTime_GotFocus()
{
    EnableMember(true);
}

void frmSearchCollections::txtTime_LostFocus()
{
    InsistOnShift(maskDate, txtTime);
}

// Member

void frmSearchCollections::txtMemberNo_LostFocus()
{
    const double number = txtMemberNo.Value();
    const Recordset member = MemberOfNumber(number);
    if (number == 0 || member.Eof())
        txtMemberNo.Clear();
    else
        ShowMember(ComboMemberName, member);
}

void frmSearchCollections::ComboMemberName_LostFocus()
{
    if (!InsistOnName(ComboMemberName))
        return;
    if (const Recordset member = MemberOfName(ComboMemberName, txtMemberNo.Value()); !member.Eof()) {
        txtMemberNo.SetText(member[u"MemberNo"].Text());
        ShowMember(ComboMemberName, member);
        Search();
        return;
    }
    ComboMemberName.LoadMemberNames();
    if (txtMemberNo.IsEmpty())
        ComboMemberName.SetFocus(Wanted::Name());
}

void frmSearchCollections::EnableMember(bool enabled)
{
    txtMemberNo.SetEnabled(enabled);
    ComboMemberName.SetEnabled(enabled);
}

// The rows found

void frmSearchCollections::Search()
{
    const Shift shift = ShiftOf(maskDate, txtTime);
    Transaction finding(gCn);
    gCn.Execute(QStringLiteral("delete * from MilkCollectionsTemp"));
    gCn.Execute(Sql(
        u"insert into MilkCollectionsTemp select * from MilkCollections where cstr(CollectionDate)=",
        shift.Day(), u" and CollectionTime=", Quoted(shift.time), u" and MemberNo=", txtMemberNo.Value()));
    TidyShiftCopy();
    finding.Commit();
    DataGridInwards.Refresh();
    const bool isFound = Finds(QStringLiteral("select * from MilkCollectionsTemp"));
    EnableFound(isFound);
    if (!isFound)
        ShowPlain(QStringLiteral("No Records"));
    else if (!IsSteppingBack()) // to look for another member
        DataGridInwards.SetFocus();
}

void frmSearchCollections::EnableFound(bool enabled)
{
    DataGridInwards.SetEnabled(enabled);
    cmdGo.SetEnabled(enabled);
}

// A slip names the shift and the member of the fields, so rows of others must not be printed under them.
void frmSearchCollections::ForgetFound()
{
    EnableFound(false);
}

void frmSearchCollections::cmdGo_Click()
{
    const double number = DataGridInwards.Value(DataGridInwards.CurrentRow(), u"CollectionNo").Number();
    Transaction staging(gCn);
    if (!StageReprint(number))
        return;
    ChooseTemplate();
    CRMilkReceipt.SetDestination(ReportDestination::Window);
    gCn.Execute(QStringLiteral("delete * from MilkReceipt where CompanyId=0"));
    staging.Commit();
    CRMilkReceipt.SetSubject(MilkReceipt::Subject());
    CRMilkReceipt.Print();
}

// Puts the row of a number in place of the slip before it; false if there is none. The clock of the counter
// isn't told a second time.
bool frmSearchCollections::StageReprint(double number)
{
    gCn.Execute(QStringLiteral("delete * from MilkReceipt"));
    gCn.Execute(QStringLiteral("delete * from MilkReceipt"));
    gCn.Execute(Sql(u"update MilkCollectionsTemp set CompanyId=", gAppState.gCompanyId));
    const Recordset row(gCn,
        Sql(u"select * from MilkCollectionsTemp where CompanyId=", gAppState.gCompanyId,
            u" and CollectionNo=", number));
    if (row.Eof())
        return false;
    gCn.Execute(Sql(u"insert into MilkReceipt(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                    u"MemberName,Animal,Liters,Fat,Rate,Amount) values(",
        Values(gAppState.gCompanyId, maskDate.Text(), txtTime.Text(), number, txtMemberNo.Value(),
            ComboMemberName.Text(), row[u"Animal"].Text(), row[u"Liters"].Number(), row[u"Fat"].Number(),
            row[u"Rate"].Number(), row[u"Amount"].Number()),
        u")"));
    return true;
}

// A layout without a template here leaves the one of the slip before.
void frmSearchCollections::ChooseTemplate()
{
    if (const QString path = ReprintTemplate(Setting(u"ReceiptType")); !path.isEmpty())
        CRMilkReceipt.SetTemplatePath(path);
}
