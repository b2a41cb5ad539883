#pragma once

#include "platform/report/Printer.h"

#include <chrono>
#include <memory>

// The printers of the system's print service. One that doesn't answer a question in time is given up, and the
// clerk is told.
std::unique_ptr<Printer> MakeSystemPrinter(std::chrono::milliseconds patience = std::chrono::seconds(5));
