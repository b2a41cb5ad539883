#include "collection/CounterScreen.h"

#include "collection/Counter.h"
#include "core/menu/CommonKeys.h"
#include "core/menu/Keys.h"
#include "core/menu/ScreenDirectory.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/ModalStack.h"
#include "society/Names.h"
#include "society/Wanted.h"
#include "society/Words.h"

#include <utility>

using namespace Counter;

// The amount takes what is left, which is more than its 1300 twips: a can paid by the lakh is not cut off.
std::vector<DataGrid::Column> CounterScreen::InwardsColumns(const CounterKind& kind)
{
    return {
        {QStringLiteral("CollectionNo"), Shivaji(u"saMklana Ë."), Twips(900), {}, false, false},
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naMbar"), Twips(1000), {}, false, false},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naaMva"), Twips(3100)},
        {QStringLiteral("Animal"), Shivaji(u"dUQa"), Twips(700)},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), Twips(1400), kind.liters.grid.toString(), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), Twips(1200), kind.gridFatFormat.toString(), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), Twips(1200), QStringLiteral("#####0.00"), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 0, QStringLiteral("#####0.00"), true},
    };
}

CounterScreen::CounterScreen(const CounterKind& kind, const Keys::Places& keys)
    : SocietyScreen(keys, Shivaji(kind.title), {.guide = "lblFooter", .company = kind.company})
    , DataGridInwards(this, "DataGridInwards", InwardsColumns(kind))
    , m_kind(kind)
    , m_memberKeys(this, kind.hasMemberFrame)
    , m_totals(this, kind.liters.total)
{
    When(maskDate.GotFocus, &CounterScreen::maskDate_GotFocus);
    When(txtTime.GotFocus, &CounterScreen::txtTime_GotFocus);
    When(txtCollectionNo.GotFocus, &CounterScreen::txtCollectionNo_GotFocus);
    When(txtMemberNo.GotFocus, &CounterScreen::txtMemberNo_GotFocus);
    txtMemberNo.TextChanged = [this] { txtMemberNo_Change(); };
    When(ComboMemberName.GotFocus, &CounterScreen::ComboMemberName_GotFocus);
    When(txtAnimal.GotFocus, &CounterScreen::txtAnimal_GotFocus);
    When(txtLiters.GotFocus, &CounterScreen::txtLiters_GotFocus);
    When(txtFat.GotFocus, &CounterScreen::txtFat_GotFocus);
    When(cmdGo.LostFocus, &CounterScreen::cmdGo_LostFocus);
    m_memberKeys.NameActions([this](const QString& key) { return KeyAction(txtMemberNo, key); });
    maskDate.SetGuide(KeyGuide(maskDate));
    txtCollectionNo.SetGuide(KeyGuide(txtCollectionNo));
    ComboMemberName.SetGuide(Keys::Guide(QStringLiteral("NameCombo")));
    ComboMemberName.Accepts = [](QChar c) { return c != u'\'' && !c.isDigit(); };
    txtLiters.SetPattern(kind.liters.field);
    txtLiters.SetMaxLength(9);
    txtAmount.SetEnabled(false);
    EnableEntry(false);
}

void CounterScreen::Load()
{
    DataGridInwards.Bind(gCn, ShiftQuery.toString());
    if (!m_devices.ReadPortTable())
        ShowPlain(QStringLiteral("Check port setting"));
    EmptyShiftCopy();
    ShowInwardsGrid();
    maskDate.SetDate(gAppState.gAppDate);
    LoadMemberNames();
    Devices.Show();
    RefreshActualTime();
    m_totals.ShiftLitersTotal();
    m_totals.ShiftAverageFat();
    MilkReceipt::Prepare();
}

void CounterScreen::ShowInwardsGrid()
{
    DataGridInwards.Refresh();
}

// Keys

KeyHint CounterScreen::CalculatorKey()
{
    return {QStringLiteral("F2"), SocietyScreen::CalculatorKey().action, &CounterScreen::StartCalculator};
}

KeyHint CounterScreen::MembersKey()
{
    return {QStringLiteral("F3"), Shivaji(u"]%padkacao rijasTr"), &CounterScreen::ShowMembers};
}

KeyHint CounterScreen::AdvanceKey()
{
    return {QStringLiteral("F6"), Shivaji(u"]cala naaoMd"), &CounterScreen::ShowAdvances};
}

KeyHint CounterScreen::SearchKey()
{
    return {QStringLiteral("F9"), Shivaji(u"dUQa saMklana pavatI"), &CounterScreen::SearchMember};
}

KeyHint CounterScreen::DeleteKey()
{
    return {QStringLiteral("F10"), Shivaji(u"KaoDNao"), &CounterScreen::DeleteRow};
}

std::vector<KeyHint> CounterScreen::NumberKeys()
{
    return {{QStringLiteral("↑"), Plain(u"आधीची नोंद"), &CounterScreen::PreviousNumber},
        {QStringLiteral("↓"), Plain(u"पुढची नोंद"), &CounterScreen::NextNumber}};
}

void CounterScreen::StartCalculator()
{
    CommonKeys::Calculator(false);
}

void CounterScreen::ShowMembers()
{
    ScreenDirectory::Open(QStringLiteral("frmMembers"), KeyAction(u"F3"));
    MembersShown();
}

void CounterScreen::ShowAdvances()
{
    ScreenDirectory::Open(QStringLiteral("frmUchalVouchers"), KeyAction(u"F6"));
}

void CounterScreen::Escape()
{
    ClearEntryFields();
    Close();
}

// Date and shift

