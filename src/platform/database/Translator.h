#pragma once

#include "platform/database/Catalogue.h"
#include "platform/database/StatementTokens.h"

#include <QByteArray>

// How a literal is passed to the engine; decided once for each shape.
enum class LiteralUse : quint8 {
    AsIs, // a text as text, a number as number, a date as ISO text
    IsoDate, // a quoted date for a date column; another text is a type mismatch
    IsoDateOrNone, // the same compared with cstr of a date column; another text equals no date
    TextOfNumber, // a number for a text column, in shortest form
    NumberOfText, // a quoted number for a number column; another text is a type mismatch
    DayFirst, // a date for a text column: dd/MM/yyyy
    Mismatch, // a literal that the column can't hold
    InLine, // part of the statement itself: no parameter
};

enum class StatementKind { Query, Insert, Update, Delete, Create };

// A translated statement, and what is known about its shape.
struct Translation {
    StatementKind kind = StatementKind::Query;
    QByteArray sql;
    std::vector<LiteralUse> uses;
    std::vector<int> dateColumns; // columns of the result that are dates though the engine doesn't say so
    std::vector<std::shared_ptr<const Table>> reads;
    bool readsUnknown = false; // it may read more tables than `reads` names
    std::shared_ptr<const Table> target; // the table that it writes
    bool mayBeKept = true; // its words hold no literal, so they fit every statement of the shape
};

// Translates the dialect of the screens into the SQL of the database engine.
class Translator {
public:
    explicit Translator(Catalogue& catalogue) : m_catalogue(catalogue) { }

    // `scanned` is the split statement; `statement` is for error messages. A statement of a kind that the
    // dialect doesn't have is an error.
    Translation Translate(const ScannedStatement& scanned, QStringView statement) const;

private:
    Catalogue& m_catalogue;
};
