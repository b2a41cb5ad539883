#pragma once

#include "platform/database/Catalogue.h"
#include "platform/template/ChoiceCheck.h"
#include "platform/template/ReportTemplate.h"

// Finds the sources and columns that the names in a template stand for. It also knows which sources are
// being walked, that is gone through row by row, at the place that is being checked.
class SourceFinder {
public:
    SourceFinder(ReportTemplate& report, Catalogue& catalogue, TemplateFaults& faults);

    void Fault(int line, const QString& text);

    // The index of the source with that name; -1 and a fault if there is none.
    int FindSource(const QString& name, int line);

    // The index of a column in the columns of a source, where it is added if need be; -1 if the table
    // doesn't have it. If the table itself is unknown, that was reported already, and any name passes.
    int FindColumn(int source, const QString& name);

    // Where a field is looked for: in the source that it names, or else in those that are being walked,
    // innermost first, or else in the first one. Empty, with a fault, if it names a source that doesn't
    // exist.
    std::vector<int> Candidates(const QString& name, int line);

    // Walk: an element goes through the rows of a source, from here to Leave. StandAt does the same for the
    // `only` of a source, which reads one row at a time, but doesn't count the source as one that an element
    // goes through. Leave ends whichever of them was called last.
    void Walk(int source);
    void StandAt(int source) { m_walked.push_back(source); }
    void Leave() { m_walked.pop_back(); }
    bool IsWalked(int source) const;

    // A fault if the source is linked to another one that isn't being walked.
    void RequireParent(int source, int line);

    // Notes that a field of the source is used here.
    void NoteReading(int source);

    // True if the current row of the source changes with one of the walks around.
    bool MovesOn(int source) const;

    // How the sources have been used so far.
    const SourceUse& Use() const { return m_use; }

private:
    ReportTemplate& m_report;
    Catalogue& m_catalogue;
    TemplateFaults& m_faults;
    std::vector<int> m_walked; // the innermost last
    SourceUse m_use;
};
