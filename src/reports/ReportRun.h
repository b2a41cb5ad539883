#pragma once

#include <QString>

// Steps of the staging that the reports share.
namespace ReportRun {

// Writes the range, as dd/MM/yyyy, into ReportDates, which the caller has emptied.
void StageDates(const QString& from, const QString& to);

// Deletes the rows of company 0 from a staging table.
void Tidy(QStringView table);

}
