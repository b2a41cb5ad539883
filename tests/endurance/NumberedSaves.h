#pragma once

#include "platform/database/Connection.h"

#include <string>

// Saves that can be told from each other: each is one transaction of several rows in two tables, all of them
// following from its number. So it can be said of any books which saves they hold, and whether each of them
// is whole and as it was saved.
namespace NumberedSaves {

// Makes new books without a save, closed.
void MakeBooks(const QString& file);

// Opens books; returns what the opening has to tell.
QStringList Open(Connection& books, const QString& file, const OpeningPlan& plan = {});

void Save(Connection& books, int number);

// Does the half of what a large save would do, and takes it back.
void GiveUp(Connection& books);

struct Found {
    int saves = 0; // they are those from 1 to this one
    std::string fault; // what is missing, twice there, or changed; else empty
};

Found Read(Connection& books);

}
