#include "platform/database/KeyAnswer.h"

#include <gtest/gtest.h>

TEST(KeyAnswerTest, HasSavedWhatWasCommittedSinceItBegan)
{
    const KeyAnswer answer;
    EXPECT_FALSE(KeyAnswer::HasSaved());
    KeyAnswer::NoteSaved();
    EXPECT_TRUE(KeyAnswer::HasSaved());
}

TEST(KeyAnswerTest, KnowsNothingOfWhatTheOneBeforeItSaved)
{
    const KeyAnswer around;
    {
        const KeyAnswer first;
        KeyAnswer::NoteSaved();
    }
    const KeyAnswer second;
    EXPECT_FALSE(KeyAnswer::HasSaved());
}

TEST(KeyAnswerTest, StillKnowsBehindAQuestionWhatItSavedBeforeIt)
{
    const KeyAnswer answer;
    KeyAnswer::NoteSaved();
    {
        const KeyAnswer toTheQuestion;
        EXPECT_FALSE(KeyAnswer::HasSaved());
    }
    EXPECT_TRUE(KeyAnswer::HasSaved());
}

TEST(KeyAnswerTest, KnowsWhatWasSavedInAnswerToAQuestion)
{
    const KeyAnswer answer;
    {
        const KeyAnswer toTheQuestion;
        KeyAnswer::NoteSaved();
    }
    EXPECT_TRUE(KeyAnswer::HasSaved());
}
