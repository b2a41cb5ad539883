#pragma once

#include <QString>

struct SocietyPlan;

// What is put into a new society beside the delivered rows, as scripts.
struct Filling {
    QString rows; // before the indexes are made
    QString closing; // after them
};

// 40 members, 6 customers, and the deliveries of April and May. The same plan gives the same rows on every
// machine.
Filling DemoFilling(const SocietyPlan& plan);

// As many members as asked for, all of whom bring one can to each shift of as many days from the year's
// first.
Filling LargeFilling(const SocietyPlan& plan, int members, int days);
