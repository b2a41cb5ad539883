#include "tests/platform/forms/FormsTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <utility>

void FormsTest::Compose(const char* text, const char* preedit)
{
    Do([this, text, preedit] {
        QInputMethodEvent event(Q(preedit), {});
        event.setCommitString(Q(text));
        QCoreApplication::sendEvent(TheClerk.Top().KeyTarget(), &event);
    });
}

void FormsTest::Paste(const char* text)
{
    Do([text] { QGuiApplication::clipboard()->setText(Q(text)); });
    Type("^v");
}

Desk::Desk() : Screen("Desk")
{
    auto* column = new QVBoxLayout(this);
    for (Control* control : Controls()) {
        const std::string name = control->Name().toStdString();
        control->GotFocus = [this, name] { Tell("+" + name); };
        control->LostFocus = [this, name] { Tell("-" + name); };
        column->addWidget(control->Widget());
    }
    column->addWidget(lblGuide.Widget());
    column->addWidget(lblTitle.Widget());
    cmdGo.Click = [this] { Tell("!cmdGo"); };
    cmdCancel.Click = [this] { Tell("!cmdCancel"); };
    cmdCancel.SetCancels(true);
    SetGuideLabel(lblGuide);
    SetTitleLabel(lblTitle);
}

void Desk::Tell(const std::string& event)
{
    m_happened += m_happened.empty() ? event : " " + event;
    if (const auto also = m_also.find(event); also != m_also.end())
        also->second();
}

std::string Desk::Happened()
{
    return std::exchange(m_happened, {});
}

void Desk::Escape()
{
    Tell("escape");
    Close();
}

void Desk::CloseBox()
{
    Tell("closebox");
    Close();
}

bool Desk::KeyDown(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_F2)
        return false;
    Tell("F2");
    return true;
}

bool Notice::KeyDown(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_Return || FocusHolder() != &cmdExit)
        return false;
    Close();
    return true;
}
