#pragma once

#include "platform/report/Printer.h"

// A printer that counts its jobs and takes them, unless a test says otherwise.
class FakePrinter final : public Printer {
public:
    QStringList Names() override { return {}; }
    Outcome Print(const PrintJob&) override
    {
        ++Jobs;
        return Answer;
    }

    int Jobs = 0;
    Outcome Answer;
};
