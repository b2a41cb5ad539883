#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/Layout.h"

// The members of a report, from one number to another, with the names of both.
class MemberRange {
    Screen* m_screen;

public:
    explicit MemberRange(Screen* screen);

    WholeField txtFromNo{m_screen, "txtFromNo", {this, &MemberRange::txtFromNo_LostFocus}};
    Label lblFromMember{m_screen, "lblFromMember"};
    WholeField txtToNo{m_screen, "txtToNo", {this, &MemberRange::txtToNo_LostFocus}};
    Label lblToMember{m_screen, "lblToMember"};

    // Asks for one member only, the first.
    void AskForOne();

    double From() const { return txtFromNo.Value(); }
    double To() const;

    // Puts what it asks for into a form.
    void AddTo(Layout::Form& form);

private:
    bool IsOne = false;

    void txtFromNo_LostFocus();
    void txtToNo_GotFocus();
    void txtToNo_LostFocus();
};
