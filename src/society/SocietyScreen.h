#pragma once

#include "core/menu/Keys.h"
#include "platform/forms/Screen.h"

#include <QMargins>

class QLayout;

// What all screens of the society's books have: the band with title, society and year, the guide line, the
// strip of keys, and the ways out. A screen adds its fields, its rules and its layout.
class SocietyScreen : public Screen {
protected:
    // The names of two labels, which some screens call differently.
    struct LabelNames {
        const char* guide = "lblGuide";
        const char* company = "lblCompanyTitle";
        const char* title = "lblTitle";
    };

    // `keys` are the keys of the screen and of its fields; the name of the first place is the screen's.
    SocietyScreen(const Keys::Places& keys, const Caption& title, const LabelNames& labels);
    SocietyScreen(const Keys::Places& keys, const Caption& title) : SocietyScreen(keys, title, LabelNames())
    {
    }

    Label lblTitle;
    Label lblCompanyTitle;
    Label lblAcYear{this, "lblAcYear"};
    Label lblGuide;

    // Puts the screen together: the band, the body, and the strip of keys. The body has to hold the guide
    // line.
    void Stack(QLayout* body, const QMargins& margins = {24, 16, 24, 16});
    void Stack(QLayout* body, QWidget* strip, const QMargins& margins);

    // The strip with the keys of one place.
    QWidget* KeyStrip(const QString& place) const;

    // What a key does by the strip, what it does in a field, and all keys of a field in one line.
    Caption KeyAction(QStringView key) const;
    Caption KeyAction(const Control& field, QStringView key) const;
    Caption KeyGuide(const Control& field) const;

    // F2, the calculator, and F12, the keyboard tutor, for the screens that have them.
    static KeyHint CalculatorKey();
    static KeyHint TutorKey();

    // The place whose keys are answered before those of the screen: the field in focus. A screen may name
    // another, such as several fields together.
    virtual QString PlaceOfFocus() const;

    // Answers the keys of PlaceOfFocus first, then those of the screen.
    bool KeyDown(const QKeyEvent& key) override;

    // Esc: empties the fields and closes.
    void Escape() override;

    // For the exit button.
    void cmdExit_Click() { Close(); }

private:
    void ShowCompany();
    void StartCalculator();
    void ShowTutor();
    QString PlaceOf(const Control& field) const;

    Keys::Places m_keys;
};
