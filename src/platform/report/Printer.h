#pragma once

#include "platform/report/Outcome.h"

#include <QSizeF>
#include <QStringList>

// A PDF on its way to the paper.
struct PrintJob {
    QString file;
    QString title;
    QString printer; // empty: the machine's own choice
    QSizeF paper; // points, of the first page
};

// Something that prints PDF files.
class Printer {
public:
    virtual ~Printer() = default;

    // The names of the printers there are, the machine's own choice first; empty if there is none.
    virtual QStringList Names() = 0;

    // Hands a file over. It has been taken in whole when this returns, and can be deleted.
    virtual Outcome Print(const PrintJob& job) = 0;
};
