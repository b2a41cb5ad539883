#pragma once

#include <QDate>
#include <QStringList>

// What a run of a report is about, for the name of the file that it is saved in: "सुनीता पाटील 01-04-2026 ते
// 10-04-2026". `words` are in the books' encoding; empty ones are left out. One day is named once; without
// any, it is today.
QString ReportSubject(const QStringList& words, const QDate& from = {}, const QDate& to = {});
