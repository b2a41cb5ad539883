#pragma once

#include <QListView>
#include <QStringListModel>

#include <functional>
#include <memory>

class QStyledItemDelegate;
class Screen;

// The list of texts that drops below a field. It never takes the focus: the field walks it, and the mouse
// picks from it.
class DropList {
public:
    // `picked` is told the row that the mouse has picked.
    DropList(Screen& screen, const std::function<void(int)>& picked);
    ~DropList();

    // What the eye meets in the list, a row each; `marks` stand at the right edge of the rows, as far as
    // there are any.
    void SetRows(const QStringList& texts, const QStringList& marks = {});
    QStringList Rows() const { return m_rows.stringList(); }

    // Opens it below a field of the screen, or above it where there is more room. An empty list stays closed;
    // an open one finds its place anew.
    void OpenAt(const QWidget& field);
    void Close();
    bool IsOpen() const { return m_open; }

    // The row that is marked, which stands in the middle of what is seen as far as the list's ends allow; -1
    // is none.
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
