#include "tests/collection/CounterTest.h"

#include "platform/database/Sql.h"
#include "tests/support/GridHeads.h"

#include <QHeaderView>
#include <QTableView>

void CounterTest::AddDelivery(const QString& date, const QString& shift, int number, int member,
    const QString& name, const QString& animal, double liters, double fat, double rate, double amount)
{
    Run(Sql(u"insert into "
            u"MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
            u"Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(1,'",
        date, u"','", shift, u"',", number, u",", member, u",'", name, u"','", animal, u"',", liters, u",",
        fat, u",", rate, u",", amount, u",0,'5.55')"));
}

void CounterTest::Set(const char* setting, const char* value)
{
    Run(Sql(
        u"update AutoSettings set ", QString::fromLatin1(setting), u"='", QString::fromLatin1(value), u"'"));
}

std::string CounterTest::Line(const DataGrid& grid, int row)
{
    const int columns = static_cast<QTableView*>(grid.Widget())->model()->columnCount();
    QStringList cells;
    for (int column = 0; column < columns; ++column)
        cells.append(grid.Cell(row, column));
    return cells.join(u'|').toStdString();
}

std::string CounterTest::Heads(const DataGrid& grid)
{
    return HeadsOf(grid);
}

std::vector<int> CounterTest::Widths(const DataGrid& grid)
{
    const auto& view = *static_cast<QTableView*>(grid.Widget());
    std::vector<int> widths;
    for (int column = 0; column < view.model()->columnCount(); ++column)
        if (view.horizontalHeader()->sectionResizeMode(column) != QHeaderView::Stretch)
            widths.push_back(view.columnWidth(column));
    return widths;
}

std::string CounterTest::Alignments(const DataGrid& grid)
{
    const QAbstractItemModel& model = *static_cast<QTableView*>(grid.Widget())->model();
    const auto isRight = [](const QVariant& alignment) { return (alignment.toInt() & Qt::AlignRight) != 0; };
    std::string sides;
    for (int column = 0; column < model.columnCount(); ++column) {
        const bool head = isRight(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole));
        const bool cell = isRight(model.data(model.index(0, column), Qt::TextAlignmentRole));
        sides += head != cell ? '?' : head ? 'r' : 'l';
    }
    return sides;
}

QStringList CounterTest::Of(std::initializer_list<const char*> lines)
{
    QStringList list;
    for (const char* line : lines)
        list.append(QString::fromLatin1(line));
    return list;
}

QStringList CounterTest::Lines(const QString& table)
{
    return Rows(Sql(u"select CollectionNo,MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount from ", table,
        u" order by CollectionDate,CollectionTime,CollectionNo"));
}
