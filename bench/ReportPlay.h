#pragma once

#include "platform/report/Report.h"

#include <memory>

// The report of the cases: a list of 20,000 deliveries, those of 20 days, in 8 columns with totals, on A4.

inline constexpr int ListedRows = 20000;

// Its first and last day, ISO.
inline constexpr const char* FirstListedDay = "2026-05-01";
inline constexpr const char* LastListedDay = "2026-05-20";

// A second connection to the database for reading, as the screens open it for their reports.
std::shared_ptr<Connection> OpenForReports();

// Reads and checks the template and begins the report; no page is laid out yet.
std::unique_ptr<Report> BeginList(const std::shared_ptr<Connection>& books);

// Writes a Marathi text of so many megabytes into a field of the database, replacing the one before.
void StageLongText(int megabytes);

// BeginList for a report of that field alone, on A4.
std::unique_ptr<Report> BeginLongText(const std::shared_ptr<Connection>& books);
