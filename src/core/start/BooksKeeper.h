#pragma once

#include <QTimer>

// Keeps the log beside the books short while it lives, so that the file alone is all but the last seconds of
// work: what was saved is folded into the file when a screen is left and when the keys have rested for a
// while.
class BooksKeeper {
public:
    BooksKeeper();
    ~BooksKeeper();
    BooksKeeper(const BooksKeeper&) = delete;
    BooksKeeper& operator=(const BooksKeeper&) = delete;

private:
    void BooksWritten();

    QTimer m_rest;
};
