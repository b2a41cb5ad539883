#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/TabPages.h"

#include <QMouseEvent>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

// Two pages of fields and a button below them.
class PagedScreen : public Screen {
public:
    PagedScreen() : Screen("PagedScreen")
    {
        pages.SetPage(0, Column({&txtA, &txtB}), {&txtA, &txtB});
        pages.SetPage(1, Column({&txtC}), {&txtC});
        pages.SetPage(2, Column({&txtD}), {&txtD});
        auto* column = new QVBoxLayout(this);
        column->addWidget(pages.Widget());
        column->addWidget(pages.Pages());
        column->addWidget(cmdSave.Widget());
        pages.Click = [this] { turned += pages.Text().toStdString(); };
        txtB.LostFocus = [this] {
            if (txtB.IsEmpty())
                txtB.SetFocus();
        };
    }

    TabPages pages{this, "pages", {Plain(u"संकलन"), Plain(u"पेमेंट"), Plain(u"विक्री")}};
    NumberField txtA{this, "txtA", NumberField::Digits::Whole};
    NumberField txtB{this, "txtB", NumberField::Digits::Whole};
    NumberField txtC{this, "txtC", NumberField::Digits::Whole};
    NumberField txtD{this, "txtD", NumberField::Digits::Whole};
    Button cmdSave{this, "cmdSave", Shivaji(u"&saovh")};
    std::string turned; // the pages that Click has met

protected:
    bool KeyDown(const QKeyEvent& key) override
    {
        const bool turns = key.modifiers().testFlag(Qt::ControlModifier);
        if (turns && key.key() == Qt::Key_PageDown)
            pages.TurnToNext();
        else if (turns && key.key() == Qt::Key_PageUp)
            pages.TurnToPrevious();
        else
            return false;
        return true;
    }

private:
    static QLayout* Column(std::initializer_list<Control*> controls)
    {
        auto* column = new QVBoxLayout;
        for (Control* control : controls)
            column->addWidget(control->Widget());
        return column;
    }
};

class TabPagesTest : public FormsTest {
protected:
    void AtPages(const std::function<void(PagedScreen&)>& script)
    {
        Open<PagedScreen>([](PagedScreen&) {}, script);
        EXPECT_FALSE(Failure);
    }

    void PressTab(const PagedScreen& screen, int tab)
    {
        Do([&] {
            auto& strip = *static_cast<QTabBar*>(screen.pages.Widget());
            const QPointF at = strip.tabRect(tab).center();
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, strip.mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&strip, &event);
            }
        });
    }
};

TEST_F(TabPagesTest, BeginsOnTheFirstPageAndTabPassesTheOthersBy)
{
    AtPages([this](PagedScreen& screen) {
        EXPECT_EQ(screen.pages.Tab(), 0);
        EXPECT_EQ(FocusName(), "txtA");
        EXPECT_FALSE(screen.txtC.CanTakeFocus());
        Type("{ENTER}5{ENTER}");
        EXPECT_EQ(FocusName(), "cmdSave");
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "txtA") << "the strip itself is no stop";
        EXPECT_EQ(screen.turned, "");
    });
}

TEST_F(TabPagesTest, CtrlPgDnAndPgUpTurnAroundTheEnds)
{
    AtPages([this](PagedScreen& screen) {
        Type("^{PGDN}");
        EXPECT_TRUE(screen.txtC.CanTakeFocus());
        EXPECT_TRUE(screen.txtC.Widget()->isVisible());
        EXPECT_FALSE(screen.txtA.CanTakeFocus());
        EXPECT_FALSE(screen.txtA.Widget()->isVisible());
        EXPECT_EQ(FocusName(), "pages");
        Type("^{PGDN}^{PGDN}^{PGUP}");
        EXPECT_EQ(screen.turned, "2313");
    });
}

TEST_F(TabPagesTest, PageKeysWithoutCtrlTurnNothing)
{
    AtPages([this](PagedScreen& screen) {
        Type("{PGDN}{PGUP}");
        EXPECT_EQ(screen.pages.Tab(), 0);
        EXPECT_EQ(FocusName(), "txtA");
    });
}

TEST_F(TabPagesTest, FromTheStripTabLeadsIntoThePageAndTheArrowsTurn)
{
    AtPages([this](PagedScreen& screen) {
        Type("^{PGDN}{ENTER}");
        EXPECT_EQ(FocusName(), "txtC");
        Type("^{PGDN}{RIGHT}");
        EXPECT_EQ(screen.pages.Tab(), 2) << "the last page is the end for the arrows";
        Type("{LEFT}{LEFT}{LEFT}");
        EXPECT_EQ(screen.turned, "2321");
        Type("{TAB}");
        EXPECT_EQ(FocusName(), "txtA");
    });
}

TEST_F(TabPagesTest, AFieldThatRefusesToBeLeftKeepsItsPage)
{
    AtPages([this](PagedScreen& screen) {
        Type("{ENTER}^{PGDN}");
        EXPECT_EQ(FocusName(), "txtB");
        PressTab(screen, 2);
        EXPECT_EQ(FocusName(), "txtB");
        EXPECT_EQ(screen.pages.Tab(), 0);
        EXPECT_EQ(screen.turned, "");
    });
}

TEST_F(TabPagesTest, APressOfTheMouseTurnsToThatPage)
{
    AtPages([this](PagedScreen& screen) {
        PressTab(screen, 2);
        EXPECT_EQ(screen.turned, "3");
        EXPECT_EQ(FocusName(), "pages");
        PressTab(screen, 2);
        EXPECT_EQ(screen.turned, "3") << "the page that is seen already is no turn";
    });
}

TEST_F(TabPagesTest, TheHandlerOfATurnMayMoveTheFocus)
{
    AtPages([this](PagedScreen& screen) {
        screen.pages.Click = [&screen] { screen.txtD.SetFocus(); };
        PressTab(screen, 2);
        EXPECT_EQ(FocusName(), "txtD");
    });
}

TEST_F(TabPagesTest, TheScreenTurnsPagesItselfAndTheFocusFollows)
{
    AtPages([this](PagedScreen& screen) {
        Do([&] { screen.txtA.LostFocus = [&] { screen.pages.SetTab(1), screen.txtC.SetFocus(); }; });
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "txtC");
        EXPECT_EQ(screen.turned, "2");
    });
}

}
