#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"

// Some elements once for each row of a source, or for each value that its rows have.
std::unique_ptr<BandStream> MakeEach(const TemplateEach& each, BandMaker& maker, Stretch stretch);
