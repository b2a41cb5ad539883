#pragma once

#include "platform/forms/Control.h"

// Shows how far a run over many rows is: a bar that fills, with the percent on it, hidden at rest. The screen
// lays it out and calls Step in its handler, which paints the window in time and lets no key or click in.
class Progress {
public:
    explicit Progress(Screen* screen);

    // The bar, to be laid out. It keeps its room while it is hidden.
    QWidget* Widget() const { return lblBack.Widget(); }

    // Shows an empty bar for so many rows; for 0, nothing.
    void Begin(int rows);

    // Another row is done.
    void Step() { StepTo(m_done + 1); }

    // So many rows are done.
    void StepTo(int rows);

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
