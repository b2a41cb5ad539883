#include "platform/database/KeyAnswer.h"

#include <gtest/gtest.h>

TEST(KeyAnswer, HasSavedWhatWasCommittedSinceItBegan)
{
    const KeyAnswer answer;
    EXPECT_FALSE(KeyAnswer::HasSaved());
    KeyAnswer::NoteSaved();
    EXPECT_TRUE(KeyAnswer::HasSaved());
}

TEST(KeyAnswer, KnowsNothingOfWhatTheOneBeforeItSaved)
{
    const KeyAnswer around;
    {
        const KeyAnswer first;
        KeyAnswer::NoteSaved();
    }
    const KeyAnswer second;
    EXPECT_FALSE(KeyAnswer::HasSaved());
}

TEST(KeyAnswer, StillKnowsBehindAQuestionWhatItSavedBeforeIt)
{
    const KeyAnswer answer;
    KeyAnswer::NoteSaved();
    {
        const KeyAnswer toTheQuestion;
        EXPECT_FALSE(KeyAnswer::HasSaved());
    }
    EXPECT_TRUE(KeyAnswer::HasSaved());
}

TEST(KeyAnswer, KnowsWhatWasSavedInAnswerToAQuestion)
{
    const KeyAnswer answer;
    {
        const KeyAnswer toTheQuestion;
        KeyAnswer::NoteSaved();
    }
    EXPECT_TRUE(KeyAnswer::HasSaved());
}
