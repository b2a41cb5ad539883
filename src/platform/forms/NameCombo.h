#pragma once

#include "TextField.h"

#include <QListView>
#include <QStringList>
#include <QStringListModel>

// A name, typed freely or picked from a list that drops below the field. The list never takes the focus:
// Down and Up walk it from the field, and it stands at the first name that begins with what was typed.
class NameCombo final : public TextField {
public:
    NameCombo(Screen* screen, const char* name);

    // The names as they are stored, in the order of the list.
    void SetItems(const QStringList& names);
    void AddItem(const QString& name);
    void ClearItems() { SetItems({}); }
    const QStringList& Items() const { return m_names; }

    bool IsDroppedDown() const { return m_dropped; }
    void DropDown(bool open);

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;
    void Changed() override;

private:
    int CurrentRow() const;
    void Pick(int row);
    void PlaceList();
    void ShowMatch();

    QStringList m_names;
    QStringListModel m_seen;
    std::unique_ptr<QListView> m_list;
    bool m_dropped = false;
};
