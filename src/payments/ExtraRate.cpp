#include "payments/ExtraRate.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Pieces.h"
#include "platform/forms/Screen.h"

#include <QHBoxLayout>

#include <utility>

ExtraRate::ExtraRate(Screen* screen) : m_screen(screen)
{
    constexpr int longestNumber = 9;
    txtExtraRsPerLtr.TakeLetterN();
    txtExtraRsPerLtr.SetMaxLength(longestNumber);
    txtExtraRsPerLtr.SetGuide(Plain(u"F5 : बंद करा. या दराने पेमेंट बदलत नाही"));
    txtExtraAmount.SetEnabled(false);
    m_panel.SetVisible(false);
}

void ExtraRate::ShowOrHide()
{
    const bool isShown = m_panel.Visible();
    m_panel.SetVisible(!isShown);
    if (isShown) {
        Keep();
        if (Control* before = std::exchange(m_before, nullptr))
            before->SetFocus();
    } else {
        m_before = m_screen->FocusHolder();
        txtExtraRsPerLtr.SetText(gAppState.gExtraRsPerLtr);
        txtExtraRsPerLtr.SetFocus();
    }
}

void ExtraRate::Keep()
{
    if (!txtExtraRsPerLtr.HoldsNumber())
        txtExtraRsPerLtr.SetText(QStringLiteral("0"));
    SetNoAmount();
    gAppState.gExtraRsPerLtr = txtExtraRsPerLtr.Text();
    Transaction keeping(gCn);
    gCn.Execute(Sql(u"UPDATE AutoSettings SET CanLimitCow=", txtExtraRsPerLtr.Value()));
    keeping.Commit();
}

void ExtraRate::SetNoAmount()
{
    txtExtraAmount.SetText(QStringLiteral("0"));
}

QWidget* ExtraRate::LaidOut()
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (const auto& [caption, field] : {std::pair(Plain(u"जादा दर/लि."), &txtExtraRsPerLtr),
             std::pair(Plain(u"जादा रक्कम"), &txtExtraAmount)}) {
        field->SetAccessibleName(caption);
        row->addWidget(Pieces::Heading(caption));
        row->addWidget(Pieces::Sized(*field, 116, Pieces::NarrowField, Look::Size::Normal));
    }
    return m_panel.LaidOut(row);
}
