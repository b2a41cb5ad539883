#include "utilities/frmAutoSettings.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int FieldWidth = 230;
constexpr int RowSpacing = 10;
constexpr int PageMargin = 16;
constexpr int QuestionWidth = 330;
constexpr int WhoseWidth = 110;
constexpr int ButtonWidth = 150;

QLabel* Text(const Caption& caption)
{
    auto* label = new QLabel(caption.Seen().trimmed());
    label->setTextFormat(Qt::PlainText);
    return label;
}

// A page of questions: the question at the left, then whose it is, the field, and its measure.
class Questions {
public:
    Questions()
    {
        m_grid->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
        m_grid->setHorizontalSpacing(16);
        m_grid->setVerticalSpacing(RowSpacing);
        m_grid->setColumnMinimumWidth(0, QuestionWidth);
        m_grid->setColumnMinimumWidth(1, WhoseWidth);
        m_grid->setColumnStretch(3, 1);
    }

    void Choice(const Caption& question, Control& field)
    {
        field.SetAccessibleName(question);
        Put(question, {}, field, nullptr);
    }

    // A choice with a button that belongs to it.
    void Choice(const Caption& question, Control& field, Button& button)
    {
        field.SetAccessibleName(question);
        Layout::SizeField(button, ButtonWidth);
        Put(question, {}, field, button.Widget());
    }

    void Figure(const Caption& question, const Caption& whose, Control& field, const Caption& measure)
    {
        field.SetAccessibleName(
            Plain(QString(question.Seen().trimmed() + u' ' + whose.Seen().trimmed()).trimmed()));
        Put(question, whose, field, Text(measure));
    }

    // A box to tick carries its question itself.
    void Box(Control& box) { m_grid->addWidget(box.Widget(), m_row++, 0, 1, 4, Qt::AlignLeft); }

    void Options(const Caption& question, std::initializer_list<OptionButton*> options)
    {
        auto* row = new QHBoxLayout;
        row->setSpacing(26);
        row->setContentsMargins(28, 0, 0, 0);
        for (OptionButton* option : options) {
            option->SetAccessibleName(
                Plain(QString(question.Seen().trimmed() + u' ' + option->Shown().Seen().trimmed())));
            row->addWidget(option->Widget());
        }
        row->addStretch(1);
        m_grid->addWidget(Text(question), m_row++, 0, 1, 4);
        m_grid->addLayout(row, m_row++, 0, 1, 4);
    }

    QLayout* Done()
    {
        m_grid->setRowStretch(m_row, 1);
        return m_grid;
    }

private:
    void Put(const Caption& question, const Caption& whose, Control& field, QWidget* behind)
    {
        Layout::SizeField(field, FieldWidth);
        m_grid->addWidget(Text(question), m_row, 0);
        if (!whose.IsEmpty())
            m_grid->addWidget(Text(whose), m_row, 1);
        m_grid->addWidget(field.Widget(), m_row, 2, Qt::AlignLeft);
        if (behind)
            m_grid->addWidget(behind, m_row, 3, Qt::AlignLeft);
        ++m_row;
    }

    QGridLayout* m_grid = new QGridLayout;
    int m_row = 0;
};

}

void frmAutoSettings::LayOut()
{
    SSTab.SetAccessibleName(Title());
    SSTab.SetPage(Collection, CollectionPage(),
        {&ComboAutoLiters, &ComboAutoFat, &ComboPrintStatus, &txtCowLimit, &txtBuffLimit, &ComboReceipt,
            &CheckRepeatCol, &cmdReceipt});
    SSTab.SetPage(Payment, PaymentPage(),
        {&ComboPaymentDuration, &txtCow, &txtBuff, &cmbFatRateType, &CheckCNP, &CheckSNU, &OptionAddThev,
            &OptionPayable, &OptionPayIt, &OptionDiscount});
    SSTab.SetPage(
        Sale, SalePage(), {&txtCowSaleRate, &txtBuffSaleRate, &txtMixSaleRate, &ComboMSRPrintStatus});

    auto* body = new QVBoxLayout;
    body->setSpacing(0);
    body->addWidget(SSTab.Widget());
    body->addWidget(SSTab.Pages(), 1);
    body->addWidget(lblGuide.Widget());
    body->addSpacing(10);
    body->addLayout(Layout::ButtonRow({&CmdSave, &CmdCancel, &CmdExit}));
    Stack(body);
}

