#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"

#include <vector>

// The modes of a screen that keeps records: at rest, or with a new record, a change or a deletion open. The
// caption of a mode's button tells which: at rest it names the mode, while the mode is open what pressing it
// does then. A screen that has it otherwise says so after the call.
class RecordModes {
public:
    struct Buttons {
        Button& add;
        Button& modify;
        Button& remove;
        Button& cancel;
        Button& exit;
    };

    // The captions at rest are those that the buttons were declared with; `title` is the screen's at rest, as
    // the system spells it.
    RecordModes(Screen& screen, QStringView title, const Buttons& buttons);

    // The fields that are closed at rest and open in a mode; in a deletion only those that look the record
    // up.
    void SetFields(std::vector<Control*> lookUp, std::vector<Control*> others);

    bool IsNew() const;
    bool IsModify() const;
    bool IsDelete() const;

    // Each opens a mode: its caption and title, its fields, and of the buttons only its own and Cancel.
    void EnterNew();
    void EnterModify();
    void EnterDelete();

    // Closes the mode: captions and title as at rest, all buttons open, the fields closed.
    void Rest();

    // The button of the mode that is open; that of a new record at rest.
    Button& Open() const;

private:
    void Enter(Button& button, QStringView caption, QStringView title);

    Screen& m_screen;
    QString m_title;
    Buttons m_buttons;
    std::vector<std::pair<Button*, Caption>> m_atRest;
    std::vector<Control*> m_lookUp;
    std::vector<Control*> m_others;
};
