#pragma once

#include "platform/forms/CheckBox.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/Panel.h"
#include "society/Fields.h"

class QWidget;
struct Sale;

// FrameOurLiters: the society's own measure of the milk that a sale states. It is typed, or worked out from
// what the members brought in the same shift.
class OurMeasure {
    Screen* m_screen;

public:
    // What the sale says, which the measure is for.
    struct OfSale {
        DateField& date;
        ShiftField& time;
        NameCombo& customer;
        AnimalField& animal;
        LitresField& liters;
    };

    OurMeasure(Screen* screen, const OfSale& sale);

    LitresField txtOurLiters{
        m_screen, "txtOurLiters", u"####0.000", {this, &OurMeasure::txtOurLiters_LostFocus}};
    CheckBox chkCalculate{
        m_screen, "chkCalculate", Plain(u"या वेळच्या संकलनावरून काढा"), {this, &OurMeasure::chkCalculate_Click}};
    FatField txtOurFat{m_screen, "txtOurFat", u"####0.00", {this, &OurMeasure::txtOurFat_LostFocus}};
    RateField txtOurRate{m_screen, "txtOurRate", u"####0.00", {this, &OurMeasure::txtOurRate_LostFocus}};
    NumberField txtSNF{m_screen, "txtSNF", u"####0.000", {this, &OurMeasure::txtSNF_LostFocus}};

    // Opens the frame on its first field; the measure is then the clerk's own.
    void Open();
    void Close();

    // Without a measure of the clerk's own, ours is what the sale says.
    void FollowLitres();

    // Shows that of a stored sale, with the frame closed.
    void Show(const Sale& sale);
    void Clear();

    QWidget* LaidOut();

private:
    void txtOurLiters_LostFocus();
    void chkCalculate_Click();
    void txtOurFat_LostFocus();
    void txtOurRate_LostFocus();
    void txtSNF_LostFocus();

    void WorkOut();

    Label lblOurLiters{m_screen, "lblOurLiters", Shivaji(u"AapNa maaojalaolao ilaTsa-")};
    Label lblSNF{m_screen, "lblSNF", Shivaji(u"esa.ena.ef.³saMGa´")};
    OfSale m_sale;
    Panel m_panel;
    bool m_isOwn = false; // the measure isn't just the litres of the sale
};
