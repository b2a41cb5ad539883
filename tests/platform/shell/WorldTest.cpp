#include "platform/shell/World.h"

#include <gtest/gtest.h>

namespace {

class StoppedClock final : public Clock {
public:
    QDateTime Now() const override { return {QDate(2026, 4, 1), QTime(6, 30)}; }
};

TEST(WorldTest, BeginsAsTheRealOne)
{
    const World real = World::Real();
    EXPECT_EQ(World::Current().clock, real.clock);
    EXPECT_EQ(World::Current().calculator, real.calculator);
    EXPECT_EQ(World::Current().messageBox, real.messageBox);
    EXPECT_EQ(World::Current().inputBox, real.inputBox);
    EXPECT_EQ(World::Current().fileSystem, real.fileSystem);
}

TEST(WorldTest, TheRealClockShowsTheTimeOfTheMachine)
{
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime now = World::Real().clock->Now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, QDateTime::currentDateTime());
}

TEST(WorldTest, APartThatWasReplacedIsUsedUntilTheRealWorldIsPutBack)
{
    StoppedClock clock;
    World::Current().clock = &clock;
    EXPECT_EQ(World::Current().clock->Now(), QDateTime(QDate(2026, 4, 1), QTime(6, 30)));
    World::Current() = World::Real();
    EXPECT_GT(World::Current().clock->Now(), QDateTime(QDate(2024, 1, 1), QTime()));
}

}
