#pragma once

#include <QDate>
#include <QString>

#include <initializer_list>

// Steps of the staging that the reports share.
namespace ReportRun {

// Deletes all rows of staging tables.
void Empty(std::initializer_list<QStringView> tables);

// Writes the range, as dd/MM/yyyy, into ReportDates, which the caller has emptied.
void StageDates(const QString& from, const QString& to);

// Deletes the rows of company 0 from a staging table.
void Tidy(QStringView table);

// Whether deliveries from a day on lie in last year's table, too, since the current data begins later.
bool ReachesIntoLastYear(const QDate& from);

// Whether a member may deliver more than once in a shift.
bool RepeatsCollections();

}
