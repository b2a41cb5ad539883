#pragma once

#include "tests/support/SocietyTest.h"

// The whole program in this process, from its start to its end, on the books of a fresh society.
class ProgramTest : public SocietyTest {
protected:
    ProgramTest();

    // Starts the program and plays on it; returns its exit code. The books are closed before and after.
    int Start(const std::function<void(Clerk&)>& script);

    // Opens the books again, to look at them.
    void Reopen();

    // Every row of every table of the open books, a line each, in no order that matters.
    static QStringList AllRows();

    // The rows that only one of the two has, marked with - and +; empty if they are the same.
    static std::string Difference(const QStringList& before, const QStringList& after);

    // What the engine's own check says to the open books.
    static std::string Integrity();

    // The folder of the drives that another process is to work on.
    static QString Drives();

    // How often a text stands in the plain boxes that were shown.
    int Boxes(const char* text) const;
};

// What a test compares lists of lines with.
QStringList Lines(std::initializer_list<const char*> lines);
