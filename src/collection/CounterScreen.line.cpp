// The line of fields as a whole.

#include "collection/CounterScreen.h"
#include "collection/ActualTime.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "society/Names.h"
#include "society/Queries.h"

#include <utility>

namespace {

// A device's name stands beside its switch; to a screen reader both are one.
void ShowSwitch(Button& button, QStringView device, const QString& setting)
{
    button.SetCaption(Shivaji(DeviceSwitch::Caption(setting)));
    const QString name = device + u' ' + button.Shown().Seen();
    button.SetAccessibleName(Plain(name));
}

}

// The keys of the member's number, as the list of keys says what each does.
void CounterScreen::NameMemberKeys()
{
    for (const auto& [key, action] : MemberKeyLabels())
        action->SetCaption(KeyAction(txtMemberNo, key->Shown().Text()));
}

std::array<std::pair<Label*, Label*>, 3> CounterScreen::MemberKeyLabels()
{
    return {{{&lblF9, &lblSearch}, {&lblF7, &lblMilk}, {&lblF10, &lblDelete}}};
}

void CounterScreen::ShowMemberKeys(bool shown)
{
    for (Label* label : {&lblF9, &lblSearch})
        label->SetVisible(shown);
    for (Label* label : {&lblF7, &lblMilk})
        label->SetVisible(shown && m_kind.hasMemberFrame);
    for (Label* label : {&lblF10, &lblDelete})
        label->SetVisible(shown && !ComboMemberName.IsEmpty());
    if (shown)
        LightMemberKeys();
}

// Lit are those that do something now: F9 finds only a member who has a row in the shift, and behind the
// member's frame neither is answered.
void CounterScreen::LightMemberKeys()
{
    const bool isHere = txtMemberNo.HasFocus();
    const bool hasRow = isHere && txtMemberNo.Value() != 0 && Finds(RowsOfMember());
    for (Label* label : {&lblF9, &lblSearch})
        label->Widget()->setEnabled(hasRow);
    for (Label* label : {&lblF7, &lblMilk})
        label->Widget()->setEnabled(isHere);
}

void CounterScreen::ClearEntryFields()
{
    for (Field* field : std::initializer_list<Field*>{
             &txtMemberNo, &ComboMemberName, &txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount})
        field->Clear();
    IsExistingRow = false;
}

void CounterScreen::RefreshActualTime()
{
    lblActualCollectionTime.SetFigure(ActualTimeNow());
}

void CounterScreen::EnableEntry(bool enabled)
{
    for (Control* control : std::initializer_list<Control*>{&txtCollectionNo, &txtMemberNo, &ComboMemberName,
             &txtAnimal, &txtLiters, &txtFat, &txtRate, &cmdGo, &DataGridInwards})
        control->SetEnabled(enabled);
}

// A field that must not be entered yet sends the focus back; that isn't a leaving to be validated.
void CounterScreen::SendBack(Control& to, const Caption& wanted)
{
    FocusBounce = true;
    to.SetFocus(wanted);
}

bool CounterScreen::IsSentBack()
{
    return std::exchange(FocusBounce, false);
}

Shift CounterScreen::TheShift() const
{
    return {maskDate.Date(), txtTime.Text()};
}

Delivery CounterScreen::TheDelivery() const
{
    return {TheShift(), txtCollectionNo.Value(), txtMemberNo.Value(), ComboMemberName.Text(),
        txtAnimal.Text(), txtLiters.Value(), txtFat.Value(), txtRate.Value(), txtAmount.Value(),
        lblActualCollectionTime.Shown().Text()};
}

// Shows the number that the next new row takes.
void CounterScreen::ShowNumber(std::int16_t number)
{
    NextCollectionNo = number;
    txtCollectionNo.Show(number);
}

// A stored row's member by name, its animal and its figures.
void CounterScreen::ShowRow(const Recordset& row)
{
    ShowMember(ComboMemberName, row);
    txtAnimal.SetText(row[u"Animal"].Text());
    txtLiters.Show(row[u"Liters"].Number());
    txtFat.Show(row[u"Fat"].Number());
    txtRate.Show(row[u"Rate"].Number());
    txtAmount.Show(row[u"Amount"].Number());
}

// The buttons at its side

void CounterScreen::ShowDeviceSwitches()
{
    ShowSwitch(cmdAutoLiter, ScaleName, gAppState.gAutoLiters);
    ShowSwitch(cmdAutoFat, TesterName, gAppState.gAutoFat);
}

void CounterScreen::cmdAutoLiter_Click()
{
    gAppState.gAutoLiters = DeviceSwitch::SettingAfterClick(cmdAutoLiter.Text());
    ShowDeviceSwitches();
}

void CounterScreen::cmdAutoFat_Click()
{
    gAppState.gAutoFat = DeviceSwitch::SettingAfterClick(cmdAutoFat.Text());
    ShowDeviceSwitches();
}

void CounterScreen::cmdPrinterOnOff_Click()
{
    const bool isOn = cmdPrinterOnOff.Reads(MilkReceipt::PrinterOn);
    cmdPrinterOnOff.SetCaption(Shivaji(isOn ? MilkReceipt::PrinterOff : MilkReceipt::PrinterOn));
}
