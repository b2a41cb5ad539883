#pragma once

#include "platform/report/TextMeasure.h"
#include "platform/template/ReportTemplate.h"

// The least height of some elements, in points.
struct LeastHeight {
    double always = 0; // of those that are always there
    double atTimes = 0; // of the tallest one that has a condition

    double Most() const { return always + atTimes; }
};

// Measures what the elements of a template need at least, before anything is filled in: texts and pairs one
// line each, spaces and rules what they are.
class HeightReckoner {
public:
    explicit HeightReckoner(const ReportTemplate& report) : m_report(report) { }

    // The height of a line; letters that have no size are as large as those around, or as the template's.
    double Line(const TextLook& look, double sizeAround = 0);

    // The height of what is written in a bold text without its {expressions}, in a width.
    double Written(const TemplateText& text, const TextLook& look, double sizeAround, double width);

    // Of elements below each other. Those that break over pages by themselves, such as tables, count nothing.
    LeastHeight Of(const std::vector<TemplateElement>& elements);

private:
    LeastHeight OfOne(const TemplateElement& element);
    LeastHeight OfPairs(const TemplatePairs& pairs);
    LeastHeight OfLanes(const TemplateLanes& lanes);

    const ReportTemplate& m_report;
    TextMeasure m_measure;
};
