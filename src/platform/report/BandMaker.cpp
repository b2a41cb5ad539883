#include "platform/report/BandMaker.h"

#include "platform/report/Evaluation.h"
#include "platform/template/Spacing.h"

#include <algorithm>

namespace {

constexpr float PairGap = 4;

}

TextLook Merge(const TextLook& outer, const TextLook& inner)
{
    TextLook look = outer;
    if (inner.align)
        look.align = inner.align;
    if (inner.isBold)
        look.isBold = inner.isBold;
    if (inner.size > 0)
        look.size = inner.size;
    return look;
}

BandMaker::BandMaker(ReportData& rows, TextMeasure& texts, FontTable& fontTable)
    : Data(rows)
    , Measure(texts)
    , Fonts(fontTable)
{
}

bool BandMaker::Holds(const std::optional<Expression>& condition)
{
    return !condition || Evaluate(*condition, Data).Truth();
}

FontSpec BandMaker::Font(const TextLook& look) const
{
    const ReportTemplate& report = Data.Template();
    return {report.fontFamily, static_cast<float>(look.size > 0 ? look.size : report.fontSize),
        look.isBold.value_or(false)};
}

void BandMaker::AddWrapped(Band& band, const QString& text, const TextLook& look, Stretch stretch)
{
    if (text.isEmpty())
        return;
    const FontSpec font = Font(look);
    PlacedItem item;
    item.align = look.align.value_or(Align::Left);
    item.font = Fonts.Add(font);
    item.x = stretch.x;
    item.width = stretch.width;
    for (const MeasuredText& piece : Measure.Divide(font, text, stretch.width)) {
        item.height = piece.height;
        item.text = piece.text;
        if (!item.text.isEmpty())
            band.items.push_back(item);
        else if (!band.items.empty())
            band.items.back().height += item.height; // empty lines
        item.y += item.height;
        item.goesOn = true;
    }
    band.height = std::max(band.height, item.y);
}

std::optional<Band> BandMaker::Make(const TemplateParagraph& paragraph, Stretch stretch)
{
    Band band;
    band.keepWithNext = paragraph.keep;
    AddWrapped(band, Fill(paragraph.text, Data), paragraph.look, stretch);
    if (band.items.empty())
        return std::nullopt;
    return band;
}

Band BandMaker::Make(const TemplateRule& rule, Stretch stretch)
{
    PlacedItem line;
    line.kind = PlacedItem::Kind::Line;
    line.weight = static_cast<float>(rule.weight);
    line.x = stretch.x;
    line.y = Spacing::RuleGap + line.weight / 2;
    line.width = stretch.width;
    Band band;
    band.keepWithNext = rule.keep;
    band.height = 2 * Spacing::RuleGap + line.weight;
    band.items.push_back(std::move(line));
    return band;
}

Band BandMaker::Make(const TemplateSpace& space)
{
    Band band;
    band.height = ToPoints(space.height);
    return band;
}

std::vector<Band> BandMaker::Make(const TemplatePairs& pairs, Stretch stretch)
{
    const float labelWidth = pairs.labelWidth > 0
        ? ToPoints(pairs.labelWidth)
        : stretch.width * static_cast<float>(Spacing::PairLabelShare);
    const Stretch labels{stretch.x, labelWidth - PairGap};
    const Stretch values{stretch.x + labelWidth, stretch.width - labelWidth};
    std::vector<Band> bands;
    for (const TemplatePair& pair : pairs.pairs) {
        if (!Holds(pair.condition))
            continue;
        TextLook look = Merge(pairs.look, pair.look);
        Band& band = bands.emplace_back();
        AddWrapped(band, Fill(pair.value, Data), look, values);
        look.align = Align::Left;
        AddWrapped(band, Fill(pair.label, Data), look, labels);
        band.height = std::max(band.height, Measure.LineHeight(Font(look)));
    }
    return bands;
}
