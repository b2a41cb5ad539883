#pragma once

#include "platform/template/TemplateTable.h"

#include <optional>
#include <utility>
#include <variant>
#include <vector>

struct TemplateSeries {
    int line = 0;
    TemplateText label;
    Expression value;
};

struct TemplateChart {
    TextLook look; // only the size is used
    int source = -1;
    QString sourceName;
    bool isLine = false; // otherwise bars
    double height = 60; // millimetres
    TemplateText title, x;
    std::optional<Expression> only;
    std::vector<TemplateSeries> series;
};

struct TemplateElement;

// A paragraph; if its text is empty, it takes no room.
struct TemplateParagraph {
    TextLook look;
    TemplateText text;
    bool keep = false; // stays with what follows
};

// A line across the page.
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

// One of the blocks that stand side by side, a <column>.
struct TemplateLane {
    int line = 0;
    WidthRule width;
    double frame = 0; // line weight of the frame around it in points; 0: no frame
    std::vector<TemplateElement> elements;
    std::vector<TemplateElement> bottom; // <bottom>: at the lower edge of the block
};

// Blocks that stand side by side, a <columns>.
struct TemplateLanes {
    double gap = 3; // millimetres between two blocks
    double frame = 0; // line weight of the frame around all of them in points; 0: no frame
    double height = 0; // least height in millimetres
    std::vector<TemplateLane> lanes;
};

// Elements that are repeated for each row of a source, or for each value of `by`.
struct TemplateEach {
    int source = -1;
    QString sourceName;
    std::optional<Expression> only;
    std::optional<Expression> by; // successive rows with the same value are one repetition
    QString byName; // the text of `by`
    bool keep = false; // each repetition stays on one page
    bool newPage = false; // each begins a new page
    bool ownPages = false; // and its pages are numbered from 1
    std::vector<TemplateElement> elements;
};

// One element of a template. Elements are printed one below the other.
struct TemplateElement {
    int line = 0;
    std::optional<Expression> condition;
    std::variant<TemplateParagraph, TemplateRule, TemplateSpace, TemplatePageBreak, TemplatePairs,
        TemplateLanes, TemplateEach, TemplateTable, TemplateChart>
        what;

    // Calls the function that takes this kind of element. There must be one for each kind.
    template <typename... Cases> decltype(auto) Visit(Cases&&... cases) const
    {
        return std::visit(OneOf<Cases...>{std::forward<Cases>(cases)...}, what);
    }
    template <typename... Cases> decltype(auto) Visit(Cases&&... cases)
    {
        return std::visit(OneOf<Cases...>{std::forward<Cases>(cases)...}, what);
    }

    // The element if it is of that kind, or else nullptr.
    template <typename Kind> const Kind* As() const { return std::get_if<Kind>(&what); }

private:
    template <typename... Cases> struct OneOf : Cases... {
        using Cases::operator()...;
    };
};
