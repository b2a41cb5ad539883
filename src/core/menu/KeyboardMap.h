#pragma once

#include <QWidget>

// A picture of the keyboard: on each key its Latin letters, with and without Shift, each beside the
// Devanagari shape that it types; below, the shapes that are typed with Alt and a number.
class KeyboardMap final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};
