#pragma once

#include <QWidget>

// The picture of the keyboard: on each key its Latin letters, and beside them the Devanagari shape that
// each gives, plain and with Shift; below it the shapes that are typed with Alt and a number.
class KeyboardMap final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};
