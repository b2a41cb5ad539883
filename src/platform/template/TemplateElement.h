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
