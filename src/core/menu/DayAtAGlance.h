#pragma once

#include <QFrame>

class QLabel;

// What the clerk wants to know before he begins: the working day, what its two shifts
// have brought so far, and when the books were last copied. Read from the books and from the folder of the
// copies when it is shown.
class DayAtAGlance final : public QFrame {
public:
    DayAtAGlance();

    // Reads the figures anew.
    void Show();

private:
    void ShowShifts();
    void ShowBackup();

    QLabel* m_day;
    QLabel* m_litres[2] = {}; // morning, evening
    QLabel* m_amount[2] = {};
    QLabel* m_backup;
};
