#pragma once

#include "platform/report/Outcome.h"

#include <QIODevice>
#include <QStringList>

#include <functional>
#include <vector>

// Writes a file beside its place and puts it there when it is whole; a failure leaves what was there before
// and nothing else. A new file has the rights that the user's own mask gives it, however private the process
// keeps its files. `write` returns false if the device didn't take all of it.
Outcome WriteWhole(const QString& file, const std::function<bool(QIODevice&)>& write);

// Rows as a table for a spreadsheet: UTF-8 with its mark in front, a comma between cells, a cell that holds
// a comma, a quote or a line's end in quotes.
bool WriteCsv(QIODevice& device, const std::vector<QStringList>& rows);
