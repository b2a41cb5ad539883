#include "society/MemberCombo.h"

#include "core/menu/Keys.h"
#include "society/Names.h"

MemberCombo::MemberCombo(Screen* screen, const char* name, const Handler& lostFocus)
    : NameCombo(screen, name, lostFocus)
{
    SetGuide(Keys::Guide(QStringLiteral("NameCombo")));
    Accepts = [](QChar c) { return c != u'\'' && !c.isDigit(); };
}

void MemberCombo::LoadMemberNames()
{
    SetNames(MemberNames());
    if (NamesLoaded)
        NamesLoaded();
}

void MemberCombo::OpenWithout(const Field& number)
{
    OpenOnFocus([this, &number] {
        if (!number.IsEmpty())
            return false;
        LoadMemberNames();
        return true;
    });
}

void MemberCombo::OpenWithMore()
{
    OpenOnFocus([this] {
        AddNames(MemberNames());
        return true;
    });
}
