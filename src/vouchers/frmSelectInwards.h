#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "society/Fields.h"
#include "society/SocietyScreen.h"

// Lists the vouchers of the kind that gReportMode names, to be found by number, date or amount, and hands the
// picked one over in gSelectedVoucherDate and gSelectedVoucherNo. With nothing to list it closes at once and
// sets gReportMode to "N".
class frmSelectInwards final : public SocietyScreen {
public:
    frmSelectInwards();

    static Keys::Places KeyPlaces();

private:
    Label lblInwardNo{this, "lblInwardNo"};
    WholeField txtNo{this, "txtNo"};
    DateField MaskDate{this, "MaskDate"};
    MoneyField txtAmount{this, "txtAmount"};
    DataGrid ListViewInwards;
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmSelectInwards::cmdExit_Click};

    void Load() override;
    void Timer1_Timer();
    void PickVoucher();
    void Search();

    bool BeginsWith(int row, const QStringList& typed) const;
    void LayOut();
};
