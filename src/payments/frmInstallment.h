#pragma once

#include "platform/forms/DataGrid.h"
#include "society/SocietyScreen.h"

// The list of installments: what a member pays back at each payment, as long as the payments go by it.
class frmInstallment final : public SocietyScreen {
public:
    frmInstallment();

    static Keys::Places KeyPlaces();

private:
    DataGrid DataGrid1;

    void Load() override;

    bool Write(const GridRow& row);
    bool Remove(const GridRow& row);
    bool InsistOnMember(const GridRow& row);

    void LayOut();
};
