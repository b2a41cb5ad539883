#include "core/messages/Narrations.h"

#include "core/menu/CommonKeys.h"
#include "core/menu/Keys.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

frmNarrations::frmNarrations(const Caption& prompt) : Screen("frmNarrations", Shape::Card)
{
    SetTitle(prompt);
    lblMessage.SetCaption(prompt);
    txtNarration.SetAccessibleName(prompt);
    lblMessage.Widget()->setFont(Look::Font(Look::Size::Large, true));
    Layout::SizeField(txtNarration, 560);

    auto* body = new QVBoxLayout;
    body->setSpacing(14);
    body->addWidget(lblMessage.Widget());
    body->addWidget(txtNarration.Widget());
    body->addLayout(Layout::ButtonRow({&cmdExit}));
    Layout::Stack(*this, nullptr, body, Layout::KeyStrip(Keys::Of(Name())));
}

bool frmNarrations::KeyDown(const QKeyEvent& key)
{
    return CommonKeys::Tutor(key);
}

void frmNarrations::Escape()
{
    txtNarration.Clear();
    Close();
}

void frmNarrations::txtNarration_LostFocus()
{
    Narration = txtNarration.Text();
}

void frmNarrations::cmdExit_Click()
{
    Narration = txtNarration.Text();
    Close();
}
