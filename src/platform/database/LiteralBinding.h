#pragma once

#include "platform/database/Translator.h"

struct sqlite3_stmt;

// Binds the literals of a statement to a prepared statement of the same shape. The texts are in `arena`,
// which must exist until the statement is reset; dates in it are converted in place. A literal that its
// column can't hold is an error; nothing has been executed then.
void BindLiterals(sqlite3_stmt* prepared, const Translation& translation,
    const std::vector<Literal>& literals, char* arena, QStringView statement);
