#include "society/Queries.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

QString Setting(QStringView column)
{
    const Recordset settings(gCn, QStringLiteral("select * from AutoSettings"));
    return settings.Eof() ? QString() : settings[column].Text().trimmed();
}

bool Finds(const QString& query)
{
    return !Recordset(gCn, query).Eof();
}

double Figure(const QString& query)
{
    return Recordset(gCn, query).At(0).Number();
}
