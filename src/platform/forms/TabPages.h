#pragma once

#include "platform/forms/Control.h"

#include <vector>

class QLayout;
class QStackedWidget;
class QTabBar;

// Pages of controls under a strip of tabs, one page seen at a time; what lies on the others can't take the
// focus. The strip takes the focus when the clerk turns a page, so the field that is left may refuse it; Tab
// leads on into the page.
class TabPages final : public Control {
public:
    // The captions of the tabs, a page each.
    TabPages(
        Screen* screen, const char* name, const std::vector<Caption>& captions, const Handler& click = {});

    // Another page is seen, turned by the clerk or by the screen.
    Event Click;

    // The page that is seen, from 0.
    int Tab() const { return m_tab; }

    // Turns to a page.
    void SetTab(int tab);

    // Lays out a page; its controls come and go with it.
    void SetPage(int tab, QLayout* contents, const std::vector<Control*>& controls);

    // What lies below the strip.
    QWidget* Pages() const;

    // Ctrl+PgDn turns to the next page and Ctrl+PgUp to the one before, around the ends. To be asked by the
    // screen before its controls see a key; true if it was one of these.
    bool TurnPage(const QKeyEvent& key);

    // The number of the page that is seen, from 1.
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;

private:
    QTabBar& Strip() const;
    void ShowPage();

    QStackedWidget* m_pages;
    std::vector<std::vector<Control*>> m_controls; // of each page
    int m_tab = 0;
};
