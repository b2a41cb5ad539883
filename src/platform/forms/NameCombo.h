#pragma once

#include "DropList.h"
#include "TextField.h"

#include <QStringList>

// A name, typed freely or picked from a list that drops below the field. The list never takes the focus:
// Down and Up walk it from the field, and it stands at the first name that begins with what was typed.
class NameCombo final : public TextField {
public:
    NameCombo(Screen* screen, const char* name);

    // The names as they are stored, in the order of the list.
    void SetItems(const QStringList& names);
    void AddItem(const QString& name);
    void AddItems(const QStringList& names);
    void ClearItems() { SetItems({}); }
    const QStringList& Items() const { return m_names; }

    bool IsDroppedDown() const { return m_list.IsOpen(); }
    void DropDown(bool open);

    // Puts a name of the list in place of its beginning: the one that the text is but for blanks around it,
    // or else the first that begins with it. A text that no name begins with stays as it is.
    void TakeMatch();

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;
    void Changed() override;

private:
    void Pick(int row);
    int MatchOf(const QString& stored);
    void ShowMatch();

    QStringList m_names;
    DropList m_list;
};
