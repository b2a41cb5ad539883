#include "core/messages/Narrations.h"

#include "core/menu/CommonKeys.h"
#include "platform/forms/Look.h"

#include <QLabel>
#include <QVBoxLayout>

Keys::Place frmNarrations::KeyPlace()
{
    using namespace KeyHints;
    return {QStringLiteral("frmNarrations"), Plain(u"टीप"),
        {Next, Leave, CommonKeys::TutorKey(&frmNarrations::ShowTutor)}};
}

frmNarrations::frmNarrations(const Caption& prompt) : Screen("frmNarrations", Shape::Card)
{
    SetTitle(prompt);
    lblMessage.SetCaption(prompt);
    txtNarration.SetAccessibleName(prompt);
    lblMessage.Widget()->setFont(Look::Font(Look::Size::Large, true));
    Layout::SizeField(txtNarration, Layout::LineWidth);

    auto* body = new QVBoxLayout;
    body->setSpacing(14);
    body->addWidget(lblMessage.Widget());
    body->addWidget(txtNarration.Widget());
    body->addLayout(Layout::ButtonRow({&cmdExit}));
    Layout::Stack(*this, nullptr, body, Layout::KeyStrip(Keys::Of(Name())));
}

bool frmNarrations::KeyDown(const QKeyEvent& key)
{
    return Keys::Answer(*this, Keys::Of(Name()), key);
}

void frmNarrations::ShowTutor()
{
    CommonKeys::Tutor();
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
