#include "reports/DayLines.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"

#include <algorithm>

namespace {

SqlText RowsOf(const MilkBooks& books)
{
    return Sql(u"select * from ", books.copy, u" where CompanyId=", gAppState.gCompanyId);
}

}

// Goes through what was brought in a shift: the first row, and then each with a greater number.
class DayLines::Walk {
public:
    explicit Walk(const Entries& entries) : m_entries(entries) { }

    std::optional<Entry> Next()
    {
        if (m_at == m_entries.size())
            return {};
        const Entry& entry = m_entries[m_at];
        while (m_at < m_entries.size() && m_entries[m_at].number <= entry.number)
            ++m_at;
        return entry;
    }

private:
    const Entries& m_entries;
    std::size_t m_at = 0;
};

DayLines::DayLines(const Person& person, const Style& style)
    : m_ofPerson(Values(person.memberNo, person.name))
    , m_style(style)
{
}

DayLines::DayLines(const MilkBooks& books, const Person& person, const Style& style) : DayLines(person, style)
{
    Read(books, Sql(RowsOf(books), u" order by ", books.number));
}

DayLines DayLines::OfMember(const Person& member, const Style& style)
{
    DayLines lines(member, style);
    lines.Read(CollectionBooks,
        Sql(RowsOf(CollectionBooks), u" and MemberNo=", member.memberNo, u" order by CollectionNo"));
    return lines;
}

void DayLines::Read(const MilkBooks& books, const QString& rows)
{
    for (Recordset row(gCn, rows); !row.Eof(); row.MoveNext()) {
        const auto animal = std::find(std::begin(Animals), std::end(Animals), row[u"Animal"].Text());
        const QString time = row[books.time].Text();
        if (animal == std::end(Animals) || !IsShift(time))
            continue;
        Shifts& shifts = m_days[row[books.date].Date()].at(
            static_cast<std::size_t>(std::distance(std::begin(Animals), animal)));
        (time == Word::Morning ? shifts.morning : shifts.evening)
            .push_back({row[books.number].Number(), books.holdsSnf ? row[u"SNF"].Number() : 0,
                row[u"Liters"].Number(), row[u"Fat"].Number(), row[u"Rate"].Number(),
                row[u"Amount"].Number()});
    }
}

std::vector<QDate> DayLines::Days() const
{
    std::vector<QDate> days;
    days.reserve(m_days.size());
    for (const auto& [day, shifts] : m_days)
        days.push_back(day);
    return days;
}

void DayLines::Write(const QDate& day, QStringView animal) const
{
    static const Shifts nothing;
    const auto found = m_days.find(day);
    const Shifts& shifts = found == m_days.end() ? nothing : found->second.at(animal == Word::Cow ? 0 : 1);
    Walk mornings(shifts.morning);
    Walk evenings(shifts.evening);
    bool isFirst = true;
    do {
        const std::optional<Entry> morning = mornings.Next();
        const std::optional<Entry> evening = evenings.Next();
        const bool isWanted = morning || evening || (isFirst && m_style.withEmpty);
        if (!isWanted)
            return;
        WriteLine(day, animal, morning, evening, isFirst && m_style.withSnf);
        isFirst = false;
    } while (m_style.repeats);
}

// Half of a line; most lines have one that is all noughts.
SqlText DayLines::HalfOf(const std::optional<Entry>& entry)
{
    static const SqlText noughts = Values(0, 0, 0, 0);
    return entry ? Values(entry->liters, entry->fat, entry->rate, entry->amount) : noughts;
}

void DayLines::WriteLine(const QDate& day, QStringView animal, const std::optional<Entry>& morning,
    const std::optional<Entry>& evening, bool withSnf) const
{
    const auto snfOf = [](const std::optional<Entry>& entry) { return entry ? entry->snf : 0; };
    gCn.Execute(Sql(u"insert into MilkCollectionsME(CompanyId,CollectionDate,MemberNo,MemberName,Animal,"
                    u"LitersM,FatM,RateM,AmountM,LitersE,FatE,RateE,AmountE",
        withSnf ? u",SNFM,SNFE" : u"", u") values(", Values(gAppState.gCompanyId, day), u",", m_ofPerson,
        u",", Quoted(animal), u",", HalfOf(morning), u",", HalfOf(evening),
        withSnf ? Sql(u",", Values(snfOf(morning), snfOf(evening))) : SqlText(), u")"));
}
