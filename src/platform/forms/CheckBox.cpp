#include "platform/forms/CheckBox.h"

#include <QCheckBox>
#include <QKeyEvent>

namespace {

QCheckBox& Box(const Control& control)
{
    return *static_cast<QCheckBox*>(control.Widget());
}

}

CheckBox::CheckBox(Screen* screen, const char* name, const Caption& caption, const Handler& click)
    : Control(screen, name, new QCheckBox)
    , Click(click.On(*screen))
    , m_caption(caption)
{
    Box(*this).setText(caption.Seen().trimmed().replace(u'&', QStringLiteral("&&")));
    SetAccessibleName(Plain(caption.Seen()));
    AddOwnKey(QStringLiteral("Space"));
    CheckBox::ShowFocus(false);
    // The widget never gets keys, so a click always comes from the mouse.
    QObject::connect(&Box(*this), &QCheckBox::clicked, &Box(*this), [this] {
        if (Click)
            RunEvent(Click);
    });
}

bool CheckBox::Checked() const
{
    return Box(*this).isChecked();
}

void CheckBox::SetChecked(bool checked)
{
    Box(*this).setChecked(checked);
}

QString CheckBox::Text() const
{
    return Checked() ? QStringLiteral("1") : QStringLiteral("0");
}

bool CheckBox::KeyPress(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_Space)
        return true;
    SetChecked(!Checked());
    if (Click)
        Click();
    return true;
}

// The focus colours the caption as well as the box.
void CheckBox::ShowFocus(bool held)
{
    Control::ShowFocus(held);
    QPalette palette = Box(*this).palette();
    palette.setColor(QPalette::Window, palette.color(QPalette::Active, QPalette::Base));
    Box(*this).setPalette(palette);
    Box(*this).setAutoFillBackground(held);
}
