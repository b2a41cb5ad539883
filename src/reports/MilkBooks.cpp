#include "reports/MilkBooks.h"

#include "core/state/AppState.h"

SqlText MilkBooks::CopyOf(const QDate& from, const QDate& to) const
{
    return Sql(u"insert into ", copy, u" select * from ", table, u" where CompanyId=", gAppState.gCompanyId,
        u" and ", date, u">=", SqlDay(from), u" and ", date, u"<=", SqlDay(to));
}
