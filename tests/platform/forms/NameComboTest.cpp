#include "NameCombo.h"
#include "FieldTest.h"

#include <QLayout>
#include <QListView>

namespace {

class NameComboTest : public FieldTest<NameCombo> {
protected:
    static std::unique_ptr<NameCombo> Make(Screen* screen)
    {
        auto combo = std::make_unique<NameCombo>(screen, "ComboMemberName");
        combo->SetItems({Q("rama"), Q("sakaarama"), Q("svaatI"), Q("svaatI"), Q("ikSaaor")});
        return combo;
    }

    void WithNames(const std::function<void(NameCombo&)>& script) { With(Make, script); }

    static QListView& List(const NameCombo& combo) { return *combo.Owner().findChild<QListView*>(); }
    static int Row(const NameCombo& combo) { return List(combo).currentIndex().row(); }
};

TEST_F(NameComboTest, TheListIsClosedAtFirst)
{
    WithNames([&](NameCombo& combo) {
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_FALSE(List(combo).isVisible());
        EXPECT_EQ(combo.Items().size(), 5);
    });
}

TEST_F(NameComboTest, AltDownOpensAndAltUpCloses)
{
    WithNames([&](NameCombo& combo) {
        Type("%{Down}");
        EXPECT_TRUE(List(combo).isVisible());
        Type("%{Down}");
        EXPECT_TRUE(combo.IsDroppedDown()) << "asked for twice, it stays open";
        EXPECT_EQ(Text(combo), "");
        Type("%{Up}");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_FALSE(List(combo).isVisible());
    });
}

TEST_F(NameComboTest, DownAndUpWalkTheListFromTheField)
{
    WithNames([&](NameCombo& combo) {
        std::string walked;
        for (const char* key : {"{Down}", "{Down}", "{Down}", "{Down}", "{Down}", "{Down}", "{Up}", "{Up}",
                 "{Up}", "{Up}", "{Up}"}) {
            Type(key);
            walked += std::to_string(Row(combo));
            EXPECT_EQ(combo.Text(), combo.Items()[Row(combo)]);
        }
        EXPECT_EQ(walked, "01234432100") << "two members of one name don't stop the walk";
        EXPECT_TRUE(combo.IsDroppedDown());
        EXPECT_EQ(FocusName(), "ComboMemberName");
    });
}

TEST_F(NameComboTest, AWalkedNameIsSelectedSoThatTypingReplacesIt)
{
    WithNames([&](NameCombo& combo) {
        Type("{Down}");
        EXPECT_EQ(Selected(combo), "राम");
        Type("k");
        EXPECT_EQ(Text(combo), "k");
    });
}

TEST_F(NameComboTest, TheListStandsAtTheFirstNameThatBeginsWithWhatIsTyped)
{
    WithNames([&](NameCombo& combo) {
        Type("%{Down}");
        EXPECT_EQ(Row(combo), 0);
        for (const auto& [keys, row] : std::vector<std::pair<const char*, int>>{
                 {"s", 1}, {"v", 2}, {"{BS}{BS}", 0}, {"i", 4}, {"k", 4}, {"x", -1}}) {
            Type(keys);
            EXPECT_EQ(Row(combo), row) << "after " << keys;
        }
    });
}

TEST_F(NameComboTest, NamesOfAnInputMethodMatchByWhatIsSeen)
{
    WithNames([&](NameCombo& combo) {
        Type("%{Down}");
        Compose("कि");
        EXPECT_EQ(Row(combo), 4);
        Type("^a");
        Compose("स");
        EXPECT_EQ(Row(combo), 1);
    });
}

TEST_F(NameComboTest, DownTakesTheMatchOfWhatIsTyped)
{
    WithNames([&](NameCombo& combo) {
        Type("sv{Down}");
        EXPECT_EQ(Text(combo), "svaatI");
        EXPECT_EQ(Row(combo), 2);
    });
}

TEST_F(NameComboTest, ANameIsTypedFreely)
{
    WithNames([&](NameCombo& combo) {
        Type("maQau");
        EXPECT_EQ(Text(combo), "maQau");
        EXPECT_EQ(Seen(combo), "मधु");
        EXPECT_FALSE(combo.IsDroppedDown());
    });
}

TEST_F(NameComboTest, AClickPicksTheNameAndClosesTheList)
{
    WithNames([&](NameCombo& combo) {
        Type("%{Down}");
        Do([&] {
            QWidget& viewport = *List(combo).viewport();
            const QPointF at = List(combo).visualRect(List(combo).model()->index(1, 0)).center();
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, viewport.mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&viewport, &event);
            }
        });
        EXPECT_EQ(Text(combo), "sakaarama");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(FocusName(), "ComboMemberName");
    });
}

