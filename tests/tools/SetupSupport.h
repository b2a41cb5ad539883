#pragma once

#include "tools/setup/Society.h"

#include <QStringList>
#include <QTemporaryDir>

#include <ostream>

// A plan that nothing is wrong with.
SocietyPlan GoodPlan();

// What the stock shell of the engine answers to some statements, line by line; cells are parted by '|'.
// A database that it can't open, or a statement that fails, gives one line that begins with "Error".
QStringList Shell(const QString& folder, const QString& password, const QString& statements);

// One society for all tests that only read it: the delivered one, and the one with the demonstration.
const QString& DeliveredFolder();
const QString& DemoFolder();
QStringList AskDelivered(const QString& statements);
QStringList AskDemo(const QString& statements);

QByteArray FileContent(const QString& file);

// The names of everything in a folder, in the order of the alphabet.
QStringList FilesIn(const QString& folder);

// The same without the report templates and the note of sound pages.
QStringList BooksIn(const QString& folder);

// Copies the society of GoodPlan from one folder to another as a power cut leaves it: the last writing, a
// town named "masaUr", stands in the log beside the database.
void LeaveAsAfterAPowerCut(const QString& from, const QString& to);

// Makes the test framework print texts that differ.
void PrintTo(const QString& text, std::ostream* out);
