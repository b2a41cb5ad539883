#include "BooksFile.h"

#include <sqlcipher/sqlite3.h>

namespace {

std::vector<std::string> FirstColumn(sqlite3* handle, const char* query)
{
    std::vector<std::string> values;
    sqlite3_stmt* statement = nullptr;
    int code = sqlite3_prepare_v2(handle, query, -1, &statement, nullptr);
    if (code == SQLITE_OK)
        while ((code = sqlite3_step(statement)) == SQLITE_ROW)
            values.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    if (code != SQLITE_DONE)
        values.emplace_back(sqlite3_errmsg(handle));
    sqlite3_finalize(statement);
    return values;
}

}

std::string BooksFile::IntegrityOf(sqlite3* handle)
{
    std::string found;
    for (const std::string& line : FirstColumn(handle, "pragma integrity_check"))
        found += (found.empty() ? "" : "\n") + line;
    return found;
}

std::vector<std::string> BooksFile::TablesOf(sqlite3* handle)
{
    return FirstColumn(handle,
        "select name from sqlite_master where type='table' and name not like 'sqlite%' order by name");
}
