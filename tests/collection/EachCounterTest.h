#pragma once

#include "tests/collection/CounterTest.h"

#include <string_view>

// What holds at every counter of the society alike; the parameter is the counter's screen.
class EachCounterTest : public CounterTest, public ::testing::WithParamInterface<const char*> {
protected:
    static bool IsGate() { return GetParam() == std::string_view("frmCollectionGate"); }

    // Plays with a shift open and the focus on the collection number.
    void InTheShift(const std::function<void(Clerk&)>& script)
    {
        if (IsGate())
            AtTheGate(script);
        else
            InTheMorning(script);
    }

    // The litres of a field as this counter writes them: two or three decimals.
    static std::string Litres(const char* twoDecimals)
    {
        return std::string(twoDecimals) + (IsGate() ? "" : "0");
    }

    // What the last script did came to its end; otherwise the error that ended it.
    std::string Error() const { return Failure ? std::string(Failure->what()) : std::string(); }
};

// The counters, as the parameters of such a test.
inline auto Counters()
{
    return ::testing::Values("frmMilkCollections", "frmCollectionGate");
}

// The screen is part of a test's name.
inline std::string CounterName(const ::testing::TestParamInfo<const char*>& info)
{
    return info.param;
}
