#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"

// The rows of a table with their heads, groups and totals.
std::unique_ptr<BandStream> MakeTable(const TemplateTable& table, BandMaker& maker, Stretch stretch);
