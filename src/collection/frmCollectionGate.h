#pragma once

#include "collection/CounterScreen.h"
#include "platform/database/Sql.h"
#include "platform/forms/CheckBox.h"

// The counter at the gate: the same deliveries, with a list that can be sorted, and that shows what matches
// the text typed into a field of the line.
class frmCollectionGate final : public CounterScreen {
public:
    frmCollectionGate();

    static Keys::Places KeyPlaces();

private:
    Button cmdLtrOrder{this, "cmdLtrOrder", Ascending()};
    Button cmdFatOrder{this, "cmdFatOrder", Ascending()};
    Button cmdRateOrder{this, "cmdRateOrder", Ascending()};
    Button cmdAmtOrder{this, "cmdAmtOrder", Ascending()};
    Button Command3{
        this, "Command3", Shivaji(u" dUQa saMklana nasaNaaro saBaasad"), &frmCollectionGate::Command3_Click};
    Button Command1{this, "Command1", Shivaji(u"&baahor"), &frmCollectionGate::Command1_Click};
    CheckBox chkSerachMode{this, "chkSerachMode", Shivaji(u"A^DvhansD saca-")};

    void Load() override;
    void cmdGo_GotFocus();
    void Command1_Click();
    void Command3_Click();
    void txtMemberNo_Change();
    void txtAnimal_Change();
    void ComboMemberName_Change();
    QString OrReadsLike(const QString& beginning) const;

    static Caption Ascending() { return Plain(u"↑"); }
    static Caption Descending() { return Plain(u"↓"); }
    std::array<std::pair<Button*, QStringView>, 4> OrderButtons(); // each button and its column
    void ToggleOrder(Button& button, QStringView column);
    void SearchNumber(const NumberField& field, QStringView column);
    void Search(const SqlText& condition);

    QLayout* ListAndTotals();
    QWidget* OrderBar();
};
