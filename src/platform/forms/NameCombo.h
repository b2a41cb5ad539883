#pragma once

#include "platform/forms/DropList.h"
#include "platform/forms/TextField.h"

#include <QSet>
#include <QStringList>

#include <utility>
#include <vector>

// A name, typed freely or picked from a list that drops below the field. The list never takes the focus:
// Down and Up walk it from the field, and its dark row is the first that begins with what was typed. While
// the list is open Enter and Tab take the dark row and go on, and Esc closes the list and nothing else. With
// the field empty no row is dark.
class NameCombo final : public TextField {
public:
    // A name as it is stored, and the number that the list shows beside it; empty if it has none.
    struct Entry {
        QString name;
        QString number;
        bool operator==(const Entry& other) const = default;
    };

    NameCombo(Screen* screen, const char* name, const Handler& lostFocus = {});

    // Words with an order of their own, as they are stored: the list shows them as they are given.
    void SetItems(const QStringList& words);

    // Names: the list shows them in the order of the alphabet as they are read. One that is given twice with
    // the same number is shown once.
    void SetNames(const std::vector<Entry>& names);
    void AddNames(const std::vector<Entry>& names);
    void ClearItems() { SetItems({}); }

    // All that was given, in the order in which it was.
    QStringList Items() const;
    const std::vector<Entry>& Names() const { return m_given; }

    bool IsDroppedDown() const { return m_list.IsOpen(); }
    void DropDown(bool open);

    // Lets the list drop open whenever the field takes the focus, as if the clerk had pressed Alt+Down.
    void OpenOnFocus();

    // Puts a name of the list in place of its beginning: the one that the text is but for blanks around it,
    // or that reads the same, or else the first that begins with it. A text that no name begins with stays as
    // it is.
    void TakeMatch();

    // Shows somebody who is known by his number, as if his row had been picked.
    void SetEntry(const Entry& entry);

    // Whether the name in the field may be that of a number: a row that was picked stands for the number
    // beside it, a name that was typed for any.
    bool MayMean(const QString& number) const { return m_picked.isEmpty() || m_picked == number; }

protected:
    bool KeyPress(const QKeyEvent& key) override;
    bool KeyBeforeScreen(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;
    void Changed() override;

private:
    void ShowRows();
    void Take(int row);
    void Pick(int row);
    int MatchOf(const QString& stored) const;
    void ShowMatch();

    std::vector<Entry> m_given;
    std::vector<Entry> m_rows; // of the list
    QStringList m_readings; // what they read
    QSet<std::pair<QString, QString>> m_numbered; // names and numbers of the rows that have one
    bool m_byAlphabet = false;
    QString m_picked; // the number of the one whose name stands in the field
    DropList m_list;
};
