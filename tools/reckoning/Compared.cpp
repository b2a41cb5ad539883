#include "tools/reckoning/Compared.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

QString Told(const FieldValue& value, int column, const std::vector<Rounded>& rounded)
{
    if (value.IsNull())
        return QStringLiteral("NULL");
    const auto of = std::find_if(
        rounded.begin(), rounded.end(), [column](const Rounded& one) { return one.column == column; });
    if (of == rounded.end())
        return value.Text();
    const QString pattern = QStringLiteral("0.") + QString(of->decimals, u'0');
    const double figure = Val(Format(value.Number(), pattern));
    return std::abs(value.Number() - figure) < of->mostLeft ? ShortestDecimal(figure) : value.Text();
}

QStringList Without(const QStringList& lines, const QStringList& others)
{
    QStringList rest;
    std::set_difference(lines.begin(), lines.end(), others.begin(), others.end(), std::back_inserter(rest));
    return rest;
}

qsizetype AlikeCells(const QStringList& cells, const QStringList& others)
{
    qsizetype alike = 0;
    for (qsizetype at = 0; at < std::min(cells.size(), others.size()); ++at)
        alike += cells[at] == others[at];
    return alike;
}

// The row of the books that is meant by a reckoned one: that which shares most with it, more than half.
qsizetype LikeOf(const QStringList& cells, const QStringList& stored)
{
    qsizetype like = -1;
    qsizetype most = cells.size() / 2;
    for (qsizetype at = 0; at < stored.size(); ++at)
        if (const qsizetype alike = AlikeCells(cells, stored[at].split(u'|')); alike > most) {
            like = at;
            most = alike;
        }
    return like;
}

}

Compared Compared::With(const QString& what, const QStringList& reckoned, const QString& query,
    const std::vector<Rounded>& rounded)
{
    Compared rows{what, {}, reckoned, {}};
    rows.reckoned.sort();
    Recordset row(gCn, query);
    for (int at = 0; at < row.Columns(); ++at)
        rows.columns.append(row.Name(at));
    for (; !row.Eof(); row.MoveNext()) {
        QStringList cells;
        for (int at = 0; at < row.Columns(); ++at)
            cells.append(Told(row.At(at), at, rounded));
        rows.stored.append(cells.join(u'|'));
    }
    rows.stored.sort();
    return rows;
}

QStringList Compared::Differences() const
{
    QStringList told;
    QStringList extra = Without(stored, reckoned);
    for (const QString& line : Without(reckoned, stored)) {
        const QStringList cells = line.split(u'|');
        const qsizetype like = LikeOf(cells, extra);
        if (like < 0) {
            told.append(what + QStringLiteral(" is missing: ") + line);
            continue;
        }
        const QStringList others = extra.takeAt(like).split(u'|');
        QStringList columnsTold;
        for (qsizetype at = 0; at < cells.size(); ++at)
            if (cells[at] != others.value(at))
                columnsTold.append(QStringLiteral("%1 is %2 and should be %3")
                                       .arg(columns.value(at), others.value(at), cells[at]));
        told.append(what + u' ' + line + QStringLiteral(": ") + columnsTold.join(QStringLiteral(", ")));
    }
    for (const QString& line : extra)
        told.append(what + QStringLiteral(" is too much: ") + line);
    return told;
}

std::vector<Rounded> Singles(std::initializer_list<int> columns)
{
    std::vector<Rounded> rounded;
    for (const int column : columns)
        rounded.push_back({column});
    return rounded;
}

std::vector<Rounded> Sums(std::initializer_list<int> columns, int decimals)
{
    constexpr double binaryDust = 1e-7;
    std::vector<Rounded> rounded;
    for (const int column : columns)
        rounded.push_back({column, decimals, binaryDust});
    return rounded;
}
