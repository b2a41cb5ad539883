#pragma once

#include <QString>

// How a task that the machine can refuse has ended. Nothing of the books hangs on it.
struct Outcome {
    QString fault; // a sentence for the clerk; empty if it was done
    bool Done() const { return fault.isEmpty(); }
};
