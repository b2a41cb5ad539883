#include "platform/report/Bands.h"

#include "platform/report/Evaluation.h"
#include "platform/report/Room.h"

#include <algorithm>
#include <utility>

namespace {

using Room::CellPadding;
using Room::HeadRule;
using Room::RowPadding;

constexpr float GroupGap = 5; // above a group that isn't the first
constexpr float ThinRule = 0.4F;
constexpr quint8 PaleGray = 170;

// A column as it stands on the paper.
struct Cell {
    Stretch stretch;
    TextLook look;
    quint16 font = 0;
    Fit fit = Fit::Cut;
};

void MoveDown(Band& band, float by)
{
    for (PlacedItem& item : band.items)
        item.y += by;
    band.height += by;
}

// A total in the place of the figures above it: by their format, and with the words around the only one of a
// cell.
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

class TableStream final : public BandStream {
public:
    TableStream(const TemplateElement& element, BandMaker& maker, Stretch stretch);
    ~TableStream() override { m_maker.Data.SetCurrent(m_table.source, nullptr); }

    bool Next(Band& band) override;

private:
    void PlaceColumns();
    void MakeHead();
    void AddSpans(Band& head);
    void Start();
    void MakeRow();
    void MakeFoot(const TemplateText& label, int level);
    void BeginGroups(std::size_t from);
    void EndGroups(std::size_t from);
    void KeepFeetTogether();
    bool ReadNext();
    std::size_t FirstChangedGroup();
    std::vector<Value> GroupValues();
    void AddCell(Band& band, std::size_t column, QString text, const TextLook& look, Fit fit);
    void AddRule(Band& band, float y, float weight, quint8 gray) const;
    void Push(Band band);
    void SetCurrent(const Row* row) { m_maker.Data.SetCurrent(m_table.source, row); }

    const TemplateElement& m_element;
    const TemplateTable& m_table;
    BandMaker& m_maker;
    Stretch m_stretch;
    RowWalk m_walk;
    Accumulators m_totals;
    std::vector<Cell> m_cells;
    std::shared_ptr<Band> m_head;
    float m_rowHeight = 0;
    bool m_hasStarted = false;
    bool m_hasRow = false;
    bool m_hasNext = false;
    bool m_breaks = false;
    int m_toKeep = 0;
    Row m_row, m_next;
    std::vector<Value> m_groupValues, m_nextValues;
    std::deque<Band> m_ready;
};

TableStream::TableStream(const TemplateElement& element, BandMaker& maker, Stretch stretch)
    : m_element(element)
    , m_table(*element.table)
    , m_maker(maker)
    , m_stretch(stretch)
    , m_walk(maker.Data, m_table.source)
    , m_totals(m_table.aggregates, m_table.groups.size())
{
    PlaceColumns();
    if (m_table.hasHeads || !m_table.spans.empty())
        MakeHead();
}

void TableStream::PlaceColumns()
{
    std::vector<WidthRule> rules;
    for (const TemplateColumn& column : m_table.columns)
        rules.push_back(column.width);
    const std::vector<double> widths = DivideWidth(rules, m_stretch.width, 0);
    double x = m_stretch.x;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const TemplateColumn& column = m_table.columns[i];
        Cell cell;
        cell.stretch = {static_cast<float>(x) + CellPadding,
            std::max(1.0F, static_cast<float>(widths[i]) - 2 * CellPadding)};
        cell.look = Merge(m_element.look, column.look);
        cell.font = m_maker.Fonts.Add(m_maker.Font(cell.look));
        cell.fit = column.wraps                                 ? Fit::Wrap
            : HoldsFigure(column.cell, m_maker.Data.Template()) ? Fit::Shrink
                                                                : Fit::Cut;
        m_rowHeight = std::max(m_rowHeight, m_maker.Measure.LineHeight(m_maker.Font(cell.look)));
        m_cells.push_back(cell);
        x += widths[i];
    }
}

void TableStream::AddCell(Band& band, std::size_t column, QString text, const TextLook& look, Fit fit)
{
    if (text.isEmpty())
        return;
    const Cell& cell = m_cells[column];
    if (fit == Fit::Wrap) {
        m_maker.AddWrapped(band, text, look, cell.stretch);
        return;
    }
    PlacedItem item;
    item.align = look.align.value_or(Align::Left);
    item.fit = fit;
    item.font = look.isBold == cell.look.isBold ? cell.font : m_maker.Fonts.Add(m_maker.Font(look));
    item.x = cell.stretch.x;
    item.width = cell.stretch.width;
    item.height = m_rowHeight;
    item.text = std::move(text);
    band.height = std::max(band.height, m_rowHeight);
    band.items.push_back(std::move(item));
}

