#pragma once

#include <QFrame>

class QLabel;

// What the clerk wants to know before beginning: the working day, litres and amount of its two shifts so far,
// the period that was paid last, and the date of the last backup. Show reads them from the books and from the
// backup folder.
class DayAtAGlance final : public QFrame {
public:
    DayAtAGlance();

    // Reads the figures anew.
    void Show();

private:
    void ShowShifts();
    void ShowPayment();
    void ShowBackup();

    QLabel* m_day;
    QLabel* m_litres[2] = {}; // morning, evening
    QLabel* m_amount[2] = {};
    QLabel* m_payment;
    QLabel* m_backup;
};
