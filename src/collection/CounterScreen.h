#pragma once

#include "collection/CounterKind.h"
#include "collection/Deliveries.h"
#include "collection/DeviceSwitches.h"
#include "collection/MemberKeys.h"
#include "collection/MilkDevices.h"
#include "collection/MilkReceipt.h"
#include "collection/ShiftTotals.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"
#include "society/SocietyScreen.h"

class Recordset;

// A counter: one line of fields for one can of milk, walked with Enter; the last of them saves it. Below it
// stand the deliveries of the shift and their totals, as the copy of the shift has them.
class CounterScreen : public SocietyScreen {
public:
    // Litres of the new rows saved since the screen was opened. They are only added to.
    double CowLitersTaken = 0;
    double BuffLitersTaken = 0;

protected:
    // The query that the list of the shift is bound to.
    static constexpr QStringView ShiftQuery = u"select * from MilkCollectionsTemp order by CollectionNo desc";

    CounterScreen(const CounterKind& kind, const Keys::Places& keys);

    // The keys of both counters. The calculator stands in a window beside the counter.
    static KeyHint CalculatorKey();
    static KeyHint MembersKey();
    static KeyHint AdvanceKey();
    static KeyHint SearchKey();
    static KeyHint DeleteKey();
    static std::vector<KeyHint> NumberKeys();

    // The columns of the list of the shift.
    static std::vector<DataGrid::Column> InwardsColumns(const CounterKind& kind);

    Label lblActualCollectionTime{this, "lblActualCollectionTime"};

    DateField maskDate{this, "maskDate", &CounterScreen::maskDate_LostFocus};
    ShiftField txtTime{this, "txtTime", &CounterScreen::txtTime_LostFocus};
    WholeField txtCollectionNo{this, "txtCollectionNo", &CounterScreen::txtCollectionNo_LostFocus};
    WholeField txtMemberNo{this, "txtMemberNo", &CounterScreen::txtMemberNo_LostFocus};
    NameCombo ComboMemberName{this, "ComboMemberName", &CounterScreen::ComboMemberName_LostFocus};
    AnimalField txtAnimal{this, "txtAnimal", &CounterScreen::txtAnimal_LostFocus};
    LitresField txtLiters{this, "txtLiters", &CounterScreen::txtLiters_LostFocus};
    FatField txtFat{this, "txtFat", &CounterScreen::txtFat_LostFocus};
    RateField txtRate{this, "txtRate", &CounterScreen::txtRate_LostFocus};
    MoneyField txtAmount{this, "txtAmount"};
    Button cmdGo{this, "cmdGo", Plain(u" >"), &CounterScreen::cmdGo_Click};
    DataGrid DataGridInwards;
    DeviceSwitches Devices{this};
    Button cmdPrinterOnOff{
        this, "cmdPrinterOnOff", Shivaji(MilkReceipt::PrinterOn), &CounterScreen::cmdPrinterOnOff_Click};

    bool SkipMemberChecks = false; // the member's number is left for the frame, and isn't to be checked

    void Load() override;
    void Escape() override;

    virtual void LoadMemberNames();
    virtual void MembersShown() { } // frmMembers has closed
    virtual void txtMemberNo_Change();

    Shift TheShift() const;
    void ClearEntryFields();
    void ShowInwardsGrid();
    void ShowMemberKeys(bool shown);
    void LightMemberKeys();

    // Puts the window together: what stands under the entry line and the strip of keys are the counter's own.
    void LayOut(QLayout* below, QWidget* keys);
    QWidget* Totals();

private:
    const CounterKind& m_kind;
    MemberKeys m_memberKeys;
    ShiftTotals m_totals;
    MilkDevices m_devices;
    MilkReceipt m_receipt;

    std::int16_t NextCollectionNo = 1; // the number of the next new row
    bool IsExistingRow = false; // the number has found its row: the fat is that row's, and none is offered
    bool FatRefused = false; // the focus was just kept in the fat, which is not offered anew
    bool FocusBounce = false; // a field that was just entered is sending the focus back

    void maskDate_GotFocus();
    void maskDate_LostFocus();
    void txtTime_GotFocus();
    void txtTime_LostFocus();
    void txtCollectionNo_GotFocus();
    void txtCollectionNo_LostFocus();
    void txtMemberNo_GotFocus();
    void txtMemberNo_LostFocus();
    void ComboMemberName_GotFocus();
    void ComboMemberName_LostFocus();
    void txtAnimal_GotFocus();
    void txtAnimal_LostFocus();
    void txtLiters_GotFocus();
    void txtLiters_LostFocus();
    void txtFat_GotFocus();
    void txtFat_LostFocus();
    void txtRate_LostFocus();
    void cmdGo_Click();
    void cmdGo_LostFocus();
    void cmdPrinterOnOff_Click();

    void StartCalculator();
    void ShowMembers();
    void ShowAdvances();
    void PreviousNumber();
    void NextNumber();
    void ShowNumberToGoTo(double number);

    void RefreshActualTime();

    void EnableEntry(bool enabled);
    void SendBack(Control& to, const Caption& wanted);
    bool IsSentBack();
    Delivery TheDelivery() const;
    void ShowNumber(std::int16_t number);
    void ShowRow(const Recordset& row);
    void ShowAmount();
    void TakeAnimalOf(const Recordset& member);
    void OfferLastFat();
    void ReadFat();
    bool IsSecondDelivery() const;
    void StoreNew(const Delivery& delivery);
    void DeleteRow();
    QString RowsOfMember() const;
    void SearchMember();
    void SendTareToScale();

    QWidget* ShiftLine();
    QWidget* EntryPanel();
    QWidget* KeysAndGuide();
};
