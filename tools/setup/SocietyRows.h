#pragma once

#include <QDate>
#include <QString>

#include <array>

struct SocietyPlan;

// The first and the last day of an accounting year, "2026-2027".
QDate FirstDay(const QString& year);
QDate LastDay(const QString& year);

// The script with its Devanagari literals put into the stored encoding. Comments stay as they are.
QString Spelled(const QString& script);

// A text as a literal of a script.
QString Quoted(QStringView text);

// A whole number of hundredths or thousandths as a decimal number of a script, in shortest form.
QString Decimal(qint64 units, int decimals);

// Everything that every new society comes with, as one script: tables, view, rows; without the indexes.
QString DeliveredScript(const SocietyPlan& plan);

// The rates of the first chart, in paise, by tenths of fat; 0 where the chart has no row.
struct FirstChart {
    static constexpr int Rows = 301;
    std::array<int, Rows> cow{};
    std::array<int, Rows> buffalo{};
};
FirstChart ReadFirstChart();

// The name of the table of a chart that begins on a date: Fat010426.
QString ChartName(const QDate& date);

// Litres (in thousandths) times a rate (in paise), in paise, half a paisa up: what the counter shows.
constexpr qint64 AmountInPaise(qint64 millilitres, qint64 rate)
{
    return (millilitres * rate + 500) / 1000;
}
