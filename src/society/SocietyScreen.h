#pragma once

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

    // `name` is the screen's name in the system; under it stand its keys.
    SocietyScreen(const char* name, const Caption& title, const LabelNames& labels);
    SocietyScreen(const char* name, const Caption& title) : SocietyScreen(name, title, LabelNames()) { }

    Label lblTitle{this, "lblTitle"};
    Label lblCompanyTitle;
    Label lblAcYear{this, "lblAcYear"};
    Label lblGuide;

    // Puts the screen together: the band, the body, and the strip of keys. The guide line has its place in
    // the body.
    void Stack(QLayout* body, const QMargins& margins = {24, 16, 24, 16});
    void Stack(QLayout* body, QWidget* keys, const QMargins& margins);

    // The keys that many screens have: F2 and F12 where the strip names them.
    bool KeyDown(const QKeyEvent& key) override;

    // Esc: empties the fields and closes.
    void Escape() override;

    // For the button that leaves the screen.
    void cmdExit_Click() { Close(); }

private:
    void ShowCompany();
};
