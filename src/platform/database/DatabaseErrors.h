#pragma once

#include "platform/text/RunTimeError.h"

#include <QStringView>

struct sqlite3;

// The errors of the database, as texts for the clerk: what happened and what to do, then details in English.
// That nothing was saved is said only where it is known; behind a commit the clerk is told to look.
namespace DatabaseErrors {

// The engine has rolled back on its own; or a part of the transaction was given up.
[[noreturn]] void ThrowRolledBack();
[[noreturn]] void ThrowGivenUp();

// The statement isn't one that the translator accepts, and was not run.
[[noreturn]] void ThrowRefused(const char* english, QStringView statement);

// A value contains an apostrophe; it was not passed to the engine.
[[noreturn]] void ThrowApostrophe(QStringView statement);

// A text isn't a number or a date, as its column requires.
[[noreturn]] void ThrowMismatch(QStringView value, QStringView statement);

// A number is too large for any number column.
[[noreturn]] void ThrowOverflow(QStringView value, QStringView statement);

// A failure that the engine reports by a code. `statement` is empty if no single statement failed.
RunTimeError Failure(sqlite3* handle, int code, QStringView statement);
[[noreturn]] void ThrowFailure(sqlite3* handle, int code, QStringView statement);

// A commit failed; what was written last may be on the disk all the same.
RunTimeError CommitFailure(sqlite3* handle, int code);

// The database file or its log isn't the one that was opened any more. ThrowLogGone is for a log that was
// removed; `isBroughtIn` says whether its content could still be written into the database.
[[noreturn]] void ThrowFilesChanged();
[[noreturn]] void ThrowLogGone(bool isBroughtIn);

// The connection or the record set is closed.
[[noreturn]] void ThrowClosed();

}
