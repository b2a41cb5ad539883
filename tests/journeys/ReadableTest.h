#pragma once

#include "tests/journeys/ProgramTest.h"

// Every screen in every state that a clerk meets, with long names and large figures. The same tests run at
// twice the size of the letters, too.
class ReadableTest : public ProgramTest {
protected:
    // Member 3 has the long name and the large figures; so have the deliveries that 3 has made on both
    // halves of the 14th.
    ReadableTest();

    static QString Stored(const char16_t* seen);

    // The screen on top, as it stands now.
    static void ExpectReadable(Clerk& clerk, const std::string& state);

    // Goes on with Enter as long as the focus moves on to a field that wasn't met, and looks at each.
    static void WalkAndLook(Clerk& clerk, const std::string& state);

    // Types each of the keys and looks at what comes of it.
    static void TypeAndLook(Clerk& clerk, std::initializer_list<const char*> keys);

private:
    void AddLargeDeliveries(const QString& name);
};
