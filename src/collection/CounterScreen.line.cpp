// The line of fields as a whole.

#include "collection/CounterScreen.h"
#include "collection/ActualTime.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "society/Names.h"
#include "society/Queries.h"

#include <utility>

void CounterScreen::ShowMemberKeys(bool shown)
{
    m_memberKeys.Show(shown, !ComboMemberName.IsEmpty());
    if (shown)
        LightMemberKeys();
}

void CounterScreen::LightMemberKeys()
{
    const bool isHere = txtMemberNo.HasFocus();
    m_memberKeys.Light(isHere && txtMemberNo.Value() != 0 && Finds(RowsOfMember()), isHere);
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

void CounterScreen::cmdPrinterOnOff_Click()
{
    const bool isOn = cmdPrinterOnOff.Reads(MilkReceipt::PrinterOn);
    cmdPrinterOnOff.SetCaption(Shivaji(isOn ? MilkReceipt::PrinterOff : MilkReceipt::PrinterOn));
}
