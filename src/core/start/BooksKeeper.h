#pragma once

#include <QTimer>

// While it lives, keeps the log beside the books short, so that the file alone holds all but the last seconds
// of work: what was saved is folded into the file when a screen is left, and when no key was pressed for a
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
