#pragma once

#include "payments/PaymentFigures.h"
#include "payments/PaymentOf.h"
#include "platform/forms/DataGrid.h"

// What a member owes as of a period, head by head. It is worked out anew each time from the vouchers and the
// repayments, in AdvanceTemp, which holds the one member at hand.
class DeductionHeads {
public:
    // `list` has HeadColumns.
    DeductionHeads(const CheckBox& installments, PaymentFigures& figures, DataGrid& list);

    static std::vector<DataGrid::Column> HeadColumns();

    // Fills AdvanceTemp, the balance from before and the fixed deduction, shows what is outstanding, and
    // proposes the deduction. The list shows it after ShowHeads.
    void BuildDeductionHeads(const PaymentOf& of);

    void ShowHeads();

    // Empties the heads.
    static void Empty();

    // Empties the heads and the list.
    void Clear();

private:
    void AddPreviousBalance(const PaymentOf& of);
    void ConsolidateHeads(const PaymentOf& of);
    void ApplyPeriodReceipts(const PaymentOf& of, QStringView table);
    void AddFixedKapat(const PaymentOf& of);
    float OutstandingOf(const PaymentOf& of) const;

    const CheckBox& m_installments;
    PaymentFigures& m_figures;
    DataGrid& m_list;
};
