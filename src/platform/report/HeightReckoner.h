#pragma once

#include "platform/report/TextMeasure.h"
#include "platform/template/ReportTemplate.h"

// The least height that some elements take, in points.
struct LeastHeight {
    double always = 0; // of the elements without a condition
    double atTimes = 0; // of the tallest element with a condition

    double Most() const { return always + atTimes; }
};

// Works out the least height of elements before a template is filled: one line for a text or a pair, and the
// exact height of spaces and rules.
class HeightReckoner {
public:
    explicit HeightReckoner(const ReportTemplate& report) : m_report(report) { }

    // The height of a line of text; see ReportTemplate::LetterSize.
    double Line(const TextLook& look, double sizeAround = 0);

    // The height of the words of a text without its {expressions}, in bold and in this width.
    double Written(const TemplateText& text, const TextLook& look, double sizeAround, double width);

    // The height of elements below each other. What can be split between pages, such as a table, counts as
    // 0.
    LeastHeight Of(const std::vector<TemplateElement>& elements);

private:
    LeastHeight OfOne(const TemplateElement& element);
    LeastHeight OfPairs(const TemplatePairs& pairs);
    LeastHeight OfLanes(const TemplateLanes& lanes);

    const ReportTemplate& m_report;
    TextMeasure m_measure;
};
