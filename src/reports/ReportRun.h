#pragma once

#include <QString>

// What every report screen does on its way to the paper.
namespace ReportRun {

// Puts the range into ReportDates, which has been emptied. The dates are dd/MM/yyyy.
void StageDates(const QString& from, const QString& to);

// Removes the rows without a company from a staging table.
void Tidy(QStringView table);

}
