#pragma once

// Lives while the program handles one key or click. If something fails, the message may say that nothing was
// saved only if that is so: a delivery stays in the books even if the list or the slip after it fails. There
// can be several of these inside each other, since a handler may ask a question and wait for its key.
class KeyAnswer {
public:
    KeyAnswer();
    ~KeyAnswer();
    KeyAnswer(const KeyAnswer&) = delete;
    KeyAnswer& operator=(const KeyAnswer&) = delete;

    // Something was committed.
    static void NoteSaved();

    // Whether something was committed since the current key or click.
    static bool HasSaved();

private:
    bool m_hadSaved;
};
