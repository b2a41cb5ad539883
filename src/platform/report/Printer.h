#pragma once

#include "platform/report/Outcome.h"

#include <QSizeF>
#include <QStringList>

// A PDF that is to be printed.
struct PrintJob {
    QString file;
    QString title;
    QString printer; // if empty, the default printer
    QSizeF paper; // size of the first page in points
};

// Prints PDF files.
class Printer {
public:
    virtual ~Printer() = default;

    // The names of all printers, the default printer first; empty if there is none.
    virtual QStringList Names() = 0;

    // Hands a file to the printer. The file may be deleted as soon as this returns.
    virtual Outcome Print(const PrintJob& job) = 0;
};
