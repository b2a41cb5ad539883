#pragma once

#include "platform/report/Band.h"

// A part of a template that gives its strips one after the other, reading rows as it goes.
class BandStream {
public:
    virtual ~BandStream() = default;

    // Puts the next strip into `band`, which is empty; false at the end.
    virtual bool Next(Band& band) = 0;
};
