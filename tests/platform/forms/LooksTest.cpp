#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/DateField.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"
#include "platform/forms/NameCombo.h"
#include "platform/text/Shivaji01.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

class LooksTest : public FormsTest {
protected:
    // The colour that the eye meets, away from the text and the edge.
    QString ColourOf(const Control& control)
    {
        QString name;
        Do([&] {
            const QImage picture = control.Owner().grab().toImage();
            const QWidget& widget = *control.Widget();
            const QPoint at = widget.mapTo(&control.Owner(), QPoint(widget.width() - 12, 6));
            name = picture.pixelColor(at).name().toUpper();
        });
        return name;
    }

    void ExpectColours(Control& control, const char* focus, const char* plain)
    {
        Do([&] { control.SetFocus(); });
        EXPECT_EQ(ColourOf(control).toStdString(), focus) << control.Name().toStdString();
        Type("{TAB}");
        EXPECT_EQ(ColourOf(control).toStdString(), plain) << control.Name().toStdString();
    }

    void AtDesk(const std::function<void(Desk&)>& setUp, const std::function<void(Desk&)>& script)
    {
        Open<Desk>(
            [&](Desk& desk) {
                desk.resize(500, 400);
                setUp(desk);
            },
            script);
        EXPECT_FALSE(Failure);
    }
};

TEST_F(LooksTest, FieldsAndButtonsTakeTheColourOfTheFocusAndGiveItBack)
{
    AtDesk([](Desk&) {},
        [&](Desk& desk) {
            EXPECT_EQ(ColourOf(desk.cmdGo).toStdString(), "#B4C4CD") << "before it was ever entered";
            for (Control* control : desk.Controls())
                ExpectColours(*control, "#FFC0C0", "#B4C4CD");
        });
}

TEST_F(LooksTest, AScreenMayHaveColoursOfItsOwn)
{
    AtDesk([](Desk& desk) { desk.SetColours(QColor(Look::FocusColour), QColor(Look::DateColour)); },
        [&](Desk& desk) {
            ExpectColours(desk.txtA, "#FFC0C0", "#AFBFC9");
            ExpectColours(desk.cmdGo, "#FFC0C0", "#AFBFC9");
        });
}

TEST_F(LooksTest, AControlMayHaveColoursOfItsOwn)
{
    AtDesk([](Desk& desk) { desk.cmdGo.SetColours(QColor(0, 0xFF, 0), QColor(Look::PlainColour)); },
        [&](Desk& desk) {
            ExpectColours(desk.cmdGo, "#00FF00", "#B4C4CD");
            ExpectColours(desk.txtA, "#FFC0C0", "#B4C4CD");
        });
}

TEST_F(LooksTest, ARefusedFieldKeepsTheColourOfTheFocus)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [&] { desk.txtA.SetFocus(); }); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(ColourOf(desk.txtA).toStdString(), "#FFC0C0");
            EXPECT_EQ(ColourOf(desk.txtB).toStdString(), "#B4C4CD");
        });
}

TEST_F(LooksTest, AFieldIsPlainWhileItsLostFocusRuns)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", ShowTestNotice); },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(ScreenName(), "Notice");
            EXPECT_EQ(ColourOf(desk.txtA).toStdString(), "#B4C4CD");
        });
}

TEST_F(LooksTest, AFieldThatCannotBeEnteredIsQuiet)
{
    AtDesk([](Desk& desk) { desk.txtB.SetEnabled(false); },
        [&](Desk& desk) { EXPECT_EQ(ColourOf(desk.txtB), QColor(Look::Quiet).name().toUpper()); });
}

TEST_F(LooksTest, TheGuideIsShownInItsFieldAndEmptiedOnLeaving)
{
    AtDesk([](Desk& desk) { desk.txtB.SetGuide(Shivaji(u"1 ¹ doNao  2 ¹ yaoNao")); },
        [&](Desk& desk) {
            const auto* label = static_cast<QLabel*>(desk.lblGuide.Widget());
            EXPECT_TRUE(desk.lblGuide.Shown().IsEmpty());
            Type("{TAB}");
            EXPECT_EQ(desk.lblGuide.Shown().Text(), "1 ¹ doNao  2 ¹ yaoNao");
            EXPECT_EQ(label->text().toStdString(), "१ - देणे  २ - येणे");
            Type("{TAB}");
            EXPECT_TRUE(desk.lblGuide.Shown().IsEmpty());
            EXPECT_EQ(label->text().toStdString(), "");
        });
}

