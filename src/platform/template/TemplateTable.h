#pragma once

#include "platform/template/TemplateText.h"
#include "platform/template/TextLook.h"
#include "platform/template/WidthRule.h"

#include <optional>
#include <vector>

struct TemplateColumn {
    int line = 0;
    std::optional<Expression> condition; // looked at once, before the table begins
    WidthRule width;
    TemplateText head, cell;
    TextLook look;
    bool wraps = false;
    std::optional<Expression> total; // what stands in the foot of a group and at the end
    bool totalIsOwnSum = false; // total="sum": the sum of the figures as printed
};

// A cell that stretches over several columns: above their heads, or in a line of its own.
struct TemplateSpan {
    int line = 0;
    int columns = 1;
    TemplateText text;
    TextLook look;
};

// A line of a group's head or of a foot, with cells of its own in the columns of the table.
struct TemplateLine {
    int line = 0;
    std::optional<Expression> condition;
    std::vector<TemplateSpan> cells;
};

struct TemplateGroup {
    int line = 0;
    Expression by;
    QString name; // the text of `by`, as running(x by name) names it
    QString label; // what its values are called in a spreadsheet; empty: the name
    TemplateText head, foot;
    std::vector<TemplateLine> headLines, footLines; // below those
    int keep = 1; // rows that stay with the head
    bool newPage = false;
};

// What stands where a table goes on over pages: the totals of the page, and of all so far.
struct TemplatePageTotals {
    int line = 0;
    TemplateText foot, carry, head;
};

struct TemplateTable {
    TextLook look;
    int source = -1;
    QString sourceName;
    std::optional<Expression> only;
    std::vector<TemplateSpan> spans;
    std::vector<TemplateColumn> columns;
    std::vector<TemplateGroup> groups;
    std::optional<TemplateText> totalLabel;
    std::vector<TemplateLine> totalLines; // below it
    int totalLine = 0;
    std::optional<TemplatePageTotals> page;
    bool isOfGroups = false; // a row for each of the innermost groups, none for those of the source
    bool hasHeads = false;
    bool hasLines = false; // a thin rule under each row

    // Found by the check.
    std::vector<Expression> aggregates; // those of the totals, each once
    std::vector<Expression> groupAggregates; // those over the rows that stand for groups
};
