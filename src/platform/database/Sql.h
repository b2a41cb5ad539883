#pragma once

#include "Dates.h"
#include "Numbers.h"

#include <QDate>
#include <QString>

#include <concepts>

// Puts a statement together: texts go in as they stand (no escaping), numbers in their shortest form.
// Sql(u"select * from T where No=", n, u" and Name='", name, u"'")
namespace SqlPieces {

inline void Append(QString& sql, QStringView text)
{
    sql += text;
}
inline void Append(QString& sql, const QString& text)
{
    sql += text;
}
inline void Append(QString& sql, double number)
{
    sql += ShortestDecimal(number);
}
inline void Append(QString& sql, float number)
{
    sql += ShortestDecimal(number);
}
inline void Append(QString& sql, std::integral auto number)
{
    sql += QString::number(number);
}

}

template <class... Pieces> QString Sql(const Pieces&... pieces)
{
    QString sql;
    sql.reserve(256);
    (SqlPieces::Append(sql, pieces), ...);
    return sql;
}

// A day as the conditions of statements write it: #MM/dd/yyyy#.
inline QString SqlDay(const QDate& day)
{
    return Format(day, u"#MM/dd/yyyy#");
}
