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

// One expression of a template as a tree. The parser keeps names as they are written; the check finds the
// columns they stand for.
struct Expression {
    // The length of the longest text of an expression. Each character can add a level to the tree, and
    // evaluating it recurses.
    static constexpr int LongestText = 2000;

    Operation operation = Operation::Number;
    AggregateKind aggregate = AggregateKind::Sum;
    bool isPlain = false; // of a field: shown as it is stored, not turned into Devanagari
    bool isOfGroups = false; // of an aggregate: over the printed rows of rows="groups"
    double number = 0; // of a literal; of an aggregate: round to so many decimals before adding
    QString text;
    QString qualifier;
    PrintFormat format; // of Formatted
    std::vector<Expression> arguments;

    // Found by the check.
    int source = -1; // index of the field's source, or of the source that the aggregate adds up
    int column = -1; // of a field: index in the columns of its source
    int slot = -1; // of an aggregate in a table: index in the table's aggregates
    int group = -1; // of a running sum: the group that resets it; -1: none does

    // True if the expression or any part of it is of that kind.
    bool Uses(Operation wanted) const;
    bool operator==(const Expression&) const = default;
};

// The type of a variable such as $society; nothing if there is no such variable.
std::optional<ValueType> VariableType(QStringView name);
