#include "core/messages/Messages.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"
#include "platform/shell/World.h"

#include <QLabel>
#include <QVBoxLayout>

int frmMessages::MessageAnswer = 0;

frmMessages::frmMessages(Mode mode, const Caption& message, OnEnter onEnter)
    : BoxScreen("frmMessages")
    , m_onEnter(onEnter)
{
    cmdOkYes.SetVisible(mode == Mode::Question);
    cmdCancelNo.SetVisible(mode == Mode::Question);
    cmdExit.SetVisible(mode == Mode::Notice);
    lblMessage2.SetVisible(false);
    lblMessages.SetCaption(message);
    SetTitle(message);

    auto* text = lblMessages.Widget();
    text->setFont(Look::Font(Look::Size::Large, true));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    text->setMinimumSize(Layout::MessageRoom);

    auto* body = new QVBoxLayout;
    body->addWidget(text, 1);
    body->addWidget(lblMessage2.Widget());
    body->addLayout(Layout::ButtonRow({&cmdOkYes, &cmdCancelNo, &cmdExit}));
    Layout::Stack(*this, nullptr, body, nullptr);
}

void frmMessages::Load()
{
    BoxScreen::Load();
    if (m_onEnter == OnEnter::No)
        cmdCancelNo.SetFocus();
}

void frmMessages::cmdOkYes_Click()
{
    MessageAnswer = 1;
    Dismiss();
}

void frmMessages::cmdCancelNo_Click()
{
    MessageAnswer = 0;
    Dismiss();
}

void frmMessages::cmdExit_Click()
{
    Dismiss();
}

void frmMessages::Dismiss()
{
    lblMessage2.SetVisible(false);
    m_answered = true;
    Close();
}

void ShowNotice(const Caption& notice)
{
    frmMessages(frmMessages::Mode::Notice, notice).ShowModal();
}

bool Ask(const Caption& question, OnEnter onEnter)
{
    frmMessages dialog(frmMessages::Mode::Question, question, onEnter);
    dialog.ShowModal();
    return dialog.Answered() && frmMessages::MessageAnswer == 1;
}

void ShowPlain(const QString& text, const QString& title)
{
    ModalStack::Current().ForgetTypedAhead();
    World::Current().messageBox->Show(text, title);
}
