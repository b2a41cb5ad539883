#include "tests/support/BooksFile.h"

#include <sqlcipher/sqlite3.h>

#include <fstream>
#include <set>
#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

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

int BooksFile::PageOf(sqlite3* handle, const std::string& name)
{
    const std::string query = "select rootpage from sqlite_master where name='" + name + "'";
    return std::stoi(FirstColumn(handle, query.c_str()).front());
}

int BooksFile::LocksOn(const std::string& path)
{
    struct stat found { };
    if (stat(path.c_str(), &found) != 0)
        return 0;
    // While other processes lock and unlock, the table can name a lock twice: each is counted once.
    std::set<std::string> ours;
    std::ifstream locks("/proc/locks");
    for (std::string line; std::getline(locks, line);) {
        std::istringstream words(line);
        std::string number, kind, mode, way, process, file, range;
        words >> number >> kind >> mode >> way >> process >> file;
        std::getline(words, range);
        if (kind == "POSIX" && process == std::to_string(getpid())
            && file.ends_with(':' + std::to_string(found.st_ino)))
            ours.insert(way + range);
    }
    return static_cast<int>(ours.size());
}
