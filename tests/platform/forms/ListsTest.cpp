#include "tests/platform/forms/FormsTest.h"

#include "platform/database/Connection.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/MenuList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

void ClickAt(QAbstractItemView& view, const QPointF& at, QEvent::Type press = QEvent::MouseButtonPress)
{
    for (QEvent::Type type : {press, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), Qt::LeftButton,
            type == press ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }
}

void ClickOn(QAbstractItemView& view, const QModelIndex& index, QEvent::Type press = QEvent::MouseButtonPress)
{
    ClickAt(view, view.visualRect(index).center(), press);
}

class MenuScreen : public Screen {
public:
    MenuScreen() : Screen("Menu")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls())
            column->addWidget(control->Widget());
        lstMenu.SetEntries({Shivaji(u"dUQa saMklana"), Shivaji(u"dUQa ivaËI"), Plain(u"Exit")});
        lstMenu.SetCurrentIndex(0);
        lstMenu.Chosen = [this] { chosen += lstMenu.Text().toStdString() + ";"; };
        resize(400, 300);
    }

    PlainField txtBefore{this, "txtBefore"};
    MenuList lstMenu{this, "lstMenu"};
    std::string chosen;

    QListWidget& View() const { return *static_cast<QListWidget*>(lstMenu.Widget()); }
};

class MenuListTest : public FormsTest {
protected:
    void AtMenu(const std::function<void(MenuScreen&)>& script)
    {
        Open<MenuScreen>([](MenuScreen&) {}, script);
        EXPECT_FALSE(Failure);
    }
};

TEST_F(MenuListTest, TheArrowsWalkTheEntriesAndStopAtTheEnds)
{
    AtMenu([&](MenuScreen& menu) {
        Type("{TAB}");
        std::string walked;
        for (const char* key : {"{Up}", "{Down}", "{Down}", "{Down}", "{Home}", "{End}", "{Up}", "x"}) {
            Type(key);
            walked += std::to_string(menu.lstMenu.CurrentIndex());
        }
        EXPECT_EQ(walked, "01220211");
        EXPECT_EQ(menu.lstMenu.Text().toStdString(), "dUQa ivaËI");
        EXPECT_EQ(menu.View().currentItem()->text().toStdString(), "दूध विक्री");
    });
}

TEST_F(MenuListTest, ADoubleClickChoosesAndAClickOnlyStandsThere)
{
    AtMenu([&](MenuScreen& menu) {
        Do([&] { ClickOn(menu.View(), menu.View().model()->index(2, 0)); });
        EXPECT_EQ(FocusName(), "lstMenu");
        EXPECT_EQ(menu.lstMenu.Text().toStdString(), "Exit");
        EXPECT_EQ(menu.chosen, "");
        Do([&] { ClickOn(menu.View(), menu.View().model()->index(2, 0), QEvent::MouseButtonDblClick); });
        EXPECT_EQ(menu.chosen, "Exit;");
    });
}

TEST_F(MenuListTest, AClickThatTheFieldBeforeRefusesStandsNowhere)
{
    AtMenu([&](MenuScreen& menu) {
        Do([&] {
            menu.txtBefore.LostFocus = [&] { menu.txtBefore.SetFocus(); };
            ClickOn(menu.View(), menu.View().model()->index(2, 0));
        });
        EXPECT_EQ(FocusName(), "txtBefore");
        EXPECT_EQ(menu.lstMenu.CurrentIndex(), 0);
    });
}

TEST_F(MenuListTest, AnEmptyListAndADisabledOneChooseNothing)
{
    AtMenu([&](MenuScreen& menu) {
        Do([&] {
            menu.lstMenu.SetEnabled(false);
            menu.lstMenu.Choose();
            menu.lstMenu.SetEnabled(true);
            menu.lstMenu.SetEntries({});
            menu.lstMenu.Choose();
        });
        EXPECT_EQ(menu.chosen, "");
        EXPECT_EQ(menu.lstMenu.CurrentIndex(), -1);
        EXPECT_EQ(menu.lstMenu.Text().toStdString(), "");
        Type("{TAB}{Down}{Up}{End}");
        EXPECT_EQ(menu.lstMenu.CurrentIndex(), -1);
    });
}

