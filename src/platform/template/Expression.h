#pragma once

#include "platform/template/PrintFormat.h"

#include <optional>
#include <vector>

enum class Operation : quint8 {
    Number, // a literal: `number`
    Text, // a literal: `text`
    Date, // a literal of a selection formula: `text` as yyyy-MM-dd
    Field, // `qualifier`.`text`
    Page, // #page
    PageCount, // #pages
    Variable, // $society and its like: `text` without the $
    Negate,
    Add,
    Subtract,
    Multiply,
    Divide,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    And,
    Or,
    Not,
    If, // three arguments
    Absolute, // one argument
    Formatted, // one argument as it is printed by `format`
    Join, // the texts of all arguments but the first, which stands between them
    Aggregate, // `aggregate` over one argument, or two for a weighted average
};

enum class AggregateKind : quint8 { Sum, Count, Average, Minimum, Maximum, Running };

// One expression of a template, as a tree. Reading leaves the names as they are written; the check finds the
// columns that they stand for.
struct Expression {
    Operation operation = Operation::Number;
    AggregateKind aggregate = AggregateKind::Sum;
    bool isPlain = false; // of a field: its text is no Marathi and is shown as it is stored
    bool isOfGroups = false; // of an aggregate: over the rows that stand for groups
    double number = 0; // of a literal; of an aggregate: the decimals that its figures are rounded to first
    QString text;
    QString qualifier;
    PrintFormat format; // of Formatted
    std::vector<Expression> arguments;

    // Found by the check.
    int source = -1; // of a field: its source; of an aggregate: the source that it runs over
    int column = -1; // of a field: among the columns that are read of its source
    int slot = -1; // of an aggregate in a table: among the table's aggregates
    int group = -1; // of a running sum: the group that it begins anew with; -1: the whole table

    // Whether it or a part of it is of that kind.
    bool Uses(Operation wanted) const;
    bool operator==(const Expression&) const = default;
};

// The variables of a template and what they hold; nothing for a name that is none.
std::optional<ValueType> VariableType(QStringView name);
