#pragma once

#include <QString>

// What every report screen does on its way to the paper.
namespace ReportRun {

// Puts the range into ReportDates, which has been emptied. The dates are dd/MM/yyyy.
void StageDates(const QString& from, const QString& to);

// Removes the rows without a company from a staging table.
void Tidy(QStringView table);

// Shows a template of AppFolder, such as "MilkPSReport.rpt", over what is staged. The selection formula
// narrows it; an empty one shows all. A file that it is saved in is named after the subject. A template that
// is missing is a run-time error.
void Show(QStringView templateName, const QString& subject, const QString& selectionFormula = {});

}
