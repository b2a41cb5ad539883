#pragma once

#include "platform/report/Outcome.h"

#include <QIODevice>
#include <QStringList>

#include <functional>
#include <vector>

// Writes a file under a temporary name and puts it in place when it is complete; on failure, what was there
// before is untouched. A new file gets the rights of the user's umask, however private the files of this
// process are. `write` returns false if the device didn't take everything.
Outcome WriteWhole(const QString& file, const std::function<bool(QIODevice&)>& write);

// Writes rows as CSV for a spreadsheet: UTF-8 with a byte order mark, commas between cells, and quotes
// around a cell with a comma, a quote or a line break.
bool WriteCsv(QIODevice& device, const std::vector<QStringList>& rows);