TEST_F(LooksTest, TheTitleIsTheWindowsAndTheLabels)
{
    AtDesk([](Desk& desk) { desk.SetTitle(Shivaji(u"  navaIna maombar ")); },
        [&](Desk& desk) {
            EXPECT_EQ(desk.windowTitle().toStdString(), "नवीन मेम्बर");
            EXPECT_EQ(desk.lblTitle.Shown(), desk.Title());
        });
}

TEST(CaptionTest, TheLetterBehindTheSignIsTheKeyAndTheSignIsNotSeen)
{
    const std::vector<std::tuple<Caption, char16_t, const char*>> cases{
        {Shivaji(u"&navaIna"), u'N', "नवीन"},
        {Shivaji(u"ba&dla"), u'D', "बदल"},
        {Shivaji(u"&KaoDNao"), u'K', "खोडणे"},
        {Shivaji(u"&saovh"), u'S', "सेव्ह"},
        {Shivaji(u"&baahor"), u'B', "बाहेर"},
        {Shivaji(u"  &1 pUNa- yaadI"), u'1', "  १ पूर्ण यादी"},
        {Plain(u"E&xit"), u'X', "Exit"},
        {Plain(u"&Accept"), u'A', "Accept"},
    };
    for (const auto& [caption, key, seen] : cases) {
        EXPECT_EQ(caption.Mnemonic(), QChar(key)) << seen;
        EXPECT_EQ(caption.Seen().toStdString(), seen);
    }
    EXPECT_EQ(Shivaji(u"&r_").Mnemonic(), QChar(u'R'));
    EXPECT_EQ(Shivaji(u"&r_").Seen(), Shivaji01::ToUnicode(u"r_"));
    EXPECT_EQ(Shivaji(u"&r_").Text().toStdString(), "&r_");
}

TEST(CaptionTest, ASignWithoutALetterBehindItIsSeen)
{
    EXPECT_TRUE(Shivaji(u"navaIna").Mnemonic().isNull());
    EXPECT_TRUE(Shivaji(u"ya&").Mnemonic().isNull());
    EXPECT_EQ(Shivaji(u"ya&").Seen(), Shivaji01::ToUnicode(u"ya&"));
    EXPECT_TRUE(Plain(u"Balance & Transactions").Mnemonic().isNull());
    EXPECT_EQ(Plain(u"Balance & Transactions").Seen().toStdString(), "Balance & Transactions");
    EXPECT_EQ(Plain(u"This & &that").Mnemonic(), QChar(u'T')) << "the first that has a letter";
}

TEST(CaptionTest, InStoredWordsTheSignIsTheLetterThatItIs)
{
    const Caption name = Words(u"&aanaoSvar");
    EXPECT_TRUE(name.Mnemonic().isNull());
    EXPECT_EQ(name.Seen(), Shivaji01::ToUnicode(u"&aanaoSvar"));
    EXPECT_TRUE(name.Seen().startsWith("ज्ञ"));
}

TEST_F(LooksTest, ANameInALabelKeepsAllItsLetters)
{
    AtDesk([](Desk& desk) { desk.lblTitle.SetText("&aanaoSvar"); },
        [&](Desk& desk) {
            EXPECT_EQ(desk.lblTitle.Shown().Text().toStdString(), "&aanaoSvar");
            EXPECT_TRUE(static_cast<QLabel*>(desk.lblTitle.Widget())->text().startsWith("ज्ञ"));
            Do([&] { desk.lblTitle.SetFigure("<b>1.50</b>"); });
            EXPECT_EQ(static_cast<QLabel*>(desk.lblTitle.Widget())->textFormat(), Qt::PlainText);
        });
}

