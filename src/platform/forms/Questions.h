#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Layout.h"
#include "platform/forms/OptionButton.h"

namespace Layout {

// A page of questions, such as a page of settings: the question at the left, then whose it is, the field, and
// its measure. The question names the field to a screen reader.
class Questions {
public:
    Questions();

    void Choice(const Caption& question, Control& field);

    // A choice with a button that belongs to it.
    void Choice(const Caption& question, Control& field, Button& button);

    // An empty question goes on with the one above.
    void Figure(const Caption& question, const Caption& whose, Control& field, const Caption& measure);

    // A box to tick carries its question itself.
    void Box(Control& box);

    // One of several answers, in a row below the question.
    void Options(const Caption& question, std::initializer_list<OptionButton*> options);

    // The page, with what room is left below the last question.
    QLayout* Page();

private:
    void Put(const Caption& question, const Caption& whose, Control& field, QWidget* behind);

    QGridLayout* m_grid;
    int m_row = 0;
};

}
