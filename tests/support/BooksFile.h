#pragma once

#include <string>
#include <vector>

struct sqlite3;

// An open database file as its engine sees it, below the system's statements.
namespace BooksFile {

// "ok", or what the engine's own check of the whole file has found.
std::string IntegrityOf(sqlite3* handle);

// The names of all tables, in the order of the alphabet.
std::vector<std::string> TablesOf(sqlite3* handle);

// The first page of a table or an index, counted from 1.
int PageOf(sqlite3* handle, const std::string& name);

// How many locks this process has on a file, as the system lists them for every program.
int LocksOn(const std::string& path);

}
