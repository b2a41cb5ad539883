#pragma once

#include <QString>

#include <ostream>
#include <vector>

// One thing that the clerk does at the keyboard and that the books keep.
struct Action {
    QString name;
    QString way; // from the main menu to the moment before it
    QString keys; // what does it

    // How a failing test names it.
    friend void PrintTo(const Action& action, std::ostream* out) { *out << action.name.toStdString(); }
};

// Every action of the screens that writes, as it is played on the books of FillBooks.
const std::vector<Action>& Actions();

// Those that write part by part, each part whole or not at all.
const std::vector<Action>& Runs();

// Those that copy the books as a file, or bring a copy back.
const std::vector<Action>& Copyings();

// Those that leave their screen, and so fold the log behind what they have written.
const std::vector<Action>& Leavings();

// One of all these.
const Action& ActionOf(const QString& name);

// From the title to the main menu; the working day is 15/04/2026.
QString OpeningKeys();

// Fills the open books of a fresh society, in which a delivery goes onto the member's balance at once: three
// members with a few deliveries, and for the first one rows in every table that knows a member.
void FillBooks();

// A member of the open books, without any figure.
void InsertMember(int number, const QString& name, const QString& animal);
