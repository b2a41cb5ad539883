#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <functional>

// What lies in the books of the society, or in a copy of them.
struct BooksContent {
    qint64 deliveries = 0;
    qint64 members = 0;
    qint64 payments = 0;
    QDate newestDay; // of the deliveries; not valid without one
};

// Which copy is to be brought back, and what becomes of the books that it replaces.
struct RestorePlan {
    QString copy;
    QString books;
    QString keptFolder; // the books that are replaced go there under a dated name
    QString password;
    QDateTime now; // the date in that name
    bool replacesDamagedBooks = false; // even if their log can't be folded; it is kept with them
};

// Copies of the closed books: made, looked at, brought back. All paths are those of this machine. What fails
// is a RunTimeError that says why, and leaves books and older copies as they were.
namespace BooksCopies {

// What is being done: the bytes are copied; each page of the copy is read; the books that a restore replaces
// are kept.
enum class Work { Copying, Checking, Keeping };

// Told when something else is begun, and how far it is. Nothing is told while the pages are read.
using Progress = std::function<void(Work work, int percent)>;

// Copies the books over `target`, and returns what lies in the copy. Before the copy takes the place of an
// older one it is opened, each of its pages is read, and the rows of its tables are counted against the
// books.
BooksContent BackUp(
    const QString& books, const QString& target, const QString& password, const Progress& progress = {});

// Looks at any copy: it must have the password, be sound, and be books of this program.
BooksContent Check(const QString& copy, const QString& password, const Progress& progress = {});

// Brings a copy back, checked as by BackUp, and returns what lies in it. The books that it replaces are
// copied into the kept folder first. There needn't be any.
BooksContent Restore(const RestorePlan& plan, const Progress& progress = {});

// The newest backup: in the folder `Backup` beside the books, or where BackUp has put the last one. Books
// that Restore has replaced are no backup. Empty if there is none.
QString Newest(const QString& booksFolder);

}
