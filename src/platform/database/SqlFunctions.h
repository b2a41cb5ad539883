#pragma once

struct sqlite3;

// The functions of the system's statements that the engine hasn't got, and three of the translator's own:
//   cstr(x)      the text of a value; a number in shortest form
//   left(x,n)    the first n characters
//   datetext(d)  dd/MM/yyyy of an ISO date
//   isodate(t)   the ISO date of dd/MM/yyyy; another text is a type mismatch
// Each is Null for Null.
namespace SqlFunctions {

void Register(sqlite3* handle);

}
