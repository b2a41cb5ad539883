#pragma once

#include <QObject>

class QInputMethodEvent;
class QWidget;

// Lets a box take only what was keyed after it was painted. Keys and texts of an input method that were typed
// ahead were meant for the field below, so all of them are thrown away, and so are the repetitions of a key
// that is held down. Keys that the program types itself (SendKeys) don't pass through here.
class FreshKeys final : public QObject {
public:
    // Guards `box` whenever it is shown, as long as this lives.
    explicit FreshKeys(QWidget& box);
    ~FreshKeys() override;

    // Whether an open box takes no keys yet. A test waits until it does before it types the next key.
    static bool Awaited();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State { Open, Unseen, Painted };

    void Turn(State state);
    bool IsComposedAhead(const QInputMethodEvent& event);

    QWidget& m_box;
    State m_state = State::Open;
    bool m_composesAhead = false; // an input method is at a word that was begun ahead of the box
};