TEST_F(LooksTest, AButtonShowsItsKeyAndTellsItsName)
{
    AtDesk([](Desk&) {},
        [&](Desk& desk) {
            EXPECT_EQ(static_cast<QPushButton*>(desk.cmdGo.Widget())->text().toStdString(), "सेव्ह  (S)");
            EXPECT_EQ(desk.cmdGo.Widget()->accessibleName().toStdString(), "सेव्ह");
            Do([&] { desk.cmdGo.SetCaption(Plain(u"Yes & No")); });
            EXPECT_EQ(static_cast<QPushButton*>(desk.cmdGo.Widget())->text().toStdString(), "Yes && No");
        });
}

class FormScreen : public Screen {
public:
    FormScreen() : Screen("Form")
    {
        Layout::Form form;
        form.Row(Shivaji(u"maombar naMbar"), txtMemberNo, 120);
        form.Row(Shivaji(u"naava"), ComboMemberName);
        form.Row(Shivaji(u"tarIK"), {{&maskFrom, Shivaji(u"tarIK")}, {&maskTo, Shivaji(u"to tarIK")}}, 160);
        form.Row(lblGuide);
        Layout::MakeGuide(lblGuide);
        auto* body = new QVBoxLayout;
        body->addLayout(form.Grid());
        body->addLayout(Layout::ButtonRow({&cmdGo, &cmdExit}));
        SetTitleLabel(lblTitle);
        SetTitle(Shivaji(u"maombar"));
        Layout::Stack(*this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), body,
            Layout::KeyStrip({{"F2", Plain(u"कॅल्क्युलेटर")}, {"Esc", Shivaji(u"baahor")}}));
        resize(Look::ScreenWidth, Look::ScreenHeight);
    }

    NumberField txtMemberNo{this, "txtMemberNo", NumberField::Digits::Whole};
    NameCombo ComboMemberName{this, "ComboMemberName"};
    DateField maskFrom{this, "maskFrom"};
    DateField maskTo{this, "maskTo"};
    Button cmdGo{this, "cmdGo", Shivaji(u"&saovh")};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor")};
    Label lblTitle{this, "lblTitle"};
    Label lblCompanyTitle{this, "lblCompanyTitle"};
    Label lblAcYear{this, "lblAcYear"};
    Label lblGuide{this, "lblGuide"};
};

TEST_F(LooksTest, EveryFieldOfAFormHasAnAccessibleName)
{
    Open<FormScreen>([](FormScreen&) {},
        [&](FormScreen& form) {
            for (const Control* control : form.Controls())
                EXPECT_FALSE(control->Widget()->accessibleName().isEmpty()) << control->Name().toStdString();
            EXPECT_EQ(form.txtMemberNo.Widget()->accessibleName().toStdString(), "मेम्बर नंबर");
            EXPECT_EQ(form.maskFrom.Widget()->accessibleName().toStdString(), "तारीख");
            EXPECT_NE(form.maskFrom.Widget()->accessibleName(), form.maskTo.Widget()->accessibleName());
        });
    EXPECT_FALSE(Failure);
}

TEST_F(LooksTest, TheBandsKeepTheirHeightAndTheBodyTakesTheRest)
{
    Open<FormScreen>([](FormScreen&) {},
        [&](FormScreen& form) {
            const int header = form.lblTitle.Widget()->parentWidget()->height();
            EXPECT_GE(header, 60);
            EXPECT_LE(header, 80);
            EXPECT_GT(form.cmdGo.Widget()->y(), Look::ScreenHeight / 2);
        });
    EXPECT_FALSE(Failure);
}

TEST_F(LooksTest, NothingOnAFormIsCutOff)
{
    Open<FormScreen>([](FormScreen&) {},
        [&](FormScreen& form) {
            for (const auto* widget : form.findChildren<QWidget*>()) {
                if (!widget->isVisible() || widget->parentWidget()->inherits("QAbstractScrollArea"))
                    continue;
                EXPECT_TRUE(form.rect().contains(QRect(widget->mapTo(&form, QPoint()), widget->size())))
                    << widget->objectName().toStdString();
                const auto* label = qobject_cast<const QLabel*>(widget);
                const int wanted = label && !label->text().isEmpty() ? label->sizeHint().width() : 0;
                EXPECT_GE(widget->width(), wanted) << widget->objectName().toStdString();
            }
        });
    EXPECT_FALSE(Failure);
}

