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

QString Counter::Setting(QStringView column)
{
    const Recordset settings(gCn, QStringLiteral("select * from AutoSettings"));
    return settings.Eof() ? QString() : settings[column].Text().trimmed();
}

bool Counter::Finds(const QString& query)
{
    return !Recordset(gCn, query).Eof();
}
