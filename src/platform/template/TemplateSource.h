#pragma once

#include "platform/template/Expression.h"

#include <QStringList>

#include <optional>
#include <vector>

// A column that a source reads of its table.
struct SourceColumn {
    QString name;
    ValueType type = ValueType::Unknown;

    // Found by the check: how its texts stand on the paper.
    bool isPrintedPlain = false;
    bool isPrintedSeen = false;
};

// A table or view that a report reads.
struct TemplateSource {
    int line = 0;
    QString name;
    QString table;
    QString order;
    QStringList link; // the columns that it shares with the source that it hangs on
    QString parentName;
    std::optional<Expression> only; // rows for which this doesn't hold are passed over

    // Found by the check.
    int parent = -1;
    std::vector<SourceColumn> columns; // those that the template uses
    std::vector<int> linkColumns, parentColumns;
};
