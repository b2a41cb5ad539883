#include "collection/Counter.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

#include <QHash>
#include <QStringList>

// The names are read as they always were; the numbers beside them are read apart.
std::vector<NameCombo::Entry> Counter::MemberNames()
{
    QHash<QString, QStringList> numbers; // of a name, the lowest last
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
