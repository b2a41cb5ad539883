#include "tests/platform/forms/FormsTest.h"

#include "platform/database/Connection.h"
#include "platform/database/Sql.h"
#include "platform/forms/DataGrid.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

// The list of installments: a grid that writes into the books, and a button behind it.
class EditScreen : public Screen {
public:
    explicit EditScreen(Connection& connection) : Screen("EditScreen"), books(connection)
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(grid.Widget());
        column->addWidget(cmdExit.Widget());
        resize(800, 400);
        grid.Bind(books, "select MemberNo,MemberName,Kapat,Since from Installments order by MemberNo");
        grid.Edit({[this](const GridRow& row) { return Write(row); },
            [this](const GridRow& row) { return Remove(row); }});
    }

    Connection& books;
    DataGrid grid{this, "DataGrid1",
        {{"MemberNo", Shivaji(u"maombar naM."), 120, "#######0", true},
            {"membername", Shivaji(u"maombarcao naava"), 250},
            {"Kapat", Shivaji(u"kpat r@kma"), 150, "#####0.00", true},
            {"Since", Shivaji(u"idnaaMk"), 150, "dd/MM/yyyy"}}};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor")};

    bool refuses = false;
    std::string happened;

    QTableView& View() const { return *static_cast<QTableView*>(grid.Widget()); }

    // The field that lies over the open cell; null if none is open.
    QLineEdit* Cell() const
    {
        for (QLineEdit* line : View().viewport()->findChildren<QLineEdit*>())
            if (line->isVisible())
                return line;
        return nullptr;
    }

private:
    bool Write(const GridRow& row)
    {
        happened += row.IsNew() ? "new;" : "changed;";
        if (refuses)
            return false;
        const SqlText since = row.Text(u"Since").isEmpty() ? SqlText(u"Null") : Quoted(row.Text(u"Since"));
        if (row.IsNew())
            books.Execute(Sql(u"insert into Installments(MemberNo,MemberName,Kapat,Since) values(",
                Values(row.Number(u"MEMBERNO"), row.Text(u"MemberName"), row.Number(u"Kapat")), u",", since,
                u")"));
        else
            books.Execute(Sql(u"update Installments set MemberNo=", row.Number(u"MemberNo"), u",MemberName=",
                Quoted(row.Text(u"MemberName")), u",Kapat=", row.Number(u"Kapat"), u",Since=", since,
                u" where MemberNo=", row.Before(u"MemberNo").Number()));
        return true;
    }

    bool Remove(const GridRow& row)
    {
        happened += "removed;";
        if (refuses)
            return false;
        books.Execute(Sql(u"delete * from Installments where MemberNo=", row.Before(u"MemberNo").Number()));
        return true;
    }
};

class DataGridEditTest : public FormsTest {
protected:
    DataGridEditTest()
    {
        books.Create(folder.filePath("books.mdb"), "word");
        books.RunScript(
            "create table Installments (MemberNo INTEGER, MemberName TEXT, Kapat REAL, Since DATE)");
        books.Execute(u"insert into Installments values(1,'rama',100,'15/04/2026')");
        books.Execute(u"insert into Installments values(3,'sakaLo',250.5,Null)");
    }

    void AtGrid(const std::function<void(EditScreen&)>& script)
    {
        TryAtGrid(script);
        EXPECT_FALSE(Failure);
    }

    // The same where the script may end in a failure.
    void TryAtGrid(const std::function<void(EditScreen&)>& script)
    {
        EditScreen* screen = nullptr;
        Failure = TheClerk.Play(
            [&] {
                EditScreen made(books);
                screen = &made;
                made.ShowModal();
            },
            [&](Clerk&) { script(*screen); });
    }

    // The rows as they stand in the books.
    std::string Rows()
    {
        QStringList rows;
        for (Recordset row(books, u"select * from Installments order by MemberNo"); !row.Eof();
             row.MoveNext())
            rows.append(row.At(0).Text() + u' ' + row.At(1).Text() + u' ' + row.At(2).Text() + u' '
                + row.At(3).Text());
        return rows.join(u'|').trimmed().toStdString();
    }

    static std::string Shown(const EditScreen& screen, int row)
    {
        QStringList cells;
        for (int column = 0; column < 4; ++column)
            cells.append(screen.grid.Cell(row, column));
        return cells.join(u'|').toStdString();
    }

