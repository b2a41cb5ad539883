#include "bonus/frmBonusPayments.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

#include <QHBoxLayout>
#include <QStackedLayout>
#include <QVBoxLayout>

using namespace Pieces;

// All fifteen stand on the smallest desktop. Of the litres two decimals are enough to look at: the third one
// is told above, and on paper.
std::vector<DataGrid::Column> frmBonusPayments::BonusColumns()
{
    constexpr int figureWidth = 70;
    std::vector<DataGrid::Column> columns{
        {QStringLiteral("SerialNo"), Shivaji(u"A.naM."), 32, {}, true, false},
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naM."), 42, {}, true, false},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naava"), 0},
    };
    for (const auto& [field, caption] : {std::pair("PreviousCowLiters", u"maagaIla gaaya dUQa"),
             std::pair("PreviousBuffLiters", u"maagaIla mhOsa dUQa"),
             std::pair("CurrentCowLiters", u"caalaU gaaya dUQa"),
             std::pair("CurrentBuffLiters", u"caalaU mhOsa dUQa"),
             std::pair("TotalCowLiters", u"ekUNa gaaya ilaTsa-"),
             std::pair("TotalBuffLiters", u"ekUNa mhOsa ilaTsa-"),
             std::pair("TotalCowBonus", u"ekUNa gaaya baaonasa"),
             std::pair("TotalBuffBonus", u"ekUNa mhOsa baaonasa"), std::pair("TotalBonus", u"ekUNa baaonasa"),
             std::pair("PreviousThev", u"maagaIla zova"), std::pair("Advance", u"vajaavaTÀ A^Dvhansa"),
             std::pair("RemainingBonus", u"iSallak baaonasa")})
        columns.push_back(
            {QLatin1String(field), Shivaji(caption), figureWidth, GridPattern::Figure.toString(), true});
    return columns;
}

void frmBonusPayments::LayOut()
{
    auto* body = new QVBoxLayout;
    body->setSpacing(6);
    body->addWidget(Frame1.LaidOut(), 1);
    body->addWidget(MembersPanel(), 1);
    body->addWidget(lblGuide.Widget());
    Stack(body, Strips(), {8, 8, 8, 8});
}

// Each panel shows its own keys.
QWidget* frmBonusPayments::Strips()
{
    auto* strips = new QWidget;
    m_keys = new QStackedLayout(strips);
    for (const QString& keys : {QStringLiteral("frmBonusPayments.Frame1"), Name()})
        m_keys->addWidget(KeyStrip(keys));
    return strips;
}

QWidget* frmBonusPayments::MembersPanel()
{
    constexpr int buttonWidth = 150;
    cmdNext.SetAccessibleName(Plain(u"ठेवा, पुढचा मेम्बर"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch(1);
    buttons->addWidget(Sized(cmdNext, buttonWidth, NarrowField, Look::Size::Large, true));
    buttons->addWidget(Sized(cmdReport, buttonWidth, NarrowField, Look::Size::Normal));

    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(Member.LaidOut());
    column->addLayout(buttons);
    column->addWidget(List(DataGrid1, 30, Look::Size::Small, 56), 1);
    DataGrid1.SetAccessibleName(Shivaji(u"baaonasa TUla"));
    return Frame2.LaidOut(column);
}
