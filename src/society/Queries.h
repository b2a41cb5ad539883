#pragma once

#include <QString>

// A setting of the society, without blanks at its ends; empty where there are no settings.
QString Setting(QStringView column);

// Whether a query gives a row.
bool Finds(const QString& query);
