#include "society/Names.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/text/Shivaji01.h"

#include <QHash>

#include <utility>

namespace {

// Stands on the first row from here on for which `isIt` is true.
template <typename Test> Recordset FirstRow(Recordset row, Test isIt)
{
    while (!row.Eof() && !isIt(row))
        row.MoveNext();
    return row;
}

// The person with this number, provided that the name in the list is theirs and no other row was picked.
Recordset PersonNumbered(const PeopleTable& people, const NameCombo& list, double number)
{
    const QString name = list.Text().trimmed();
    return FirstRow(PersonOfNumber(people, number), [&](const Recordset& row) {
        return !name.isEmpty() && row[people.name].Text().trimmed() == name
            && list.MayMean(row[people.number].Text());
    });
}

}

Recordset PersonOfNumber(const PeopleTable& people, double number)
{
    return {gCn, Sql(u"SELECT * FROM ", people.table, u" where ", people.number, u"=", number)};
}

Recordset MemberOfNumber(double number)
{
    return PersonOfNumber(People::Members, number);
}

Recordset RowOfName(const QString& query, QStringView column, const QString& name, const IsMeant& isMeant)
{
    const QString spelling = name.trimmed();
    const QString reading = Shivaji01::Reading(name);
    const auto isOne = [&](const Recordset& row) { return !isMeant || isMeant(row); };
    Recordset found = FirstRow(Recordset(gCn, query), [&](const Recordset& row) {
        return !spelling.isEmpty() && row[column].Text().trimmed() == spelling && isOne(row);
    });
    if (found.Eof())
        found = FirstRow(Recordset(gCn, query), [&](const Recordset& row) {
            return !reading.isEmpty() && Shivaji01::Reading(row[column].Text()) == reading && isOne(row);
        });
    return found;
}

Recordset PersonOfName(const PeopleTable& people, const NameCombo& list)
{
    return RowOfName(Sql(u"SELECT * FROM ", people.table), people.name, list.Text(),
        [&](const Recordset& row) { return list.MayMean(row[people.number].Text()); });
}

Recordset PersonOfName(const PeopleTable& people, const NameCombo& list, double number)
{
    Recordset numbered = PersonNumbered(people, list, number);
    return numbered.Eof() ? PersonOfName(people, list) : std::move(numbered);
}

Recordset MemberOfName(const QString& name)
{
    return RowOfName(QStringLiteral("SELECT * FROM MembersMaster"), u"MemberName", name);
}

Recordset MemberOfName(const NameCombo& list)
{
    return PersonOfName(People::Members, list);
}

Recordset MemberOfName(const NameCombo& list, double number)
{
    return PersonOfName(People::Members, list, number);
}

bool IsNameOf(const NameCombo& list, double number)
{
    return !PersonNumbered(People::Members, list, number).Eof();
}

void ShowMember(NameCombo& list, const Recordset& row)
{
    list.SetEntry({row[u"MemberName"].Text(), row[u"MemberNo"].Text()});
}

QStringList SpellingsOf(QStringView table, QStringView column, const QString& name)
{
    QStringList spellings{name};
    const QString reading = Shivaji01::Reading(name);
    for (Recordset row(gCn, Sql(u"select ", column, u" from ", table)); !row.Eof(); row.MoveNext()) {
        const QString text = row[column].Text();
        if (!reading.isEmpty() && !spellings.contains(text) && Shivaji01::Reading(text) == reading)
            spellings.append(text);
    }
    return spellings;
}

// The names come in the order of the system's own query; the numbers are matched to them from a second one.
std::vector<NameCombo::Entry> MemberNames()
{
    QHash<QString, QStringList> numbers; // by name, the lowest last
    for (Recordset member(
             gCn, QStringLiteral("SELECT MemberNo,MemberName FROM MembersMaster order by MemberNo desc"));
         !member.Eof(); member.MoveNext())
        numbers[member[u"MemberName"].Text()].append(member[u"MemberNo"].Text());
    std::vector<NameCombo::Entry> names;
    for (Recordset member(gCn, QStringLiteral("SELECT MemberName FROM MembersMaster order by MemberName"));
         !member.Eof(); member.MoveNext()) {
        const QString name = member[u"MemberName"].Text();
        QStringList& left = numbers[name];
        names.push_back({name, left.isEmpty() ? QString() : left.takeLast()});
    }
    return names;
}