void TableStream::AddRule(Band& band, float y, float weight, quint8 gray) const
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

void TableStream::AddSpans(Band& head)
{
    std::size_t column = 0;
    for (const TemplateSpan& span : m_table.spans) {
        const std::size_t last =
            std::min(column + static_cast<std::size_t>(span.columns), m_cells.size()) - 1;
        TextLook look = Merge(m_element.look, span.look);
        look.isBold = span.look.isBold.value_or(true);
        look.align = span.look.align.value_or(Align::Center);
        const float x = m_cells[column].stretch.x;
        const float width = m_cells[last].stretch.x + m_cells[last].stretch.width - x;
        m_maker.AddWrapped(head, Fill(span.text, m_maker.Data), look, {x, width});
        column = last + 1;
        if (column == m_cells.size())
            break;
    }
}

void TableStream::MakeHead()
{
    m_head = std::make_shared<Band>();
    Band spans;
    if (!m_table.spans.empty())
        AddSpans(spans);
    Band heads;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        TextLook look = m_cells[i].look;
        look.isBold = true;
        AddCell(heads, i, Fill(m_table.columns[i].head, m_maker.Data), look, Fit::Wrap);
    }
    *m_head = std::move(spans);
    for (PlacedItem& item : heads.items) {
        item.y += m_head->height;
        m_head->items.push_back(std::move(item));
    }
    m_head->height += heads.height + HeadRule + RowPadding;
    MoveDown(*m_head, HeadRule + RowPadding);
    AddRule(*m_head, 0, HeadRule, 0);
    AddRule(*m_head, m_head->height - HeadRule, HeadRule, 0);
    m_head->keepWithNext = true;
}

void TableStream::Push(Band band)
{
    band.repeated = m_head;
    band.newPage = band.newPage || std::exchange(m_breaks, false);
    m_ready.push_back(std::move(band));
}

bool TableStream::ReadNext()
{
    do {
        SetCurrent(nullptr);
        if (!m_walk.Next(m_next))
            return false;
        SetCurrent(&m_next);
    } while (!m_maker.Holds(m_table.only));
    m_nextValues = GroupValues();
    return true;
}

std::vector<Value> TableStream::GroupValues()
{
    std::vector<Value> values;
    values.reserve(m_table.groups.size());
    for (const TemplateGroup& group : m_table.groups)
        values.push_back(Evaluate(group.by, m_maker.Data));
    return values;
}

std::size_t TableStream::FirstChangedGroup()
{
    for (std::size_t i = 0; i < m_groupValues.size(); ++i) {
        if (Compare(m_groupValues[i], m_nextValues[i]) != 0)
            return i;
    }
    return m_groupValues.size();
}

void TableStream::Start()
{
    m_hasStarted = true;
    m_hasNext = ReadNext();
    if (!m_head)
        return;
    Band head = *m_head;
    head.keepWithNext = m_hasNext;
    m_ready.push_back(std::move(head));
}

bool TableStream::Next(Band& band)
{
    if (!m_hasStarted)
        Start();
    while (m_ready.empty()) {
        if (!m_hasRow && !m_hasNext)
            return false;
        // From one row to the next: groups end, groups begin, and the row itself.
        const std::size_t changed = m_hasRow && m_hasNext ? FirstChangedGroup() : 0;
        if (m_hasRow)
            EndGroups(changed);
        KeepFeetTogether();
        if (!m_hasNext) {
            if (m_table.totalLabel)
                MakeFoot(*m_table.totalLabel, 0);
            KeepFeetTogether();
            m_hasRow = false;
            SetCurrent(nullptr);
            continue;
        }
        std::swap(m_row, m_next);
        std::swap(m_groupValues, m_nextValues);
        SetCurrent(&m_row);
        BeginGroups(m_hasRow ? changed : 0);
        m_hasRow = true;
        m_totals.Add(m_maker.Data);
        MakeRow();
    }
    band = std::move(m_ready.front());
    m_ready.pop_front();
    return true;
}

