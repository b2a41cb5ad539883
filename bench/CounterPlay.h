#pragma once

#include <QDate>
#include <QString>

#include <functional>

// Opens the counter on a working day and runs `work` on the thread of the program, with the focus on the
// date. A run-time error in it is thrown again after the counter has closed.
void PlayAtCounter(const QDate& day, const std::function<void()>& work);

// Types keys (see SendKeys) directly into the control with the focus of the screen on top, so that only the
// handling is timed.
void Type(const QString& keys);

// Lets the screen paint what has changed.
void Paint();

// The keys of a delivery from the collection number to the save button, without pressing it. Members with
// even numbers bring buffalo milk, the others cow milk.
QString DeliveryKeys(int member);
double LitersOf(int member);
double FatOf(int member);

// Throws a run-time error if another control has the focus, that is, if the keys led elsewhere.
void RequireFocus(QStringView control);

// Throws a run-time error with the text `what` if a condition isn't met.
void Require(bool isSo, const char* what);
