#pragma once

#include "platform/template/TemplateText.h"
#include "platform/template/TextLook.h"
#include "platform/template/WidthRule.h"

#include <optional>
#include <vector>

struct TemplateColumn {
    int line = 0;
    std::optional<Expression> condition; // evaluated once, before the table begins
    WidthRule width;
    TemplateText head, cell;
    TextLook look;
    bool wraps = false;
    std::optional<Expression> total; // printed in the foot of each group and at the end of the table
    bool totalIsOwnSum = false; // total="sum": add the figures as they are printed
};

// A cell that spans columns: above their heads, or in a line of its own.
struct TemplateSpan {
    int line = 0;
    int columns = 1;
    TemplateText text;
    TextLook look;
};

// An additional line in the head of a group or in a foot, with its own cells.
struct TemplateLine {
    int line = 0;
    std::optional<Expression> condition;
    std::vector<TemplateSpan> cells;
};

struct TemplateGroup {
    int line = 0;
    Expression by;
    QString name; // the text of `by`; running(x by name) refers to it
    QString label; // head of its column in a spreadsheet; if empty, the name is used
    TemplateText head, foot;
    std::vector<TemplateLine> headLines, footLines; // printed below head and foot
    int keep = 1; // how many rows stay on the page of the head
    bool newPage = false;
};

// Printed where a table continues on the next page: the totals of the page, and the totals so far.
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
    std::vector<TemplateLine> totalLines; // printed below the total
    int totalLine = 0;
    std::optional<TemplatePageTotals> page;
    bool isOfGroups = false; // rows="groups": one row for each innermost group
    bool hasHeads = false;
    bool hasLines = false; // a thin rule under each row

    // Found by the check.
    std::vector<Expression> aggregates; // all totals over rows of the source, without duplicates
    std::vector<Expression> groupAggregates; // all totals over the printed rows of rows="groups"
};
