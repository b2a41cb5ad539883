#pragma once

#include "platform/forms/Control.h"

// How far a run over many rows is: a bar that fills, and the percent on it. It is hidden at rest. The screen
// lays it out and steps it in its handler; meanwhile the window is painted, and no key or press of the mouse
// gets in.
class Progress {
public:
    explicit Progress(Screen* screen);

    // The bar, to be laid out. It keeps its place while it is hidden.
    QWidget* Widget() const { return lblBack.Widget(); }

    // Shows an empty bar for so many rows; for none there is nothing to show.
    void Begin(int rows);

    // One row more is done.
    void Step();

    // Hides it.
    void End();

    // How many rows are done.
    int Done() const { return m_done; }

private:
    void Show();

    Label lblBack; // the empty bar
    Label lblProgress; // the filled part
    Label lblPercent; // "37 %"
    int m_rows = 0;
    int m_done = 0;
    int m_percent = 0;
};
