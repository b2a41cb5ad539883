#pragma once

struct sqlite3;

// The SQL functions that statements use and the engine doesn't have; datetext and isodate are for the
// translator only:
//   cstr(x)      the text of a value; a number in its shortest form
//   left(x,n)    the first n characters
//   datetext(d)  dd/MM/yyyy of an ISO date
//   isodate(t)   the ISO date of dd/MM/yyyy; another text is a type mismatch
// All return Null for Null.
namespace SqlFunctions {

void Register(sqlite3* handle);

}
