#pragma once

#include "platform/text/RunTimeError.h"

#include <QStringView>

struct sqlite3;

// What goes wrong with the books, said to the clerk: what happened and what to do, then the detail in
// English. That nothing was saved is said only where it is known; behind a commit the clerk is told to look.
namespace DatabaseErrors {

// The engine has rolled back on its own; or a part of the transaction was given up.
[[noreturn]] void ThrowRolledBack();
[[noreturn]] void ThrowGivenUp();

// A statement that isn't one of the system's is not run.
[[noreturn]] void ThrowRefused(const char* english, QStringView statement);

// A value that holds an apostrophe never reaches the engine.
[[noreturn]] void ThrowApostrophe(QStringView statement);

// A text that isn't the number or the date that its column holds.
[[noreturn]] void ThrowMismatch(QStringView value, QStringView statement);

// A number that no number field can hold.
[[noreturn]] void ThrowOverflow(QStringView value, QStringView statement);

// A failure that the engine reports, by its code. `statement` is empty if it isn't one statement's.
RunTimeError Failure(sqlite3* handle, int code, QStringView statement);
[[noreturn]] void ThrowFailure(sqlite3* handle, int code, QStringView statement);

// A commit that failed: what was written last may be on the disk all the same.
RunTimeError CommitFailure(sqlite3* handle, int code);

// The file of the books, or its log, isn't the one that was opened any more; whether what stood in a removed
// log could be brought into the books.
[[noreturn]] void ThrowFilesChanged();
[[noreturn]] void ThrowLogGone(bool isBroughtIn);

// The file or the record set isn't open any more.
[[noreturn]] void ThrowClosed();

}
