#pragma once

#include "platform/forms/DropList.h"
#include "platform/forms/TextField.h"

#include <QSet>
#include <QStringList>

#include <utility>
#include <vector>

// A name, typed freely or picked from a drop-down list. The list never takes the focus: Down and Up move
// through it from the field, and the first name that begins with what was typed is highlighted; none while
// the field is empty. While the list is open, Enter and Tab take the highlighted name and move on, and Esc
// only closes the list.
class NameCombo : public TextField {
public:
    // A name as it is stored, and the number that the list shows beside it; the number may be empty.
    struct Entry {
        QString name;
        QString number;
        bool operator==(const Entry& other) const = default;
    };

    NameCombo(Screen* screen, const char* name, const Handler& lostFocus = {});

    // Sets a list of words, as they are stored. It keeps their order.
    void SetItems(const QStringList& words);

    // Sets or adds names. The list sorts them as they are read. A name that comes twice with the same number
    // is shown once.
    void SetNames(const std::vector<Entry>& names);
    void AddNames(const std::vector<Entry>& names);

    // Puts a word ahead of the names that were set, such as one for whoever pays in cash.
    void PutFirst(const QString& word);
    void ClearItems() { SetItems({}); }

    // All names or words in the order in which they were set.
    QStringList Items() const;
    const std::vector<Entry>& Names() const { return m_given; }

    // If off, the open list highlights only a name that was typed whole or picked by Down, Up or the mouse,
    // and Enter leaves the beginning of one as it was typed: where the name of a record is changed, it may
    // begin like another's.
    void SetTakesBeginnings(bool taken) { m_takesBeginnings = taken; }

    bool IsDroppedDown() const { return m_list.IsOpen(); }
    void DropDown(bool open);

    // Lets the list drop open whenever the field takes the focus, as if the clerk had pressed Alt+Down.
    // `fill` runs first, and returns whether the list is to open.
    void OpenOnFocus(const std::function<bool()>& fill = {});

    // Replaces the beginning of a name by a name of the list: the same one apart from blanks at its ends, or
    // one that reads the same, or else the first that begins with the text. A text that no name begins with
    // stays.
    void TakeMatch();

    // Shows the name of a person with a known number, as if that row had been picked.
    void SetEntry(const Entry& entry);

    // Whether the name in the field may belong to this number: a picked row stands for its own number only, a
    // typed name for any.
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
    int HighlightOf(const QString& stored) const;
    void ShowMatch();

    std::vector<Entry> m_given;
    std::vector<Entry> m_rows; // in the order of the list
    QStringList m_readings; // the readings of m_rows
    QSet<std::pair<QString, QString>> m_numbered; // name and number of the rows that have a number
    bool m_byAlphabet = false;
    bool m_takesBeginnings = true;
    QString m_picked; // the number of the row that was picked
    DropList m_list;
};
