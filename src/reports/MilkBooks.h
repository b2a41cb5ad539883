#pragma once

#include "platform/database/Sql.h"

// Where deliveries and sales are kept, and what the same columns are called there.
struct MilkBooks {
    QStringView table, copy, date, time, number, name;
    bool holdsSnf = false;

    // The statement that copies the selected company's rows of some days into the working copy.
    SqlText CopyOf(const QDate& from, const QDate& to) const;
};

inline constexpr MilkBooks CollectionBooks{u"MilkCollections", u"MilkCollectionsTemp", u"CollectionDate",
    u"CollectionTime", u"CollectionNo", u"MemberName", false};
inline constexpr MilkBooks SalesBooks{
    u"MilkSales", u"MilkSalesTemp", u"SalesDate", u"SalesTime", u"SalesNo", u"CustomerName", true};
