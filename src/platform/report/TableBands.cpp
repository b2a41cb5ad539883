#include "platform/report/TableBands.h"

#include "platform/report/Evaluation.h"
#include "platform/report/PageTotals.h"
#include "platform/report/RowWalk.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace {

constexpr float GroupGap = 5; // points above each group but the first

class TableStream final : public BandStream {
public:
    TableStream(const TemplateTable& table, BandMaker& maker, Stretch stretch);
    ~TableStream() override { SetCurrent(m_before); }

    bool Next(Band& band) override;

private:
    void Start();
    void BeginRow();
    void TakeRow();
    void LookAhead();
    void MakeRow();
    void EndRow();
    void BeginGroups(std::size_t from, bool isFirst);
    void PushHead(std::optional<Band> head, bool hasGap);
    void EndGroups(std::size_t from);
    void EndTable();
    void PushFoot(const TemplateText* label, const std::vector<TemplateLine>& lines, int level);
    bool ReadNext();
    std::size_t FirstChangedGroup() const;
    std::vector<Value> GroupValues();
    void Push(Band band);
    QStringList RecordOfRow();
    void SetCurrent(const Row* row) { m_maker.Data.SetCurrent(m_table.source, row); }

    // The number of groups that contain printed rows; with rows="groups" the innermost is itself a row.
    std::size_t GroupsAroundRows() const { return m_table.groups.size() - (m_table.isOfGroups ? 1 : 0); }

    const TemplateTable& m_table;
    BandMaker& m_maker;
    const Row* m_before; // the row that is current outside of the table
    RowWalk m_walk;
    std::shared_ptr<const TableStrips> m_strips;
    std::shared_ptr<PageTotals> m_page;
    PageShare m_share; // of the row that is being made
    Accumulators m_totals, m_groupTotals;
    bool m_hasStarted = false;
    bool m_hasRow = false;
    bool m_hasNext = false;
    bool m_breaks = false;
    int m_toKeep = 0;
    std::size_t m_changed = 0; // index of the first group that ends with the current row
    Row m_row, m_next;
    std::vector<Value> m_groupValues, m_nextValues;
    std::deque<Band> m_ready;
};

TableStream::TableStream(const TemplateTable& table, BandMaker& maker, Stretch stretch)
    : m_table(table)
    , m_maker(maker)
    , m_before(maker.Data.Walked(m_table.source))
    , m_walk(maker.Data, m_table.source)
    , m_strips(std::make_shared<TableStrips>(table, maker, stretch))
    , m_totals(m_table.aggregates, m_table.groups.size())
    , m_groupTotals(m_table.groupAggregates, m_table.groups.size())
{
    if (m_table.page)
        m_page = std::make_shared<PageTotals>(m_strips, maker);
}

void TableStream::Push(Band band)
{
    band.repeated = m_strips->Head();
    band.page = m_page;
    band.newPage = band.newPage || std::exchange(m_breaks, false);
    m_ready.push_back(std::move(band));
}

