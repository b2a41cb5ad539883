#include "platform/forms/NameCombo.h"
#include "tests/platform/forms/FieldTest.h"

#include <QLayout>
#include <QListView>

namespace {

class NameComboTest : public FieldTest<NameCombo> {
protected:
    static std::unique_ptr<NameCombo> Make(Screen* screen)
    {
        auto combo = std::make_unique<NameCombo>(screen, "ComboMemberName");
        combo->SetItems({"rama", "sakaarama", "svaatI", "svaatI", "ikSaaor"});
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

TEST_F(NameComboTest, AListThatOpensOnFocusDropsDownAtEachComing)
{
    WithNames([&](NameCombo& combo) {
        Do([&] { combo.OpenOnFocus(); });
        EXPECT_FALSE(combo.IsDroppedDown());
        Type("{TAB}+{TAB}");
        EXPECT_TRUE(combo.IsDroppedDown());
        Type("sa{ENTER}");
        EXPECT_EQ(Text(combo), "sakaarama");
        Type("+{TAB}");
        EXPECT_TRUE(combo.IsDroppedDown());
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
        EXPECT_EQ(Row(combo), -1) << "an empty field means nobody yet";
        for (const auto& [keys, row] : std::vector<std::pair<const char*, int>>{
                 {"s", 1}, {"v", 2}, {"{BS}{BS}", -1}, {"i", 4}, {"k", 4}, {"x", -1}}) {
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

TEST_F(NameComboTest, NamesOfAnotherSpellingMatchByWhatTheyRead)
{
    WithNames([&](NameCombo& combo) {
        Do([&] {
            combo.SetItems({"Ad", "अ\xE0\xA5\x85ड. kdma", "अ\xE2\x80\x8D\xE0\xA5\x85ड. paaTIla", "ramaa",
                "rama  paaTIla"});
        });
        Type("%{Down}");
        Compose("ॲड");
        EXPECT_EQ(Row(combo), 1);
        Compose(". पा");
        EXPECT_EQ(Row(combo), 2);
        Compose("य");
        EXPECT_EQ(Row(combo), -1);
        Type("^aA{^}D");
        EXPECT_EQ(Row(combo), 1) << "by the keys of the old layout";
        Type("^arama");
        EXPECT_EQ(Row(combo), 3);
        Type(" p");
        EXPECT_EQ(Row(combo), 4) << "one blank counts as two";
        Type("^arama ");
        EXPECT_EQ(Row(combo), 4) << "a blank ends the word";
        Type("^a ");
        EXPECT_EQ(Row(combo), -1) << "blanks alone begin no name";
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
            combo.AddNames({{"yamaunaa", {}}});
            combo.AddNames({{"gaMgaa", {}}});
        });
        Type("{Down}{Down}");
        EXPECT_EQ(Text(combo), "yamaunaa");
        EXPECT_EQ(List(combo).model()->index(0, 0).data().toString().toStdString(), "गंगा");
    });
}

TEST_F(NameComboTest, ANameThatReadsTheSameComesBeforeOneThatOnlyBeginsSo)
{
    WithNames([&](NameCombo& combo) {
        Do([&] { combo.SetItems({"maarutI paaTIla", "maa$tI"}); });
        Type("maarutI");
        Do([&] { combo.TakeMatch(); });
        EXPECT_EQ(Text(combo), "maa$tI");
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

TEST_F(NameComboTest, EnterAndTabTakeTheDarkRowAndGoOn)
{
    for (const char* key : {"{ENTER}", "{TAB}"}) {
        WithNames([&](NameCombo& combo) {
            int changes = 0;
            Do([&] { combo.Change = [&] { ++changes; }; });
            Type("%{Down}sa");
            Type(key);
            EXPECT_EQ(Text(combo), "sakaarama") << key;
            EXPECT_EQ(FocusName(), "next") << key;
            EXPECT_EQ(changes, 3) << key;
            EXPECT_FALSE(combo.IsDroppedDown()) << key;
        });
    }
}

TEST_F(NameComboTest, WithoutADarkRowOrAnOpenListEnterLeavesTheTextAsItIs)
{
    WithNames([&](NameCombo& combo) {
        for (const auto& [keys, text] : std::vector<std::pair<const char*, const char*>>{
                 {"%{Down}{ENTER}", ""}, {"%{Down}xyz{ENTER}", "xyz"}, {"sa{ENTER}", "sa"},
                 {"%{Down}sa%{Up}{ENTER}", "sa"}, {"%{Down}sa+{TAB}", "sa"}}) {
            Do([&] { combo.Clear(); });
            Type(keys);
            EXPECT_EQ(Text(combo), text) << keys;
            EXPECT_EQ(FocusName(), "next") << keys;
            Type("+{TAB}");
        }
    });
}

TEST_F(NameComboTest, EscClosesTheListAndNothingElse)
{
    WithNames([&](NameCombo& combo) {
        Type("%{Down}sa{ESC}");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(Text(combo), "sa");
        EXPECT_EQ(FocusName(), "ComboMemberName");
        Type("{ESC}");
        EXPECT_EQ(ScreenName(), "");
    });
}

// Eleven people, five of one name, as the books have them: in the order of the keys of the old layout.
std::unique_ptr<NameCombo> Village(Screen* screen)
{
    auto combo = std::make_unique<NameCombo>(screen, "ComboMemberName");
    combo->SetNames({{"AaSaa", "9"}, {"gaMgaa", "4"}, {"kmala", "2"}, {"ikSaaor", "5"}, {"saunaIta", "30"},
        {"saunaIta", "7"}, {"saunaIta", "12"}, {"sauroSa", "3"}, {"saIta", "1"}, {"rama", "8"},
        {"ima`", "6"}});
    return combo;
}

TEST_F(NameComboTest, TheListIsInTheOrderOfTheAlphabetAsItIsRead)
{
    With(Village, [&](NameCombo& combo) {
        std::string shown;
        const auto& rows = *List(combo).model();
        for (int row = 0; row < rows.rowCount(); ++row)
            shown += rows.index(row, 0).data().toString().toStdString() + " ";
        EXPECT_EQ(shown, "आशा कमल किशोर गंगा म्रि राम सीता सुनीता सुनीता सुनीता सुरेश ");
        EXPECT_EQ(combo.Items().first(), "AaSaa") << "what was given stays as it was given";
        EXPECT_EQ(combo.Items()[3], "ikSaaor");
    });
}

TEST_F(NameComboTest, OfPeopleOfOneNameTheNumberOfTheRowIsMeant)
{
    With(Village, [&](NameCombo& combo) {
        const auto meant = [&] {
            std::string numbers;
            for (const char* number : {"7", "12", "30"})
                numbers += combo.MayMean(Q(number)) ? std::string(number) + " " : "";
            return numbers;
        };
        Type("saunaI");
        EXPECT_EQ(meant(), "7 12 30 ") << "typed, it may be any";
        Type("{Down}");
        EXPECT_EQ(meant(), "7 ");
        Type("{Down}");
        EXPECT_EQ(meant(), "12 ");
        Type("{ENTER}");
        EXPECT_EQ(Text(combo), "saunaIta");
        EXPECT_EQ(meant(), "12 ");
        Do([&] { combo.SetText("saunaIta"); });
        EXPECT_EQ(meant(), "7 12 30 ");
    });
}

TEST_F(NameComboTest, SomebodyShownByHisNumberIsTheOneThatIsMeant)
{
    With(Village, [&](NameCombo& combo) {
        const auto expect = [&](const char* number, int row) {
            for (const char* other : {"7", "12", "30"})
                EXPECT_EQ(combo.MayMean(Q(other)), std::string(other) == number) << other;
            EXPECT_EQ(Text(combo), "saunaIta");
            EXPECT_EQ(Row(combo), row);
        };
        Do([&] { combo.SetEntry({"saunaIta", "12"}); });
        expect("12", 8);
        Type("%{Down}");
        expect("12", 8);
        Do([&] { combo.SetEntry({"saunaIta", "30"}); });
        expect("30", 9);
        Do([&] { combo.SetNames({{"rama", "8"}, {"saunaIta", "30"}, {"saunaIta", "7"}}); });
        expect("30", 2);
        Type("{ENTER}");
        expect("30", 2);
    });
}

TEST_F(NameComboTest, OnePersonIsShownOnceHoweverOftenAdded)
{
    With(Village, [&](NameCombo& combo) {
        Do([&] { combo.AddNames(std::vector<NameCombo::Entry>(combo.Names())); });
        EXPECT_EQ(combo.Items().size(), 22);
        EXPECT_EQ(List(combo).model()->rowCount(), 11);
    });
}

TEST_F(NameComboTest, AWordPutFirstStandsAheadOfTheNamesUntilTheyAreSetAgain)
{
    WithNames([&](NameCombo& combo) {
        const std::vector<NameCombo::Entry> names{{"yamaunaa", "2"}, {"gaMgaa", "1"}};
        for (int time = 0; time < 2; ++time) {
            Do([&] {
                combo.SetNames(names);
                combo.PutFirst("raoK");
            });
            EXPECT_EQ(combo.Items(), (QStringList{"raoK", "yamaunaa", "gaMgaa"}));
            EXPECT_EQ(List(combo).model()->rowCount(), 3);
        }
        Type("{Down}");
        EXPECT_EQ(Text(combo), "raoK");
        Type("{Down}");
        EXPECT_EQ(Text(combo), "gaMgaa") << "the others by the alphabet";
    });
}

TEST_F(NameComboTest, TheDarkRowStandsInTheMiddleOfTheList)
{
    With(
        [](Screen* screen) {
            auto combo = std::make_unique<NameCombo>(screen, "ComboMemberName");
            std::vector<NameCombo::Entry> names;
            for (int number = 1; number <= 40; ++number)
                names.push_back(
                    {QStringLiteral("k%1").arg(number, 2, 10, QLatin1Char('0')), QString::number(number)});
            combo->SetNames(names);
            return combo;
        },
        [&](NameCombo& combo) {
            const auto expectMiddle = [&](int row) {
                ASSERT_EQ(Row(combo), row);
                QListView& list = List(combo);
                const QRect dark = list.visualRect(list.currentIndex());
                EXPECT_LE(std::abs(dark.center().y() - list.viewport()->rect().center().y()), dark.height());
            };
            Type("%{Down}k20");
            expectMiddle(19);
            Type("{Down}");
            expectMiddle(20);
            Type("{Up}{Up}");
            expectMiddle(18);
            Type("%{Up}%{Down}");
            expectMiddle(18);
        });
}

TEST_F(NameComboTest, TheNumberStandsAtTheEdgeOfItsRow)
{
    With(Village, [&](NameCombo& combo) {
        Type("%{Down}");
        const auto edge = [&] {
            QListView& list = List(combo);
            const QImage seen = list.grab().toImage();
            const QRect row = list.visualRect(list.model()->index(0, 0)).translated(list.frameWidth(), 0);
            int ink = 0;
            for (int x = row.right() - 30; x < row.right(); ++x)
                for (int y = row.top(); y < row.bottom(); ++y)
                    ink += qGray(seen.pixel(x, y)) < 128 ? 1 : 0;
            return ink;
        };
        EXPECT_GT(edge(), 0);
        Do([&] { combo.SetItems({"AaSaa", "kmala"}); });
        EXPECT_EQ(edge(), 0);
    });
}

}
