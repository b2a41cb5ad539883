#include "collection/CopySums.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Words.h"

double MilkSums::AverageFat() const
{
    return liters == 0 && litersByFat == 0 ? 0 : litersByFat / liters;
}

MilkSums HalfDaySums::Both() const
{
    return {morning.liters + evening.liters, morning.amount + evening.amount,
        morning.litersByFat + evening.litersByFat};
}

CopySums WalkCopy()
{
    CopySums sums;
    for (Recordset row(gCn, Sql(u"select * from MilkCollectionsTemp where CompanyId=", gAppState.gCompanyId));
         !row.Eof(); row.MoveNext()) {
        const QString time = row[u"CollectionTime"].Text(); // columns in the table's order are found sooner
        const QString animal = row[u"Animal"].Text();
        if (!IsAnimal(animal) || !IsShift(time))
            continue;
        HalfDaySums& ofAnimal = animal == Word::Cow ? sums.cow : sums.buff;
        MilkSums& sum = time == Word::Morning ? ofAnimal.morning : ofAnimal.evening;
        const double liters = row[u"Liters"].Number();
        sum.liters += liters;
        sum.litersByFat += liters * row[u"Fat"].Number();
        sum.amount += row[u"Amount"].Number();
    }
    return sums;
}
