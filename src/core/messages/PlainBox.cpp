#include "core/messages/PlainBox.h"

#include "core/messages/FittingText.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

frmPlainBox::frmPlainBox(const QString& text, const QString& title) : BoxScreen("frmPlainBox")
{
    SetTitleLabel(lblTitle);
    SetTitle(Plain(title.isEmpty() ? QStringLiteral("Vetrolan") : title));
    ShowText(text);

    auto* body = new QVBoxLayout;
    body->setSpacing(18);
    body->addWidget(lblText.Widget(), 1);
    body->addLayout(Layout::ButtonRow({&cmdOk}));
    Layout::Stack(*this, Layout::Header(lblTitle), body, nullptr);
}

// A few words are shown large and centred; more text reads better left-aligned.
void frmPlainBox::ShowText(const QString& text)
{
    constexpr int leastWidth = 480;
    constexpr QSize forAFewWords(720, 130);
    constexpr QSize most(840, 440); // what title and button leave on the smallest desktop
    const QFont large = Look::Font(Look::Size::Large);
    QFont font = Look::Font(Look::Size::Normal);
    QString shown = FittingText(text, QFontMetrics(large), forAFewWords);
    const bool isShort = shown == BreakableText(text);
    if (isShort)
        font = large;
    else
        shown = FittingText(text, QFontMetrics(font), most);

    // Room to spare: scaled letters may be a little wider than the scaled label, and would wrap.
    const int natural = QFontMetrics(font).size(0, shown).width() * 21 / 20;
    QLabel& label = *lblText.Widget();
    label.setFont(font);
    label.setAlignment(isShort ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    label.setWordWrap(true);
    label.setText(shown); // no caption: every '&' is itself
    label.setMinimumWidth(std::clamp(natural, leastWidth, isShort ? forAFewWords.width() : most.width()));
    QSizePolicy policy = label.sizePolicy(); // its height follows from the text at that width
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    policy.setVerticalPolicy(QSizePolicy::Ignored);
    label.setSizePolicy(policy);
}

void frmPlainBox::cmdOk_Click()
{
    Close();
}

void PlainBoxCards::Show(const QString& text, const QString& title)
{
    frmPlainBox(text, title).ShowModal();
}
