#pragma once

#include "platform/forms/Control.h"

#include <vector>

// A list of entries to choose from, like the menus. The text of the chosen entry tells what it stands for.
class MenuList : public Control {
public:
    // `chosen` answers Chosen.
    MenuList(Screen* screen, const char* name, const Handler& chosen = {});

    // The clerk has pressed Enter or double-clicked on the current entry.
    Event Chosen;

    void SetEntries(const std::vector<Caption>& entries);
    const std::vector<Caption>& Entries() const { return m_entries; }

    // The current entry, counted from 0; -1 if there is none.
    int CurrentIndex() const;
    void SetCurrentIndex(int index);

    // The current entry as it is stored.
    QString Text() const override;

    void Choose();

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;

private:
    std::vector<Caption> m_entries;
};
