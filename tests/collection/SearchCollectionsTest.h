#pragma once

#include "collection/frmSearchCollections.h"
#include "core/menu/ScreenDirectory.h"
#include "tests/collection/CounterTest.h"

#include <QDeadlineTimer>

// In the books: two rows of member 1 and one of member 2 in the morning of the 15th.
class SearchCollectionsTest : public CounterTest {
protected:
    SearchCollectionsTest()
    {
        AddMorningDelivery(1);
        AddDelivery("15/04/2026", "sakaL", 2, 2, "saIta", "mhOsa", 2, 8, 49, 98);
        AddDelivery("15/04/2026", "sakaL", 3, 1, "rama", "mhOsa", 1.5, 8, 49, 73.5);
        ScreenDirectory::Add("frmSearchCollections", [] { return std::make_unique<frmSearchCollections>(); });
    }
    ~SearchCollectionsTest() override { ScreenDirectory::Add("frmSearchCollections", {}); }

    // A second member of the name of member 1, with a row of his own.
    void AddSecondRama()
    {
        AddMember(4, "rama", "gaaya");
        AddDelivery("15/04/2026", "sakaL", 5, 4, "rama", "gaaya", 7, 4.5, 35, 245);
    }

    // Goes on as soon as the timer of the opening has ticked.
    static void AwaitTick(Clerk& clerk)
    {
        const QDeadlineTimer limit(10000);
        while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
            clerk.Do([] {});
        ASSERT_FALSE(clerk.On<frmSearchCollections>().TimerStart);
    }

    // Plays as the menu opens it, with the focus on the date.
    void FromTheMenu(const std::function<void(Clerk&)>& script)
    {
        On<frmSearchCollections>([&](Clerk& clerk) {
            AwaitTick(clerk);
            script(clerk);
        });
    }

    // Plays with a member of the morning looked for by number.
    void After(int member, const std::function<void(Clerk&)>& script)
    {
        FromTheMenu([&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{ENTER}1{ENTER}%1{ENTER}{ENTER}").arg(member));
            script(clerk);
        });
    }

    // Plays with F9 pressed at a counter on a member of the morning.
    template <class Counter> void FromTheCounter(int member, const std::function<void(Clerk&)>& script)
    {
        On<Counter>([&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{ENTER}1{ENTER}{ENTER}%1{F9}").arg(member));
            ASSERT_EQ(clerk.ScreenName(), "frmSearchCollections");
            AwaitTick(clerk);
            script(clerk);
        });
    }

    static void ExpectNothingFound(Clerk& clerk)
    {
        EXPECT_FALSE(CanEnter(clerk, "DataGridInwards"));
        EXPECT_FALSE(CanEnter(clerk, "cmdGo"));
    }
};
