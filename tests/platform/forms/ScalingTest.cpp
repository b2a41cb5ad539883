#include "platform/forms/Scaling.h"

#include "tests/platform/forms/FormsTest.h"

#include "platform/database/Connection.h"
#include "platform/forms/ColumnBar.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"
#include "platform/forms/MenuList.h"
#include "platform/forms/ProgramWindow.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

TEST(ScalingFactorTest, IsOneOnTheSmallestDesktopWithAndWithoutItsBars)
{
    EXPECT_EQ(Scaling::FactorFor({1024, 768}), 1);
    EXPECT_EQ(Scaling::FactorFor({1000, 690}), 1);
    EXPECT_EQ(Scaling::FactorFor({1366, 768}), 1) << "where only the width has grown, lists get it";
}

TEST(ScalingFactorTest, ShrinksUntilAScreenFits)
{
    for (const QSize window : {QSize(1024, 600), QSize(512, 384), QSize(800, 690)}) {
        const double factor = Scaling::FactorFor(window);
        EXPECT_LE(Look::ScreenWidth * factor, window.width());
        EXPECT_LE(Look::ScreenHeight * factor, window.height());
        EXPECT_GT(factor, 0.9 * std::min(window.width() / 1000.0, window.height() / 690.0));
    }
}

TEST(ScalingFactorTest, GrowsMoreSlowlyThanTheWindow)
{
    double last = 1;
    for (const QSize window : {QSize(1280, 960), QSize(1920, 1080), QSize(2560, 1440), QSize(3840, 2160)}) {
        const double factor = Scaling::FactorFor(window);
        EXPECT_GT(factor, last);
        EXPECT_LT(factor, window.height() / 768.0);
        EXPECT_GT(factor, 0.8 * window.height() / 768.0);
        last = factor;
    }
}

// A part of each kind that has a size of its own.
class Parts : public Screen {
public:
    Parts() : Screen("Parts")
    {
        large->setFont(Look::Font(Look::Size::Large, true));
        large->setMargin(10);
        narrow->setFixedWidth(100);
        grid->setHorizontalSpacing(20);
        grid->setVerticalSpacing(30);
        grid->setColumnMinimumWidth(0, 50);
        grid->setRowMinimumHeight(0, 40);
        grid->addWidget(large, 0, 0);
        grid->addWidget(narrow, 0, 1);
        body->setContentsMargins(1, 2, 3, 4);
        body->setSpacing(10);
        body->addLayout(grid);
        body->addSpacing(70);
        body->addWidget(txtNote.Widget());
    }

    NumberField txtNote{this, "txtNote", NumberField::Digits::Whole};
    QLabel* large = new QLabel("मोठे");
    QLabel* narrow = new QLabel("अरुंद");
    QVBoxLayout* body = new QVBoxLayout(this);
    QGridLayout* grid = new QGridLayout;

    // All that is scaled, to be compared.
    std::vector<int> Sizes() const
    {
        const QMargins m = body->contentsMargins();
        return {large->font().pixelSize(), txtNote.Widget()->font().pixelSize(), large->margin(),
            narrow->minimumWidth(), narrow->maximumWidth(), narrow->maximumHeight(),
            grid->horizontalSpacing(), grid->verticalSpacing(), grid->columnMinimumWidth(0),
            grid->rowMinimumHeight(0), m.left(), m.top(), m.right(), m.bottom(), body->spacing(),
            body->itemAt(1)->spacerItem()->sizeHint().height()};
    }
};

constexpr int Free = QWIDGETSIZE_MAX;

TEST(ScalingTest, EachPartGetsItsSizeAndCanBeScaledAgain)
{
    Parts parts;
    const std::vector<int> base{24, 19, 10, 100, 100, Free, 20, 30, 50, 40, 1, 2, 3, 4, 10, 70};
    const std::vector<int> twice{48, 38, 20, 200, 200, Free, 40, 60, 100, 80, 2, 4, 6, 8, 20, 140};
    const std::vector<int> half{12, 9, 5, 50, 50, Free, 10, 15, 25, 20, 0, 1, 1, 2, 5, 35};
    ASSERT_EQ(parts.Sizes(), base);
    for (const auto& [factor, sizes] : {std::pair(2.0, twice), std::pair(0.5, half), std::pair(1.0, base)}) {
        Scaling::Apply(parts, factor);
        EXPECT_EQ(parts.Sizes(), sizes) << factor;
        EXPECT_TRUE(parts.large->font().bold());
    }
}

