#pragma once

#include <QLabel>

// The line that stands on the screen while every page of the books is read at the start.
class CheckingLine {
public:
    // Returns when it can be seen.
    CheckingLine();

private:
    QLabel m_label;
};
