#include "core/start/ProgramIcon.h"

#include "core/start/Program.h"
#include "platform/forms/Look.h"
#include "tests/support/SocietyTest.h"

#include <QApplication>
#include <QImage>

namespace {

using ProgramIconTest = SocietyTest;

// The dots of a drawing in one colour, as a part of all.
double Share(const QImage& picture, QColor colour)
{
    int found = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            found += picture.pixelColor(x, y) == colour ? 1 : 0;
    return static_cast<double>(found) / (picture.width() * picture.height());
}

}

TEST_F(ProgramIconTest, EachSizeHasItsOwnDrawing)
{
    const QIcon icon = ProgramIcon();
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        ASSERT_TRUE(icon.availableSizes().contains(QSize(side, side))) << side;
        const QImage picture = icon.pixmap(side, side).toImage();
        ASSERT_EQ(picture.size(), QSize(side, side));
        EXPECT_EQ(picture.pixelColor(0, 0).alpha() < 255, true) << side << ": its corners are round";
        EXPECT_GT(Share(picture, QColor(Look::Band)), 0.35) << side << ": the ground and the drop";
        EXPECT_GT(Share(picture, QColor(Look::BandText)), 0.2) << side << ": the can";
        EXPECT_EQ(picture.pixelColor(side / 2, side * 7 / 10), QColor(Look::Band)) << side << ": the drop";
        EXPECT_EQ(picture.pixelColor(side / 4, side * 8 / 10), QColor(Look::BandText)) << side << ": the can";
    }
}

TEST_F(ProgramIconTest, TheProgramsWindowBearsIt)
{
    QApplication::setWindowIcon({});
    gCn.Close();
    Failure = TheClerk.Play([] { RunProgram(); },
        [](Clerk& clerk) { EXPECT_FALSE(clerk.Top().window()->windowIcon().isNull()); });
}
