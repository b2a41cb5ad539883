#pragma once

#include "platform/report/BandMaker.h"

// The strips of a chart: one.
Band MakeChart(const TemplateChart& chart, BandMaker& maker, Stretch stretch);
