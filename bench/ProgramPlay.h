#pragma once

#include <QString>

// Runs of the program in a process of its own, which main starts for them. Each prints its results and
// returns the exit code.

// From the start to the menu: prints "menu" when the menu has been painted, then the memory used.
int PlayStart(const QString& drives);

// A day of 1,000 deliveries at the counter: prints the memory used at its end.
int PlayDay(const QString& drives);

// A shift of 200 deliveries at the counter, each with its slip on the screen: prints "longest" and "usual"
// with the seconds from the press of a key until the program is at rest and has painted.
int PlaySlips(const QString& drives);

// A report of 20,000 rows, laid out and saved as a PDF: prints the memory used at its end.
int PlayReport(const QString& drives);
