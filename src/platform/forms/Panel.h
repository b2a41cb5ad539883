#pragma once

#include "platform/forms/Control.h"

#include <initializer_list>
#include <vector>

class QLayout;

// Controls and labels of a screen that are shown and hidden together, with what is laid out around them. What
// is hidden can't take the focus; a control that held it passes it on.
class Panel {
public:
    Panel(
        Screen* screen, std::initializer_list<Control*> controls, std::initializer_list<Label*> labels = {});

    // Lays them out, captions and all, in a widget of their own: the one to be put into the screen.
    QWidget* LaidOut(QLayout* contents);

    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);

private:
    std::vector<Control*> m_controls;
    std::vector<Label*> m_labels;
    QWidget* m_frame; // the screen's
    bool m_visible = true;
};
