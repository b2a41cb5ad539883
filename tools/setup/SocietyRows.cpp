#include "tools/setup/SocietyRows.h"

#include "delivered/Delivered.h"
#include "platform/text/Shivaji01.h"
#include "tools/setup/Society.h"

#include <QStringList>

#include <algorithm>

QDate FirstDay(const QString& year)
{
    return QDate(year.left(4).toInt(), 4, 1);
}

QDate LastDay(const QString& year)
{
    return QDate(year.right(4).toInt(), 3, 31);
}

namespace {

bool HasDevanagari(QStringView text)
{
    return std::any_of(
        text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Devanagari; });
}

QString FilledIn(const SocietyPlan& plan)
{
    QString rows = Delivered::Rows();
    const QDate from = FirstDay(plan.year);
    rows.replace(QStringLiteral("{society}"), plan.name.trimmed());
    rows.replace(QStringLiteral("{year}"), plan.year);
    rows.replace(QStringLiteral("{from}"), from.toString(Qt::ISODate));
    rows.replace(QStringLiteral("{to}"), LastDay(plan.year).toString(Qt::ISODate));
    rows.replace(QStringLiteral("{chart}"), ChartName(from));
    return rows;
}

// The cells of each line of a delivered table, without its heading.
QList<QStringList> Cells(const QString& table)
{
    QList<QStringList> cells;
    const QStringList lines = table.split(u'\n', Qt::SkipEmptyParts);
    for (qsizetype i = 1; i < lines.size(); ++i)
        cells.append(lines[i].split(u'\t'));
    return cells;
}

QString ChartRows(const QString& chart)
{
    QStringList values;
    for (const QStringList& row : Cells(Delivered::FirstChart()))
        values.append(u'(' % Quoted(row[0]) % u',' % Quoted(row[1]) % u',' % Quoted(row[2]) % u')');
    return QStringLiteral("insert into ") % chart % QStringLiteral(" values ") % values.join(u',') % u';';
}

// The account under which the reports look for the federation. The demonstration's customers have theirs.
QString FederationRow(const SocietyPlan& plan)
{
    if (plan.federation.trimmed().isEmpty() || plan.demo)
        return {};
    return QStringLiteral("insert into AccountsMaster values (1, 3, ") % Quoted(plan.federation.trimmed())
        % QStringLiteral(", 'Debtors', 'saMGa', 0, 'D', 0, 'D');");
}

QString NumberWordRows()
{
    QStringList values;
    for (const QStringList& row : Cells(Delivered::NumberWords()))
        values.append(u'(' % row[0] % u',' % Quoted(row[1]) % u')');
    return QStringLiteral("insert into rswords (no1, word1) values ") % values.join(u',') % u';';
}

int Paise(const QString& rate)
{
    return qRound(rate.toDouble() * 100);
}

}

QString Spelled(const QString& script)
{
    QString spelled;
    spelled.reserve(script.size());
    qsizetype at = 0;
    while (at < script.size()) {
        const bool comment = QStringView(script).mid(at).startsWith(u"--");
        const QChar first = script[at];
        if (!comment && first != u'\'') {
            spelled += first;
            ++at;
            continue;
        }
        qsizetype end = script.indexOf(comment ? u'\n' : u'\'', at + 1);
        end = end < 0 ? script.size() : end + 1;
        const QStringView piece = QStringView(script).mid(at, end - at);
        if (!comment && HasDevanagari(piece))
            spelled += Quoted(Shivaji01::FromUnicode(piece.mid(1, piece.size() - 2)));
        else
            spelled += piece;
        at = end;
    }
    return spelled;
}

QString Quoted(QStringView text)
{
    return u'\'' % text % u'\'';
}

QString Decimal(qint64 units, int decimals)
{
    QString digits = QString::number(units).rightJustified(decimals + 1, u'0');
    digits.insert(digits.size() - decimals, u'.');
    while (digits.endsWith(u'0'))
        digits.chop(1);
    if (digits.endsWith(u'.'))
        digits.chop(1);
    return digits;
}

QString DeliveredScript(const SocietyPlan& plan)
{
    return Spelled(Delivered::Schema() % FilledIn(plan) % FederationRow(plan)
        % ChartRows(ChartName(FirstDay(plan.year))) % NumberWordRows());
}

FirstChart ReadFirstChart()
{
    FirstChart chart;
    for (const QStringList& row : Cells(Delivered::FirstChart())) {
        const auto tenths = static_cast<std::size_t>(qRound(row[0].toDouble() * 10));
        chart.cow.at(tenths) = Paise(row[1]);
        chart.buffalo.at(tenths) = Paise(row[2]);
    }
    return chart;
}

QString ChartName(const QDate& date)
{
    return QStringLiteral("Fat") % date.toString(QStringLiteral("ddMMyy"));
}
