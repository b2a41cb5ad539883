#pragma once

#include <QDate>
#include <QStringList>

// What tells one run of a report from the next, for the name of the file that it is saved in: "सुनीता पाटील
// 01-04-2026 ते 10-04-2026". `words` are as the books hold them, empty ones left out; with one day that day is
// named once, and without any the machine's.
QString ReportSubject(const QStringList& words, const QDate& from = {}, const QDate& to = {});