bool TableStream::ReadNext()
{
    do {
        SetCurrent(m_before);
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

std::size_t TableStream::FirstChangedGroup() const
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
    if (!m_strips->Head())
        return;
    Band head = *m_strips->Head();
    head.keepWithNext = m_hasNext;
    m_ready.push_back(std::move(head));
}

bool TableStream::Next(Band& band)
{
    if (!m_hasStarted)
        Start();
    if (m_ready.empty()) {
        if (!m_hasNext) {
            SetCurrent(m_before);
            return false;
        }
        BeginRow();
        MakeRow();
        EndRow();
    }
    band = std::move(m_ready.front());
    m_ready.pop_front();
    return true;
}

// Makes the next row the current one, and the heads of the groups that begin with it.
void TableStream::BeginRow()
{
    TakeRow();
    const bool isFirst = !std::exchange(m_hasRow, true);
    BeginGroups(isFirst ? 0 : m_changed, isFirst);
    LookAhead();
    while (m_table.isOfGroups && m_hasNext && m_changed == m_table.groups.size()) {
        TakeRow();
        LookAhead();
    }
}

void TableStream::TakeRow()
{
    std::swap(m_row, m_next);
    std::swap(m_groupValues, m_nextValues);
    SetCurrent(&m_row);
}

// Adds the current row to the totals and reads the next one, to know which groups end here.
void TableStream::LookAhead()
{
    m_totals.Add(m_maker.Data);
    if (m_page)
        m_share.rows.push_back(m_totals.Shares(m_maker.Data));
    m_hasNext = ReadNext();
    SetCurrent(&m_row);
    m_changed = m_hasNext ? FirstChangedGroup() : 0;
}

void TableStream::BeginGroups(std::size_t from, bool isFirst)
{
    if (from >= m_table.groups.size())
        return;
    m_totals.Begin(from);
    m_groupTotals.Begin(from);
    for (std::size_t i = from; i < m_table.groups.size(); ++i) {
        const TemplateGroup& group = m_table.groups[i];
        m_breaks = m_breaks || (group.newPage && !isFirst);
        m_toKeep = std::max(m_toKeep, group.keep);
        const bool hasGap = i == from && !isFirst;
        std::optional<Band> title = m_strips->Title(group.head);
        std::optional<Band> lines = m_strips->Lines(group.headLines);
        const bool hasTitle = title.has_value();
        PushHead(std::move(title), hasGap);
        PushHead(std::move(lines), hasGap && !hasTitle);
    }
}

void TableStream::PushHead(std::optional<Band> head, bool hasGap)
{
    if (!head)
        return;
    head->keepWithNext = true;
    if (hasGap)
        MoveDown(*head, GroupGap);
    Push(std::move(*head));
}

QStringList TableStream::RecordOfRow()
{
    m_maker.RecordCount += 1;
    QStringList record = FieldsAround(m_maker.Records, m_maker.Records.around.size(), m_maker.Data);
    for (const Value& value : m_groupValues)
        record.append(value.Text());
    return record;
}

void TableStream::MakeRow()
{
    const bool isRecorded = m_maker.Records.table == &m_table;
    QStringList record = isRecorded ? RecordOfRow() : QStringList();
    const int level = m_table.isOfGroups ? static_cast<int>(m_table.groups.size()) : 0;
    const TotalsInSight sight(m_maker.Data, m_totals, m_groupTotals, level);
    if (m_table.isOfGroups) {
        m_groupTotals.Add(m_maker.Data);
        if (m_page)
            m_share.group = m_groupTotals.Shares(m_maker.Data);
    }
    Band band = m_strips->Row(isRecorded ? &record : nullptr);
    band.record = std::move(record);
    band.share = std::exchange(m_share, {});
    m_toKeep -= 1;
    if (m_changed < GroupsAroundRows() || !m_hasNext)
        m_toKeep = 0;
    band.keepWithNext = m_toKeep > 0;
    Push(std::move(band));
}

// Feet and totals that follow the current row stay on its page.
void TableStream::EndRow()
{
    const std::size_t row = m_ready.size() - 1;
    EndGroups(m_changed);
    if (!m_hasNext)
        EndTable();
    for (std::size_t i = row; i + 1 < m_ready.size(); ++i)
        m_ready[i].keepWithNext = true;
}

void TableStream::EndGroups(std::size_t from)
{
    for (std::size_t i = m_table.groups.size(); i > from; --i) {
        const TemplateGroup& group = m_table.groups[i - 1];
        PushFoot(group.foot.IsEmpty() ? nullptr : &group.foot, group.footLines, static_cast<int>(i));
    }
}

void TableStream::EndTable()
{
    if (m_table.totalLabel) {
        const bool hasTotals = !m_table.totalLabel->IsEmpty() || m_table.totalLines.empty();
        PushFoot(hasTotals ? &*m_table.totalLabel : nullptr, m_table.totalLines, 0);
    }
    m_ready.back().endsTable = true;
}

void TableStream::PushFoot(const TemplateText* label, const std::vector<TemplateLine>& lines, int level)
{
    const TotalsInSight sight(m_maker.Data, m_totals, m_groupTotals, level);
    if (std::optional<Band> foot = m_strips->Foot(label, lines))
        Push(std::move(*foot));
}

}

std::unique_ptr<BandStream> MakeTable(const TemplateTable& table, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<TableStream>(table, maker, stretch);
}
