#include "platform/shell/Fonts.h"

#include <QFont>
#include <QFontMetrics>
#include <gtest/gtest.h>

namespace {

const QString noto = "Noto Sans Devanagari";
const QString lohit = "Lohit Devanagari";
const QString other = "Chandas";

TEST(FontsTest, NotoIsChosenBeforeEveryOther)
{
    EXPECT_EQ(ChooseDevanagariFamily({other, lohit, noto}), noto);
}

TEST(FontsTest, LohitIsChosenWhereThereIsNoNoto)
{
    EXPECT_EQ(ChooseDevanagariFamily({other, lohit}), lohit);
}

TEST(FontsTest, AnyOtherFamilyIsBetterThanNone)
{
    EXPECT_EQ(ChooseDevanagariFamily({other, "Mukta"}), other);
}

TEST(FontsTest, WithoutAFontThatShowsDevanagariTheAnswerIsEmpty)
{
    EXPECT_EQ(ChooseDevanagariFamily({}), QString());
}

TEST(FontsTest, TheFamilyOfThisMachineHoldsTheLettersOfMarathi)
{
    const QString family = DevanagariFontFamily();
    ASSERT_FALSE(family.isEmpty());
    const QFontMetrics metrics{QFont(family)};
    for (const QChar c : QStringView(u"कखगळक्षज्ञऱॅॉ०९"))
        EXPECT_TRUE(metrics.inFont(c)) << "U+" << std::hex << int{c.unicode()};
}

}
