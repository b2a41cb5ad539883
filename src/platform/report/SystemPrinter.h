#pragma once

#include "platform/report/Printer.h"

#include <chrono>
#include <memory>

// The printers of the system's print service. If it doesn't answer in time, it is given up, and the clerk is
// told.
std::unique_ptr<Printer> MakeSystemPrinter(std::chrono::milliseconds patience = std::chrono::seconds(5));
