#pragma once

#include <cstdint>

// A device that weighs and tests in one ("MCS").
class CombinedReading {
public:
    virtual ~CombinedReading() = default;

    // One reading as a number of nine digits: six for the litres in thousandths, three for the fat in tenths.
    // Negative if there is none.
    virtual std::int32_t ReadDataCom1() = 0;
};

// The device on the first port, at 2400 baud. It sends its reading by itself, again and again, as nine digits
// and a line end; nothing is sent to it.
class SerialCombinedReading final : public CombinedReading {
public:
    std::int32_t ReadDataCom1() override;
};
