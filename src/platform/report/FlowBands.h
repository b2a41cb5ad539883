#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"

// The elements of a template one under the other.
std::unique_ptr<BandStream> MakeFlow(
    const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch);
