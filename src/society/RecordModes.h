#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"

#include <vector>

// The modes of a screen that keeps records: at rest, or a new record, a change or a deletion is open. The
// mode is kept in the captions of its buttons: at rest a button names its mode; while the mode is open, it
// names what pressing it will do. Where a screen differs, it changes the controls after the call.
class RecordModes {
public:
    struct Buttons {
        Button& add;
        Button& modify;
        Button& remove;
        Button& cancel;
        Button& exit;
    };

    // The captions at rest are the ones that the buttons were declared with. `title` is the title at rest, in
    // the system's encoding.
    RecordModes(Screen& screen, QStringView title, const Buttons& buttons);

    // The fields that the modes open and rest closes. A deletion opens only those that look the record up.
    void SetFields(std::vector<Control*> lookUp, std::vector<Control*> others);

    bool IsNew() const;
    bool IsModify() const;
    bool IsDelete() const;

    // Each opens a mode: sets caption and title, opens the fields, and leaves only its own button and Cancel
    // open.
    void EnterNew();
    void EnterModify();
    void EnterDelete();

    // Closes the mode: captions and title as at rest, all buttons open, all fields closed.
    void Rest();

    // The button of the open mode; at rest, the one of a new record.
    Button& Open() const;

    const Buttons& All() const { return m_buttons; }

private:
    void Enter(Button& button, QStringView caption, QStringView title);

    Screen& m_screen;
    QString m_title;
    Buttons m_buttons;
    std::vector<std::pair<Button*, Caption>> m_atRest;
    std::vector<Control*> m_lookUp;
    std::vector<Control*> m_others;
};
