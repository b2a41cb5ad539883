#pragma once

#include <QDate>
#include <QString>

// Stages the sales to an account of the federation, to be compared with the society's own measure of them.
namespace SalesComparison {

// Stages the sales to the account in some days, both included. If there are none, the dates of the report
// before are left as they were.
void Stage(const QString& account, const QDate& from, const QDate& to);

// The query of the sales that are staged.
QString Staged();

}