QLayout* frmAutoSettings::CollectionPage()
{
    Questions page;
    page.Choice(Shivaji(u"vajana kaTa jaaoDlaolaa Aaho kaÆ"), ComboAutoLiters);
    page.Choice(Shivaji(u"f^T maiSana jaaoDlaolao Aaho kaÆ"), ComboAutoFat);
    page.Choice(Shivaji(u"saMklana pavatIcaI ip`MT paihjao ka Æ"), ComboPrintStatus);
    page.Figure(Shivaji(u"k^nacaI  xamata"), Shivaji(u"gaaya"), txtCowLimit, Plain(u"लिटर"));
    page.Figure(Shivaji(u"k^nacaI  xamata"), Shivaji(u"mhOsa"), txtBuffLimit, Plain(u"लिटर"));
    page.Choice(Shivaji(u"pavatI p`kar inavaDa"), ComboReceipt, cmdReceipt);
    page.Box(CheckRepeatCol);
    return page.Done();
}

QLayout* frmAutoSettings::PaymentPage()
{
    Questions page;
    page.Choice(Shivaji(u"pomaoMT kalaavaQaI"), ComboPaymentDuration);
    page.Figure(Shivaji(u"zova kpat"), Shivaji(u"gaaya"), txtCow, Shivaji(u"p`it ilaTr"));
    page.Figure(Shivaji(u"zova kpat"), Shivaji(u"mhOsa"), txtBuff, Shivaji(u"p`it ilaTr"));
    page.Choice(Shivaji(u"dracaa p`kar"), cmbFatRateType);
    page.Box(CheckCNP);
    page.Box(CheckSNU);
    page.Options(Shivaji(u"dUQa pomaoMT pOSaat yaot Asalyaasa "),
        {&OptionAddThev, &OptionPayable, &OptionPayIt, &OptionDiscount});
    return page.Done();
}

QLayout* frmAutoSettings::SalePage()
{
    const Caption local = Shivaji(u"sqaainak dUQa ivaËI dr");
    Questions page;
    page.Figure(local, Shivaji(u"gaaya dUQa"), txtCowSaleRate, Shivaji(u"p`it ilaTr"));
    page.Figure({}, Shivaji(u"mhOsa dUQa"), txtBuffSaleRate, Shivaji(u"p`it ilaTr"));
    page.Figure({}, Shivaji(u"eki~t dUQa"), txtMixSaleRate, Shivaji(u"p`it ilaTr"));
    page.Choice(Shivaji(u"ivaËI pavatIÀip`MT"), ComboMSRPrintStatus);
    return page.Done();
}

void frmAutoSettings::SetGuides()
{
    ComboAutoLiters.SetGuide(Shivaji(u"  1– haoya  2– naahI "));
    ComboAutoFat.SetGuide(Shivaji(u"  1–haoya   2–naahI"));
    ComboPrintStatus.SetGuide(Shivaji(u"  1–saovh  2–saovh va sËIna  3–saovh va ip`MT"));
    ComboReceipt.SetGuide(Shivaji(u"  1–Tašp 1   2–Tašp 2   3–Tašp 3   4–Tašp 4   5–Tašp 5   6–Tašp 6   "
                                  u"7–Tašp 7   8–Tašp 8"));
    ComboPaymentDuration.SetGuide(
        Shivaji(u"  1Á– 1 idvasa    2Á– 7 idvasa    3Á– 10 idvasa    4Á– 15 idvasa    5Á– 1 maihnaa"));
    ComboMSRPrintStatus.SetGuide(Shivaji(u"  1–saovh  2–saovh va sËIna  3–saovh va ip`MT"));
    cmdReceipt.SetGuide(Plain(u"Enter : नमुना पावती"));
    txtCow.SetGuide(Plain(u"↓ : दराचा प्रकार व पुढील प्रश्न"));
    txtBuff.SetGuide(Plain(u"Enter : दूध विक्री    ↓ : दराचा प्रकार व पुढील प्रश्न"));
    for (NumberField* rate : {&txtCowSaleRate, &txtBuffSaleRate, &txtMixSaleRate})
        rate->SetGuide(Plain(u"↓ : विक्री पावती/प्रिंट"));
}

// The strip holds the focus on after the sale page is turned to; on the others where it is pressed once more.
void frmAutoSettings::ShowTabGuide()
{
    const Caption guides[] = {Caption(), Plain(u"Enter : पेमेंट कालावधी    ↓ : दराचा प्रकार व पुढील प्रश्न"),
        Plain(u"Enter : दर    ↓ : विक्री पावती/प्रिंट")};
    SSTab.SetGuide(guides[SSTab.Tab()]);
}
