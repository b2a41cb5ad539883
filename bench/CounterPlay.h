#pragma once

#include <QDate>
#include <QString>

#include <functional>

// Opens the counter on a working day and does the work on the program's own thread, with the focus on the
// date. A run-time error in it is thrown once the counter has closed.
void PlayAtCounter(const QDate& day, const std::function<void()>& work);

// Types keys, in the form that SendKeys takes, on the screen on top: straight to the control in focus, so
// that nothing but the answer is in the time that it takes.
void Type(const QString& keys);

// Lets the screen paint what has changed.
void Paint();

// The keys of one delivery from the collection number to the button that saves it, without pressing it.
// Even members bring buffalo milk, odd ones cow milk.
QString DeliveryKeys(int member);
double LitersOf(int member);
double FatOf(int member);

// The control in focus; the check that the keys have led to where they should.
void RequireFocus(QStringView control);

// Throws a run-time error that says what isn't so.
void Require(bool isSo, const char* what);
