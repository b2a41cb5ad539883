#pragma once

#include "platform/report/BandMaker.h"

// The band of a chart, as one picture.
Band MakeChart(const TemplateChart& chart, BandMaker& maker, Stretch stretch);
