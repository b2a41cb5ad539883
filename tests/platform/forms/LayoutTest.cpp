#include "platform/forms/FigureTable.h"
#include "platform/forms/Questions.h"
#include "tests/platform/forms/FormsTest.h"

#include <QHBoxLayout>

namespace {

class Sheet final : public Screen {
public:
    Sheet() : Screen("Sheet") { }

    NumberField txtOpening{this, "txtOpening", u"###0.00"};
    ChoiceField txtOpeningWord{this, "txtOpeningWord", {{u'1', "doNao"}}};
    NumberField txtClosing{this, "txtClosing", u"###0.00"};
    OptionButton OptionCash{this, "OptionCash", Plain(u"&Cash")};
    OptionButton OptionBank{this, "OptionBank", Plain(u"&Bank")};
    OptionGroup way{&OptionCash, &OptionBank};
    Button cmdGo{this, "cmdGo", Plain(u"&Go")};
};

class LayoutTest : public FormsTest {
protected:
    void OnSheet(const std::function<QLayout*(Sheet&)>& layOut, const std::function<void(Sheet&)>& script)
    {
        Open<Sheet>([&](Sheet& sheet) { sheet.setLayout(layOut(sheet)); }, script);
        EXPECT_FALSE(Failure);
    }

    static std::string NameOf(const Control& control)
    {
        return control.Widget()->accessibleName().toStdString();
    }

    static QPoint PlaceOf(const Control& control)
    {
        return control.Widget()->mapTo(&control.Owner(), QPoint());
    }
};

TEST_F(LayoutTest, LineAndHeadOfATableNameItsFields)
{
    OnSheet(
        [](Sheet& sheet) {
            Layout::FigureTable table(Plain(u"Opening"), Plain(u"Now"));
            table.Line(Plain(u"Balance"), {sheet.txtOpening, &sheet.txtOpeningWord}, {sheet.txtClosing});
            return table.Grid();
        },
        [](Sheet& sheet) {
            EXPECT_EQ(NameOf(sheet.txtOpening), "Balance Opening");
            EXPECT_EQ(NameOf(sheet.txtOpeningWord), "Balance Opening");
            EXPECT_EQ(NameOf(sheet.txtClosing), "Balance Now");
            EXPECT_LT(PlaceOf(sheet.txtOpening).x(), PlaceOf(sheet.txtOpeningWord).x());
            EXPECT_LT(PlaceOf(sheet.txtOpeningWord).x(), PlaceOf(sheet.txtClosing).x());
            EXPECT_EQ(PlaceOf(sheet.txtOpening).y(), PlaceOf(sheet.txtClosing).y());
        });
}

TEST_F(LayoutTest, TheLinesOfATableStandUnderOneAnotherAndTheRoomThatIsLeftBelowThem)
{
    OnSheet(
        [](Sheet& sheet) {
            Layout::FigureTable table(Plain(u"Opening"), Plain(u"Now"));
            table.Line(Plain(u"Cow"), {sheet.txtOpening}, {sheet.txtClosing});
            table.Grid()->setContentsMargins(0, 0, 0, 0);
            sheet.setMinimumHeight(600);
            return table.Grid();
        },
        [](Sheet& sheet) { EXPECT_LT(PlaceOf(sheet.txtOpening).y(), 150); });
}

TEST_F(LayoutTest, AQuestionNamesItsFieldAndWhoseItIs)
{
    OnSheet(
        [](Sheet& sheet) {
            Layout::Questions page;
            page.Figure(Plain(u"Limit"), Plain(u"cow"), sheet.txtOpening, Plain(u"litre"));
            page.Figure({}, Plain(u"buffalo"), sheet.txtClosing, Plain(u"litre"));
            page.Choice(Plain(u"Direction"), sheet.txtOpeningWord, sheet.cmdGo);
            page.Options(Plain(u"Paid by"), {&sheet.OptionCash, &sheet.OptionBank});
            return page.Page();
        },
        [](Sheet& sheet) {
            EXPECT_EQ(NameOf(sheet.txtOpening), "Limit cow");
            EXPECT_EQ(NameOf(sheet.txtClosing), "buffalo");
            EXPECT_EQ(NameOf(sheet.txtOpeningWord), "Direction");
            EXPECT_EQ(NameOf(sheet.OptionCash), "Paid by Cash");
            EXPECT_EQ(NameOf(sheet.OptionBank), "Paid by Bank");
            EXPECT_EQ(PlaceOf(sheet.cmdGo).y(), PlaceOf(sheet.txtOpeningWord).y()) << "it belongs to it";
        });
}

TEST_F(LayoutTest, WhatIsAskedForStandsInTheMiddleAboveTheButtons)
{
    OnSheet(
        [](Sheet& sheet) {
            Layout::Form form;
            form.Row(Plain(u"From"), sheet.txtOpening, Layout::DateWidth);
            return Layout::InTheMiddle(form, {&sheet.cmdGo});
        },
        [](Sheet& sheet) {
            const QPoint field = PlaceOf(sheet.txtOpening);
            EXPECT_GT(field.x(), Layout::DateWidth);
            EXPECT_LT(field.x() + sheet.txtOpening.Widget()->width(), sheet.width() - Layout::DateWidth);
            EXPECT_LT(field.y(), sheet.height() / 2) << "more room below than above";
            EXPECT_GT(PlaceOf(sheet.cmdGo).y(), sheet.height() - 100);
        });
}

}
