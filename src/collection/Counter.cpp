#include "Counter.h"

#include "MdlAccounts.h"
#include "Recordset.h"

QStringList Counter::MemberNames()
{
    QStringList names;
    for (Recordset member(gCn, QStringLiteral("SELECT MemberName FROM MembersMaster order by MemberName"));
         !member.Eof(); member.MoveNext())
        names.append(member[u"MemberName"].Text());
    return names;
}
