#include "core/start/CheckingLine.h"

#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/ProgramWindow.h"
#include "tests/support/SocietyTest.h"

#include <QApplication>

#include <algorithm>

namespace {

// Counts how often the line is painted.
class Watcher final : public QObject {
public:
    Watcher() { qApp->installEventFilter(this); }
    int Paintings = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == u"CheckingLine")
            ++Paintings;
        return false;
    }
};

class CheckingLineTest : public SocietyTest {
protected:
    ~CheckingLineTest() override { ProgramWindow::Leave(); }
};

}

TEST_F(CheckingLineTest, IsPaintedInTheProgramsWindowBeforeItsMakerGoesOn)
{
    Watcher watcher;
    const CheckingLine line;
    EXPECT_GT(watcher.Paintings, 0);
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(line.window(), &ProgramWindow::Current());
    const QWidgetList windows = QApplication::topLevelWidgets();
    EXPECT_EQ(
        std::count_if(windows.begin(), windows.end(), [](const QWidget* w) { return w->isVisible(); }), 1)
        << "it is no window of its own";
    EXPECT_EQ(ModalStack::Current().Top(), nullptr) << "nobody answers it";
}

TEST_F(CheckingLineTest, LiesOnACardInTheMiddleOfTheGroundWhateverTheSizeOfTheWindow)
{
    const CheckingLine line;
    for (const QSize window : {QSize(1024, 600), QSize(1920, 1080)}) {
        ProgramWindow::Current().resize(window);
        const QImage picture = ProgramWindow::Current().grab().toImage();
        ASSERT_EQ(picture.size(), window);
        const QPoint middle(window.width() / 2, window.height() / 2);
        EXPECT_EQ(picture.pixelColor(2, 2), QColor(Look::Ground));
        EXPECT_EQ(picture.pixelColor(middle.x(), middle.y() - Look::Pixels(45)), QColor(Look::Paper));
        int ink = 0;
        for (int x = 0; x < window.width(); ++x)
            ink += picture.pixelColor(x, middle.y()) == QColor(Look::Ink) ? 1 : 0;
        EXPECT_GT(ink, 10);
    }
}

TEST_F(CheckingLineTest, LeavesTheGroundBehind)
{
    {
        const CheckingLine line;
    }
    const QImage picture = ProgramWindow::Current().grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.rect().center()), QColor(Look::Ground));
}