class GridScreen : public Screen {
public:
    GridScreen() : Screen("Grid")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls())
            column->addWidget(control->Widget());
        resize(800, 400);
    }

    PlainField txtBefore{this, "txtBefore"};
    DataGrid DataGridInwards{this, "DataGridInwards",
        {{"COLLECTIONNO", Shivaji(u"k``."), 60, {}, true, false},
            {"membername", Shivaji(u"naava"), 0, {}, false, true},
            {"Liters", Plain(u"Liters"), 100, "#####0.000", true},
            {"InwardDate", Plain(u"Date"), 120, "dd/MM/yyyy"}, {"NoSuchColumn", Plain(u"?"), 50}}};

    QTableView& View() const { return *static_cast<QTableView*>(DataGridInwards.Widget()); }
};

class DataGridTest : public FormsTest {
protected:
    DataGridTest()
    {
        books.Create(folder.filePath("books.mdb"), "word");
        books.RunScript(
            "create table Inwards (CollectionNo INTEGER, MemberName TEXT, Liters REAL, InwardDate DATE)");
        Add("1,'rama',1.5,'15/04/2026'");
        Add("2,'sakaLo',12.3456,'16/04/2026'");
        Add("3,Null,Null,Null");
    }

    void Add(const char* values)
    {
        books.Execute(QStringLiteral("insert into Inwards values(%1)").arg(Q(values)));
    }

    void AtGrid(const std::function<void(DataGrid&, GridScreen&)>& script)
    {
        Open<GridScreen>(
            [&](GridScreen& screen) {
                screen.DataGridInwards.Bind(books, "select * from Inwards order by CollectionNo");
            },
            [&](GridScreen& screen) { script(screen.DataGridInwards, screen); });
        EXPECT_FALSE(Failure);
    }

    static std::string Row(const DataGrid& grid, int row)
    {
        QStringList cells;
        for (int column = 0; column < 5; ++column)
            cells.append(grid.Cell(row, column));
        return cells.join(u'|').toStdString();
    }

    QTemporaryDir folder;
    Connection books;
};

TEST_F(DataGridTest, ShowsTheRowsOfItsQueryAsTheEyeReadsThem)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        ASSERT_EQ(grid.Rows(), 3);
        EXPECT_EQ(Row(grid, 0), "1|राम|1.500|15/04/2026|");
        EXPECT_EQ(Row(grid, 1), "2|सकाळे|12.346|16/04/2026|");
        EXPECT_EQ(Row(grid, 2), "3||||") << "Null and an unknown column show nothing";
    });
}

TEST_F(DataGridTest, UnboundItShowsNothingUntilItIsBoundAgain)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Do([&] { grid.Unbind(); });
        EXPECT_EQ(grid.Rows(), 0);
        EXPECT_TRUE(grid.Value(0, u"MemberName").IsNull());
        Do([&] { grid.Refresh(); });
        EXPECT_EQ(grid.Rows(), 0);
        Do([&] { grid.Bind(books, "select * from Inwards order by CollectionNo"); });
        EXPECT_EQ(grid.Rows(), 3);
    });
}

TEST_F(DataGridTest, GivesTheValuesByFieldInAnySpelling)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        EXPECT_EQ(grid.Value(0, u"MEMBERNAME").Text().toStdString(), "rama");
        EXPECT_EQ(grid.Value(1, u"liters").Number(), 12.3456);
        EXPECT_TRUE(grid.Value(2, u"Liters").IsNull());
        EXPECT_TRUE(grid.Value(0, u"NoSuchColumn").IsNull());
        EXPECT_TRUE(grid.Value(-1, u"Liters").IsNull());
        EXPECT_TRUE(grid.Value(3, u"Liters").IsNull());
    });
}

