#pragma once

#include <QWidget>

#include <vector>

class DataGrid;
class QTableView;

// Widgets above the columns of a grid that keep their place when the columns grow. The bar is as wide as the
// grid and is laid out directly above it.
class ColumnBar final : public QWidget {
public:
    explicit ColumnBar(const DataGrid& grid);

    // Puts a widget above the columns from `first` to `last`, counted from 0. It keeps its own height.
    void Put(QWidget& part, int first, int last);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Part {
        QWidget* widget;
        int first;
        int last;
    };
    void Place();

    const QTableView& m_table;
    std::vector<Part> m_parts;
};