    static std::string Place(const EditScreen& screen)
    {
        const QModelIndex cell = screen.View().currentIndex();
        return std::to_string(cell.row()) + "," + std::to_string(cell.column());
    }

    void Press(const EditScreen& screen, int row, int column, QEvent::Type press = QEvent::MouseButtonPress)
    {
        Do([&] {
            QTableView& view = screen.View();
            const QPointF at = view.visualRect(view.model()->index(row, column)).center();
            for (QEvent::Type type : {press, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), Qt::LeftButton,
                    type == press ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(view.viewport(), &event);
            }
        });
    }

    static constexpr const char* AsItWas = "1 rama 100 15/04/2026|3 sakaLo 250.5";

    QTemporaryDir folder;
    Connection books;
};

TEST_F(DataGridEditTest, AFigureTypedIntoACellIsWrittenWhenTheRowIsLeft)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Right}{Right}500");
        EXPECT_EQ(Rows(), AsItWas) << "not before the row is left";
        ASSERT_TRUE(screen.Cell());
        EXPECT_EQ(screen.Cell()->text(), "500");
        Type("{Down}");
        EXPECT_EQ(Rows(), "1 rama 500 15/04/2026|3 sakaLo 250.5");
        EXPECT_EQ(Place(screen), "1,2");
        EXPECT_EQ(Shown(screen, 0), "1|राम|500.00|15/04/2026");
        EXPECT_FALSE(screen.Cell());
        EXPECT_EQ(screen.happened, "changed;");
    });
}

TEST_F(DataGridEditTest, EnterGoesFromCellToCellAndOnToTheNextRow)
{
    AtGrid([&](EditScreen& screen) {
        std::string places;
        for (int i = 0; i < 5; ++i) {
            Type("{ENTER}");
            places += Place(screen) + " ";
        }
        EXPECT_EQ(places, "0,1 0,2 0,3 1,0 1,1 ");
        EXPECT_EQ(screen.happened, "") << "where nothing was typed nothing is written";
    });
}

TEST_F(DataGridEditTest, ANewRowIsTypedBelowTheLast)
{
    AtGrid([&](EditScreen& screen) {
        EXPECT_EQ(screen.grid.Rows(), 2);
        Type("{Down}{Down}");
        EXPECT_EQ(screen.grid.CurrentRow(), 2);
        EXPECT_EQ(Shown(screen, 2), "|||");
        Type("2{ENTER}iksana{ENTER}75.5{ENTER}");
        EXPECT_EQ(Shown(screen, 2), "2|किसन|75.5|");
        EXPECT_EQ(Rows(), AsItWas);
        Type("1/5/2026{ENTER}");
        EXPECT_EQ(Rows(), "1 rama 100 15/04/2026|2 iksana 75.5 01/05/2026|3 sakaLo 250.5");
        EXPECT_EQ(screen.grid.Rows(), 3);
        EXPECT_EQ(Place(screen), "3,0") << "at the next new row";
        EXPECT_EQ(Shown(screen, 1), "2|किसन|75.50|01/05/2026");
        EXPECT_EQ(screen.happened, "new;");
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "cmdExit") << "Enter on the empty row is the screen's";
    });
}

TEST_F(DataGridEditTest, LeavingTheGridWritesTheRow)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Right}{Right}7{TAB}");
        EXPECT_EQ(Rows(), "1 rama 7 15/04/2026|3 sakaLo 250.5");
        EXPECT_EQ(FocusName(), "cmdExit");
        EXPECT_EQ(screen.happened, "changed;");
    });
}

TEST_F(DataGridEditTest, ARowThatIsRefusedKeepsTheClerkAndWhatWasTyped)
{
    AtGrid([&](EditScreen& screen) {
        screen.refuses = true;
        Type("{Right}{Right}");
        for (const char* key : {"{Down}", "{PGDN}", "{TAB}"}) {
            Type("9");
            Type(key);
            EXPECT_EQ(FocusName(), "DataGrid1") << key;
            EXPECT_EQ(screen.grid.CurrentRow(), 0) << key;
            EXPECT_EQ(Shown(screen, 0), "1|राम|9|15/04/2026") << key;
        }
        Press(screen, 1, 1);
        EXPECT_EQ(screen.grid.CurrentRow(), 0);
        EXPECT_EQ(Rows(), AsItWas);
        screen.refuses = false;
        Press(screen, 1, 1);
        EXPECT_EQ(Place(screen), "1,1");
        EXPECT_EQ(Rows(), "1 rama 9 15/04/2026|3 sakaLo 250.5");
    });
}

