#pragma once

#include <QString>

// The chart under edit: the rows of FatRates. Each function is one action, kept whole or not at all; inside a
// Transaction of the caller it joins that one.
namespace WorkingChart {

// How the rows are read, in the order in which they are shown.
inline constexpr QStringView Query = u"select Fat,BuffRate,CowRate from FatRates order by Fat";

// The rates of a fat as they are stored; nothing is Found if the chart hasn't the fat.
struct Rates {
    bool IsFound = false;
    double Cow = 0;
    double Buffalo = 0;
};
Rates Of(double fat);

// Puts the rows of a chart's table in place of those under edit, but none of fat 0.
void Take(const QString& table);

// Sets the rates of a fat, texts that are numbers; a fat that the chart hasn't changes nothing.
void Put(double fat, const QString& cowRate, const QString& buffRate);

// Makes all rates proportional to fat, unrounded, and remembers the two bases, in rupees for each percent.
void MakeProportional(double basicCowRate, double basicBuffRate);

void Empty();

// Saves it as a new chart that begins on a day, dd/MM/yyyy, with rates to two decimals. It is a database
// error if there is a table of that name already.
void SaveAsNew(const QString& from);

// Saves it over a chart's table, unrounded.
void SaveOver(const QString& table);

}
