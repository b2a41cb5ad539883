#pragma once

#include <QString>

// The password of new books, asked for so that it stands neither in the shell's history nor in the list of
// processes.
namespace AskedPassword {

// At a terminal it is typed twice, unseen; else it is the first line of the standard input, empty if there is
// none. A RunTimeError if the two differ or the typing was broken off.
QString Read();

}
