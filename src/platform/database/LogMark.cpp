#include "platform/database/LogMark.h"

#include <QRandomGenerator>

#include <sqlcipher/sqlite3.h>

namespace {

// The two parts of a base.
constexpr quint32 MarkMask = 0xFFFE0000;
constexpr quint32 TraceMask = 0x0001FFFE;
constexpr quint32 FoldingBit = 1;

// The times of a database and a log that were copied together differ by at most so many nanoseconds.
constexpr qint64 OneCopying = 1000000000;

quint32 MarkBits(qint32 round)
{
    return static_cast<quint32>(round) << 17;
}

// A hash that is very different for similar times and sizes.
quint32 TraceBits(const FileState& file)
{
    quint64 mixed =
        static_cast<quint64>(file.written) * 0x9E3779B97F4A7C15ULL ^ static_cast<quint64>(file.size);
    mixed ^= mixed >> 29;
    mixed *= 0xBF58476D1CE4E5B9ULL;
    return static_cast<quint32>(mixed >> 32) & TraceMask;
}

qint32 Number(sqlite3* handle, const char* pragma)
{
    qint32 number = 0;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle, pragma, -1, &statement, nullptr) == SQLITE_OK
        && sqlite3_step(statement) == SQLITE_ROW)
        number = sqlite3_column_int(statement, 0);
    sqlite3_finalize(statement);
    return number;
}

}

LogMark LogMark::Of(sqlite3* handle)
{
    return {Number(handle, "pragma application_id"), Number(handle, "pragma user_version")};
}

qint32 LogMark::New()
{
    return static_cast<qint32>(QRandomGenerator::system()->bounded(1U, 0x80000000U));
}

qint32 LogMark::BaseOf(qint32 booksRound, const FileState& books)
{
    return static_cast<qint32>(MarkBits(booksRound) | TraceBits(books));
}

qint32 LogMark::FoldingBaseOf(qint32 booksRound)
{
    return static_cast<qint32>(MarkBits(booksRound) | FoldingBit);
}

qint32 LogMark::Folding(qint32 base)
{
    return static_cast<qint32>((static_cast<quint32>(base) & MarkMask) | FoldingBit);
}

bool LogMark::IsFolding(qint32 base)
{
    return (static_cast<quint32>(base) & FoldingBit) != 0;
}

bool LogMark::WereThereBefore(const FileState& books, const FileState& log)
{
    return books.written <= log.written + OneCopying;
}

bool LogMark::GoesOnFrom(qint32 booksRound, const FileState& books, const FileState& log) const
{
    if (round == booksRound && round != 0)
        return true;
    const auto bits = static_cast<quint32>(base);
    if ((bits & MarkMask) != MarkBits(booksRound))
        return false;
    return IsFolding(base) || (bits & TraceMask) == TraceBits(books) || WereThereBefore(books, log);
}
