#include "platform/text/RunTimeError.h"

#include <gtest/gtest.h>

TEST(RunTimeErrorTest, TellsItsNumberAndWhatHappened)
{
    const RunTimeError error(RunTimeError::Overflow, "Overflow: 99 is too large.");
    EXPECT_EQ(error.Number(), 6);
    EXPECT_EQ(error.Text(), u"Run-time error '6':\n\nOverflow: 99 is too large.");
    EXPECT_TRUE(error.Statement().isEmpty());
    EXPECT_EQ(QString::fromUtf8(error.what()), error.Text());
}

TEST(RunTimeErrorTest, NamesTheStatementThatFailed)
{
    const RunTimeError error(
        RunTimeError::DatabaseFailure, "No such table: %1 %2", "select * from Nowhere where Name='%1'");
    EXPECT_EQ(error.Text(),
        u"Run-time error '3146':\n\nNo such table: %1 %2\n\nselect * from Nowhere where Name='%1'");
}
