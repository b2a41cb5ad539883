#include "tests/support/SocietyTest.h"

#include "core/menu/KeyboardMap.h"
#include "core/menu/KeyboardTutor.h"
#include "platform/forms/Field.h"

namespace {

using KeyboardTutorTest = SocietyTest;

const QString English = "txtEnglish";
const QString Marathi = "txtMarathi";

// The picture of the keyboard as it is seen; none if it isn't.
QImage KeyboardPicture(Clerk& clerk)
{
    for (QWidget* widget : clerk.Top().findChildren<QWidget*>())
        if (dynamic_cast<KeyboardMap*>(widget) && widget->isVisible())
            return widget->grab().toImage();
    return {};
}

// How many points of a part of a picture are as dark as the letters.
int DarkPoints(const QImage& picture, const QRect& part)
{
    int dark = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            dark += picture.pixelColor(x, y).lightness() < 80 ? 1 : 0;
    return dark;
}

}

TEST_F(KeyboardTutorTest, WhatIsTypedInEnglishShowsInMarathi)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        Type(clerk, "gaaya");
        EXPECT_EQ(clerk.Reads(English), "gaaya");
        EXPECT_EQ(clerk.Reads(Marathi), "gaaya");
        EXPECT_EQ(dynamic_cast<Field*>(clerk.Top().Find(Marathi))->Seen(), "गाय");
    });
}

TEST_F(KeyboardTutorTest, WhatIsTypedInMarathiShowsInEnglish)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        Type(clerk, "{TAB}mhOsa{BS}");
        EXPECT_EQ(clerk.Reads(English), clerk.Reads(Marathi));
        EXPECT_EQ(clerk.Reads(English), "mhO");
    });
}

TEST_F(KeyboardTutorTest, EscClosesIt)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(KeyboardTutorTest, ThePictureShowsTheFourRowsOfKeysWithTheirLettersAndTheNumbersBelow)
{
    On<frmKeyboardTutor>([](Clerk& clerk) {
        const QImage picture = KeyboardPicture(clerk);
        ASSERT_GT(picture.height(), 300);
        constexpr int rowHeight = 62;
        for (int row = 0; row < 4; ++row)
            EXPECT_GT(DarkPoints(picture, QRect(0, row * rowHeight, picture.width(), rowHeight)), 400)
                << "row " << row;
        const int top = 5 * rowHeight;
        EXPECT_GT(DarkPoints(picture, QRect(0, top, picture.width(), picture.height() - top)), 400);
    });
    EXPECT_FALSE(Failure);
}