void TableStream::BeginGroups(std::size_t from)
{
    if (from >= m_table.groups.size())
        return;
    m_totals.Begin(from);
    for (std::size_t i = from; i < m_table.groups.size(); ++i) {
        const TemplateGroup& group = m_table.groups[i];
        m_breaks = m_breaks || (group.newPage && m_hasRow);
        m_toKeep = std::max(m_toKeep, group.keep);
        const QString text = Fill(group.head, m_maker.Data);
        if (text.isEmpty())
            continue;
        TextLook look = m_element.look;
        look.isBold = true;
        Band head;
        m_maker.AddWrapped(head, text, look, {m_stretch.x + CellPadding, m_stretch.width - 2 * CellPadding});
        head.keepWithNext = true;
        if (i == from && m_hasRow)
            MoveDown(head, GroupGap);
        Push(std::move(head));
    }
}

void TableStream::EndGroups(std::size_t from)
{
    SetCurrent(&m_row);
    for (std::size_t i = m_table.groups.size(); i > from; --i) {
        const TemplateGroup& group = m_table.groups[i - 1];
        if (!group.foot.IsEmpty())
            MakeFoot(group.foot, static_cast<int>(i));
    }
}

// Only feet are ready when this is called.
void TableStream::KeepFeetTogether()
{
    for (std::size_t i = 0; i + 1 < m_ready.size(); ++i)
        m_ready[i].keepWithNext = true;
}

void TableStream::MakeRow()
{
    Band band;
    band.items.reserve(m_cells.size() + (m_table.hasLines ? 1 : 0));
    const bool isRecorded = m_maker.Records.table == &m_table;
    if (isRecorded) {
        band.record = FieldsAround(m_maker.Records, m_maker.Records.around.size(), m_maker.Data);
        m_maker.RecordCount += 1;
    }
    for (std::size_t i = 0; isRecorded && i < m_groupValues.size(); ++i)
        band.record.append(m_groupValues[i].Text());
    band.height = m_rowHeight;
    m_maker.Data.Totals = &m_totals;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        const QString text = Fill(m_table.columns[i].cell, m_maker.Data);
        if (isRecorded && !m_table.columns[i].cell.IsEmpty())
            band.record.append(FillForRecord(m_table.columns[i].cell, text, m_maker.Data));
        AddCell(band, i, text, m_cells[i].look, m_cells[i].fit);
    }
    m_maker.Data.Totals = nullptr;
    if (m_table.hasLines)
        AddRule(band, band.height + RowPadding, ThinRule, PaleGray);
    band.height += 2 * RowPadding;
    m_toKeep -= 1;
    // The last row of a group stays with the group's foot.
    m_hasNext = ReadNext();
    SetCurrent(&m_row);
    const std::size_t changed = m_hasNext ? FirstChangedGroup() : 0;
    const bool footFollows = std::any_of(m_table.groups.begin() + static_cast<std::ptrdiff_t>(changed),
        m_table.groups.end(), [](const TemplateGroup& group) { return !group.foot.IsEmpty(); });
    const bool isLastOfGroup = !m_hasNext || changed < m_table.groups.size();
    band.keepWithNext = (m_toKeep > 0 && !isLastOfGroup) || footFollows || (!m_hasNext && m_table.totalLabel);
    if (isLastOfGroup)
        m_toKeep = 0;
    Push(std::move(band));
}

void TableStream::MakeFoot(const TemplateText& label, int level)
{
    ReportData& data = m_maker.Data;
    data.Totals = &m_totals;
    data.TotalsLevel = level;
    TextLook look = m_element.look;
    look.isBold = true;
    look.align = Align::Left;
    Band band;
    band.height = m_rowHeight;
    std::size_t firstTotal = 0;
    while (firstTotal < m_cells.size() && !m_table.columns[firstTotal].total)
        ++firstTotal;
    const float end = firstTotal < m_cells.size() ? m_cells[firstTotal].stretch.x - CellPadding
                                                  : m_stretch.x + m_stretch.width;
    const float x = m_stretch.x + CellPadding;
    m_maker.AddWrapped(band, Fill(label, data), look, {x, std::max(1.0F, end - x)});
    for (std::size_t i = firstTotal; i < m_cells.size(); ++i) {
        const TemplateColumn& column = m_table.columns[i];
        if (!column.total)
            continue;
        const Value total = Evaluate(*column.total, data);
        TextLook own = m_cells[i].look;
        own.isBold = true;
        AddCell(band, i, TotalText(column, total), own, Fit::Shrink);
    }
    data.Totals = nullptr;
    data.TotalsLevel = 0;
    MoveDown(band, RowPadding);
    AddRule(band, 0, ThinRule, 0);
    band.height += RowPadding;
    AddRule(band, band.height - ThinRule / 2, ThinRule, 0);
    Push(std::move(band));
}

}

std::unique_ptr<BandStream> MakeTable(const TemplateElement& element, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<TableStream>(element, maker, stretch);
}
