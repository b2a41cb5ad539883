#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "sales/DaySummary.h"
#include "sales/OurMeasure.h"
#include "sales/Sale.h"
#include "sales/SaleReceipt.h"
#include "society/SocietyScreen.h"

// What leaves the society: each sale of milk, by day and shift, for cash, to customers or to the federation,
// walked with Enter like a counter. Beside what the buyer states a sale can carry the society's own measure.
class frmMilkSales final : public SocietyScreen {
public:
    frmMilkSales();

    static Keys::Places KeyPlaces();

private:
    DateField maskDate{this, "maskDate", &frmMilkSales::maskDate_LostFocus};
    ShiftField txtTime{this, "txtTime", &frmMilkSales::txtTime_LostFocus};
    WholeField txtSalesNo{this, "txtSalesNo", &frmMilkSales::txtSalesNo_LostFocus};
    NameCombo ComboCustName{this, "ComboCustName", &frmMilkSales::ComboCustName_LostFocus};
    AnimalField txtAnimal{this, "txtAnimal"};
    LitresField txtLiters{this, "txtLiters", u"####0.000", &frmMilkSales::txtLiters_LostFocus};
    OurMeasure FrameOurLiters{this, {maskDate, txtTime, ComboCustName, txtAnimal, txtLiters}};
    FatField txtFat{this, "txtFat", u"###0.0", &frmMilkSales::txtFat_LostFocus};
    RateField txtRate{this, "txtRate", u"#####0.00", &frmMilkSales::txtRate_LostFocus};
    MoneyField txtAmount{this, "txtAmount", u"#####0.00", &frmMilkSales::txtAmount_LostFocus};
    Button cmdGo{this, "cmdGo", Plain(u" >"), &frmMilkSales::cmdGo_Click};
    DataGrid DataGridInwards;

    DaySummary Summary{this};
    SaleReceipt Receipt;
    std::optional<Sale> Stored; // the sale of the books that the fields show
    double LitersBefore = 0; // when the focus came to them
    bool IsRateRefused = false; // the focus was just kept in the rate, and no other is proposed

    void Load() override;
    void Escape() override;

    void maskDate_GotFocus();
    void maskDate_LostFocus();
    void txtTime_GotFocus();
    void txtTime_LostFocus();
    void txtSalesNo_LostFocus();
    void ComboCustName_LostFocus();
    void txtLiters_GotFocus();
    void txtLiters_LostFocus();
    void txtFat_LostFocus();
    void txtRate_GotFocus();
    void txtRate_LostFocus();
    void txtAmount_LostFocus();
    void cmdGo_Click();
    void cmdGo_LostFocus();

    // The shift
    SalesShift TheShift() const;
    void OpenShift();
    void ShowShift();
    void ShowAddedSale();
    void EnableEntry(bool enabled);

    // The sale in the fields
    void PreviousSale();
    void NextSale();
    void GoToNumber(double number);
    void ShowSaleOfNumber();
    void ShowSale(const Sale& sale);
    void ClearFields();
    bool TakeCustomer();
    void ShowAmount();
    void ShowOurMeasure();

    // Saving and deleting
    bool InsistOnSale();
    Sale TheSale() const;
    void FindBuyer(Sale& sale) const;
    void DeleteSale();

    void LayOut();
    QWidget* EntryPanel();
};
