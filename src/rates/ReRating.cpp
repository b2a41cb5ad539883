#include "rates/ReRating.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Painting.h"
#include "society/Queries.h"
#include "society/Words.h"

namespace {

constexpr QStringView Chart = u"select * from FatRates";

SqlText FromDay(const QDate& from)
{
    return Sql(u" where CompanyId=", gAppState.gCompanyId, u" and CollectionDate>=", SqlDay(from));
}

void SetRate(const QDate& from, QStringView animal, double fat, double rate)
{
    if (rate > 0)
        gCn.Execute(Sql(u"update MilkCollections set Rate=", rate, FromDay(from), u" and Animal=",
            Quoted(animal), u" and Fat=", fat));
}

}

bool ReRating::HasDeliveries(const QDate& from)
{
    return Finds(Sql(u"select * from MilkCollections", FromDay(from)));
}

bool ReRating::IsPaid(const QDate& from)
{
    return Finds(Sql(u"select * from MilkPayments where CompanyId=", gAppState.gCompanyId, u" and ToDate>=",
        SqlDay(from)));
}

int ReRating::Fats()
{
    int fats = 0;
    for (Recordset row(gCn, Chart); !row.Eof(); row.MoveNext())
        ++fats;
    return fats;
}

void ReRating::Run(const QDate& from, const std::function<void(double)>& done)
{
    Transaction pricing(gCn);
    for (Recordset row(gCn, Chart); !row.Eof(); row.MoveNext()) {
        const double fat = row[u"Fat"].Number();
        SetRate(from, Word::Cow, fat, row[u"CowRate"].Number());
        done(fat);
        SetRate(from, Word::Buffalo, fat, row[u"BuffRate"].Number());
        done(fat);
    }
    gCn.Execute(Sql(u"update MilkCollections set Amount=Liters * Rate", FromDay(from)));
    Painting::LetIn(); // to write the month to the disk takes a while, and nothing is painted then
    pricing.Commit();
}
