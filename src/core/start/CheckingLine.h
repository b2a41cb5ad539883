#pragma once

#include <QWidget>

// The line that stands over the ground of the program's window while every page of the books is read at the
// start. Nobody answers it.
class CheckingLine final : public QWidget {
public:
    // Returns when it can be seen.
    CheckingLine();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
