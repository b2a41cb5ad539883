#pragma once

#include "platform/forms/DataGrid.h"

#include <QStringList>
#include <QTableView>

// The captions of a list's columns as they are seen, "दिनांक|वेळ".
inline std::string HeadsOf(const DataGrid& grid)
{
    const QAbstractItemModel& model = *static_cast<QTableView*>(grid.Widget())->model();
    QStringList heads;
    for (int column = 0; column < model.columnCount(); ++column)
        heads.append(model.headerData(column, Qt::Horizontal).toString());
    return heads.join(u'|').toStdString();
}
