#pragma once

#include <QWidget>

class Screen;

// The one window of the program; it fills the screen that it stands on. The open screens lie in it: one that
// is full covers what is beneath, a card stands over it, dimmed. It bears the title of the screen on top, and
// its close box is that screen's.
class ProgramWindow final : public QWidget {
public:
    // The window; made when it is first asked for.
    static ProgramWindow& Current();
    ~ProgramWindow() override;

    // Takes the window away, at the end of the program.
    static void Leave();

    // Where the next window appears instead of filling the screen, for tests and pictures.
    static void SetPlace(const QRect& place);

    // Lays the open screens out anew: one has come or gone, or changed its size or title.
    void Arrange();

    // Shows the window, if it isn't there yet.
    void Appear();

    // Between the whole screen and the work area.
    void ToggleFullScreen();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    ProgramWindow();

    QRect CardPlace(const Screen& card) const;

    QWidget m_shade{this}; // over what lies beneath a card
};
