#pragma once

#include <QString>

// A column of AutoSettings, trimmed; empty if there is no row.
QString Setting(QStringView column);

// Whether a query finds anything.
bool Finds(const QString& query);