TEST(ScalingTest, APartThatWasAddedSinceIsScaledToo)
{
    Parts parts;
    Scaling::Apply(parts, 2);
    auto* late = new QLabel(&parts);
    late->setFont(Look::Font(Look::Size::Small));
    late->setFixedHeight(30);
    Scaling::Apply(parts, 2);
    EXPECT_EQ(late->font().pixelSize(), 30);
    EXPECT_EQ(late->height(), 60);
    EXPECT_EQ(parts.large->font().pixelSize(), 48) << "and none twice";
}

class GrowingWindowTest : public FormsTest {
protected:
    void Resize(const QSize& size)
    {
        Do([size] { ProgramWindow::Current().resize(size); });
    }
};

TEST_F(GrowingWindowTest, TypeGrowsAndShrinksWithTheWindowWhileAScreenIsOpen)
{
    Open<Parts>([](Parts&) {},
        [&](Parts& parts) {
            EXPECT_EQ(parts.large->font().pixelSize(), 24);
            Resize({2048, 1536});
            EXPECT_EQ(parts.large->font().pixelSize(), 44) << "1 + 0.85 of the growth";
            EXPECT_EQ(Look::Pixels(100), 185);
            EXPECT_EQ(Look::PaintedFont(Look::Size::Large).pixelSize(), 44);
            Resize({1024, 768});
            EXPECT_EQ(parts.large->font().pixelSize(), 24);
        });
}

TEST_F(GrowingWindowTest, AScreenThatOpensInALargeWindowIsLargeAtOnce)
{
    Open<Desk>([](Desk& desk) { desk.Also("F2", [] { Parts().ShowModal(); }); },
        [&](Desk&) {
            Resize({2048, 1536});
            Type("{F2}");
            EXPECT_EQ(TheClerk.On<Parts>().large->font().pixelSize(), 44);
        });
}

TEST_F(GrowingWindowTest, AStripKeepsToItsRowsWhenTypeGrows)
{
    class Keyed : public Screen {
    public:
        Keyed() : Screen("Keyed") { Layout::Stack(*this, nullptr, new QVBoxLayout, strip); }
        NumberField txtNote{this, "txtNote", NumberField::Digits::Whole};
        QWidget* strip = Layout::KeyStrip({{"F2", Plain(u"कॅल्क्युलेटर")}, {"Esc", Plain(u"बाहेर")}});
    };
    Open<Keyed>([](Keyed&) {},
        [&](Keyed& keyed) {
            const int before = keyed.strip->height();
            const auto pieces = keyed.strip->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            const int widthBefore = pieces.front()->width();
            Resize({2048, 1536});
            EXPECT_GT(pieces.front()->width(), widthBefore * 3 / 2) << "its type grows too";
            EXPECT_EQ(keyed.strip->height(), before * 185 / 100);
            int right = 0;
            for (const auto* piece : pieces) {
                EXPECT_GE(piece->x(), right) << "one beside the other";
                EXPECT_GE(piece->width(), piece->sizeHint().width());
                right = piece->geometry().right();
            }
        });
}

// A list of figures that fills its screen, with a bar above it; or a list of names.
class ListScreen : public Screen {
public:
    ListScreen() : Screen("List")
    {
        auto* body = new QVBoxLayout(this);
        bar.Put(*first, 0, 1);
        bar.Put(*last, 2, 2);
        body->addWidget(&bar);
        body->addWidget(Figures.Widget());
        body->addWidget(Names.Widget());
        body->addWidget(Menu.Widget());
    }

    DataGrid Figures{this, "Figures",
        {{"City", Plain(u"गाव"), 300}, {"Liters", Plain(u"लिटर"), 100, {}, true},
            {"Amount", Plain(u"रक्कम"), 0, {}, true}}};
    DataGrid Names{this, "Names", {{"No", Plain(u"नंबर"), 100}, {"City", Plain(u"गाव"), 0}}};
    MenuList Menu{this, "Menu"};
    ColumnBar bar{Figures};
    QLabel* first = new QLabel("a");
    QLabel* last = new QLabel("b");

