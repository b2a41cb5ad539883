#include "collection/EntryLine.h"

#include "collection/Counter.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/Screen.h"
#include "rates/LookupFatRate.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Wanted.h"
#include "society/Words.h"

#include <functional>
#include <utility>

using namespace Counter;

EntryLine::EntryLine(Screen* screen, const CounterKind& kind, const Beside& beside)
    : m_screen(screen)
    , KeysOfMember(screen, kind.hasMemberFrame)
    , m_kind(kind)
    , m_beside(beside)
{
    txtMemberNo.GotFocus = std::bind_front(&EntryLine::txtMemberNo_GotFocus, this);
    txtMemberNo.TextChanged = std::bind_front(&EntryLine::LightMemberKeys, this);
    ComboMemberName.OpenWithout(txtMemberNo);
    txtAnimal.GotFocus = std::bind_front(&EntryLine::txtAnimal_GotFocus, this);
    txtLiters.GotFocus = std::bind_front(&EntryLine::txtLiters_GotFocus, this);
    txtFat.GotFocus = std::bind_front(&EntryLine::txtFat_GotFocus, this);
    txtLiters.SetPattern(kind.liters.field);
    txtLiters.SetMaxLength(9);
    txtAmount.SetEnabled(false);
}

void EntryLine::SetEnabled(bool enabled)
{
    for (Field* field : std::initializer_list<Field*>{
             &txtMemberNo, &ComboMemberName, &txtAnimal, &txtLiters, &txtFat, &txtRate})
        field->SetEnabled(enabled);
}

void EntryLine::ClearEntryFields()
{
    for (Field* field : std::initializer_list<Field*>{
             &txtMemberNo, &ComboMemberName, &txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount})
        field->Clear();
    IsExistingRow = false;
}

void EntryLine::Show(const Recordset& row)
{
    ShowMember(ComboMemberName, row);
    txtAnimal.SetText(row[u"Animal"].Text());
    txtLiters.Show(row[u"Liters"].Number());
    txtFat.Show(row[u"Fat"].Number());
    txtRate.Show(row[u"Rate"].Number());
    txtAmount.Show(row[u"Amount"].Number());
}

Shift EntryLine::TheShift() const
{
    return ShiftOf(m_beside.date, m_beside.time);
}

// Member by number

void EntryLine::ShowMemberKeys(bool shown)
{
    KeysOfMember.Show(shown, !ComboMemberName.IsEmpty());
    if (shown)
        LightMemberKeys();
}

void EntryLine::LightMemberKeys()
{
    const bool isHere = txtMemberNo.HasFocus();
    const double number = txtMemberNo.Value();
    KeysOfMember.Light(isHere && number != 0 && Finds(RowsOfMember(TheShift(), number)), isHere);
}

void EntryLine::txtMemberNo_GotFocus()
{
    ShowMemberKeys(true);
}

void EntryLine::txtMemberNo_LostFocus()
{
    if (std::exchange(SkipMemberChecks, false))
        return;
    ShowMemberKeys(false);
    const double number = txtMemberNo.Value();
    if (number == 0) {
        txtMemberNo.Clear();
        return;
    }
    const Recordset member = MemberOfNumber(number);
    Caption wanted;
    if (member.Eof()) {
        txtMemberNo.Clear();
        wanted = Plain(u"हा मेम्बर नंबर नाही    Shift+Tab : मागे");
    } else {
        ShowMember(ComboMemberName, member);
        TakeAnimalOf(member);
    }
    if (m_screen->IsSteppingBack())
        return;
    if (txtAnimal.Enabled())
        txtAnimal.SetFocus();
    else
        txtLiters.SetFocus(wanted);
}

// A member of both kinds leaves the choice to the clerk; any other settles it.
void EntryLine::TakeAnimalOf(const Recordset& member)
{
    const QString animal = member[u"Animal"].Text();
    const bool both = animal == Word::Both;
    if (!both)
        txtAnimal.SetText(animal);
    txtAnimal.SetEnabled(both);
}

// Member by name

// Without a number the focus stays once more, so that the clerk sees whom the name has found; the next Enter
// goes on. Coming back without a number also loads the list anew and drops it open.
void EntryLine::ComboMemberName_LostFocus()
{
    if (!InsistOnName(ComboMemberName))
        return;
    const bool asks = txtMemberNo.IsEmpty();
    const Recordset member = MemberOfName(ComboMemberName, txtMemberNo.Value());
    if (member.Eof()) {
        if (asks)
            ComboMemberName.SetFocus(Wanted::Name());
        ComboMemberName.LoadMemberNames();
        return;
    }
    txtMemberNo.SetText(member[u"MemberNo"].Text());
    ShowMember(ComboMemberName, member); // the balance is kept under this spelling
    TakeAnimalOf(member);
    if (m_screen->IsSteppingBack())
        return;
    if (asks)
        ComboMemberName.SetFocus(Plain(u"Enter : पुढे"));
    txtAnimal.SetFocus(); // if it is the clerk's choice; else it is disabled, and this does nothing
}

// Animal

