#pragma once

#include "platform/report/Band.h"
#include "platform/report/Records.h"
#include "platform/report/TextMeasure.h"

// What is taken over from `inner`, and from `outer` where that says nothing.
TextLook Merge(const TextLook& outer, const TextLook& inner);

// Makes the strips of single elements.
class BandMaker {
public:
    BandMaker(ReportData& rows, TextMeasure& texts, FontTable& fontTable);

    bool Holds(const std::optional<Expression>& condition);

    // The font of a look; what isn't said comes from the template.
    FontSpec Font(const TextLook& look) const;

    // A text that breaks into lines, at a height of the strip; the strip grows with it.
    void AddWrapped(Band& band, const QString& text, const TextLook& look, Stretch stretch);

    // The strip of a text, of a rule or of a space; nothing for an empty text.
    std::optional<Band> Make(const TemplateParagraph& paragraph, Stretch stretch);
    static Band Make(const TemplateRule& rule, Stretch stretch);
    static Band Make(const TemplateSpace& space);

    // Each pair is a strip.
    std::vector<Band> Make(const TemplatePairs& pairs, Stretch stretch);

    ReportData& Data;
    TextMeasure& Measure;
    FontTable& Fonts;
    RecordPlan Records; // which rows are kept for a spreadsheet
    int RecordCount = 0; // of those that have been made
};
