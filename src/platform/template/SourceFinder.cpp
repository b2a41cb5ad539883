#include "platform/template/SourceFinder.h"

#include <algorithm>

namespace {

ValueType TypeOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Text:
        return ValueType::Text;
    case ColumnType::Number:
        return ValueType::Number;
    case ColumnType::Date:
        return ValueType::Date;
    case ColumnType::Unknown:
        break;
    }
    return ValueType::Unknown;
}

}

SourceFinder::SourceFinder(ReportTemplate& report, Catalogue& catalogue, TemplateFaults& faults)
    : m_report(report)
    , m_catalogue(catalogue)
    , m_faults(faults)
{
}

void SourceFinder::Fault(int line, const QString& text)
{
    if (m_faults.size() <= TemplateFault::Most)
        m_faults.push_back({m_report.file, line, text});
}

int SourceFinder::FindSource(const QString& name, int line)
{
    for (std::size_t i = 0; i < m_report.sources.size(); ++i) {
        if (m_report.sources[i].name == name)
            return static_cast<int>(i);
    }
    if (!name.isEmpty())
        Fault(line, QStringLiteral("there is no source \"%1\"").arg(name));
    return -1;
}

int SourceFinder::FindColumn(int source, const QString& name)
{
    TemplateSource& from = m_report.sources[static_cast<std::size_t>(source)];
    for (std::size_t i = 0; i < from.columns.size(); ++i) {
        if (from.columns[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    SourceColumn column;
    column.name = name;
    if (const std::shared_ptr<const Table> table = m_catalogue.Find(from.table)) {
        const Column* found = table->Find(name);
        if (!found)
            return -1;
        column.name = found->name;
        column.type = TypeOf(found->type);
    }
    from.columns.push_back(column);
    return static_cast<int>(from.columns.size()) - 1;
}

void SourceFinder::Walk(int source)
{
    m_walked.push_back(source);
    m_use.walked.insert(source);
}

void SourceFinder::RequireParent(int source, int line)
{
    const TemplateSource& own = m_report.sources[static_cast<std::size_t>(source)];
    if (own.parent >= 0 && !IsWalked(own.parent))
        Fault(line,
            QStringLiteral("the rows of \"%1\" can be gone through only inside an <each> of \"%2\"")
                .arg(own.name, own.parentName));
}

void SourceFinder::NoteReading(int source)
{
    const std::vector<TemplateSource>& sources = m_report.sources;
    for (;;) {
        if (IsWalked(source))
            return;
        const int parent = sources[static_cast<std::size_t>(source)].parent;
        if (parent < 0)
            break;
        source = parent;
    }
    m_use.readByFirstRow.insert(source);
}

// A linked source changes its row with the one it is linked to.
bool SourceFinder::MovesOn(int source) const
{
    while (source >= 0 && !IsWalked(source))
        source = m_report.sources[static_cast<std::size_t>(source)].parent;
    return source >= 0;
}

bool SourceFinder::IsWalked(int source) const
{
    return std::find(m_walked.begin(), m_walked.end(), source) != m_walked.end();
}

std::vector<int> SourceFinder::Candidates(const QString& name, int line)
{
    if (!name.isEmpty()) {
        const int source = FindSource(name, line);
        return source < 0 ? std::vector<int>() : std::vector<int>{source};
    }
    if (m_walked.empty() && !m_report.sources.empty())
        return {0};
    return {m_walked.rbegin(), m_walked.rend()};
}
