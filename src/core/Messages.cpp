#include "Messages.h"

#include "Layout.h"
#include "Look.h"
#include "World.h"

#include <QLabel>
#include <QVBoxLayout>

int frmMessages::MessageAnswer = 0;

frmMessages::frmMessages(Mode mode, const Caption& message) : Screen("frmMessages")
{
    When(cmdOkYes.Click, &frmMessages::cmdOkYes_Click);
    When(cmdCancelNo.Click, &frmMessages::cmdCancelNo_Click);
    When(cmdExit.Click, &frmMessages::cmdExit_Click);

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
    text->setMinimumSize(560, 120);

    auto* body = new QVBoxLayout;
    body->addWidget(text, 1);
    body->addWidget(lblMessage2.Widget());
    body->addLayout(Layout::ButtonRow({&cmdOkYes, &cmdCancelNo, &cmdExit}));
    Layout::Stack(*this, nullptr, body, nullptr);
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

void ShowNotice(QStringView stored)
{
    frmMessages notice(frmMessages::Mode::Notice, Words(stored));
    notice.ShowModal();
}

bool Ask(QStringView stored)
{
    frmMessages question(frmMessages::Mode::Question, Words(stored));
    question.ShowModal();
    return question.Answered() && frmMessages::MessageAnswer == 1;
}

void ShowPlain(const QString& text)
{
    World::Current().messageBox->Show(text);
}
