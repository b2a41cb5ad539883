#pragma once

#include <QStringList>

#include <vector>

// A column of the books whose figures are told to so many decimals: single precision and binary sums leave
// something behind them. What is left of `mostLeft` or more is told as it is.
struct Rounded {
    int column = 0;
    int decimals = 2;
    double mostLeft = 0.005;
};

// Rows as they were reckoned beside those of the books: sorted lines, the cells separated by '|', a Null as
// NULL.
struct Compared {
    QString what; // such as "payment"
    QStringList columns;
    QStringList reckoned;
    QStringList stored;

    // The columns and the rows of a query beside what was reckoned for it.
    static Compared With(const QString& what, const QStringList& reckoned, const QString& query,
        const std::vector<Rounded>& rounded = {});

    // A line for each row that differs: the row, and each column that is otherwise in the books. A row that
    // has no like in the other list is told whole. Empty if all agree.
    QStringList Differences() const;
};

// Columns of single precision, to the paisa.
std::vector<Rounded> Singles(std::initializer_list<int> columns);

// Columns of binary sums, to their decimals.
std::vector<Rounded> Sums(std::initializer_list<int> columns, int decimals);
