// Every screen of the program in each of its states, so that none of them is passed by. The tests beside this
// one look closer, at each field and with the longest texts.

#include "core/preview/ReportHandover.h"
#include "tests/journeys/EveryScreen.h"
#include "tests/journeys/ReadableTest.h"
#include "tests/support/FakePrinter.h"

#include <set>

namespace {

class ReadableScreensTest : public ReadableTest, public ::testing::WithParamInterface<std::string> {
private:
    ReportHandover m_handover{std::make_unique<FakePrinter>(QStringList{"Office", "Store"})};
};

// ListOfScreensTest compares them with the screens of the program.
std::set<std::string> NamesOfAll()
{
    std::set<std::string> names;
    for (const ScreenState& state : EveryScreen())
        names.insert(state.screen.toStdString());
    return names;
}

std::string NameOf(const ::testing::TestParamInfo<std::string>& info)
{
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(Program, ReadableScreensTest, ::testing::ValuesIn(NamesOfAll()), NameOf);

TEST_P(ReadableScreensTest, EachOfItsStatesCanBeRead)
{
    for (const ScreenState& state : EveryScreen()) {
        if (state.screen.toStdString() != GetParam())
            continue;
        PlayOn(TheClerk, state, [&state](Clerk& clerk) {
            ASSERT_EQ(clerk.ScreenName(), state.screen);
            ExpectReadable(clerk, "after " + state.keys.toStdString());
        });
    }
}

}
