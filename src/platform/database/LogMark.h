#pragma once

#include "platform/database/FileState.h"

struct sqlite3;

// What ties a log to its books. The first page of a database has two numbers that are free for its owner:
//
// - user_version is the mark of the round: a new one with the first writing after each fold. In the file it
//   is that of the last round that was folded, in the log that of the round being written.
// - application_id says in the log what the round goes on from: the mark that the file had when the round
//   began, a trace of the file's size and time then, and whether a fold has begun to change the file.
//
// Each round begins with a first page, so it is told by the log alone whether it goes on from these books.
struct LogMark {
    qint32 base = 0;
    qint32 round = 0;

    // Reads the marks through an open connection; zeros if they can't be read.
    static LogMark Of(sqlite3* handle);

    // A mark that no round had before.
    static qint32 New();

    // What a round goes on from: books of that mark in that state; and the same books while they are changed.
    static qint32 BaseOf(qint32 booksRound, const FileState& books);
    static qint32 FoldingBaseOf(qint32 booksRound);

    // The same base, with the word that a fold has begun.
    static qint32 Folding(qint32 base);
    static bool IsFolding(qint32 base);

    // Whether these books stood there when the log was written. Books that were put there later are a copy:
    // they are what somebody wants to have back, even if the log would fit them.
    static bool WereThereBefore(const FileState& books, const FileState& log);

    // Whether a log with these marks goes on from these books.
    bool GoesOnFrom(qint32 booksRound, const FileState& books, const FileState& log) const;
};

// The round of the log while the books are open.
struct LogRound {
    qint32 books = 0; // the mark that the file has
    qint32 log = 0; // the mark that is being written
    qint32 base = 0; // what the log says that it goes on from
    bool isMarked = false; // whether the log holds its marks already
    bool isFolding = false; // whether the log says that a fold has begun

    // All that the log holds is in the books: what is written next begins a new round.
    void BeginAnew() { *this = {log, log, 0, false, false}; }

    // The log holds this mark now.
    void Write(const LogMark& mark) { *this = {books, mark.round, mark.base, true, false}; }
};
