#pragma once

#include <QDate>
#include <QString>

#include <initializer_list>

class DateField;

// What every report screen does on its way to the paper.
namespace ReportRun {

// Sends the focus back to the first field that holds no date; true if all of them do.
bool HoldDates(std::initializer_list<DateField*> fields);

// A day as the conditions of statements write it: #MM/dd/yyyy#.
QString SqlDay(const QDate& day);

// Puts the range into ReportDates, in place of the one before it. The dates are dd/MM/yyyy.
void StageDates(const QString& from, const QString& to);

// Removes the rows without a company from a staging table.
void Tidy(QStringView table);

// Shows a template of AppFolder, such as "MilkPSReport.rpt", over what is staged. The selection formula
// narrows it; an empty one shows all. A template that is missing is a run-time error.
void Show(QStringView templateName, const QString& selectionFormula = {});

}
