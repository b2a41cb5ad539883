#pragma once

#include "platform/report/Report.h"

#include <memory>

// The report that the cases are measured on: a list of 20,000 deliveries, which are those of 20 days, in 8
// columns with their totals, on A4.

inline constexpr int ListedRows = 20000;

// The first and the last of its days, ISO.
inline constexpr const char* FirstListedDay = "2026-05-01";
inline constexpr const char* LastListedDay = "2026-05-20";

// The open books a second time, for reading, as the reports of the screens do it.
std::shared_ptr<Connection> OpenForReports();

// Reads and checks the template and begins the report; no page of it is laid out yet.
std::unique_ptr<Report> BeginList(const std::shared_ptr<Connection>& books);

// Puts a Marathi text of so many megabytes into one field of the books, in place of the one before.
void StageLongText(int megabytes);

// The same for a report of that field alone, on A4.
std::unique_ptr<Report> BeginLongText(const std::shared_ptr<Connection>& books);
