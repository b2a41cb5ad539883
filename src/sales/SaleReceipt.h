#pragma once

#include "core/preview/TemplateReport.h"

struct Sale;

// The receipt of a sale: staged with the save, and then shown or printed as the settings say.
class SaleReceipt {
public:
    // Whether the settings ask for more than saving.
    static bool IsWanted();

    // Puts the saved sale into the table that the template reads, in the caller's transaction.
    static void Stage(const Sale& sale);

    // Gets the template ready, so that the first receipt comes as fast as the others.
    void Prepare() const;

    void Print(const Sale& sale);

private:
    TemplateReport CRMilkSalesReceipt{u"MilkSalesReceiptShenoli.rpt"};
};
