#pragma once

#include "platform/template/Expression.h"

#include <QStringList>

#include <optional>
#include <vector>

// A column of a source that the template uses.
struct SourceColumn {
    QString name;
    ValueType type = ValueType::Unknown;

    // Found by the check: whether its texts are printed as stored, in Devanagari, or both.
    bool isPrintedPlain = false;
    bool isPrintedSeen = false;
};

// A table or view that the report reads.
struct TemplateSource {
    int line = 0;
    QString name;
    QString table;
    QString order;
    QStringList link; // the columns that link it to the source in `to`
    QString parentName;
    std::optional<Expression> only; // other rows are skipped

    // Found by the check.
    int parent = -1;
    std::vector<SourceColumn> columns; // the ones that the template uses
    std::vector<int> linkColumns, parentColumns;
};
