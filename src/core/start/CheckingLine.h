#pragma once

#include <QWidget>

// The line of text in the empty program window while every page of the books is read at start-up. It takes no
// answer.
class CheckingLine final : public QWidget {
public:
    // Returns once it is on the screen.
    CheckingLine();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
