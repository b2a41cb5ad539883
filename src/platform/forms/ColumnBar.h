#pragma once

#include <QWidget>

#include <vector>

class DataGrid;
class QTableView;

// Parts that stand over the columns of a grid and keep to them when they grow. The bar is as wide as the grid
// and lies above it.
class ColumnBar final : public QWidget {
public:
    explicit ColumnBar(const DataGrid& grid);

    // Puts a part over the columns from `first` to `last`. It keeps its own height.
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
