#include "core/messages/InputBox.h"

#include "core/menu/Keys.h"
#include "core/messages/FittingText.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

frmInputBox::frmInputBox(const QString& prompt, const QString& proposed, const QString& title)
    : BoxScreen("frmInputBox")
{
    constexpr int width = 600;
    SetTitleLabel(lblTitle);
    SetTitle(Plain(title.isEmpty() ? QStringLiteral("Vetrolan") : title));
    lblPrompt.Widget()->setText(BreakableText(prompt)); // no caption: every '&' is itself
    lblPrompt.Widget()->setFont(Look::Font(Look::Size::Large));
    lblPrompt.Widget()->setWordWrap(true);
    txtAnswer.SetText(proposed);
    txtAnswer.SetAccessibleName(Plain(prompt));
    Layout::SizeField(txtAnswer, width);

    auto* body = new QVBoxLayout;
    body->setSpacing(14);
    body->addWidget(lblPrompt.Widget());
    body->addWidget(txtAnswer.Widget());
    body->addLayout(Layout::ButtonRow({&cmdOk, &cmdCancel}));
    Layout::Stack(*this, Layout::Header(lblTitle), body, Layout::KeyStrip(Keys::Of(Name())));
}

void frmInputBox::cmdOk_Click()
{
    TakeAnswer();
}

void frmInputBox::TakeAnswer()
{
    Answer = txtAnswer.Text().trimmed();
    Close();
}

void frmInputBox::cmdCancel_Click()
{
    Close();
}

QString InputBoxCards::Ask(const QString& prompt, const QString& proposed, const QString& title)
{
    frmInputBox box(prompt, proposed, title);
    box.ShowModal();
    return box.Answer;
}
