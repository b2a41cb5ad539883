#include "platform/forms/FolderList.h"
#include "platform/forms/PopupMenu.h"
#include "tests/platform/forms/FormsTest.h"

#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

QListWidget& ViewOf(const Control& control)
{
    return *static_cast<QListWidget*>(control.Widget());
}

// A drive list, a folder list with a menu on it, and the folders of two drives.
class FolderScreen : public Screen {
public:
    FolderScreen() : Screen("FolderScreen")
    {
        auto* column = new QVBoxLayout(this);
        for (Control* control : Controls())
            column->addWidget(control->Widget());
        resize(500, 500);
        Drive1.SetDrives({"C:\\", "E:\\"});
        Drive1.SetDrive("C:\\");
        Dir1.SetFolder("C:\\Tarvel01\\Vetrolan");
        Drive1.Change = [this] { Dir1.SetFolder(Drive1.Drive()); };
        Dir1.Change = [this] { told += Dir1.Folder().toStdString() + ";"; };
    }

    static QStringList FoldersIn(const QString& folder)
    {
        if (folder == u"C:\\Tarvel01\\Vetrolan")
            return {"Backup", "Reports"};
        return folder == u"E:\\" ? QStringList{"Milk"} : QStringList();
    }

    DriveList Drive1{this, "Drive1"};
    FolderList Dir1{this, "Dir1", &FolderScreen::FoldersIn};
    PlainField txtNext{this, "txtNext"};
    PopupMenu mnuBackup{Dir1,
        {{Plain(u"&Create Folder"), [this] { told += "create;"; }},
            {Plain(u"A && B"), [this] { told += "b;"; }}}};
    std::string told;

    std::string Entries() const
    {
        QStringList rows;
        for (int at = 0; at < ViewOf(Dir1).count(); ++at)
            rows.append(ViewOf(Dir1).item(at)->text());
        return rows.join(u'|').toStdString();
    }
};

class FolderListTest : public FormsTest {
protected:
    void AtFolders(const std::function<void(FolderScreen&)>& script)
    {
        Open<FolderScreen>([](FolderScreen&) {}, script);
        EXPECT_FALSE(Failure);
    }

    // The menu that is open; null if none is.
    static QMenu* Menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    void PressRight(const Control& control)
    {
        Do([&] {
            QWidget* widget = ViewOf(control).viewport();
            const QPointF at(5, 5);
            QMouseEvent press(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::RightButton,
                Qt::RightButton, Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &press);
        });
    }

    void Strike(
        Qt::Key key, const char* text = "", Qt::KeyboardModifiers modifiers = {}, QWidget* widget = nullptr)
    {
        Do([=] {
            QKeyEvent press(QEvent::KeyPress, key, modifiers, Q(text));
            QCoreApplication::sendEvent(widget ? widget : Menu(), &press);
        });
    }
};

TEST_F(FolderListTest, ShowsTheWayToTheFolderAndWhatLiesInIt)
{
    AtFolders([&](FolderScreen& screen) {
        EXPECT_EQ(
            screen.Entries(), "C:\\|    Tarvel01|        Vetrolan|            Backup|            Reports");
        EXPECT_EQ(screen.Dir1.CurrentIndex(), 2) << "at the open folder";
        EXPECT_EQ(screen.told, "");
    });
}

TEST_F(FolderListTest, EnterOpensAFolderInItOrOneOnTheWay)
{
    AtFolders([&](FolderScreen& screen) {
        Type("{TAB}{Down}{ENTER}");
        EXPECT_EQ(screen.Dir1.Folder().toStdString(), "C:\\Tarvel01\\Vetrolan\\Backup");
        EXPECT_EQ(screen.Entries(), "C:\\|    Tarvel01|        Vetrolan|            Backup");
        Type("{Home}{ENTER}");
        EXPECT_EQ(screen.Dir1.Folder().toStdString(), "C:\\");
        EXPECT_EQ(screen.Entries(), "C:\\");
        EXPECT_EQ(screen.told, "C:\\Tarvel01\\Vetrolan\\Backup;C:\\;");
        EXPECT_EQ(FocusName(), "Dir1");
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "txtNext") << "on the open folder Enter is the screen's";
    });
}

