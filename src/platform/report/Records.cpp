#include "platform/report/Records.h"

#include "platform/report/Evaluation.h"

#include <algorithm>

namespace {

using Elements = std::vector<TemplateElement>;

// Looks into the blocks of an element, from left to right; true if `find` returned true.
template <typename Find> bool InLanes(const TemplateElement& element, const Find& find)
{
    const TemplateLanes* const lanes = element.As<TemplateLanes>();
    return lanes && std::any_of(lanes->lanes.begin(), lanes->lanes.end(), [&](const TemplateLane& lane) {
        return find(lane.elements);
    });
}

bool FindTable(const Elements& elements, RecordPlan& plan)
{
    for (const TemplateElement& element : elements) {
        if (const TemplateTable* const table = element.As<TemplateTable>()) {
            plan.table = table;
            return true;
        }
        if (const TemplateEach* const each = element.As<TemplateEach>()) {
            plan.around.push_back(each);
            if (FindTable(each->elements, plan))
                return true;
            plan.around.pop_back();
        }
        if (InLanes(element, [&](const Elements& inside) { return FindTable(inside, plan); }))
            return true;
    }
    return false;
}

// Finds the first <each>, and the <each> inside of it down to the innermost.
bool FindEach(const Elements& elements, RecordPlan& plan)
{
    for (const TemplateElement& element : elements) {
        if (const TemplateEach* const each = element.As<TemplateEach>()) {
            plan.around.push_back(each);
            plan.each = each;
            FindEach(each->elements, plan);
            return true;
        }
        if (InLanes(element, [&](const Elements& inside) { return FindEach(inside, plan); }))
            return true;
    }
    return false;
}

QStringList TableHeads(const TemplateTable& table, ReportData& data)
{
    QStringList heads;
    for (const TemplateGroup& group : table.groups)
        heads.append(group.label.isEmpty() ? group.name : group.label);
    QStringList spans;
    for (const TemplateSpan& span : table.spans)
        spans.append(QList<QString>(span.columns, Fill(span.text, data)));
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].cell.IsEmpty())
            continue;
        const QString head =
            spans.value(static_cast<qsizetype>(i)) + u' ' + Fill(table.columns[i].head, data);
        heads.append(head.trimmed());
    }
    return heads;
}

}

RecordPlan RecordPlan::Of(const std::vector<TemplateElement>& body)
{
    RecordPlan plan;
    if (!FindTable(body, plan))
        FindEach(body, plan);
    return plan;
}

QStringList RecordHeads(const RecordPlan& plan, ReportData& data)
{
    QStringList heads;
    for (const TemplateEach* part : plan.around)
        heads += part->by ? QStringList(part->byName) : FieldNames(part->source, data);
    if (plan.table)
        heads += TableHeads(*plan.table, data);
    return heads;
}

std::size_t RecordPlan::DepthOf(const TemplateEach& part) const
{
    const auto found = std::find(around.begin(), around.end(), &part);
    return found == around.end() ? 0 : static_cast<std::size_t>(found - around.begin()) + 1;
}

QStringList FieldsAround(const RecordPlan& plan, std::size_t parts, ReportData& data)
{
    QStringList fields;
    for (std::size_t i = 0; i < parts; ++i)
        fields += plan.around[i]->by ? QStringList(Evaluate(*plan.around[i]->by, data).Text())
                                     : Fields(plan.around[i]->source, data);
    return fields;
}

QStringList FieldNames(int source, const ReportData& data)
{
    QStringList names;
    for (const SourceColumn& column : data.Template().sources[static_cast<std::size_t>(source)].columns)
        names.append(column.name);
    return names;
}

QStringList Fields(int source, ReportData& data)
{
    QStringList fields;
    const Row* const row = data.CurrentRow(source);
    const TemplateSource& from = data.Template().sources[static_cast<std::size_t>(source)];
    for (std::size_t i = 0; row && i < row->size(); ++i) {
        const SourceColumn& column = from.columns[i];
        const bool isSeen = column.isPrintedSeen || !column.isPrintedPlain;
        const Value& value = (*row)[i];
        fields.append(value.kind == Value::Kind::Text && isSeen ? data.Seen(value.text) : value.Text());
    }
    return fields;
}
