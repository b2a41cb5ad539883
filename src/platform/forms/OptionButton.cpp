#include "platform/forms/OptionButton.h"

#include <QKeyEvent>
#include <QRadioButton>

#include <algorithm>

namespace {

QRadioButton& Radio(const Control& control)
{
    return *static_cast<QRadioButton*>(control.Widget());
}

}

OptionButton::OptionButton(Screen* screen, const char* name, const Caption& caption, const Handler& click)
    : Control(screen, name, new QRadioButton)
    , Click(click.On(*screen))
    , m_caption(caption)
{
    QString seen = caption.Seen().trimmed();
    SetAccessibleName(Plain(seen));
    AddOwnKey(QStringLiteral("↑ ↓"));
    // A digit is part of the caption already.
    if (const QChar key = caption.Mnemonic(); key.isLetter())
        seen += QStringLiteral("  (%1)").arg(key);
    Radio(*this).setText(seen.replace(u'&', QStringLiteral("&&")));
    Radio(*this).setAutoExclusive(false);
    OptionButton::ShowFocus(false);
    // The widget never gets keys, so a click always comes from the mouse. It has changed its own state by
    // then.
    QObject::connect(&Radio(*this), &QRadioButton::clicked, &Radio(*this), [this] {
        RunEvent([this] {
            Show(m_group && m_group->Chosen() == this);
            Press();
        });
    });
}

bool OptionButton::Chosen() const
{
    return m_group && m_group->Chosen() == this;
}

void OptionButton::Choose()
{
    Q_ASSERT(m_group);
    m_group->Choose(*this);
}

QString OptionButton::Text() const
{
    return Chosen() ? QStringLiteral("1") : QStringLiteral("0");
}

bool OptionButton::KeyPress(const QKeyEvent& key)
{
    const bool back = key.key() == Qt::Key_Up || key.key() == Qt::Key_Left;
    if (key.key() == Qt::Key_Space) {
        Press();
    } else if (back || key.key() == Qt::Key_Down || key.key() == Qt::Key_Right) {
        OptionButton* next = m_group->Neighbour(*this, back ? -1 : 1);
        next->SetFocus();
        if (next->HasFocus())
            next->Press();
    }
    return true;
}

void OptionButton::Press()
{
    if (Chosen() || !CanTakeFocus())
        return;
    Choose();
    if (Click)
        Click();
}

void OptionButton::Show(bool chosen)
{
    Radio(*this).setChecked(chosen);
    SetTabStop(chosen);
}

// The focus colours the caption as well as the circle.
void OptionButton::ShowFocus(bool held)
{
    Control::ShowFocus(held);
    QPalette palette = Radio(*this).palette();
    palette.setColor(QPalette::Window, palette.color(QPalette::Active, QPalette::Base));
    Radio(*this).setPalette(palette);
    Radio(*this).setAutoFillBackground(held);
}

OptionGroup::OptionGroup(std::initializer_list<OptionButton*> options) : m_options(options)
{
    for (OptionButton* option : m_options) {
        option->m_group = this;
        option->SetTabStop(option == m_options.front());
    }
}

void OptionGroup::Choose(OptionButton& option)
{
    m_chosen = &option;
    for (OptionButton* each : m_options)
        each->Show(each == m_chosen);
}

void OptionGroup::Clear()
{
    m_chosen = nullptr;
    for (OptionButton* each : m_options) {
        each->Show(false);
        each->SetTabStop(each == m_options.front());
    }
}

// The next option that can take the focus, going round at the ends; the option itself if there is no other.
OptionButton* OptionGroup::Neighbour(const OptionButton& from, int step) const
{
    const auto count = static_cast<std::ptrdiff_t>(m_options.size());
    std::ptrdiff_t at = std::find(m_options.begin(), m_options.end(), &from) - m_options.begin();
    do
        at = (at + step + count) % count;
    while (!m_options[at]->CanTakeFocus() && m_options[at] != &from);
    return m_options[at];
}
