#pragma once

#include <QString>

// The result of something the machine may refuse to do, such as printing. The books don't depend on it.
struct Outcome {
    QString fault; // a sentence for the clerk; empty if it was done
    bool Done() const { return fault.isEmpty(); }
};
