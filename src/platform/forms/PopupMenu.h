#pragma once

#include "platform/forms/Control.h"

#include <QObject>

#include <vector>

class QMenu;

// A menu that the right button of the mouse opens on a control; the menu key and Shift+F10 open it where the
// control holds the focus. The press gives the control the focus first, and a field that keeps it keeps the
// menu shut.
class PopupMenu final : public QObject {
public:
    struct Entry {
        Caption caption; // the letter after '&' chooses it
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
