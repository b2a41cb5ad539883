#pragma once

#include <QStringList>

// A layout of the slip that the settings offer (ReceiptType), and the templates it is printed with: at the
// counters, and for the sample that the settings show and the reprint. Two samples are files of their own.
struct ReceiptLayout {
    QStringView type;
    QStringView counterTemplate;
    QStringView sampleTemplate;

    // Where the template of a slip that is printed again lies, if it can be.
    enum class Reprint { InAppFolder, InSiblingFolder, None };
    Reprint reprint = Reprint::None;
};

// The eight ReceiptTypes, as the settings offer them.
QStringList ReceiptTypes();

// The layout of a ReceiptType; all of its texts are empty for none of the eight.
ReceiptLayout ReceiptLayoutOf(QStringView type);
