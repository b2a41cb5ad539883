#include "tests/collection/DayBook.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

#include <gtest/gtest.h>

#include <QSet>

DayBook::DayBook()
{
    BeginAnew();
}

void DayBook::BeginAnew()
{
    m_rows = Read();
}

void DayBook::Look()
{
    const Books now = Read();
    QSet<QString> endedSeries;
    int entered = 0;
    int changed = 0;
    for (const auto& [key, row] : m_rows)
        if (!now.contains(key))
            endedSeries.insert(row.series);
    for (const auto& [key, row] : now) {
        EXPECT_FALSE(endedSeries.contains(row.series)) << row.series.toStdString();
        const auto before = m_rows.find(key);
        if (before == m_rows.end()) {
            ++entered;
            ExpectWhole(row);
        } else if (before->second.all != row.all) {
            ++changed;
            EXPECT_EQ(before->second.series, row.series);
        }
    }
    const int ended = static_cast<int>(endedSeries.size());
    EXPECT_LE(entered + changed + ended, 1);
    Entered += entered;
    Changed += changed;
    Deleted += ended;
    m_rows = now;
}

DayBook::Books DayBook::Read()
{
    Books books;
    for (Recordset row(gCn, "select * from MilkCollections"); !row.Eof(); row.MoveNext()) {
        const QString member = row[u"MemberNo"].Text();
        const QString time = row[u"CollectionTime"].Text();
        const QString number = row[u"CollectionNo"].Text();
        QString all;
        for (int column = 0; column < row.Columns(); ++column)
            all += row.At(column).Text() + u'|';
        const auto [at, isFirst] = books.insert(
            {{row[u"MemberNo"].Number(), row[u"CollectionDate"].Text(), time, row[u"Animal"].Text()},
                {member + u' ' + time + u' ' + number, row[u"CollectionNo"].Number(), row[u"Liters"].Number(),
                    row[u"Fat"].Number(), all}});
        EXPECT_TRUE(isFirst) << "twice: " << all.toStdString();
    }
    return books;
}

void DayBook::ExpectWhole(const Row& row)
{
    EXPECT_GE(row.number, 1) << row.all.toStdString();
    EXPECT_GT(row.liters, 0) << row.all.toStdString();
    EXPECT_GT(row.fat, 0) << row.all.toStdString();
    EXPECT_LE(row.fat, 30) << row.all.toStdString();
}
