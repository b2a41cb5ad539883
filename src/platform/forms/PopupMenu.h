#pragma once

#include "platform/forms/Control.h"

#include <QObject>

#include <vector>

class QMenu;

// A menu that opens with the right mouse button on a control, or with the menu key or Shift+F10 while the
// control has the focus. The press moves the focus to the control first; if another field refuses to let it
// go, the menu stays closed.
class PopupMenu final : public QObject {
public:
    struct Entry {
        Caption caption; // the letter after '&' is its key
        Event chosen;
    };

    PopupMenu(Control& control, const std::vector<Entry>& entries);
    ~PopupMenu() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OpenAt(QPoint place);

    Control& m_control;
    std::unique_ptr<QMenu> m_menu;
};
