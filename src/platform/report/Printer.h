#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

// How a task that the machine can refuse has ended. Nothing of the books hangs on it.
struct Outcome {
    QString fault; // a sentence for the clerk; empty if it was done
    bool Done() const { return fault.isEmpty(); }
};

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

// The printers of the system's print service. One that doesn't answer a question in time is given up, and the
// clerk is told.
std::unique_ptr<Printer> MakeSystemPrinter(std::chrono::milliseconds patience = std::chrono::seconds(5));