TEST_F(DataGridTest, WhatWasWrittenIsSeenAfterARefresh)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Do([&] { Add("4,'iksana',2,'17/04/2026'"); });
        EXPECT_EQ(grid.Rows(), 3);
        Do([&] { grid.Refresh(); });
        ASSERT_EQ(grid.Rows(), 4);
        EXPECT_EQ(Row(grid, 3), "4|किसन|2.000|17/04/2026|");
        Do([&] {
            books.Execute("delete * from Inwards");
            grid.Refresh();
        });
        EXPECT_EQ(grid.Rows(), 0);
        EXPECT_EQ(grid.CurrentRow(), -1);
        EXPECT_EQ(grid.Text().toStdString(), "");
    });
}

TEST_F(DataGridTest, ARefreshShowsWhatWasChangedAmongTheRowsAndWhatWasTakenAway)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        Do([&] {
            Add("4,'iksana',2,'17/04/2026'");
            books.Execute("update Inwards set Liters=9 where CollectionNo=1");
            grid.Refresh();
        });
        EXPECT_EQ(Row(grid, 0), "1|राम|9.000|15/04/2026|");
        EXPECT_EQ(Row(grid, 3), "4|किसन|2.000|17/04/2026|");
        Do([&] {
            books.Execute("delete * from Inwards where CollectionNo=2");
            grid.Refresh();
        });
        ASSERT_EQ(grid.Rows(), 3);
        EXPECT_EQ(screen.View().model()->rowCount(), 3);
        EXPECT_EQ(Row(grid, 1), "3||||");
    });
}

TEST_F(DataGridTest, RowsThatWereAddedBehindTheOthersLeaveTheViewAsItIs)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        int resets = 0;
        QObject::connect(screen.View().model(), &QAbstractItemModel::modelReset, &screen, [&] { ++resets; });
        Do([&] {
            Add("4,'iksana',2,'17/04/2026'");
            grid.RefreshToEnd();
        });
        EXPECT_EQ(resets, 0);
        EXPECT_EQ(grid.CurrentRow(), 3);
        EXPECT_EQ(Row(grid, 3), "4|किसन|2.000|17/04/2026|");
        Do([&] { grid.Refresh(); });
        EXPECT_EQ(resets, 0);
        EXPECT_EQ(grid.CurrentRow(), 0);
    });
}

TEST_F(DataGridTest, AddedRowsAreShownBehindTheOthersWhichStayAsTheyWereRead)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        for (const char* added : {"4,'iksana',2,'17/04/2026'", "5,'rama',3,'18/04/2026'"}) {
            Do([&] {
                Add(added);
                books.Execute("update Inwards set Liters=9 where CollectionNo=1");
                grid.ShowAdded();
            });
            EXPECT_EQ(grid.Text(), QString(added).left(1));
            EXPECT_EQ(grid.CurrentRow(), screen.View().model()->rowCount() - 1);
        }
        ASSERT_EQ(grid.Rows(), 5);
        EXPECT_EQ(Row(grid, 0), "1|राम|1.500|15/04/2026|");
        EXPECT_EQ(Row(grid, 3), "4|किसन|2.000|17/04/2026|");
        EXPECT_TRUE(screen.View().updatesEnabled());
    });
}

TEST_F(DataGridTest, WithNothingAddedTheLastRowIsStoodAt)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Do([&] { grid.ShowAdded(); });
        EXPECT_EQ(grid.Rows(), 3);
        EXPECT_EQ(grid.CurrentRow(), 2);
        Do([&] {
            grid.Unbind();
            grid.ShowAdded();
        });
        EXPECT_EQ(grid.Rows(), 0);
    });
}

TEST_F(DataGridTest, ARefreshToTheEndOfAnEmptyListStandsNowhere)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Do([&] {
            books.Execute("delete * from Inwards");
            grid.RefreshToEnd();
        });
        EXPECT_EQ(grid.Rows(), 0);
        EXPECT_EQ(grid.CurrentRow(), -1);
    });
}

