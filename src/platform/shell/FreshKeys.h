#pragma once

#include <QObject>

class QInputMethodEvent;
class QWidget;

// Lets a box take only keys that were pressed after it was painted. What was typed ahead of it, for a field
// that the clerk thought to be in, is thrown away, all of it, by key or by input method; so are the
// repetitions of a key that is held down. Keys that the program types itself don't come through the window
// system and are none of its business.
class FreshKeys final : public QObject {
public:
    // Guards `box` whenever it is shown, as long as this lives.
    explicit FreshKeys(QWidget& box);
    ~FreshKeys() override;

    // Whether a box is up that takes no key yet: whoever types for a test has to wait until it does.
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
