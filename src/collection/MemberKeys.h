#pragma once

#include "platform/forms/Control.h"

#include <array>

class QHBoxLayout;

// The keys of the member's number, shown over the line of fields while the number is entered.
class MemberKeys {
public:
    // `hasFrame`: whether F7 shows a member's own collection at this counter.
    MemberKeys(Screen* screen, bool hasFrame);

    // Takes what each key does from `action`, by the key's name.
    void NameActions(const std::function<Caption(const QString& key)>& action);

    // Shows them or hides them; F10 only where there is a row to delete.
    void Show(bool shown, bool hasRowToDelete);

    // Lights those that do something now. F9 finds only a member who has a row in the shift, and behind the
    // member's frame neither F9 nor F7 is answered.
    void Light(bool findsRow, bool isAtNumber);

    void LayOut(QHBoxLayout& row);

private:
    Label lblF9;
    Label lblSearch;
    Label lblF7;
    Label lblMilk;
    Label lblF10;
    Label lblDelete;
    bool m_hasFrame;

    std::array<std::pair<Label*, Label*>, 3> KeysAndActions();
};
