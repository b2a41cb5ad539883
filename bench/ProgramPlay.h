#pragma once

#include <QString>

// The program as a process of its own. These run in the process that main has started for them; each prints
// what is asked for and returns the exit code.

// From the start to the menu: prints "menu" when the menu has been painted, then the memory so far.
int PlayStart(const QString& drives);

// A day of 1,000 deliveries at the counter: prints the memory at the end of it.
int PlayDay(const QString& drives);

// A shift of 200 deliveries at the counter, each with its slip on the screen: prints "longest" and "usual"
// with the seconds of a key from its press until the program is at rest and has painted.
int PlaySlips(const QString& drives);

// A report of 20,000 rows, laid out and saved as a PDF: prints the memory at the end of it.
int PlayReport(const QString& drives);
