#pragma once

// What the program does in answer to one key or press, from beginning to end. A failure in it may say that
// nothing was saved only as long as nothing was: a delivery stays in the books even if the list or the slip
// behind it fails. Answers nest, for a question is answered while the key that led to it still is.
class KeyAnswer {
public:
    KeyAnswer();
    ~KeyAnswer();
    KeyAnswer(const KeyAnswer&) = delete;
    KeyAnswer& operator=(const KeyAnswer&) = delete;

    // Something was committed.
    static void NoteSaved();

    // Whether something was committed since the running answer began.
    static bool HasSaved();

private:
    bool m_hadSaved;
};
