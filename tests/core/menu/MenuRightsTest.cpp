// Which right opens which list of the menu.

#include "tests/core/menu/MenuTest.h"

namespace {

class MenuRightsTest : public MenuTest {
protected:
    static constexpr std::int16_t AppState::*Rights[] = {&AppState::gAccessMaster,
        &AppState::gAccessAccountVoucher, &AppState::gAccessStockVoucher, &AppState::gAccessAccountReport,
        &AppState::gAccessStockReport, &AppState::gAccessStatisticalReport, &AppState::gAccessUtilities};

    // The lists that open, a digit each in the order of their main entries.
    std::string Opening()
    {
        std::string opening;
        Menu([&](Clerk& clerk) {
            for (int at = 0; at < 5; ++at) {
                ChooseMain(clerk, at);
                opening += Shows(clerk, SubLists[at]) ? '1' : '0';
                if (Shows(clerk, SubLists[at]))
                    Type(clerk, "{ESC}");
            }
        });
        return opening;
    }
};

}

TEST_F(MenuRightsTest, EachRightOpensItsOwnListAndTheYearlyOneNeedsNone)
{
    const char* opening[] = {"10010", "00010", "01010", "00010", "00110", "00010", "00011"};
    for (std::size_t given = 0; given < std::size(Rights); ++given) {
        for (const auto right : Rights)
            gAppState.*right = right == Rights[given] ? 1 : 0;
        EXPECT_EQ(Opening(), opening[given]) << "right " << given;
    }
}

TEST_F(MenuRightsTest, EachRightThatIsMissingClosesItsOwnListOnly)
{
    const char* opening[] = {"01111", "11111", "10111", "11111", "11011", "11111", "11110"};
    for (std::size_t missing = 0; missing < std::size(Rights); ++missing) {
        for (const auto right : Rights)
            gAppState.*right = right == Rights[missing] ? 0 : 1;
        EXPECT_EQ(Opening(), opening[missing]) << "right " << missing;
    }
}
