#pragma once

#include <QString>

// A column of AutoSettings, trimmed; empty if there is no row.
QString Setting(QStringView column);

// Whether a query finds anything.
bool Finds(const QString& query);

// The one figure that a query asks for, such as a sum, which is always found; Null is 0.
double Figure(const QString& query);
