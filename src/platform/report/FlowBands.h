#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"

// The bands of some elements, one below the other.
std::unique_ptr<BandStream> MakeFlow(
    const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch);
