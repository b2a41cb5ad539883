#include "platform/report/TableStrips.h"

#include "platform/report/Evaluation.h"
#include "platform/template/Spacing.h"

#include <algorithm>
#include <utility>

namespace {

using Spacing::CellPadding;
using Spacing::HeadRule;
using Spacing::RowPadding;

constexpr float ThinRule = 0.4F;
constexpr quint8 RowRuleGray = 170;

// Puts a band below another.
void Stack(Band& above, Band below)
{
    for (PlacedItem& item : below.items) {
        item.y += above.height;
        above.items.push_back(std::move(item));
    }
    above.height += below.height;
}

// A total is printed in the format of its column, and with the words of the column's cell if there is only
// one figure in that.
QString TotalText(const TemplateColumn& column, const Value& total)
{
    const bool isCount =
        column.total->operation == Operation::Aggregate && column.total->aggregate == AggregateKind::Count;
    const std::vector<TextPiece>& pieces = column.cell.pieces;
    const auto isFigure = [](const TextPiece& piece) { return piece.expression.has_value(); };
    const auto figures = std::count_if(pieces.begin(), pieces.end(), isFigure);
    if (isCount || figures == 0)
        return total.Text();
    if (figures > 1) {
        const auto formatted = std::find_if(pieces.begin(), pieces.end(),
            [](const TextPiece& piece) { return piece.format.kind != PrintFormat::Kind::None; });
        return formatted == pieces.end() ? total.Text() : Printed(total, formatted->format);
    }
    QString text;
    for (const TextPiece& piece : pieces)
        text += isFigure(piece) ? Printed(total, piece.format) : piece.characters;
    return text;
}

}

void MoveDown(Band& band, float by)
{
    for (PlacedItem& item : band.items)
        item.y += by;
    band.height += by;
}

TableStrips::TableStrips(const TemplateTable& table, BandMaker& maker, Stretch stretch)
    : m_table(table)
    , m_maker(maker)
    , m_stretch(stretch)
{
    PlaceColumns();
    if (m_table.hasHeads || !m_table.spans.empty())
        MakeHead();
}

void TableStrips::PlaceColumns()
{
    std::vector<WidthRule> rules;
    for (const TemplateColumn& column : m_table.columns) {
        Cell& cell = m_cells.emplace_back();
        cell.isThere = m_maker.Holds(column.condition);
        if (cell.isThere)
            rules.push_back(column.width);
    }
    const std::vector<double> widths = DivideWidth(rules, m_stretch.width, 0);
    double x = m_stretch.x;
    auto width = widths.begin();
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        Cell& cell = m_cells[i];
        if (!cell.isThere)
            continue;
        const TemplateColumn& column = m_table.columns[i];
        cell.stretch = {static_cast<float>(x) + CellPadding,
            std::max(1.0F, static_cast<float>(*width) - 2 * CellPadding)};
        cell.look = Merge(m_table.look, column.look);
        cell.fit = column.wraps                                 ? Fit::Wrap
            : HoldsFigure(column.cell, m_maker.Data.Template()) ? Fit::Shrink
                                                                : Fit::Cut;
        m_rowHeight = std::max(m_rowHeight, m_maker.Measure.LineHeight(m_maker.Font(cell.look)));
        x += *width++;
    }
}

// The place of several columns side by side; nothing if all of them are left out.
std::optional<Stretch> TableStrips::Across(std::size_t first, std::size_t columns) const
{
    std::optional<Stretch> place;
    for (std::size_t i = first; i < std::min(first + columns, m_cells.size()); ++i) {
        const Stretch& own = m_cells[i].stretch;
        if (!m_cells[i].isThere)
            continue;
        if (!place)
            place = own;
        place->width = own.x + own.width - place->x;
    }
    return place;
}

void TableStrips::AddCell(Band& band, std::size_t column, QString text, const TextLook& look, Fit fit) const
{
    const Cell& cell = m_cells[column];
    if (cell.isThere)
        AddText(band, std::move(text), look, cell.stretch, fit);
}

void TableStrips::AddText(Band& band, QString text, const TextLook& look, Stretch stretch, Fit fit) const
{
    if (text.isEmpty())
        return;
    if (fit == Fit::Wrap) {
        m_maker.AddWrapped(band, text, look, stretch);
        return;
    }
    PlacedItem item;
    item.align = look.align.value_or(Align::Left);
    item.fit = fit;
    item.font = m_maker.Fonts.Add(m_maker.Font(look));
    item.x = stretch.x;
    item.width = stretch.width;
    item.height = m_rowHeight;
    item.text = std::move(text);
    band.height = std::max(band.height, m_rowHeight);
    band.items.push_back(std::move(item));
}

void TableStrips::AddRule(Band& band, float y, float weight, quint8 gray) const
{
    PlacedItem rule;
    rule.kind = PlacedItem::Kind::Line;
    rule.weight = weight;
    rule.gray = gray;
    rule.x = m_stretch.x;
    rule.y = y;
    rule.width = m_stretch.width;
    band.items.push_back(std::move(rule));
}

void TableStrips::AddSpans(Band& head) const
{
    std::size_t column = 0;
    for (const TemplateSpan& span : m_table.spans) {
        const std::size_t columns = static_cast<std::size_t>(span.columns);
        const std::optional<Stretch> place = Across(column, columns);
        column += columns;
        if (!place)
            continue;
        TextLook look = Merge(m_table.look, span.look);
        look.isBold = span.look.isBold.value_or(true);
        look.align = span.look.align.value_or(Align::Center);
        m_maker.AddWrapped(head, Fill(span.text, m_maker.Data), look, *place);
    }
}

