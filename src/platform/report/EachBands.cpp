#include "platform/report/EachBands.h"

#include "platform/report/Evaluation.h"
#include "platform/report/FlowBands.h"
#include "platform/report/RowWalk.h"

#include <deque>
#include <utility>

namespace {

// The children once for each row of a source, or for each run of rows that have the same value.
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
        m_children.reset(); // what it walks within the current row goes back to that row
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

    // What was current around it is so again.
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

    // Makes the next row the current one, and all that have its value what is walked within it.
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

    // The first strip of a row takes its record along.
    void Record(Band& band)
    {
        if (std::exchange(m_waitsForRecord, false))
            MakeRecord(band);
    }

    // A row of which nothing went into the spreadsheet by now, such as one without rows inside, stands there
    // by itself. It is laid out to its end when this is asked.
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

    // All strips of a row that stay together.
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
    const Row* m_before; // the row that was current around it
    const std::vector<Row>* m_runAround;
    RowWalk m_walk;
    Row m_row;
    Row m_ahead; // behind the run, if there is one
    bool m_hasAhead = false;
    std::vector<Row> m_run; // the rows that have the value of the current one
    std::size_t m_depth; // among the parts whose rows go into the spreadsheet, from 1; 0: it is none of them
    int m_countBefore = 0; // of the records, when the row began
    bool m_waitsForRecord = false;
    std::unique_ptr<BandStream> m_children;
    std::deque<Band> m_kept;
};

}

std::unique_ptr<BandStream> MakeEach(const TemplateEach& each, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<EachStream>(each, maker, stretch);
}
