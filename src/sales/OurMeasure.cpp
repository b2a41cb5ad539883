#include "sales/OurMeasure.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/Pieces.h"
#include "platform/forms/Screen.h"
#include "rates/LookupFatRate.h"
#include "sales/Sale.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

OurMeasure::OurMeasure(Screen* screen, const OfSale& sale)
    : m_screen(screen)
    , m_sale(sale)
    , m_panel(
          screen, {&txtOurLiters, &chkCalculate, &txtOurFat, &txtOurRate, &txtSNF}, {&lblOurLiters, &lblSNF})
{
    for (Field* field : std::initializer_list<Field*>{&txtOurLiters, &txtOurFat, &txtOurRate, &txtSNF})
        field->SetMaxLength(12);
    chkCalculate.SetGuide(Plain(u"Space : त्या दिवशीच्या त्या वेळच्या संकलनाचे लिटर, सरासरी फॅट व दर"));
    txtSNF.SetGuide(Plain(u"Enter : विक्रीच्या लिटरकडे परत"));
    m_panel.SetVisible(false);
}

// Opening and closing

void OurMeasure::Open()
{
    m_isOwn = true;
    m_panel.SetVisible(true);
    txtOurLiters.SetFocus();
}

void OurMeasure::Close()
{
    m_panel.SetVisible(false);
}

void OurMeasure::FollowLitres()
{
    if (!m_isOwn)
        txtOurLiters.SetText(m_sale.liters.Text());
}

void OurMeasure::Show(const Sale& sale)
{
    Clear();
    txtOurLiters.Show(sale.ourLiters);
    txtOurFat.Show(sale.ourFat);
    txtOurRate.Show(sale.ourRate);
    txtSNF.SetText(Format(sale.snf, u"####0.00"));
    m_isOwn = sale.ourLiters != sale.liters || sale.ourFat != 0 || sale.ourRate != 0 || sale.snf != 0;
}

void OurMeasure::Clear()
{
    for (Field* field : std::initializer_list<Field*>{&txtOurLiters, &txtOurFat, &txtOurRate, &txtSNF})
        field->Clear();
    chkCalculate.SetChecked(false);
    m_isOwn = false;
    Close();
}

// The fields

void OurMeasure::txtOurLiters_LostFocus()
{
    txtOurLiters.Reformat();
}

void OurMeasure::txtOurFat_LostFocus()
{
    txtOurFat.Reformat();
}

void OurMeasure::txtOurRate_LostFocus()
{
    txtOurRate.Reformat();
}

void OurMeasure::txtSNF_LostFocus()
{
    txtSNF.Reformat();
    if (m_screen->IsSteppingBack())
        return;
    Close();
    m_sale.liters.SetFocus();
}

// Working it out

void OurMeasure::chkCalculate_Click()
{
    if (!chkCalculate.Checked()) {
        txtOurLiters.Show(0);
    } else if (m_sale.customer.IsEmpty()) {
        chkCalculate.SetChecked(false);
        chkCalculate.SetFocus(Plain(u"आधी ग्राहकाचे नाव टाका"));
    } else {
        WorkOut();
        txtOurFat.SetFocus();
    }
}

// All that the members brought of this milk in the shift, its average fat by litres, and what the chart gives
// for that.
void OurMeasure::WorkOut()
{
    double liters = 0;
    double litersByFat = 0;
    for (Recordset can(gCn,
             Sql(u"select * from MilkCollections where CompanyId=", gAppState.gCompanyId,
                 u" AND CollectionDate=", SqlDay(m_sale.date.Date()), u" AND Animal=",
                 Quoted(m_sale.animal.Text()), u" AND CollectionTime=", Quoted(m_sale.time.Text())));
         !can.Eof(); can.MoveNext()) {
        liters += can[u"Liters"].Number();
        litersByFat += can[u"Liters"].Number() * can[u"Fat"].Number();
    }
    txtOurLiters.Show(liters);
    txtOurFat.SetText(Format(liters == 0 ? 0 : litersByFat / liters, u"###0.0"));
    if (liters == 0) {
        txtOurRate.Show(0);
        ShowNotice(Plain(u"या दिवशी या वेळेला या दुधाचे संकलन झालेले नाही."));
        return;
    }
    const FatRate found = LookupFatRate(m_sale.date.Date(), txtOurFat.Value(), m_sale.animal.Text());
    if (found.outcome == FatRate::Outcome::Priced)
        txtOurRate.Show(found.rate);
}

// The window

QWidget* OurMeasure::LaidOut()
{
    auto* frame = Sheet();
    frame->setObjectName(QStringLiteral("FrameOurLiters"));
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(16, 4, 16, 8);
    row->setSpacing(14);
    const auto put = [&](Label& label, Field& field, int width) {
        field.SetAccessibleName(label.Shown());
        label.Widget()->setFont(Look::Font(Look::Size::Normal));
        SetInk(*label.Widget());
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        column->addWidget(label.Widget());
        column->addWidget(Sized(field, width, LineField, Look::Size::Large));
        row->addLayout(column);
    };
    SetInk(*chkCalculate.Widget());
    put(lblOurLiters, txtOurLiters, 170);
    row->addWidget(chkCalculate.Widget(), 0, Qt::AlignBottom);
    row->addLayout(InLine(Plain(u"आपला फॅट"), txtOurFat, 110));
    row->addLayout(InLine(Plain(u"आपला दर"), txtOurRate, 120));
    put(lblSNF, txtSNF, 130);
    row->addStretch(1);
    m_panel.SetFrame(frame);
    return frame;
}
