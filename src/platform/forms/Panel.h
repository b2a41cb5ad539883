#pragma once

#include "platform/forms/Control.h"

#include <initializer_list>
#include <vector>

class QLayout;

// Controls and labels of a screen that are shown and hidden together, with their layout. Hidden controls
// can't take the focus; if one had it, the focus moves on.
class Panel {
public:
    Panel(
        Screen* screen, std::initializer_list<Control*> controls, std::initializer_list<Label*> labels = {});

    // Puts the layout into a widget, which is to be added to the screen.
    QWidget* LaidOut(QLayout* contents);

    // Takes the screen's own widget around them, such as a white sheet, in place of that one.
    void SetFrame(QWidget* frame);

    const std::vector<Control*>& Controls() const { return m_controls; }

    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);

private:
    Screen* m_screen;
    std::vector<Control*> m_controls;
    std::vector<Label*> m_labels;
    QWidget* m_frame = nullptr; // the screen's
    bool m_visible = true;
};
