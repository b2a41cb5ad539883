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

    // Turn the page for the clerk, going round at the ends; for Ctrl+PgDn and Ctrl+PgUp of the screen.
    void TurnToNext() { Turn(1); }
    void TurnToPrevious() { Turn(-1); }

    // The number of the page that is shown, counted from 1.
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;

private:
    QTabBar& Strip() const;
    void ShowPage();
    void Turn(int step);

    QStackedWidget* m_pages;
    std::vector<std::vector<Control*>> m_controls; // of each page
    int m_tab = 0;
};
