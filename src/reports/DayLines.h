#pragma once

#include "platform/database/Sql.h"
#include "reports/MilkBooks.h"
#include "society/Words.h"

#include <QDate>
#include <QString>

#include <array>
#include <map>
#include <optional>
#include <vector>

// Both kinds of milk, in the order in which they are written.
inline constexpr QStringView Animals[] = {Word::Cow, Word::Buffalo};

// The lines of MilkCollectionsME that tell one person's milk, made from the rows of a working copy: one for
// each day and animal, with morning and evening side by side.
class DayLines {
public:
    struct Person {
        double memberNo = 0;
        QString name;
    };

    // How the lines of a report are written.
    struct Style {
        bool repeats = false; // what was brought again in a shift has lines of its own
        bool withEmpty = false; // a day without milk has a line of noughts
        bool withSnf = false; // the first line of a day tells the SNF, too
    };

    // Reads the rows of the selected company in the copy; with a member's number, his only.
    DayLines(const MilkBooks& books, const Person& person, const Style& style);
    static DayLines OfMember(const Person& member, const Style& style);

    // The days that have rows.
    std::vector<QDate> Days() const;

    // Writes the lines of one animal on a day.
    void Write(const QDate& day, QStringView animal) const;

private:
    // Half of a line: a delivery or a sale; all noughts if there was none.
    struct Entry {
        double number = 0;
        double snf = 0;
        double liters = 0;
        double fat = 0;
        double rate = 0;
        double amount = 0;
    };
    using Entries = std::vector<Entry>; // by number
    struct Shifts {
        Entries morning, evening;
    };
    using Day = std::array<Shifts, std::size(Animals)>;
    class Walk;

    DayLines(const Person& person, const Style& style);
    void Read(const MilkBooks& books, const QString& rows);
    static SqlText HalfOf(const std::optional<Entry>& entry);
    void WriteLine(const QDate& day, QStringView animal, const std::optional<Entry>& morning,
        const std::optional<Entry>& evening, bool withSnf) const;

    SqlText m_ofPerson; // number and name, as every line has them
    Style m_style;
    std::map<QDate, Day> m_days;
};
