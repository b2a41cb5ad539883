#pragma once

#include "platform/forms/Control.h"

#include <vector>

class QLayout;
class QStackedWidget;
class QTabBar;

// Pages of controls below a strip of tabs; one page is shown, and the controls of the others can't take the
// focus. When the clerk turns the page the strip takes the focus, so the field that is left can refuse. Tab
// leads from the strip into the page.
class TabPages final : public Control {
public:
    // The captions of the tabs, one for each page.
    TabPages(
        Screen* screen, const char* name, const std::vector<Caption>& captions, const Handler& click = {});

    // The clerk or the screen has turned the page.
    Event Click;

    // The page that is shown, counted from 0.
    int Tab() const { return m_tab; }

    // Turns to a page.
    void SetTab(int tab);

    // Sets the contents of a page; its controls are shown and hidden with it.
    void SetPage(int tab, QLayout* contents, const std::vector<Control*>& controls);

    // The widget below the strip.
    QWidget* Pages() const;

    // Ctrl+PgDn turns to the next page and Ctrl+PgUp to the previous one, going round at the ends. The screen
    // calls it before its controls see a key; returns true if it has turned the page.
    bool TurnPage(const QKeyEvent& key);

    // The number of the page that is shown, counted from 1.
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
