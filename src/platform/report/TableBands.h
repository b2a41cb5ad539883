#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"

// The bands of a table: its heads, rows, groups and totals.
std::unique_ptr<BandStream> MakeTable(const TemplateTable& table, BandMaker& maker, Stretch stretch);
