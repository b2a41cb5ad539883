#pragma once

#include "platform/database/FileState.h"

struct sqlite3;

// The marks that connect a log with its database. The first page of a database has two numbers that
// applications may use:
//
// - user_version marks the round. Each first write after a fold gives it a new value. In the file it is the
//   mark of the last round that was folded, in the log that of the round being written.
// - application_id, in the log, says which database state the round is based on: the mark of the file when
//   the round began, a trace of the size and time of the file then, and whether a fold has begun to change
//   the file.
//
// Each round begins with a first page, so the log alone tells whether it belongs to this database.
struct LogMark {
    qint32 base = 0;
    qint32 round = 0;

    // Reads the marks through an open connection; zeros if that fails.
    static LogMark Of(sqlite3* handle);

    // A mark that no earlier round had.
    static qint32 New();

    // The base of a round: the mark of the database and its state. FoldingBaseOf is the base while a fold is
    // changing the database.
    static qint32 BaseOf(qint32 booksRound, const FileState& books);
    static qint32 FoldingBaseOf(qint32 booksRound);

    // The same base, with the note that a fold has begun.
    static qint32 Folding(qint32 base);
    static bool IsFolding(qint32 base);

    // Whether the database file is no newer than the log. A newer one is a copy which somebody has restored,
    // so the log isn't applied even if it would fit.
    static bool WereThereBefore(const FileState& books, const FileState& log);

    // Whether a log with these marks belongs to this database.
    bool GoesOnFrom(qint32 booksRound, const FileState& books, const FileState& log) const;
};

// The current round of the log.
struct LogRound {
    qint32 books = 0; // the mark in the file
    qint32 log = 0; // the mark of the round being written
    qint32 base = 0; // the base that the log names
    bool isMarked = false; // whether the marks are in the log already
    bool isFolding = false; // whether the log notes that a fold has begun

    // Everything in the log has been folded: the next write begins a new round.
    void BeginAnew() { *this = {log, log, 0, false, false}; }

    // This mark has been written to the log.
    void Write(const LogMark& mark) { *this = {books, mark.round, mark.base, true, false}; }
};