TEST_F(DataGridEditTest, EscGivesTheRowBackAndOnlyThenIsTheScreens)
{
    AtGrid([&](EditScreen& screen) {
        Type("{ENTER}mhOsa{ENTER}800");
        EXPECT_EQ(Shown(screen, 0), "1|म्हैस|100.00|15/04/2026");
        Type("{ESC}");
        EXPECT_EQ(Shown(screen, 0), "1|राम|100.00|15/04/2026");
        EXPECT_FALSE(screen.Cell());
        Type("{Down}{Down}5{ENTER}{ESC}{Up}");
        EXPECT_EQ(screen.happened, "");
        EXPECT_EQ(Rows(), AsItWas);
        Type("{ESC}");
        EXPECT_EQ(ScreenName(), "");
    });
}

TEST_F(DataGridEditTest, DeleteTakesARowOutThroughTheScreen)
{
    AtGrid([&](EditScreen& screen) {
        screen.refuses = true;
        Type("{DEL}");
        EXPECT_EQ(Rows(), AsItWas);
        EXPECT_EQ(screen.grid.Rows(), 2);
        screen.refuses = false;
        Type("{DEL}");
        EXPECT_EQ(Rows(), "3 sakaLo 250.5");
        EXPECT_EQ(screen.grid.Rows(), 1);
        EXPECT_EQ(Place(screen), "0,0");
        Type("{Down}{DEL}");
        EXPECT_EQ(screen.happened, "removed;removed;") << "the empty row is none to be removed";
    });
}

TEST_F(DataGridEditTest, DeleteInAnOpenCellErasesALetter)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Right}{Right}123{Home}{DEL}{Down}");
        EXPECT_EQ(Rows(), "1 rama 23 15/04/2026|3 sakaLo 250.5");
        EXPECT_EQ(screen.happened, "changed;");
    });
}

TEST_F(DataGridEditTest, BackspaceGoesOnWithWhatStandsThere)
{
    AtGrid([&](EditScreen&) {
        Type("{Right}{Right}{BS}{BS}5{Down}");
        EXPECT_EQ(Rows(), "1 rama 100.5 15/04/2026|3 sakaLo 250.5") << "100.00 less its last two, and a 5";
        Type("{Up}{Left}{BS}ma{Down}");
        EXPECT_EQ(Rows(), "1 rama 100.5 15/04/2026|3 sakaLo 250.5") << "what is as it was isn't written";
    });
}

TEST_F(DataGridEditTest, ACellTakesOnlyWhatItsFormatSays)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Down}{Down}x1.5y{ENTER}rama{ENTER}a1.5b{ENTER}1-6-26x");
        EXPECT_EQ(Shown(screen, 2).substr(0, 3), "15|");
        Type("{ESC}{Up}{Up}{Right}{Right}{Right}30/13/2026");
        ASSERT_TRUE(screen.Cell());
        Type("{ESC}");
        EXPECT_EQ(screen.happened, "");
    });
}

TEST_F(DataGridEditTest, AnApostropheIsTakenIntoATextAndTheRowsStatementFails)
{
    for (const char* keys : {"{Right}ra'ma{Down}", "{Down}{Down}5{ENTER}ra''ma{ENTER}7{Up}"}) {
        TryAtGrid([&](EditScreen&) { Type(keys); });
        ASSERT_TRUE(Failure) << keys;
        EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(Failure->Statement().contains("ra'")) << Failure->what();
        EXPECT_EQ(Rows(), AsItWas);
    }
}

TEST_F(DataGridEditTest, ADateThatIsEmptiedIsAnEmptyText)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Right}{Right}{Right}{BS}");
        for (int i = 0; i < 10; ++i)
            Type("{BS}");
        Type("{Down}");
        EXPECT_EQ(Rows(), "1 rama 100 |3 sakaLo 250.5");
        EXPECT_EQ(screen.happened, "changed;");
    });
}

TEST_F(DataGridEditTest, DevanagariFromAnInputMethodGoesIntoTheCell)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Right}");
        Compose("", "कि");
        ASSERT_TRUE(screen.Cell());
        Compose("किसन");
        Type("{Down}");
        EXPECT_EQ(Shown(screen, 0), "1|किसन|100.00|15/04/2026");
        EXPECT_EQ(screen.happened, "changed;");
    });
}

