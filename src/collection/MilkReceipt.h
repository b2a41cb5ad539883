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

    // Gets ready what the first slip would make the member wait for, unless PrintStatus is "naahI". An empty
    // status prints, too.
    static void Prepare();

    // Prints what is staged, as the settings want it. Nothing is printed with "naahI" in PrintStatus, nor
    // unless the button reads PrinterOn.
    void PrintReceipt(QStringView printerButton);

private:
    TemplateReport CRMilkReceipt;
};
