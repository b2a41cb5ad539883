#pragma once

#include <QDate>
#include <QString>

#include <array>

struct SocietyPlan;

// The first and the last day of an accounting year such as "2026-2027".
QDate FirstDay(const QString& year);
QDate LastDay(const QString& year);

// Converts the Devanagari literals of a script to the stored encoding. Comments stay as they are.
QString Spelled(const QString& script);

// A text as an SQL literal.
QString Quoted(QStringView text);

// A number given in whole hundredths or thousandths, in its shortest decimal form.
QString Decimal(qint64 units, int decimals);

// The script of everything that a new society gets: tables, view and rows, without the indexes.
QString DeliveredScript(const SocietyPlan& plan);

// The rates of the first chart in paise, by tenths of fat; 0 where it has no row.
struct FirstChart {
    static constexpr int Rows = 301;
    std::array<int, Rows> cow{};
    std::array<int, Rows> buffalo{};
};
FirstChart ReadFirstChart();

// The name of the table for a chart that begins on this date, such as Fat010426.
QString ChartName(const QDate& date);

// Amount in paise of litres (in thousandths) at a rate (in paise), half a paisa rounded up, as at the
// counter.
constexpr qint64 AmountInPaise(qint64 millilitres, qint64 rate)
{
    return (millilitres * rate + 500) / 1000;
}
