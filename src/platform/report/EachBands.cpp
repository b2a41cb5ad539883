#include "platform/report/EachBands.h"

#include "platform/report/Evaluation.h"
#include "platform/report/FlowBands.h"
#include "platform/report/RowWalk.h"

#include <deque>
#include <utility>

namespace {

// Repeats the elements for each row, or for each run of rows with the same value.
class EachStream final : public BandStream {
public:
    EachStream(const TemplateEach& each, BandMaker& maker, Stretch stretch)
        : m_each(each)
        , m_maker(maker)
        , m_stretch(stretch)
        , m_before(maker.Data.Walked(each.source))
        , m_runAround(maker.Data.Run(each.source))
        , m_walk(maker.Data, each.source)
        , m_depth(maker.Records.DepthOf(each))
    {
    }

    ~EachStream() override
    {
        m_children.reset(); // first, as their own walks give the current row back to this one
        Leave();
    }

    bool Next(Band& band) override
    {
        for (;;) {
            if (!m_kept.empty()) {
                band = std::move(m_kept.front());
                m_kept.pop_front();
                return true;
            }
            if (m_children && m_children->Next(band)) {
                Record(band);
                return true;
            }
            if (m_children && RecordAlone(band))
                return true;
            if (!Advance())
                return false;
        }
    }

private:
    bool Advance()
    {
        m_children.reset();
        Leave();
        if (!ReadRun())
            return false;
        m_children = MakeFlow(m_each.elements, m_maker, m_stretch);
        m_waitsForRecord = m_maker.Records.each == &m_each;
        m_countBefore = m_maker.RecordCount;
        if (m_each.keep || m_each.newPage)
            Collect();
        return true;
    }

    // Gives back the row and the run that were current outside.
    void Leave()
    {
        m_maker.Data.SetCurrent(m_each.source, m_before);
        m_maker.Data.SetRun(m_each.source, m_runAround);
    }

    bool ReadRow(Row& row)
    {
        do {
            m_maker.Data.SetCurrent(m_each.source, m_before);
            if (!m_walk.Next(row))
                return false;
            m_maker.Data.SetCurrent(m_each.source, &row);
        } while (!m_maker.Holds(m_each.only));
        return true;
    }

    // Makes the next row the current one. With `by`, all rows with its value are read, and walks inside go
    // through these.
    bool ReadRun()
    {
        if (!m_each.by)
            return ReadRow(m_row);
        if (!m_hasAhead && !ReadRow(m_ahead))
            return false;
        m_run.clear();
        m_maker.Data.SetCurrent(m_each.source, &m_ahead);
        const Value value = Evaluate(*m_each.by, m_maker.Data);
        do {
            m_run.push_back(m_ahead);
            m_hasAhead = ReadRow(m_ahead);
        } while (m_hasAhead && Compare(Evaluate(*m_each.by, m_maker.Data), value) == 0);
        m_row = m_run.front();
        m_maker.Data.SetCurrent(m_each.source, &m_row);
        m_maker.Data.SetRun(m_each.source, &m_run);
        return true;
    }

    // The first band of a row carries its record.
    void Record(Band& band)
    {
        if (std::exchange(m_waitsForRecord, false))
            MakeRecord(band);
    }

    // A row whose inner rows gave no record, for instance because there are none, gets a record of its own.
    // This is asked when all of the row has been laid out.
    bool RecordAlone(Band& band)
    {
        if (m_depth == 0 || m_maker.RecordCount != m_countBefore)
            return false;
        MakeRecord(band);
        return true;
    }

    void MakeRecord(Band& band)
    {
        band.record = FieldsAround(m_maker.Records, m_depth, m_maker.Data);
        m_maker.RecordCount += 1;
    }

    // Makes all bands of a row that must stay together, or that begin a new page.
    void Collect()
    {
        for (Band band; m_children->Next(band); band = Band()) {
            Record(band);
            band.keepWithNext = band.keepWithNext || m_each.keep;
            m_kept.push_back(std::move(band));
        }
        if (!m_kept.empty()) {
            m_kept.back().keepWithNext = false;
            m_kept.front().newPage = m_each.newPage;
            m_kept.front().restartsPages = m_each.ownPages;
        }
        if (Band alone; RecordAlone(alone))
            m_kept.push_back(std::move(alone));
    }

    const TemplateEach& m_each;
    BandMaker& m_maker;
    Stretch m_stretch;
    const Row* m_before; // the row that is current outside
    const std::vector<Row>* m_runAround;
    RowWalk m_walk;
    Row m_row;
    Row m_ahead; // the row after the run, if there is one
    bool m_hasAhead = false;
    std::vector<Row> m_run; // the rows with the same value as the current one
    std::size_t m_depth; // how deep it is among the <each> that give records, from 1; 0: it gives none
    int m_countBefore = 0; // number of records when the row began
    bool m_waitsForRecord = false;
    std::unique_ptr<BandStream> m_children;
    std::deque<Band> m_kept;
};

}

std::unique_ptr<BandStream> MakeEach(const TemplateEach& each, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<EachStream>(each, maker, stretch);
}
