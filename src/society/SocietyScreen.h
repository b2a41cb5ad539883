#pragma once

#include "core/menu/Keys.h"
#include "platform/forms/Screen.h"

#include <QMargins>

class QLayout;

// A screen of the society's books: the band with its title, the society and its year, the guide line, the
// strip of its keys, and the ways out. What a screen says for itself is its fields, its rules and its layout.
class SocietyScreen : public Screen {
protected:
    // What the labels are called in the system where it isn't as everywhere.
    struct LabelNames {
        const char* guide = "lblGuide";
        const char* company = "lblCompanyTitle";
    };

    // `keys` are those of the screen and of its fields; the first place bears the screen's name in the
    // system.
    SocietyScreen(const Keys::Places& keys, const Caption& title, const LabelNames& labels);
    SocietyScreen(const Keys::Places& keys, const Caption& title) : SocietyScreen(keys, title, LabelNames())
    {
    }

    Label lblTitle{this, "lblTitle"};
    Label lblCompanyTitle;
    Label lblAcYear{this, "lblAcYear"};
    Label lblGuide;

    // Puts the screen together: the band, the body, and the strip of keys. The guide line has its place in
    // the body.
    void Stack(QLayout* body, const QMargins& margins = {24, 16, 24, 16});
    void Stack(QLayout* body, QWidget* strip, const QMargins& margins);

    // The strip of a place of the screen.
    QWidget* KeyStrip(const QString& place) const;

    // What the strip says of a key, what a key does in a field, and all keys of a field in one line.
    Caption KeyAction(QStringView key) const;
    Caption KeyAction(const Control& field, QStringView key) const;
    Caption KeyGuide(const Control& field) const;

    // F2, the calculator, and F12, the keyboard tutor, for the screens that have them.
    static KeyHint CalculatorKey();
    static KeyHint TutorKey();

    // Answers the keys of the field in focus, and then those of the screen.
    bool KeyDown(const QKeyEvent& key) override;

    // Esc: empties the fields and closes.
    void Escape() override;

    // For the button that leaves the screen.
    void cmdExit_Click() { Close(); }

private:
    void ShowCompany();
    void StartCalculator();
    void ShowTutor();
    QString PlaceOf(const Control& field) const;

    Keys::Places m_keys;
};
