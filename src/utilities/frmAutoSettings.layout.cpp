#include "utilities/frmAutoSettings.h"

#include "platform/forms/Questions.h"
#include "society/ReceiptLayouts.h"

#include <QVBoxLayout>

namespace {

// The number and the name of each layout.
QString GuideToReceipts()
{
    QStringList choices;
    for (const QString& type : ReceiptTypes())
        choices.append(QStringLiteral("%1–%2").arg(QString::number(choices.size() + 1), type));
    return QStringLiteral("  ") + choices.join(QStringLiteral("   "));
}

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
    Layout::Questions page;
    page.Choice(Shivaji(u"vajana kaTa jaaoDlaolaa Aaho kaÆ"), ComboAutoLiters);
    page.Choice(Shivaji(u"f^T maiSana jaaoDlaolao Aaho kaÆ"), ComboAutoFat);
    page.Choice(Shivaji(u"saMklana pavatIcaI ip`MT paihjao ka Æ"), ComboPrintStatus);
    page.Figure(Shivaji(u"k^nacaI  xamata"), Shivaji(u"gaaya"), txtCowLimit, Plain(u"लिटर"));
    page.Figure(Shivaji(u"k^nacaI  xamata"), Shivaji(u"mhOsa"), txtBuffLimit, Plain(u"लिटर"));
    page.Choice(Shivaji(u"pavatI p`kar inavaDa"), ComboReceipt, cmdReceipt);
    page.Box(CheckRepeatCol);
    return page.Page();
}

QLayout* frmAutoSettings::PaymentPage()
{
    Layout::Questions page;
    page.Choice(Shivaji(u"pomaoMT kalaavaQaI"), ComboPaymentDuration);
    page.Figure(Shivaji(u"zova kpat"), Shivaji(u"gaaya"), txtCow, Shivaji(u"p`it ilaTr"));
    page.Figure(Shivaji(u"zova kpat"), Shivaji(u"mhOsa"), txtBuff, Shivaji(u"p`it ilaTr"));
    page.Choice(Shivaji(u"dracaa p`kar"), cmbFatRateType);
    page.Box(CheckCNP);
    page.Box(CheckSNU);
    page.Options(Shivaji(u"dUQa pomaoMT pOSaat yaot Asalyaasa "),
        {&OptionAddThev, &OptionPayable, &OptionPayIt, &OptionDiscount});
    return page.Page();
}

QLayout* frmAutoSettings::SalePage()
{
    const Caption local = Shivaji(u"sqaainak dUQa ivaËI dr");
    Layout::Questions page;
    page.Figure(local, Shivaji(u"gaaya dUQa"), txtCowSaleRate, Shivaji(u"p`it ilaTr"));
    page.Figure({}, Shivaji(u"mhOsa dUQa"), txtBuffSaleRate, Shivaji(u"p`it ilaTr"));
    page.Figure({}, Shivaji(u"eki~t dUQa"), txtMixSaleRate, Shivaji(u"p`it ilaTr"));
    page.Choice(Shivaji(u"ivaËI pavatIÀip`MT"), ComboMSRPrintStatus);
    return page.Page();
}

void frmAutoSettings::SetGuides()
{
    ComboAutoLiters.SetGuide(Shivaji(u"  1– haoya  2– naahI "));
    ComboAutoFat.SetGuide(Shivaji(u"  1–haoya   2–naahI"));
    ComboPrintStatus.SetGuide(Shivaji(u"  1–saovh  2–saovh va sËIna  3–saovh va ip`MT"));
    ComboReceipt.SetGuide(Shivaji(GuideToReceipts()));
    ComboPaymentDuration.SetGuide(
        Shivaji(u"  1Á– 1 idvasa    2Á– 7 idvasa    3Á– 10 idvasa    4Á– 15 idvasa    5Á– 1 maihnaa"));
    ComboMSRPrintStatus.SetGuide(Shivaji(u"  1–saovh  2–saovh va sËIna  3–saovh va ip`MT"));
    cmdReceipt.SetGuide(Plain(u"Enter : नमुना पावती"));
    txtCow.SetGuide(Plain(u"↓ : दराचा प्रकार व पुढील प्रश्न"));
    txtBuff.SetGuide(Plain(u"Enter : दूध विक्री    ↓ : दराचा प्रकार व पुढील प्रश्न"));
    for (NumberField* rate : {&txtCowSaleRate, &txtBuffSaleRate, &txtMixSaleRate})
        rate->SetGuide(Plain(u"↓ : विक्री पावती/प्रिंट"));
}

// When the sale page is turned to, the focus stays on the strip of tabs; on the others only if the tab that
// is shown is pressed.
void frmAutoSettings::ShowTabGuide()
{
    const Caption guides[] = {Caption(), Plain(u"Enter : पेमेंट कालावधी    ↓ : दराचा प्रकार व पुढील प्रश्न"),
        Plain(u"Enter : दर    ↓ : विक्री पावती/प्रिंट")};
    SSTab.SetGuide(guides[SSTab.Tab()]);
}
