#include "platform/forms/Button.h"

#include <QKeyEvent>
#include <QPushButton>

Button::Button(Screen* screen, const char* name, const Caption& caption, const Handler& click)
    : Control(screen, name, new QPushButton)
    , Click(click.On(*screen))
{
    SetCaption(caption);
    // The widget never gets keys, so a click always comes from the mouse.
    QObject::connect(static_cast<QPushButton*>(Widget()), &QPushButton::clicked, Widget(),
        [this] { RunEvent([this] { Press(); }); });
}

void Button::SetCaption(const Caption& caption)
{
    m_caption = caption;
    QString seen = caption.Seen();
    if (const QChar key = caption.Mnemonic(); !key.isNull())
        seen += QStringLiteral("  (%1)").arg(key);
    static_cast<QPushButton*>(Widget())->setText(seen.replace(u'&', QStringLiteral("&&")));
    SetAccessibleName(Plain(caption.Seen()));
}

void Button::Press()
{
    if (CanTakeFocus() && Click)
        Click();
}

bool Button::KeyPress(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Space)
        Press();
    return true;
}