void CounterScreen::maskDate_GotFocus()
{
    EnableEntry(false);
    // A date that has to be mended is not selected: one key would wipe it out.
    if (!maskDate.HoldsDate())
        SendKeys(QStringLiteral("{Home}"));
}

void CounterScreen::maskDate_LostFocus()
{
    maskDate.InsistOnDate(Wanted::Date());
}

void CounterScreen::txtTime_GotFocus()
{
    txtCollectionNo.SetEnabled(true);
}

void CounterScreen::txtTime_LostFocus()
{
    if (!maskDate.InsistOnDate(Wanted::Date()))
        return;
    if (!txtTime.HoldsShift()) {
        txtTime.SetFocus(Wanted::Shift());
        return;
    }
    const Shift shift = TheShift();
    ShowNumber(NextNumberInBooks(shift));
    OpenShift(shift);
    ShowInwardsGrid();
    m_totals.ShiftLitersTotal();
    m_totals.ShiftAverageFat();
    if (!IsSteppingBack()) // the way to another day
        txtCollectionNo.SetFocus();
}

// Collection number

void CounterScreen::txtCollectionNo_GotFocus()
{
    EnableEntry(true);
    if (txtTime.IsEmpty())
        SendBack(txtTime, Wanted::Shift());
}

void CounterScreen::PreviousNumber()
{
    if (txtCollectionNo.Value() > 1)
        ShowNumberToGoTo(txtCollectionNo.Value() - 1);
}

void CounterScreen::NextNumber()
{
    ShowNumberToGoTo(txtCollectionNo.Value() + 1);
}

void CounterScreen::ShowNumberToGoTo(double number)
{
    txtCollectionNo.Show(number);
    txtCollectionNo.SelectAll();
}

void CounterScreen::txtCollectionNo_LostFocus()
{
    if (IsSentBack())
        return;
    RefreshActualTime();
    const double number = txtCollectionNo.Value();
    if (number == 0) {
        ClearEntryFields();
        ShowNumber(NextCollectionNo);
        txtCollectionNo.SetFocus(Plain(u"क्रमांक 0 नसतो : नवीन नोंदीसाठी Enter    Esc : बाहेर"));
        return;
    }
    const Shift shift = TheShift();
    const Recordset row(gCn,
        Sql(u"SELECT * FROM MilkCollectionsTemp where cstr(CollectionDate)=", shift.Day(),
            u" and CollectionTime=", Quoted(shift.time), u" AND CollectionNo=", number));
    IsExistingRow = !row.Eof();
    if (IsExistingRow) {
        txtMemberNo.SetText(row[u"MemberNo"].Text());
        ShowRow(row);
    } else {
        ShowNumber(NextCollectionNo);
    }
}

// Member

void CounterScreen::txtMemberNo_GotFocus()
{
    ShowMemberKeys(true);
}

void CounterScreen::txtMemberNo_Change()
{
    if (txtMemberNo.HasFocus())
        LightMemberKeys();
}

void CounterScreen::txtMemberNo_LostFocus()
{
    if (std::exchange(SkipMemberChecks, false))
        return;
    ShowMemberKeys(false);
    const double number = txtMemberNo.Value();
    if (number == 0) {
        txtMemberNo.Clear();
        return;
    }
    const Recordset member(gCn, Sql(u"SELECT * FROM MembersMaster where MemberNo=", number));
    Caption wanted;
    if (member.Eof()) {
        txtMemberNo.Clear();
        wanted = Plain(u"हा मेम्बर नंबर नाही    Shift+Tab : मागे");
    } else {
        ShowMember(ComboMemberName, member);
        TakeAnimalOf(member);
    }
    if (IsSteppingBack())
        return;
    if (txtAnimal.Enabled())
        txtAnimal.SetFocus();
    else
        txtLiters.SetFocus(wanted);
}

// A member of both kinds leaves the choice to the clerk; any other settles it.
void CounterScreen::TakeAnimalOf(const Recordset& member)
{
    const QString animal = member[u"Animal"].Text();
    const bool both = animal == Word::Both;
    if (!both)
        txtAnimal.SetText(animal);
    txtAnimal.SetEnabled(both);
}

void CounterScreen::ComboMemberName_GotFocus()
{
    if (!txtMemberNo.IsEmpty())
        return;
    LoadMemberNames();
    SendKeys(QStringLiteral("%{Down}"));
}

// Without a number the focus is asked for here, so that the clerk sees which member the name has found; the
// next Enter goes on; a step back is not led elsewhere. Coming back with no number also reloads the list and
// drops it open.
void CounterScreen::ComboMemberName_LostFocus()
{
    const QString name = ComboMemberName.Text().trimmed();
    if (name.isEmpty()) {
        ShowNotice(Shivaji(u"maombarcao naaMva vyavaisqat Ta[-p kra"));
        ComboMemberName.SetFocus(Wanted::Name());
        return;
    }
    const bool asks = txtMemberNo.IsEmpty();
    const Recordset member = MemberOfName(ComboMemberName, txtMemberNo.Value());
    if (member.Eof()) {
        if (asks)
            ComboMemberName.SetFocus(Wanted::Name());
        LoadMemberNames();
        return;
    }
    txtMemberNo.SetText(member[u"MemberNo"].Text());
    ShowMember(ComboMemberName, member); // the balance is kept under this spelling
    TakeAnimalOf(member);
    if (IsSteppingBack())
        return;
    if (asks)
        ComboMemberName.SetFocus(Plain(u"Enter : पुढे"));
    txtAnimal.SetFocus(); // only if it is the clerk's choice: it is disabled otherwise
}

void CounterScreen::LoadMemberNames()
{
    ComboMemberName.SetNames(MemberNames());
}