void TableStrips::MakeHead()
{
    Band head;
    AddSpans(head);
    Band heads;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        TextLook look = m_cells[i].look;
        look.isBold = true;
        AddCell(heads, i, Fill(m_table.columns[i].head, m_maker.Data), look, Fit::Wrap);
    }
    Stack(head, std::move(heads));
    head.height += HeadRule + RowPadding;
    MoveDown(head, HeadRule + RowPadding);
    AddRule(head, 0, HeadRule, 0);
    AddRule(head, head.height - HeadRule, HeadRule, 0);
    head.keepWithNext = true;
    m_head = std::make_shared<Band>(std::move(head));
}

Band TableStrips::Row(QStringList* record) const
{
    Band band;
    band.items.reserve(m_cells.size() + (m_table.hasLines ? 1 : 0));
    band.height = m_rowHeight;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        const TemplateText& cell = m_table.columns[i].cell;
        const QString text = m_cells[i].isThere ? Fill(cell, m_maker.Data) : QString();
        if (record && !cell.IsEmpty())
            record->append(m_cells[i].isThere ? FillForRecord(cell, text, m_maker.Data) : QString());
        AddCell(band, i, text, m_cells[i].look, m_cells[i].fit);
    }
    if (m_table.hasLines)
        AddRule(band, band.height + RowPadding, ThinRule, RowRuleGray);
    band.height += 2 * RowPadding;
    return band;
}

std::optional<Band> TableStrips::Title(const TemplateText& text) const
{
    const QString filled = Fill(text, m_maker.Data);
    if (filled.isEmpty())
        return std::nullopt;
    TextLook look = m_table.look;
    look.isBold = true;
    Band title;
    m_maker.AddWrapped(title, filled, look, {m_stretch.x + CellPadding, m_stretch.width - 2 * CellPadding});
    return title;
}

// A cell in a single column looks like the column, but bold.
Band TableStrips::Line(const TemplateLine& line) const
{
    Band band;
    band.height = m_rowHeight;
    std::size_t column = 0;
    for (const TemplateSpan& cell : line.cells) {
        const std::size_t columns = static_cast<std::size_t>(cell.columns);
        const std::optional<Stretch> place = Across(column, columns);
        if (place) {
            TextLook look = columns == 1 ? m_cells[column].look : m_table.look;
            look.isBold = true;
            look = Merge(look, cell.look);
            const bool isFigure = HoldsFigure(cell.text, m_maker.Data.Template());
            AddText(band, Fill(cell.text, m_maker.Data), look, *place, isFigure ? Fit::Shrink : Fit::Cut);
        }
        column += columns;
    }
    return band;
}

std::optional<Band> TableStrips::Lines(const std::vector<TemplateLine>& lines) const
{
    std::optional<Band> band;
    for (const TemplateLine& line : lines) {
        if (!m_maker.Holds(line.condition))
            continue;
        if (!band)
            band.emplace();
        Stack(*band, Line(line));
    }
    return band;
}

Band TableStrips::TotalsLine(const TemplateText& label, Fit labelFit) const
{
    TextLook look = m_table.look;
    look.isBold = true;
    look.align = Align::Left;
    Band band;
    band.height = m_rowHeight;
    std::size_t firstTotal = 0;
    while (firstTotal < m_cells.size() && !(m_cells[firstTotal].isThere && m_table.columns[firstTotal].total))
        ++firstTotal;
    const float end = firstTotal < m_cells.size() ? m_cells[firstTotal].stretch.x - CellPadding
                                                  : m_stretch.x + m_stretch.width;
    const float x = m_stretch.x + CellPadding;
    AddText(band, Fill(label, m_maker.Data), look, {x, std::max(1.0F, end - x)}, labelFit);
    for (std::size_t i = firstTotal; i < m_cells.size(); ++i) {
        const TemplateColumn& column = m_table.columns[i];
        if (!column.total)
            continue;
        TextLook own = m_cells[i].look;
        own.isBold = true;
        AddCell(band, i, TotalText(column, Evaluate(*column.total, m_maker.Data)), own, Fit::Shrink);
    }
    return band;
}

Band TableStrips::BetweenRules(Band band) const
{
    MoveDown(band, RowPadding);
    AddRule(band, 0, ThinRule, 0);
    band.height += RowPadding;
    AddRule(band, band.height - ThinRule / 2, ThinRule, 0);
    return band;
}

std::optional<Band> TableStrips::Foot(const TemplateText* label, const std::vector<TemplateLine>& lines) const
{
    std::optional<Band> foot;
    if (label)
        foot = TotalsLine(*label, Fit::Wrap);
    if (std::optional<Band> more = Lines(lines)) {
        if (!foot)
            foot.emplace();
        Stack(*foot, std::move(*more));
    }
    if (foot)
        foot = BetweenRules(std::move(*foot));
    return foot;
}

Band TableStrips::ShortFoot(const TemplateText& label) const
{
    return BetweenRules(TotalsLine(label, Fit::Cut));
}

float TableStrips::ShortFootHeight() const
{
    return m_rowHeight + 2 * RowPadding;
}
