#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"

// The bands of an <each>: its elements for each row of a source, or for each value.
std::unique_ptr<BandStream> MakeEach(const TemplateEach& each, BandMaker& maker, Stretch stretch);
