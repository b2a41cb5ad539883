#include "collection/MemberKeys.h"

#include "platform/forms/Look.h"

#include <QHBoxLayout>

MemberKeys::MemberKeys(Screen* screen, bool hasFrame)
    : lblF9(screen, "lblF9", Plain(u"F9"))
    , lblSearch(screen, "lblSearch")
    , lblF7(screen, "lblF7", Plain(u"F7"))
    , lblMilk(screen, "lblMilk")
    , lblF10(screen, "lblF10", Plain(u"F10"))
    , lblDelete(screen, "lblDelete")
    , m_hasFrame(hasFrame)
{
}

std::array<std::pair<Label*, Label*>, 3> MemberKeys::KeysAndActions()
{
    return {{{&lblF9, &lblSearch}, {&lblF7, &lblMilk}, {&lblF10, &lblDelete}}};
}

void MemberKeys::NameActions(const std::function<Caption(const QString& key)>& action)
{
    for (const auto& [key, label] : KeysAndActions())
        label->SetCaption(action(key->Shown().Text()));
}

void MemberKeys::Show(bool shown, bool hasRowToDelete)
{
    for (Label* label : {&lblF9, &lblSearch})
        label->SetVisible(shown);
    for (Label* label : {&lblF7, &lblMilk})
        label->SetVisible(shown && m_hasFrame);
    for (Label* label : {&lblF10, &lblDelete})
        label->SetVisible(shown && hasRowToDelete);
}

void MemberKeys::Light(bool findsRow, bool isAtNumber)
{
    for (Label* label : {&lblF9, &lblSearch})
        label->Widget()->setEnabled(findsRow);
    for (Label* label : {&lblF7, &lblMilk})
        label->Widget()->setEnabled(isAtNumber);
}

void MemberKeys::LayOut(QHBoxLayout& row)
{
    for (const auto& [key, action] : KeysAndActions()) {
        key->Widget()->setFont(Look::Font(Look::Size::Small, true));
        key->Widget()->setMargin(4);
        key->Widget()->setAutoFillBackground(true);
        QPalette cap = key->Widget()->palette();
        cap.setColor(QPalette::Window, QColor(Look::PlainColour));
        cap.setColor(QPalette::WindowText, QColor(Look::Ink));
        cap.setColor(QPalette::Disabled, QPalette::Window, QColor(Look::Quiet));
        cap.setColor(QPalette::Disabled, QPalette::WindowText, QColor(Look::DullColour));
        key->Widget()->setPalette(cap);
        action->Widget()->setFont(Look::Font(Look::Size::Small));
        action->Widget()->setPalette(cap);
        row.addWidget(key->Widget());
        row.addWidget(action->Widget());
        row.addSpacing(12);
    }
}
