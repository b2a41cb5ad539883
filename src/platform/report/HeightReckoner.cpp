#include "platform/report/HeightReckoner.h"

#include "platform/template/Spacing.h"

#include <algorithm>

namespace {

void Add(LeastHeight& sum, const LeastHeight& one, bool hasCondition)
{
    if (!hasCondition)
        sum.always += one.always;
    sum.atTimes = std::max(sum.atTimes, hasCondition ? one.Most() : one.atTimes);
}

}

double HeightReckoner::Line(const TextLook& look, double sizeAround)
{
    return m_measure.LineHeight({m_report.fontFamily,
        static_cast<float>(m_report.LetterSize(look, sizeAround)), look.isBold.value_or(false)});
}

double HeightReckoner::Written(
    const TemplateText& text, const TextLook& look, double sizeAround, double width)
{
    QString written;
    for (const TextPiece& piece : text.pieces)
        written += piece.characters;
    if (written.isEmpty())
        return 0;
    const FontSpec font{m_report.fontFamily, static_cast<float>(m_report.LetterSize(look, sizeAround)), true};
    return m_measure.Height(font, written, static_cast<float>(width));
}

LeastHeight HeightReckoner::Of(const std::vector<TemplateElement>& elements)
{
    LeastHeight sum;
    for (const TemplateElement& element : elements)
        Add(sum, OfOne(element), element.condition.has_value());
    return sum;
}

LeastHeight HeightReckoner::OfOne(const TemplateElement& element)
{
    return element.Visit(
        [&](const TemplateParagraph& paragraph) {
            return LeastHeight{paragraph.text.IsEmpty() ? 0 : Line(paragraph.look)};
        },
        [](const TemplateRule& rule) { return LeastHeight{2 * Spacing::RuleGap + rule.weight}; },
        [](const TemplateSpace& space) { return LeastHeight{space.height * Paper::PointsPerMillimetre}; },
        [&](const TemplatePairs& pairs) { return OfPairs(pairs); },
        [&](const TemplateLanes& lanes) { return OfLanes(lanes); },
        [](const TemplatePageBreak&) { return LeastHeight(); },
        [](const TemplateEach&) { return LeastHeight(); }, [](const TemplateTable&) { return LeastHeight(); },
        [](const TemplateChart&) { return LeastHeight(); });
}

LeastHeight HeightReckoner::OfPairs(const TemplatePairs& pairs)
{
    LeastHeight sum;
    for (const TemplatePair& pair : pairs.pairs)
        Add(sum, {Line(pair.look, pairs.look.size)}, pair.condition.has_value());
    return sum;
}

LeastHeight HeightReckoner::OfLanes(const TemplateLanes& lanes)
{
    LeastHeight tallest{lanes.height * Paper::PointsPerMillimetre};
    double most = tallest.always;
    for (const TemplateLane& lane : lanes.lanes) {
        LeastHeight one = Of(lane.elements);
        Add(one, Of(lane.bottom), false);
        const double frames = (lanes.frame > 0 ? 1.0 : 0.0) + (lane.frame > 0 ? 1.0 : 0.0);
        one.always += 2 * Spacing::BoxPadding * frames;
        tallest.always = std::max(tallest.always, one.always);
        most = std::max(most, one.Most());
    }
    tallest.atTimes = most - tallest.always;
    return tallest;
}