TEST_F(FolderListTest, ADriveIsGoneToWithEnter)
{
    AtFolders([&](FolderScreen& screen) {
        EXPECT_EQ(screen.Drive1.CurrentIndex(), 0);
        Type("{Down}{Up}{Down}");
        EXPECT_EQ(screen.Drive1.Drive(), "C:\\") << "not before Enter";
        Type("{ENTER}");
        EXPECT_EQ(screen.Drive1.Drive(), "E:\\");
        EXPECT_EQ(screen.Entries(), "E:\\|    Milk");
        Type("{ENTER}{Down}{ENTER}");
        EXPECT_EQ(screen.Dir1.Folder(), "E:\\Milk");
        Do([&] { screen.Drive1.SetDrives({"C:\\"}); });
        EXPECT_EQ(screen.Drive1.Drive(), QString()) << "the drive was taken out";
        EXPECT_EQ(screen.Drive1.CurrentIndex(), -1);
    });
}

TEST_F(FolderListTest, ARefreshKeepsTheFolderAndTellsNothing)
{
    AtFolders([&](FolderScreen& screen) {
        Type("{TAB}{End}");
        Do([&] { screen.Dir1.Refresh(); });
        EXPECT_EQ(screen.Dir1.CurrentIndex(), 2);
        Do([&] { screen.Dir1.SetFolder(screen.Dir1.Folder()); });
        EXPECT_EQ(screen.told, "");
    });
}

TEST_F(FolderListTest, TheRightButtonOpensTheMenuAndAnEntryIsChosenByKey)
{
    AtFolders([&](FolderScreen& screen) {
        PressRight(screen.Dir1);
        ASSERT_TRUE(Menu());
        EXPECT_EQ(FocusName(), "Dir1") << "the press brings the focus";
        ASSERT_EQ(Menu()->actions().size(), 2);
        EXPECT_EQ(Menu()->actions()[0]->text(), "&Create Folder");
        Strike(Qt::Key_Down);
        Strike(Qt::Key_Return);
        EXPECT_EQ(screen.told, "create;");
        EXPECT_FALSE(Menu());
        PressRight(screen.Dir1);
        Strike(Qt::Key_C, "c");
        EXPECT_EQ(screen.told, "create;create;");
        PressRight(screen.Dir1);
        Strike(Qt::Key_Escape);
        EXPECT_FALSE(Menu());
        EXPECT_EQ(screen.told, "create;create;");
        EXPECT_EQ(ScreenName(), "FolderScreen") << "Esc closes the menu alone";
    });
}

TEST_F(FolderListTest, TheMenuKeyOpensItToo)
{
    AtFolders([&](FolderScreen& screen) {
        Type("{TAB}");
        Strike(Qt::Key_Menu, "", {}, screen.Dir1.Widget());
        ASSERT_TRUE(Menu());
        Strike(Qt::Key_Escape);
        Strike(Qt::Key_F10, "", Qt::ShiftModifier, screen.Dir1.Widget());
        EXPECT_TRUE(Menu());
        Strike(Qt::Key_Escape);
    });
}

TEST_F(FolderListTest, AFieldThatKeepsTheFocusKeepsTheMenuShut)
{
    AtFolders([&](FolderScreen& screen) {
        Do([&] { screen.Drive1.LostFocus = [&] { screen.Drive1.SetFocus(); }; });
        PressRight(screen.Dir1);
        EXPECT_FALSE(Menu());
        EXPECT_EQ(FocusName(), "Drive1");
        Do([&] {
            screen.Drive1.LostFocus = {};
            screen.Dir1.SetEnabled(false);
        });
        PressRight(screen.Dir1);
        EXPECT_FALSE(Menu()) << "nor is there one on what can't be entered";
    });
}

}