TEST_F(DataGridEditTest, TheMouseGoesToACellAndTwiceOpensIt)
{
    AtGrid([&](EditScreen& screen) {
        Press(screen, 1, 2);
        EXPECT_EQ(Place(screen), "1,2");
        EXPECT_FALSE(screen.Cell());
        Press(screen, 1, 2, QEvent::MouseButtonDblClick);
        ASSERT_TRUE(screen.Cell());
        EXPECT_EQ(screen.Cell()->text(), "250.50");
        Type("{End}{BS}5");
        Press(screen, 0, 1);
        EXPECT_EQ(Rows(), "1 rama 100 15/04/2026|3 sakaLo 250.55");
        EXPECT_EQ(Place(screen), "0,1");
    });
}

TEST_F(DataGridEditTest, ARefreshForgetsWhatWasTyped)
{
    AtGrid([&](EditScreen& screen) {
        Type("{Right}{Right}9");
        Do([&] { screen.grid.Refresh(); });
        EXPECT_FALSE(screen.Cell());
        EXPECT_EQ(Shown(screen, 0), "1|राम|100.00|15/04/2026");
        Type("{TAB}");
        EXPECT_EQ(screen.happened, "");
    });
}

TEST_F(DataGridEditTest, InAnEmptyListTheEmptyRowIsThere)
{
    books.Execute(u"delete * from Installments");
    AtGrid([&](EditScreen& screen) {
        EXPECT_EQ(screen.grid.Rows(), 0);
        EXPECT_EQ(Place(screen), "0,0");
        Type("4{Down}");
        EXPECT_EQ(Rows(), "4  0");
        EXPECT_EQ(screen.grid.CurrentRow(), 1);
    });
}

// A grid that is wider than its place.
class WideScreen : public Screen {
public:
    WideScreen() : Screen("WideScreen")
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(grid.Widget());
        grid.Widget()->setFixedSize(300, 300);
    }
    DataGrid grid{this, "DataGrid1",
        {{"MemberNo", Plain(u"1"), 150, {}, true, false}, {"MemberName", Plain(u"2"), 150},
            {"Kapat", Plain(u"3"), 150, "#####0.00", true}, {"Since", Plain(u"4"), 150}}};
    QTableView& View() const { return *static_cast<QTableView*>(grid.Widget()); }
};

TEST_F(DataGridEditTest, ColumnsThatDontFitInAreScrolledTo)
{
    Open<WideScreen>(
        [&](WideScreen& screen) {
            screen.grid.Bind(books, "select * from Installments order by MemberNo");
            screen.grid.SetSideways(true);
        },
        [&](WideScreen& screen) {
            const auto isSeen = [&](int column) {
                return screen.View().viewport()->rect().contains(
                    screen.View().visualRect(screen.View().model()->index(0, column)).center());
            };
            EXPECT_TRUE(screen.View().horizontalScrollBar()->isVisible());
            EXPECT_TRUE(isSeen(0));
            EXPECT_FALSE(isSeen(3));
            Type("{Right}{Right}{Right}{Right}");
            EXPECT_TRUE(isSeen(3));
            EXPECT_FALSE(isSeen(0));
            Type("{Down}");
            EXPECT_EQ(screen.grid.CurrentRow(), 1);
            EXPECT_TRUE(isSeen(3)) << "another row stays at the column";
            Type("{Left}{Left}{Left}{Left}");
            EXPECT_TRUE(isSeen(0));
            EXPECT_EQ(screen.grid.Cell(0, 3), "15/04/2026") << "a date is no text of the encoding";
        });
    EXPECT_FALSE(Failure);
}

TEST_F(DataGridEditTest, ADoubleClickIsTold)
{
    std::string told;
    Open<WideScreen>(
        [&](WideScreen& screen) {
            screen.grid.Bind(books, "select * from Installments order by MemberNo");
            screen.grid.DoubleClick = [&] { told += std::to_string(screen.grid.CurrentRow()); };
        },
        [&](WideScreen& screen) {
            Do([&] {
                QTableView& view = screen.View();
                const QPointF at = view.visualRect(view.model()->index(1, 0)).center();
                for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                         QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
                    QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), Qt::LeftButton,
                        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
                    QCoreApplication::sendEvent(view.viewport(), &event);
                }
            });
            EXPECT_EQ(told, "1");
        });
    EXPECT_FALSE(Failure);
}

}