// How a key of the strip looks: the colour of its cap, and how far right its ink reaches.
struct SeenHint {
    std::string cap;
    int inkEnd = 0;
    int width = 0;
};

SeenHint LookAt(QWidget& piece)
{
    const QImage picture = piece.grab().toImage();
    const QColor ground(Look::Band);
    SeenHint seen{picture.pixelColor(1, 1).name().toStdString(), 0, picture.width()};
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) != ground)
                seen.inkEnd = x + 1;
        }
    }
    return seen;
}

TEST_F(LooksTest, AKeyOfTheStripIsACapWithItsMeaningBesideItAndDullWhereItDoesNothing)
{
    class Keyed : public Screen {
    public:
        Keyed() : Screen("Keyed") { Layout::Stack(*this, nullptr, new QVBoxLayout, strip); }
        NumberField txtNote{this, "txtNote", NumberField::Digits::Whole};
        QWidget* strip =
            Layout::KeyStrip({{"F9", Plain(u"शोधा")}, {"F9", Plain(u"शोधा"), {}, false}, {"F9", Plain(u"")}});
    };
    Open<Keyed>([](Keyed&) {},
        [&](Keyed& keyed) {
            const auto pieces = keyed.strip->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            ASSERT_EQ(pieces.size(), 3);
            EXPECT_EQ(pieces[0]->accessibleName().toStdString(), "F9 शोधा");
            const SeenHint lit = LookAt(*pieces[0]);
            const SeenHint dull = LookAt(*pieces[1]);
            const SeenHint bare = LookAt(*pieces[2]);
            EXPECT_EQ(lit.cap, QColor(Look::PlainColour).name().toStdString());
            EXPECT_EQ(dull.cap, QColor(Look::DullColour).name().toStdString());
            EXPECT_GT(lit.inkEnd, bare.inkEnd + 20) << "the meaning can be read";
            EXPECT_EQ(lit.inkEnd, dull.inkEnd);
            EXPECT_LE(lit.inkEnd, lit.width);
            EXPECT_GE(lit.inkEnd, lit.width - 4) << "no more room than its texts need";
        });
    EXPECT_FALSE(Failure);
}

TEST_F(LooksTest, AKeyOfTheStripIsLitOnlyWhereItDoesSomethingNow)
{
    class Keyed : public Screen {
    public:
        Keyed() : Screen("Keyed")
        {
            Layout::Stack(*this, nullptr, new QVBoxLayout,
                Layout::KeyStrip({{"Alt+S", Plain(u"सेव्ह")}, {"Alt+D", Plain(u"बदल"), {}},
                    {"↓", Plain(u"यादी"), {}, true, true}, {"F2", Plain(u"गणक")}}));
            cmdGo.SetEnabled(false);
        }
        NumberField txtNote{this, "txtNote", NumberField::Digits::Whole, &Keyed::txtNote_LostFocus};
        NameCombo ComboName{this, "ComboName"};
        Button cmdGo{this, "cmdGo", Shivaji(u"&saovh")};
        void txtNote_LostFocus() { cmdGo.SetEnabled(true); }
    };
    const auto lit = [](const Keyed& keyed) {
        QStringList names;
        for (const auto* piece : keyed.findChildren<QWidget*>())
            if (piece->accessibleName().contains(u' ') && piece->isEnabled())
                names.append(piece->accessibleName().section(u' ', 0, 0));
        return names.join(u' ').toStdString();
    };
    Open<Keyed>([](Keyed&) {},
        [&](Keyed& keyed) {
            EXPECT_EQ(lit(keyed), "F2");
            Type("{TAB}");
            EXPECT_EQ(lit(keyed), "Alt+S ↓ F2");
            Type("{TAB}");
            EXPECT_EQ(lit(keyed), "Alt+S F2");
            Do([&] { keyed.cmdGo.SetCaption(Shivaji(u"ba&dla")); });
            Type("{TAB}");
            EXPECT_EQ(lit(keyed), "Alt+D F2");
        });
    EXPECT_FALSE(Failure);
}

}
