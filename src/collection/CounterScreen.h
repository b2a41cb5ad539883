#pragma once

#include "collection/CounterKind.h"
#include "collection/Deliveries.h"
#include "collection/DeviceSwitches.h"
#include "collection/EntryLine.h"
#include "collection/MilkDevices.h"
#include "collection/MilkReceipt.h"
#include "collection/ShiftTotals.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "society/Fields.h"
#include "society/SocietyScreen.h"

// A counter: the date, the shift and the number of a delivery, the entry line for its can of milk, and the
// button that saves it, all walked with Enter. Below stand the deliveries of the shift and their totals, as
// the copy of the shift has them.
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
    EntryLine Line;
    Button cmdGo{this, "cmdGo", Plain(u" >"), &CounterScreen::cmdGo_Click};
    DataGrid DataGridInwards;
    DeviceSwitches Devices{this};
    Button cmdPrinterOnOff{
        this, "cmdPrinterOnOff", Shivaji(MilkReceipt::PrinterOn), &CounterScreen::cmdPrinterOnOff_Click};

    void Load() override;
    void Escape() override;

    virtual void MembersShown() { } // frmMembers has closed

    Shift TheShift() const;
    void ShowInwardsGrid();

    // Puts the window together: what stands under the entry line and the strip of keys are the counter's own.
    void LayOut(QLayout* below, QWidget* keys);
    QWidget* Totals();

private:
    const CounterKind& m_kind;
    MilkDevices m_devices;
    ShiftTotals m_totals;
    MilkReceipt m_receipt;

    std::int16_t NextCollectionNo = 1; // the number of the next new row

    void maskDate_GotFocus();
    void maskDate_LostFocus();
    void txtTime_GotFocus();
    void txtTime_LostFocus();
    void txtCollectionNo_GotFocus();
    void txtCollectionNo_LostFocus();
    void cmdGo_Click();
    void cmdGo_LostFocus();
    void cmdPrinterOnOff_Click();

    void StartCalculator();
    void ShowMembers();
    void ShowAdvances();
    void PreviousNumber();
    void NextNumber();
    void SearchMember();
    void DeleteRow();

    void EnableEntry(bool enabled);
    void ShowNumber(std::int16_t number);
    void ShowNumberToGoTo(double number);
    void RefreshActualTime();
    Delivery TheDelivery() const;
    bool IsSecondDelivery() const;
    void StoreNew(const Delivery& delivery);
    void SendTareToScale();

    QWidget* ShiftLine();
    QWidget* EntryPanel();
    QWidget* KeysAndGuide();
};
