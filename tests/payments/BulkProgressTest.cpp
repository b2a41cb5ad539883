// What the clerk sees of a run over many members while it goes on.

#include "tests/payments/BulkPaymentTest.h"
#include "tests/support/EachPainting.h"

#include <QEvent>
#include <QLabel>
#include <QTableView>

#include <memory>

namespace {

// Keeps the texts with which a widget was painted, each once.
class PaintedTexts final : public QObject {
public:
    PaintedTexts(QWidget& painted, std::function<QString()> text) : m_text(std::move(text))
    {
        painted.installEventFilter(this);
    }
    QStringList Texts;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        if (const QString text = m_text(); !text.isEmpty() && !Texts.contains(text))
            Texts.append(text);
        return false;
    }

private:
    std::function<QString()> m_text;
};

class BulkProgressTest : public BulkPaymentTest {
protected:
    // Every third of so many members has no milk.
    void AddVillage(int members)
    {
        for (int member = 6; member <= members; ++member) {
            AddMember(member, "naava");
            if (member % 3 != 0)
                AddMilk(member, "02/04/2026", "gaaya", 10, 500);
        }
    }

    // Watches from here to the end of the script.
    PaintedTexts& Watch(Clerk& clerk, QWidget& painted, std::function<QString()> text)
    {
        clerk.Do([&] { m_watches.push_back(std::make_unique<PaintedTexts>(painted, std::move(text))); });
        return *m_watches.back();
    }

    PaintedTexts& WatchLabel(Clerk& clerk, const char* label)
    {
        QLabel& watched = LabelOf(clerk, label);
        return Watch(clerk, watched, [&watched] { return watched.text(); });
    }

    // By the number in the topmost row of a list.
    PaintedTexts& WatchList(Clerk& clerk, const char* list, int column)
    {
        const auto& grid = Grid(clerk, list);
        return Watch(clerk, *static_cast<QTableView*>(grid.Widget())->viewport(),
            [&grid, column] { return grid.Rows() > 0 ? grid.Cell(0, column) : QString(); });
    }

    static QLabel& LabelOf(const Clerk& clerk, const char* label)
    {
        return *clerk.Top().findChild<QLabel*>(QString::fromLatin1(label));
    }

    static const DataGrid& Grid(const Clerk& clerk, const char* list)
    {
        return dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(list)));
    }

    // The watches end before the screen that they look at.
    void PlayWatched(const std::function<void(Clerk&)>& script)
    {
        Play([&](Clerk& clerk) {
            script(clerk);
            clerk.Do([this] { m_watches.clear(); });
        });
        EXPECT_FALSE(Failure);
    }

private:
    const EachPainting m_each;
    std::vector<std::unique_ptr<PaintedTexts>> m_watches;
};

TEST_F(BulkProgressTest, KeysTypedDuringTheRunWaitForItsEnd)
{
    AddVillage(60);
    Play([](Clerk& clerk) {
        Type(clerk, "{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}1{ENTER}60{ENTER}");
        clerk.TypeAhead("{ENTER}{ESC}{ESC}");
    });
    EXPECT_EQ(One("select count(*) from MilkPayments"), "39") << "all of them, before the screen was left";
}

TEST_F(BulkProgressTest, TheMemberAtHandThePercentAndAllFourFiguresAreSeenToMove)
{
    AddVillage(300);
    PlayWatched([this](Clerk& clerk) {
        Type(clerk, "{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}1{ENTER}300{ENTER}");
        const PaintedTexts& member = WatchLabel(clerk, "lblMember");
        const PaintedTexts& percent = WatchLabel(clerk, "lblPercent");
        std::vector<const PaintedTexts*> figures;
        for (const char* figure : {"lblLiters", "lblAmount", "lblAdvance", "lblNetAmount"})
            figures.push_back(&WatchLabel(clerk, figure));
        Type(clerk, "{ENTER}");
        EXPECT_GT(member.Texts.size(), 2);
        for (const QString& text : member.Texts)
            EXPECT_TRUE(text.contains(::Seen("naava"))) << text.toStdString();
        EXPECT_GT(percent.Texts.size(), 20);
        for (const PaintedTexts* figure : figures)
            EXPECT_GT(figure->Texts.size(), 2) << figure->Texts.join(u' ').toStdString();
    });
}

TEST_F(BulkProgressTest, WhoIsPaidAndWhoHasNoMilkIsListedAsTheRunGoesOn)
{
    AddVillage(300);
    PlayWatched([this](Clerk& clerk) {
        Type(clerk, "{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}1{ENTER}300{ENTER}");
        const PaintedTexts& paid = WatchList(clerk, "DataGridPayment", 1);
        const PaintedTexts& without = WatchList(clerk, "DataGridMembers", 0);
        Type(clerk, "{ENTER}");
        EXPECT_GT(paid.Texts.size(), 2) << paid.Texts.join(u' ').toStdString();
        EXPECT_GT(without.Texts.size(), 2) << without.Texts.join(u' ').toStdString();
    });
}

TEST_F(BulkProgressTest, WhileItRunsItAsksToWaitAndItsButtonsAreShut)
{
    PlayWatched([this](Clerk& clerk) {
        Type(clerk, "{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}1{ENTER}5{ENTER}");
        const QLabel& told = LabelOf(clerk, "Label43");
        const Screen& screen = clerk.Top();
        const PaintedTexts& seen = Watch(clerk, LabelOf(clerk, "lblPercent"), [&] {
            QString text = told.text();
            for (const char* button : {"cmdCalculate", "Command2"})
                if (screen.Find(QString::fromLatin1(button))->Enabled())
                    text += QLatin1String(" ") + QLatin1String(button);
            return text;
        });
        const PaintedTexts& line = WatchLabel(clerk, "Label43");
        Type(clerk, "{ENTER}");
        const QString running = QString::fromUtf8("प्रोसेस चालु आहे थोडा वेळ थांबा..........");
        const QString finished = QString::fromUtf8("पेमेन्ट काढण्याची प्रोसेस संपली.");
        EXPECT_EQ(line.Texts, (QStringList{running, finished}));
        EXPECT_EQ(seen.Texts.value(0), running) << "with neither button";
        EXPECT_FALSE(seen.Texts.contains(running + QStringLiteral(" cmdCalculate Command2")));
    });
}

// One who has no milk in one run may have it in the next.
TEST_F(BulkProgressTest, TheMembersOfTheRunBeforeAreGoneBeforeItsFirstMember)
{
    PlayWatched([this](Clerk& clerk) {
        PayMany(clerk, "01042026", "1", "5");
        ASSERT_EQ(Seen(clerk, "DataGridMembers", 1), QStringList("4"));
        const QLabel& percent = LabelOf(clerk, "lblPercent");
        const DataGrid& members = Grid(clerk, "DataGridMembers");
        const PaintedTexts& seen = Watch(clerk, LabelOf(clerk, "lblPercent"),
            [&] { return QStringLiteral("%1, %2").arg(percent.text()).arg(members.Rows()); });
        Press(clerk, "cmdCalculate");
        EXPECT_EQ(seen.Texts.value(0), "0 %, 0");
    });
}

TEST_F(BulkProgressTest, TheBarStandsAtItsEndBehindTheRun)
{
    Play([](Clerk& clerk) {
        PayMany(clerk, "01042026", "1", "5");
        const QLabel& filled = LabelOf(clerk, "lblProgress");
        EXPECT_TRUE(filled.isVisible());
        EXPECT_EQ(filled.geometry(), LabelOf(clerk, "lblBack").contentsRect());
    });
    EXPECT_FALSE(Failure);
}

}