TEST_F(NameComboTest, LeavingHidesTheListAndKeepsTheName)
{
    WithNames([&](NameCombo& combo) {
        Type("{Down}{ENTER}");
        EXPECT_EQ(FocusName(), "next");
        EXPECT_FALSE(List(combo).isVisible());
        EXPECT_EQ(Text(combo), "rama");
    });
}

TEST_F(NameComboTest, AnEmptyListNeverOpensAndOneThatIsEmptiedCloses)
{
    WithNames([&](NameCombo& combo) {
        Type("%{Down}");
        Do([&] { combo.ClearItems(); });
        EXPECT_FALSE(List(combo).isVisible());
        Type("%{Down}{Down}{Up}");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(Text(combo), "");
    });
}

TEST_F(NameComboTest, NamesAreAddedOneByOne)
{
    WithNames([&](NameCombo& combo) {
        Do([&] {
            combo.ClearItems();
            combo.AddItem(Q("gaMgaa"));
            combo.AddItem(Q("yamaunaa"));
        });
        Type("{Down}{Down}");
        EXPECT_EQ(Text(combo), "yamaunaa");
        EXPECT_EQ(List(combo).model()->index(0, 0).data().toString().toStdString(), "गंगा");
    });
}

TEST_F(NameComboTest, WhatIsPickedIsAChangeByTheClerk)
{
    WithNames([&](NameCombo& combo) {
        int changes = 0;
        Do([&] { combo.Change = [&] { ++changes; }; });
        Type("{Down}k");
        EXPECT_EQ(changes, 2);
    });
}

TEST_F(NameComboTest, TheListLiesWithinTheScreenBelowOrAboveTheField)
{
    WithNames([&](NameCombo& combo) {
        QWidget& screen = combo.Owner();
        Do([&] { screen.layout()->setEnabled(false); });
        const auto openAt = [&](int y) {
            Do([&, y] {
                combo.DropDown(false);
                combo.Widget()->move(combo.Widget()->x(), y);
                combo.DropDown(true);
                EXPECT_TRUE(screen.rect().contains(List(combo).geometry())) << y;
                EXPECT_FALSE(List(combo).geometry().intersects(combo.Widget()->geometry())) << y;
                EXPECT_GT(List(combo).height(), 60) << y;
            });
        };
        openAt(10);
        openAt(screen.height() / 2);
        openAt(screen.height() - combo.Widget()->height());
    });
}

TEST_F(NameComboTest, TwoThousandNamesAreWalkedAndMatched)
{
    With(
        [](Screen* screen) {
            auto combo = std::make_unique<NameCombo>(screen, "ComboMemberName");
            QStringList names;
            for (int i = 0; i < 2000; ++i)
                names.append(QStringLiteral("rama %1").arg(i, 4, 10, QLatin1Char('0')));
            combo->SetItems(names);
            return combo;
        },
        [&](NameCombo& combo) {
            Type("%{Down}rama 1999");
            EXPECT_EQ(Row(combo), 1999);
            Type("{Up}");
            EXPECT_EQ(Text(combo), "rama 1998");
            EXPECT_LE(List(combo).height(), combo.Owner().height());
        });
}

}
