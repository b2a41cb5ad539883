#pragma once

#include "Society.h"

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

// Makes the test framework print texts that differ.
void PrintTo(const QString& text, std::ostream* out);
