#include "SocietyTest.h"

#include "Field.h"
#include "KeyboardTutor.h"

namespace {

using KeyboardTutor = SocietyTest;

const QString English = QStringLiteral("txtEnglish");
const QString Marathi = QStringLiteral("txtMarathi");

}

TEST_F(KeyboardTutor, WhatIsTypedInEnglishShowsInMarathi)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        clerk.Type(QStringLiteral("gaaya"));
        EXPECT_EQ(clerk.Reads(English), QStringLiteral("gaaya"));
        EXPECT_EQ(clerk.Reads(Marathi), QStringLiteral("gaaya"));
        EXPECT_EQ(dynamic_cast<Field*>(clerk.Top().Find(Marathi))->Seen(), QStringLiteral("गाय"));
    });
}

TEST_F(KeyboardTutor, WhatIsTypedInMarathiShowsInEnglish)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{TAB}mhOsa{BS}"));
        EXPECT_EQ(clerk.Reads(English), clerk.Reads(Marathi));
        EXPECT_EQ(clerk.Reads(English), QStringLiteral("mhO"));
    });
}

TEST_F(KeyboardTutor, EscClosesIt)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ESC}"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}