void EntryLine::txtAnimal_GotFocus()
{
    if (ComboMemberName.IsEmpty())
        ComboMemberName.SetEnabled(true);
    if (txtMemberNo.Value() == 0)
        txtMemberNo.SetFocus(Plain(u"मेम्बर नंबर टाका    Enter : नावाने"));
}

void EntryLine::txtAnimal_LostFocus()
{
    if (txtMemberNo.Value() == 0) // it has sent the clerk back itself
        return;
    if (txtAnimal.IsEmpty())
        txtAnimal.SetFocus(Wanted::Animal());
}

// Litres

// With a scale the can's weight is the litres, and the clerk goes on without a key.
void EntryLine::txtLiters_GotFocus()
{
    if (ComboMemberName.IsEmpty() || !DeviceSwitch::IsOn(gAppState.gAutoLiters))
        return;
    if (const std::optional<QString> liters = m_beside.devices.ReadLiters(m_kind.liters.combinedDevice))
        txtLiters.SetText(*liters);
    if (txtLiters.IsEmpty())
        txtLiters.SetText(QStringLiteral("0"));
    txtLiters.SelectAll();
    if (txtLiters.Value() > 0)
        SendKeys(QStringLiteral("{TAB}"));
}

void EntryLine::txtLiters_LostFocus()
{
    if (ComboMemberName.IsEmpty()) {
        ComboMemberName.SetFocus(Wanted::Name());
        return;
    }
    if (!IsAnimal(txtAnimal.Text()))
        return;
    if (txtLiters.Reformat() == 0 && !m_beside.switches.IsLeftForScale(txtLiters, m_screen->GoingTo()))
        txtLiters.SetFocus(Plain(u"लिटर टाका    Esc : बाहेर"));
}

// Fat

void EntryLine::txtFat_GotFocus()
{
    const bool refused = std::exchange(FatRefused, false);
    if (Setting(u"AutoFat") == Word::No && !IsExistingRow && !refused)
        OfferLastFat();
    if (DeviceSwitch::IsOn(gAppState.gAutoFat))
        ReadFat();
    if (txtFat.IsEmpty())
        txtFat.SetText(QStringLiteral("0"));
    txtFat.SelectAll();
}

// Without a fat tester the member's last fat of the same animal and half of the day is the likely one.
void EntryLine::OfferLastFat()
{
    const Shift shift = TheShift();
    const Recordset last(gCn,
        Sql(u"select * from MilkCollections where CollectionDate<=", shift.Day(), u" and CollectionTime=",
            Quoted(shift.time), u" and Animal=", Quoted(txtAnimal.Text()), u" and MemberNo=",
            txtMemberNo.Value(), u" and MemberName=", Quoted(ComboMemberName.Text()),
            u" order by CollectionDate desc,CollectionNo desc"));
    if (!last.Eof())
        txtFat.Show(last[u"Fat"].Number());
}

// Some testers give the litres a second time, and one gives nothing else.
void EntryLine::ReadFat()
{
    const MilkDevices::Fields read = m_beside.devices.ReadFat();
    if (read.liters)
        txtLiters.SetText(*read.liters);
    if (read.fat)
        txtFat.SetText(*read.fat);
}

// With a fat tester the field isn't left until there is a fat, or the tester is switched off. Every device is
// asked again in the same way, which may not be its own; the field reads it properly when the focus is back.
void EntryLine::txtFat_LostFocus()
{
    if (DeviceSwitch::IsOn(gAppState.gAutoFat) && txtFat.Value() <= 0) {
        if (m_beside.switches.IsLeftForTester(txtFat, m_screen->GoingTo()))
            return;
        if (const std::optional<QString> read = m_beside.devices.RepeatFat())
            txtFat.SetText(*read);
        FatRefused = true;
        txtFat.SetFocus(Plain(u"फॅट टाका    Enter : मशीनवरून पुन्हा    Esc : बाहेर"));
        return;
    }
    const double fat = txtFat.Reformat();
    if (fat == 0 || fat > HighestFat) {
        FatRefused = true; // the clerk is to see what was refused, not another offer
        txtFat.SetFocus(Plain(u"फॅट टाका : 0.1 ते 30.0    Esc : बाहेर"));
        return;
    }
    const FatRate found = LookupFatRate(m_beside.date.Date(), txtFat.Value(), txtAnimal.Text());
    if (found.outcome == FatRate::Outcome::NoChart) {
        ClearEntryFields();
        m_beside.date.SetFocus();
        SendKeys(QStringLiteral("{TAB}{TAB}")); // over date and shift to the number again
        return;
    }
    if (found.outcome == FatRate::Outcome::Priced)
        txtRate.Show(found.rate);
    ShowAmount();
}

// Rate and amount

void EntryLine::txtRate_LostFocus()
{
    if (txtFat.Value() != 0) {
        const double rate = txtRate.Reformat();
        if (rate == 0)
            txtRate.SetFocus(Plain(u"तक्त्यात या फॅटचा दर नाही : दर टाका    Esc : बाहेर"));
        else if (rate > HighestRate)
            txtRate.SetFocus(Plain(u"दर टाका : 60.00 पर्यंत    Esc : बाहेर"));
    }
    ShowAmount();
}

void EntryLine::ShowAmount()
{
    txtAmount.Show(txtLiters.Value() * txtRate.Value());
}
