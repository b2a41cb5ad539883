#pragma once

#include "platform/report/Band.h"

// A part of a template that makes its bands one by one and reads rows as it needs them.
class BandStream {
public:
    virtual ~BandStream() = default;

    // Puts the next band into `band`, which is empty; false at the end.
    virtual bool Next(Band& band) = 0;
};