TEST_F(DataGridTest, ColumnsAreAlignedTitledAndWideAsAsked)
{
    AtGrid([&](DataGrid&, GridScreen& screen) {
        const QAbstractItemModel& model = *screen.View().model();
        const auto align = [&](int column) {
            return Qt::Alignment(model.index(0, column).data(Qt::TextAlignmentRole).toInt());
        };
        EXPECT_TRUE(align(0).testFlag(Qt::AlignRight));
        EXPECT_TRUE(align(1).testFlag(Qt::AlignLeft));
        EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString().toStdString(), "नाव");
        EXPECT_EQ(screen.View().columnWidth(2), 100);
        EXPECT_GT(screen.View().columnWidth(1), 300) << "takes what is left";
    });
}

TEST_F(DataGridTest, TheArrowsWalkTheRows)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "DataGridInwards");
        std::string walked;
        for (const char* key :
            {"{Up}", "{Down}", "{Down}", "{Down}", "{Home}", "{End}", "{PGUP}", "{PGDN}", "x", "{Left}"}) {
            Type(key);
            walked += std::to_string(grid.CurrentRow());
        }
        EXPECT_EQ(walked, "0122020222");
        EXPECT_EQ(grid.Text().toStdString(), "3");
    });
}

TEST_F(DataGridTest, AClickTakesTheFocusAndTheRow)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        Do([&] { ClickOn(screen.View(), screen.View().model()->index(1, 0)); });
        EXPECT_EQ(FocusName(), "DataGridInwards");
        EXPECT_EQ(grid.CurrentRow(), 1);
    });
}

TEST_F(DataGridTest, APressBesideTheRowsIsNoClickOnOne)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        std::string clicked;
        Do([&] {
            grid.Click = [&] { clicked += std::to_string(grid.CurrentRow()); };
            grid.SetCurrentRow(2);
            const QPointF below(5, screen.View().viewport()->height() - 5);
            ASSERT_FALSE(screen.View().indexAt(below.toPoint()).isValid());
            ClickAt(screen.View(), below);
        });
        EXPECT_EQ(clicked, "");
        Do([&] { ClickOn(screen.View(), screen.View().model()->index(1, 0)); });
        EXPECT_EQ(clicked, "1");
    });
}

TEST_F(DataGridTest, NoHandCanDrawAColumnAwayFromItsCaption)
{
    AtGrid([&](DataGrid&, GridScreen& screen) {
        QHeaderView& header = *screen.View().horizontalHeader();
        const int width = header.sectionSize(0);
        QPointF at(header.sectionViewportPosition(1) - 1, header.height() / 2);
        Do([&] {
            for (QEvent::Type type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseMove,
                     QEvent::MouseButtonRelease}) {
                const bool isPress = type == QEvent::MouseButtonPress;
                QMouseEvent event(type, at, header.viewport()->mapToGlobal(at),
                    type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
                QCoreApplication::sendEvent(header.viewport(), &event);
                if (isPress)
                    at += QPointF(40, 0);
            }
        });
        EXPECT_EQ(header.sectionSize(0), width);
    });
}

TEST_F(DataGridTest, AQueryThatFailsIsARunTimeError)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Do([&] { EXPECT_THROW(grid.Bind(books, "select * from Nowhere"), RunTimeError); });
    });
}

TEST_F(DataGridTest, ARefreshToTheEndThatFailsLeavesAListThatIsPainted)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        Do([&] {
            books.RunScript("drop table Inwards");
            EXPECT_THROW(grid.RefreshToEnd(), RunTimeError);
        });
        EXPECT_TRUE(screen.View().updatesEnabled());
        EXPECT_EQ(grid.Rows(), 3);
    });
}

class LongGridTest : public DataGridTest {
protected:
    LongGridTest()
    {
        books.RunScript("with recursive n(i) as (select 4 union all select i+1 from n where i<2000) "
                        "insert into Inwards select i,'rama',i/10.0,'2026-04-15' from n");
    }

    static int Read(const GridScreen& screen) { return screen.View().model()->rowCount(); }
};

TEST_F(LongGridTest, ReadsAFewRowsAtFirstAndAllWhenAskedForThem)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        EXPECT_LT(Read(screen), 200);
        EXPECT_EQ(grid.Rows(), 2000);
        EXPECT_EQ(Read(screen), 2000);
        Do([&] { grid.Refresh(); });
        EXPECT_LT(Read(screen), 200);
        EXPECT_EQ(grid.Cell(1999, 0), "2000");
    });
}

