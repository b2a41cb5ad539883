#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/Screen.h"
#include "platform/forms/TextField.h"

// The keyboard aid: what is typed in one field shows in the other, over a picture of which key gives which
// letter.
class frmKeyboardTutor final : public Screen {
public:
    frmKeyboardTutor();

private:
    Label lblTitle{this, "lblTitle"};
    PlainField txtEnglish{this, "txtEnglish"};
    TextField txtMarathi{this, "txtMarathi"};

    void txtEnglish_Change();
    void txtMarathi_Change();
};
