#include "Names.h"

#include "MdlAccounts.h"
#include "NameCombo.h"
#include "Shivaji01.h"
#include "Sql.h"

namespace {

template <typename Test> Recordset FirstRow(const QString& query, Test isIt)
{
    Recordset row(gCn, query);
    while (!row.Eof() && !isIt(row))
        row.MoveNext();
    return row;
}

}

Recordset RowOfName(const QString& query, QStringView column, const QString& name, const IsMeant& isMeant)
{
    const QString spelling = name.trimmed();
    const QString reading = Shivaji01::Reading(name);
    const auto isOne = [&](const Recordset& row) { return !isMeant || isMeant(row); };
    Recordset found = FirstRow(query, [&](const Recordset& row) {
        return !spelling.isEmpty() && row[column].Text().trimmed() == spelling && isOne(row);
    });
    if (found.Eof())
        found = FirstRow(query, [&](const Recordset& row) {
            return !reading.isEmpty() && Shivaji01::Reading(row[column].Text()) == reading && isOne(row);
        });
    return found;
}

Recordset MemberOfName(const QString& name)
{
    return RowOfName(QStringLiteral("SELECT * FROM MembersMaster"), u"MemberName", name);
}

Recordset MemberOfName(const NameCombo& list)
{
    return RowOfName(QStringLiteral("SELECT * FROM MembersMaster"), u"MemberName", list.Text(),
        [&](const Recordset& row) { return list.MayMean(row[u"MemberNo"].Text()); });
}

void ShowStoredName(NameCombo& list, const Recordset& member)
{
    const QString stored = member[u"MemberName"].Text();
    if (list.Text() != stored)
        list.SetText(stored);
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
