#pragma once

#include "platform/database/Translator.h"

struct sqlite3_stmt;

// Gives the literals of one statement to a prepared one of the same shape. The texts lie in `arena`, which
// must stay until the statement is reset; dates in it are turned round in place. A literal that its column
// can't hold is an error, and nothing has been executed then.
void BindLiterals(sqlite3_stmt* prepared, const Translation& translation,
    const std::vector<Literal>& literals, char* arena, QStringView statement);
