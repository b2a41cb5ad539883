#pragma once

#include <QString>

#include <map>
#include <tuple>

// Keeps the rows that the screen of one member's days writes, and says what may become of them: a new row,
// new figures in one, or the end of a member's number in a shift, on all its days.
class DayBook {
public:
    DayBook();

    // Takes the books as they are now.
    void BeginAnew();

    // Looks what has become of the rows since the last look, one action of the clerk's at most.
    void Look();

    int Entered = 0;
    int Changed = 0;
    int Deleted = 0;

private:
    struct Row {
        QString series; // member, shift and number
        double number = 0;
        double liters = 0;
        double fat = 0;
        QString all; // every column
    };
    using Books = std::map<std::tuple<double, QString, QString, QString>, Row>; // member, day, shift, animal

    static Books Read();
    static void ExpectWhole(const Row& row);

    Books m_rows;
};
