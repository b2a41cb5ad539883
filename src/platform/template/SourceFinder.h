#pragma once

#include "platform/database/Catalogue.h"
#include "platform/template/ChoiceCheck.h"
#include "platform/template/ReportTemplate.h"

// Finds the sources and columns that the names of a template stand for, and keeps account of the sources
// whose rows are gone through where the check stands.
class SourceFinder {
public:
    SourceFinder(ReportTemplate& report, Catalogue& catalogue, TemplateFaults& faults);

    void Fault(int line, const QString& text);

    // The source of a name; -1 and a fault if there is none.
    int FindSource(const QString& name, int line);

    // The position of a column among those that are read of a source; -1 if its table hasn't got it. A source
    // whose table is unknown takes every name: that fault is told once.
    int FindColumn(int source, const QString& name);

    // The sources that a field may be of: the one that it names, or else those that are being walked, the
    // innermost first, or else the first of all. None, and a fault, for a name that is no source's.
    std::vector<int> Candidates(const QString& name, int line);

    // Begins to walk through the rows of a source, or only stands at one of its rows, to look whether it is
    // to be taken. Leave ends the last of them.
    void Walk(int source);
    void StandAt(int source) { m_walked.push_back(source); }
    void Leave() { m_walked.pop_back(); }
    bool IsWalked(int source) const;

    // Tells of a source that hangs on another whose rows aren't being walked through.
    void RequireParent(int source, int line);

    // A field of a source is read here.
    void NoteReading(int source);

    // Whether the row of a source goes by one that is being walked through.
    bool MovesOn(int source) const;

    // How the sources have been come by so far.
    const SourceUse& Use() const { return m_use; }

private:
    ReportTemplate& m_report;
    Catalogue& m_catalogue;
    TemplateFaults& m_faults;
    std::vector<int> m_walked; // the innermost last
    SourceUse m_use;
};
