#pragma once

#include "platform/template/Paper.h"
#include "platform/template/TemplateText.h"

#include <QStringList>

#include <optional>
#include <utility>
#include <variant>
#include <vector>

class Connection;

// What is wrong with a template, and where.
struct TemplateFault {
    QString file;
    int line = 0;
    QString text;

    // "file:line: text"
    QString Line() const;
};
using TemplateFaults = std::vector<TemplateFault>;

// A template with more faults than this isn't looked at to its end.
inline constexpr std::size_t MostFaults = 100;

// Sorts faults by line. Of more than MostFaults the first are kept, with a last one that says so.
void SortAndCut(TemplateFaults& faults);

enum class Align : quint8 { Left, Center, Right };

// How a text of a template looks; what isn't said is taken from what stands around it.
struct TextLook {
    std::optional<Align> align;
    std::optional<bool> isBold;
    double size = 0; // points; 0: as around it
};

// A width of a template: millimetres, or a share of what is left.
struct WidthRule {
    double millimetres = 0;
    bool isShare = true;
};

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

struct TemplateSeries {
    int line = 0;
    TemplateText label;
    Expression value;
};

struct TemplateChart {
    TextLook look; // its size only
    int source = -1;
    QString sourceName;
    bool isLine = false; // else bars
    double height = 60; // millimetres
    TemplateText title, x;
    std::optional<Expression> only;
    std::vector<TemplateSeries> series;
};

struct TemplateElement;

// A paragraph; an empty one takes no room.
struct TemplateParagraph {
    TextLook look;
    TemplateText text;
    bool keep = false; // stays with what follows
};

// A line across.
struct TemplateRule {
    double weight = 0.5; // points
    bool keep = false; // stays with what follows
};

struct TemplateSpace {
    double height = 4; // millimetres
};

struct TemplatePageBreak { };

// A label with its value beside it.
struct TemplatePair {
    int line = 0;
    TemplateText label, value;
    std::optional<Expression> condition;
    TextLook look;
};

struct TemplatePairs {
    TextLook look;
    double labelWidth = 0; // millimetres; 0: a fixed share of the width
    std::vector<TemplatePair> pairs;
};

// One of some blocks side by side.
struct TemplateLane {
    int line = 0;
    WidthRule width;
    double frame = 0; // points of the ruled frame around it; 0: none
    std::vector<TemplateElement> elements;
    std::vector<TemplateElement> bottom; // at its lower edge
};

// Blocks side by side.
struct TemplateLanes {
    double gap = 3; // millimetres between two of them
    double frame = 0; // points of the ruled frame around all of them; 0: none
    double height = 0; // millimetres at least
    std::vector<TemplateLane> lanes;
};

// Elements that come once for each row of a source, or once for each value of `by`.
struct TemplateEach {
    int source = -1;
    QString sourceName;
    std::optional<Expression> only;
    std::optional<Expression> by; // rows that follow each other with the same value come together
    QString byName; // its text
    bool keep = false; // each stays on one page
    bool newPage = false; // each begins a page
    bool ownPages = false; // and has its own page numbers
    std::vector<TemplateElement> elements;
};

// One element of a template, as they stand below each other.
struct TemplateElement {
    int line = 0;
    std::optional<Expression> condition;
    std::variant<TemplateParagraph, TemplateRule, TemplateSpace, TemplatePageBreak, TemplatePairs,
        TemplateLanes, TemplateEach, TemplateTable, TemplateChart>
        what;

    // Calls the case for what this element is. All of them have to be there.
    template <typename... Cases> decltype(auto) Visit(Cases&&... cases) const
    {
        return std::visit(OneOf<Cases...>{std::forward<Cases>(cases)...}, what);
    }
    template <typename... Cases> decltype(auto) Visit(Cases&&... cases)
    {
        return std::visit(OneOf<Cases...>{std::forward<Cases>(cases)...}, what);
    }

    // The element as one of that kind; nullptr if it is another.
    template <typename Kind> const Kind* As() const { return std::get_if<Kind>(&what); }

private:
    template <typename... Cases> struct OneOf : Cases... {
        using Cases::operator()...;
    };
};

// A whole template: the sheet, what it reads, and what it prints from top to bottom.
struct ReportTemplate {
    QString file;
    int line = 0;
    bool isRead = false; // it is a report and sound XML, so there is something to check
    QString name;
    QString title; // what the clerk knows the report by; empty: the name
    Paper paper;
    QString fontNames =
        QStringLiteral("Noto Sans Devanagari, Lohit Devanagari"); // the first installed is used
    double fontSize = 10;
    std::vector<TemplateSource> sources;
    std::vector<TemplateElement> header, footer, body;
    int headerLine = 0;

    // Chosen when the layout is checked: the one of its fonts that this machine has.
    QString fontFamily = QStringLiteral("Noto Sans Devanagari");

    // How large letters are, in points; if the look doesn't say, as large as those around or the template's.
    double LetterSize(const TextLook& look, double sizeAround = 0) const;

    // Reads a template file, which is UTF-8 and has the name of its report. Everything that is wrong with it
    // is added to the faults; a template with faults is for nothing but finding more of them.
    static ReportTemplate Read(const QString& file, TemplateFaults& faults);

    // The same for the text of a template; `file` names it in the faults.
    static ReportTemplate ReadText(const QString& text, const QString& file, TemplateFaults& faults);
};

// Compares a template with the tables of an open connection and with its paper, and binds its names to them:
// only a template that was checked without faults can be filled. No row is read, and no font is asked for:
// what letters take up is checked by whoever lays the template out. A text that couldn't be read to its end
// has no other faults than that.
TemplateFaults Check(ReportTemplate& report, Connection& connection);
