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
    switch (element.kind) {
    case ElementKind::Text:
        return {element.text.IsEmpty() ? 0 : Line(element.look)};
    case ElementKind::Rule:
        return {2 * Spacing::RuleGap + element.size};
    case ElementKind::Space:
        return {element.size * PointsPerMillimetre};
    case ElementKind::Pairs:
        return OfPairs(element);
    case ElementKind::Columns:
        return OfLanes(element);
    case ElementKind::PageBreak:
    case ElementKind::Each:
    case ElementKind::Table:
    case ElementKind::Chart:
        break;
    }
    return {};
}

LeastHeight HeightReckoner::OfPairs(const TemplateElement& element)
{
    LeastHeight sum;
    for (const TemplatePair& pair : element.pairs)
        Add(sum, {Line(pair.look, element.look.size)}, pair.condition.has_value());
    return sum;
}

LeastHeight HeightReckoner::OfLanes(const TemplateElement& element)
{
    LeastHeight tallest{element.height * PointsPerMillimetre};
    double most = tallest.always;
    for (const TemplateLane& lane : element.lanes) {
        LeastHeight one = Of(lane.elements);
        Add(one, Of(lane.bottom), false);
        const double frames = (element.weight > 0 ? 1.0 : 0.0) + (lane.weight > 0 ? 1.0 : 0.0);
        one.always += 2 * Spacing::BoxPadding * frames;
        tallest.always = std::max(tallest.always, one.always);
        most = std::max(most, one.Most());
    }
    tallest.atTimes = most - tallest.always;
    return tallest;
}
