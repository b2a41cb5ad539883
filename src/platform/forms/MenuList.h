#pragma once

#include "platform/forms/Control.h"

#include <vector>

// A list of entries to choose from, as the menu has them. The text of an entry is what decides.
class MenuList : public Control {
public:
    // `chosen` answers Chosen.
    MenuList(Screen* screen, const char* name, const Handler& chosen = {});

    // Enter, or a double click, on the current entry.
    Event Chosen;

    void SetEntries(const std::vector<Caption>& entries);
    const std::vector<Caption>& Entries() const { return m_entries; }

    // The current entry, counted from 0; -1 if there is none.
    int CurrentIndex() const;
    void SetCurrentIndex(int index);

    // The current entry as the system spells it.
    QString Text() const override;

    void Choose();

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;

private:
    std::vector<Caption> m_entries;
};