TEST_F(LongGridTest, ARefreshToTheEndReadsAllAndStandsAtTheLastRow)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        for (const char* last : {"2001,'iksana',2,'17/04/2026'", "2002,'iksana',3,'17/04/2026'"}) {
            Do([&] {
                Add(last);
                grid.RefreshToEnd();
            });
            EXPECT_EQ(grid.CurrentRow(), Read(screen) - 1);
            EXPECT_EQ(grid.Text(), QString(last).left(4));
        }
    });
}

TEST_F(LongGridTest, AddedRowsComeBehindThoseThatWereNotYetRead)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        Do([&] {
            Add("2001,'iksana',2,'17/04/2026'");
            grid.ShowAdded();
        });
        EXPECT_EQ(Read(screen), 2001);
        EXPECT_EQ(grid.Rows(), 2001);
        EXPECT_EQ(grid.Text(), "2001");
        EXPECT_EQ(grid.Cell(1000, 0), "1001");
    });
}

TEST_F(LongGridTest, AShortListThatGrowsLongStillReadsAFewRowsAtFirst)
{
    books.Execute("delete * from Inwards where CollectionNo>5");
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        Do([&] {
            books.RunScript("with recursive n(i) as (select 6 union all select i+1 from n where i<300) "
                            "insert into Inwards select i,'rama',i/10.0,'2026-04-15' from n");
            grid.Refresh();
        });
        EXPECT_LT(Read(screen), 200);
        EXPECT_EQ(grid.Rows(), 300);
        EXPECT_EQ(grid.Cell(299, 0), "300");
    });
}

TEST_F(LongGridTest, ReadsAllAtOnceForASearchAndOnlyWhatIsShown)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        Do([&] {
            grid.SetSearched();
            grid.Bind(books,
                Q("select Liters*2 as Twice,MemberName,CollectionNo from Inwards "
                  "order by CollectionNo"));
        });
        EXPECT_EQ(Read(screen), 2000);
        EXPECT_EQ(Row(grid, 1999), "2000|राम|||");
        EXPECT_EQ(grid.Value(1999, u"CollectionNo").Number(), 2000);
        EXPECT_TRUE(grid.Value(1999, u"Twice").IsNull());
    });
}

TEST_F(LongGridTest, TheLastRowIsAKeyAway)
{
    AtGrid([&](DataGrid& grid, GridScreen&) {
        Type("{TAB}{End}");
        EXPECT_EQ(Row(grid, grid.CurrentRow()), "2000|राम|200.000|15/04/2026|");
    });
}

TEST_F(LongGridTest, PagingDownGoesOnPastTheRowsReadAtFirst)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        const int first = Read(screen);
        Type("{TAB}");
        for (int page = 0; page < first && grid.CurrentRow() < first; ++page)
            Type("{PGDN}");
        EXPECT_GE(grid.CurrentRow(), first);
        EXPECT_EQ(grid.Text(), QString::number(grid.CurrentRow() + 1));
    });
}

TEST_F(LongGridTest, ScrollingToTheEndReadsTheRest)
{
    AtGrid([&](DataGrid&, GridScreen& screen) {
        Do([&] {
            screen.View().verticalScrollBar()->setValue(screen.View().verticalScrollBar()->maximum());
        });
        EXPECT_EQ(Read(screen), 2000);
    });
}

TEST_F(LongGridTest, WhenTheRowsHaveGoneMeanwhileTheListEndsWhereItWasRead)
{
    AtGrid([&](DataGrid& grid, GridScreen& screen) {
        const int first = Read(screen);
        Do([&] { books.Execute("delete * from Inwards where CollectionNo>5"); });
        Type("{TAB}{End}");
        EXPECT_EQ(grid.CurrentRow(), first - 1);
        Do([&] { grid.Refresh(); });
        EXPECT_EQ(grid.Rows(), 5);
    });
}

}