    static QTableView& ViewOf(const DataGrid& grid) { return *static_cast<QTableView*>(grid.Widget()); }
};

TEST_F(GrowingWindowTest, FiguresKeepTogetherInAWideWindowAndNamesGetTheRest)
{
    Open<ListScreen>([](ListScreen&) {},
        [&](ListScreen& screen) {
            const QTableView& figures = ListScreen::ViewOf(screen.Figures);
            const QTableView& names = ListScreen::ViewOf(screen.Names);
            const double gap = static_cast<double>(figures.columnWidth(2)) / figures.columnWidth(1);
            Resize({2048, 768});
            EXPECT_GE(figures.columnWidth(1), 200);
            EXPECT_NEAR(static_cast<double>(figures.columnWidth(2)) / figures.columnWidth(1), gap, gap)
                << "the last column takes no more than its share";
            EXPECT_LE(figures.columnWidth(2), 2 * figures.columnWidth(1));
            EXPECT_EQ(figures.horizontalHeader()->length(), figures.viewport()->width());
            EXPECT_EQ(names.columnWidth(0), 200) << "as the window has grown, and no more";
        });
}

TEST_F(GrowingWindowTest, RowsGrowWithTheType)
{
    Open<ListScreen>([](ListScreen&) {},
        [&](ListScreen& screen) {
            EXPECT_EQ(ListScreen::ViewOf(screen.Figures).verticalHeader()->defaultSectionSize(), 30);
            Resize({2048, 1536});
            EXPECT_EQ(ListScreen::ViewOf(screen.Figures).verticalHeader()->defaultSectionSize(), 55);
            EXPECT_EQ(ListScreen::ViewOf(screen.Figures).horizontalHeader()->height(), 62);
        });
}

TEST_F(GrowingWindowTest, PartsOverTheColumnsKeepToThem)
{
    Open<ListScreen>([](ListScreen&) {},
        [&](ListScreen& screen) {
            for (const QSize size : {QSize(1024, 768), QSize(2048, 768), QSize(1024, 600)}) {
                Resize(size);
                const QTableView& view = ListScreen::ViewOf(screen.Figures);
                const int edge = view.mapTo(&screen, QPoint(view.frameWidth(), 0)).x();
                const int third = edge + view.columnViewportPosition(2);
                EXPECT_EQ(screen.first->mapTo(&screen, QPoint()).x(), edge);
                EXPECT_EQ(screen.first->mapTo(&screen, QPoint(screen.first->width(), 0)).x(), third);
                EXPECT_EQ(screen.last->mapTo(&screen, QPoint()).x(), third);
                EXPECT_EQ(screen.last->width(), view.columnWidth(2));
            }
        });
}

// How many dots of a stripe of a picture aren't of the colour of its corner.
int Ink(const QImage& picture, int top, int bottom)
{
    int dots = 0;
    for (int y = top; y < bottom; ++y)
        for (int x = 0; x < picture.width(); ++x)
            dots += picture.pixelColor(x, y) == picture.pixelColor(0, picture.height() - 1) ? 0 : 1;
    return dots;
}

TEST_F(GrowingWindowTest, ARowThatTheEdgeWouldCutIsLeftOutUntilItIsScrolledTo)
{
    Open<ListScreen>(
        [](ListScreen& screen) {
            std::vector<Caption> entries;
            for (int entry = 1; entry <= 60; ++entry)
                entries.push_back(Plain(QStringLiteral("नोंद %1").arg(entry)));
            screen.Menu.SetEntries(entries);
        },
        [&](ListScreen& screen) {
            auto& list = *static_cast<QListWidget*>(screen.Menu.Widget());
            const int row = list.visualItemRect(list.item(0)).height() + 2 * list.spacing();
            Do([&] { list.setFixedHeight(4 * row + row / 2 + 2 * list.frameWidth()); });
            const QImage picture = list.viewport()->grab().toImage();
            EXPECT_GT(Ink(picture, 3 * row, 4 * row), 0) << "the last whole row";
            EXPECT_EQ(Ink(picture, 4 * row + list.spacing(), picture.height()), 0)
                << "and nothing of the next";
            Do([&] { screen.Menu.SetCurrentIndex(59); });
            EXPECT_LE(list.visualItemRect(list.item(59)).bottom(), list.viewport()->height());
        });
}

}
