#pragma once

#include "collection/CounterKind.h"
#include "collection/Deliveries.h"
#include "collection/DeviceSwitches.h"
#include "collection/MemberKeys.h"
#include "collection/MilkDevices.h"
#include "platform/forms/DateField.h"
#include "society/Fields.h"
#include "society/MemberCombo.h"

class QHBoxLayout;
class QLayout;
class QWidget;
class Recordset;

// The entry line of a counter: one can of milk, from the member who brings it to what he gets for it. Each
// field is filled from those before it as far as that goes. Numbering and saving the can are the counter's.
class EntryLine {
    Screen* m_screen;

public:
    // The other parts of the counter that the line uses.
    struct Beside {
        DateField& date;
        ShiftField& time;
        MilkDevices& devices;
        DeviceSwitches& switches;
    };

    EntryLine(Screen* screen, const CounterKind& kind, const Beside& beside);

    WholeField txtMemberNo{m_screen, "txtMemberNo", {this, &EntryLine::txtMemberNo_LostFocus}};
    MemberCombo ComboMemberName{m_screen, "ComboMemberName", {this, &EntryLine::ComboMemberName_LostFocus}};
    AnimalField txtAnimal{m_screen, "txtAnimal", {this, &EntryLine::txtAnimal_LostFocus}};
    LitresField txtLiters{m_screen, "txtLiters", {this, &EntryLine::txtLiters_LostFocus}};
    FatField txtFat{m_screen, "txtFat", {this, &EntryLine::txtFat_LostFocus}};
    RateField txtRate{m_screen, "txtRate", {this, &EntryLine::txtRate_LostFocus}};
    MoneyField txtAmount{m_screen, "txtAmount"};

    // The keys that the counter answers while the member's number is entered. The counter names them.
    MemberKeys KeysOfMember;

    bool IsExistingRow = false; // the fields show a row that is there already: no other fat is offered for it
    bool SkipMemberChecks = false; // the number is left for the member's frame, and isn't to be checked

    void SetEnabled(bool enabled);
    void ClearEntryFields();

    // Shows a stored row's member by name, its animal and its figures.
    void Show(const Recordset& row);

    // Works the amount out of what the fields show, so that the slip can be checked by hand.
    void ShowAmount();

    void ShowMemberKeys(bool shown);
    void LightMemberKeys();

    // The two rows of fields.
    QLayout* MemberRow();
    QHBoxLayout* MilkRow();

private:
    const CounterKind& m_kind;
    Beside m_beside;
    bool FatRefused = false; // the focus was just kept in the fat, and no other fat is offered

    void txtMemberNo_GotFocus();
    void txtMemberNo_LostFocus();
    void ComboMemberName_LostFocus();
    void txtAnimal_GotFocus();
    void txtAnimal_LostFocus();
    void txtLiters_GotFocus();
    void txtLiters_LostFocus();
    void txtFat_GotFocus();
    void txtFat_LostFocus();
    void txtRate_LostFocus();

    Shift TheShift() const;
    void TakeAnimalOf(const Recordset& member);
    void OfferLastFat();
    void ReadFat();
};
