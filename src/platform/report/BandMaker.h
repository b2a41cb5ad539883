#pragma once

#include "platform/report/Band.h"
#include "platform/report/Records.h"
#include "platform/report/TextMeasure.h"

// A look with what `inner` says, and `outer` for the rest.
TextLook Merge(const TextLook& outer, const TextLook& inner);

// Makes the bands of simple elements.
class BandMaker {
public:
    BandMaker(ReportData& rows, TextMeasure& texts, FontTable& fontTable);

    bool Holds(const std::optional<Expression>& condition);

    // The font of a look; the template supplies what the look doesn't say.
    FontSpec Font(const TextLook& look) const;

    // Adds a text that is broken into lines, from the top of the band, which grows with it.
    void AddWrapped(Band& band, const QString& text, const TextLook& look, Stretch stretch);

    // The band of a paragraph, a rule or a space; none for an empty text.
    std::optional<Band> Make(const TemplateParagraph& paragraph, Stretch stretch);
    static Band Make(const TemplateRule& rule, Stretch stretch);
    static Band Make(const TemplateSpace& space);

    // One band for each pair.
    std::vector<Band> Make(const TemplatePairs& pairs, Stretch stretch);

    ReportData& Data;
    TextMeasure& Measure;
    FontTable& Fonts;
    RecordPlan Records; // which rows go into a spreadsheet
    int RecordCount = 0; // how many records were made so far
};
