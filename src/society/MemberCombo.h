#pragma once

#include "platform/forms/NameCombo.h"

// The members by name, beside a field for their number. It takes neither digits nor apostrophes.
class MemberCombo final : public NameCombo {
public:
    MemberCombo(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The names were read anew.
    Event NamesLoaded;

    // Reads the names of all members, in place of those that it has.
    void LoadMemberNames();

    // Opens on the focus as long as there is no number, with the names read anew.
    void OpenWithout(const Field& number);

    // Opens on the focus, with all names added once more to those that it has.
    void OpenWithMore();
};
