#pragma once

#include "platform/report/BandMaker.h"

// The band of blocks side by side. All of each block is laid out now; how much of it a page takes is decided
// when it is placed.
Band MakeLanes(const TemplateLanes& lanes, BandMaker& maker, Stretch stretch);
