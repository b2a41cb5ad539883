#pragma once

#include "platform/report/BandMaker.h"

// The strip of blocks side by side: each is laid out to its end, and the page decides how much of each it
// takes.
Band MakeLanes(const TemplateLanes& lanes, BandMaker& maker, Stretch stretch);
