#pragma once

#include <QWidget>

class Screen;

// The one window of the program, which fills its screen. The open screens are in it: a full one covers those
// below, a card stands over them and dims them. The window has the title of the screen on top, and its close
// box closes that screen.
class ProgramWindow final : public QWidget {
public:
    // The window; the first call makes it.
    static ProgramWindow& Current();
    ~ProgramWindow() override;

    // Removes the window, at the end of the program.
    static void Leave();

    // Places the next window there instead of filling the screen, for tests and pictures.
    static void SetPlace(const QRect& place);

    // Lays out the open screens again: one was opened or closed, or changed its size or title.
    void Arrange();

    // Shows the window if it isn't shown yet.
    void Appear();

    // Switches between full screen and the work area of the desktop.
    void ToggleFullScreen();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    ProgramWindow();

    QRect CardPlace(const Screen& card) const;

    QWidget m_shade{this}; // dims what is below a card
};
