#pragma once

#include <QString>

struct SocietyPlan;

// What is put into a new society besides the delivered rows, as SQL scripts.
struct Filling {
    QString rows; // run before the indexes are made
    QString closing; // run after that
};

// 40 members, 6 customers, the deliveries and sales of April and May, advances, and a period that is paid.
// The same plan gives the same rows on every machine.
Filling DemoFilling(const SocietyPlan& plan);

// So many members, each of whom brings one can to every shift of so many days from the first day of the year.
Filling LargeFilling(const SocietyPlan& plan, int members, int days);
