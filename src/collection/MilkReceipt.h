#pragma once

#include "collection/Deliveries.h"
#include "core/preview/TemplateReport.h"

// The slip that a member takes home: one delivery, staged in MilkReceipt and printed from there.
class MilkReceipt {
public:
    // What cmdPrinterOnOff reads.
    static constexpr QStringView PrinterOn = u"ip`MTr sau$";
    static constexpr QStringView PrinterOff = u"ip`MTr baMd";

    // Puts the delivery in place of the one before it.
    static void StageReceipt(const Delivery& delivery);

    // What tells the staged slip from others: the member, the milk, the shift and the day.
    static QString Subject();

    // Loads the template of the slip, so that the first member needn't wait for it. Nothing is loaded with
    // "naahI" in PrintStatus, where no slips are printed; an empty status prints.
    static void Prepare();

    // Prints what is staged, as the settings want it. Nothing is printed with "naahI" in PrintStatus, nor
    // unless the button reads PrinterOn.
    void PrintReceipt(QStringView printerButton);

private:
    TemplateReport CRMilkReceipt;
};
