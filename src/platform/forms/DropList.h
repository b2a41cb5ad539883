#pragma once

#include <QListView>
#include <QStringListModel>

#include <functional>
#include <memory>

class QStyledItemDelegate;
class Screen;

// The list that drops down below a field. It never takes the focus: the field moves through it by keys, and
// the mouse picks from it.
class DropList {
public:
    // `picked` is called with the row that the mouse has picked, counted from 0.
    DropList(Screen& screen, const std::function<void(int)>& picked);
    ~DropList();

    // The rows, in Unicode; `marks` are texts at the right edges of the first rows.
    void SetRows(const QStringList& texts, const QStringList& marks = {});
    QStringList Rows() const { return m_rows.stringList(); }

    // Opens the list below a field of the screen, or above it if there is more room. An empty list stays
    // closed. If it is open, it is placed again.
    void OpenAt(const QWidget& field);
    void Close();
    bool IsOpen() const { return m_open; }

    // The highlighted row, counted from 0, -1 for none. It is scrolled to the middle of the list.
    int CurrentRow() const;
    void SetCurrentRow(int row);

private:
    void Place(const QWidget& field);

    Screen& m_screen;
    QStringListModel m_rows;
    QStringList m_marks;
    std::unique_ptr<QStyledItemDelegate> m_look;
    std::unique_ptr<QListView> m_list;
    bool m_open = false;
};
